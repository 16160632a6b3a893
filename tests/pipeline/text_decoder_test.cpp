#include "pipeline/text_decoder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace vela {
namespace {

struct TrimCase {
  std::string in;
  int result;
  std::string out;
};

const std::string k512 = " " + std::string(510, 'a') + " ";
const std::string k513 = " " + std::string(511, 'a') + " ";

// Only the space byte is trimmed, and only for texts of 1 to 512 bytes.
const TrimCase kTrims[] = {
    {"  a b  ", 1, "a b"},
    {"a", 1, "a"},
    {" ", 1, ""},
    {"    ", 1, ""},
    {"", -2, ""},
    {"\ta\t", 1, "\ta\t"},
    {" \xA0x\xA0 ", 1, "\xA0x\xA0"},
    {k512, 1, std::string(510, 'a')},
    {k513, -1, k513},
};

TEST(TrimInputTest, Table) {
  for (const auto& c : kTrims) {
    std::string s = c.in;
    EXPECT_EQ(trimInput(s), c.result) << c.in.size();
    EXPECT_EQ(s, c.out) << c.in.size();
  }
}

TEST(CollapseSpacesTest, Table) {
  const std::pair<std::string, std::string> cases[] = {
      {"a  b   c", "a b c"}, {"  ", " "},          {"", ""},
      {" a ", " a "},        {"a\t\tb", "a\t\tb"}, {"     x     ", " x "},
  };
  for (const auto& [in, out] : cases) {
    std::string s = in;
    EXPECT_EQ(collapseSpaces(s), 1);
    EXPECT_EQ(s, out) << in;
  }
}

struct DecodeCase {
  const char* tag;
  std::string text;
  std::string result;
};

// What the driver hands back: the spoken names, or the caller's own text,
// untrimmed, when nothing was spoken.
const DecodeCase kDecodes[] = {
    {"en", "", ""},
    {"en", "   ", "   "},
    {"en", "  a.wav  b.wav  ", "a.wav  b.wav"},
    {"xx", "  a.wav ", "a.wav"},
    {"en", " ab ", "ab"},  // no rule takes it: the trimmed text
    {"en", " 5 rub", "5 rub"},
    {"en", " 5xyz ", " 5xyz "},  // a rule took it, nothing spoken: the caller's text
    {"ru", " 5xyz ", " 5xyz "},
    {"en", " " + std::string(600, 'q') + ".wav ", " " + std::string(600, 'q') + ".wav "},
};

TEST(DecodeTextTest, Table) {
  for (const auto& c : kDecodes) {
    for (unsigned char mode : {0, 1}) {
      char* out = reinterpret_cast<char*>(1);
      ASSERT_EQ(decodeText(c.tag, c.text.c_str(), &out, mode), 0);
      ASSERT_NE(out, nullptr);
      EXPECT_EQ(std::string(out), c.result) << c.text;
      std::free(out);
    }
  }
}

TEST(DecodeTextTest, NullArguments) {
  char* out = nullptr;
  EXPECT_EQ(decodeText("en", "a", nullptr, 0), -1);
  ASSERT_EQ(decodeText(nullptr, nullptr, &out, 0), 0);
  EXPECT_STREQ(out, "");
  std::free(out);
}

TEST(TextDecoderTest, UnknownTagSetsFailedAndSpeaksEnglish) {
  TextDecoder unknown("english", " 5 ", 0);
  EXPECT_TRUE(unknown.isFailed());
  EXPECT_EQ(unknown.getErrorText(), " language tag incorrect");
  EXPECT_EQ(unknown.text, "5");

  TextDecoder known("en", "5", 0);
  EXPECT_FALSE(known.isFailed());
  EXPECT_EQ(known.getErrorText(), "");
}

}  // namespace
}  // namespace vela
