#include "pipeline/text_decoder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace vela {
namespace {

const std::string k512 = " " + std::string(510, 'a') + " ";
const std::string k513 = " " + std::string(511, 'a') + " ";

// Only the space byte is trimmed, and only in texts of 1 to 512 bytes.
TEST(TrimInputTest, Table) {
  const std::tuple<std::string, int, std::string> cases[] = {
      {"  a b  ", 1, "a b"},
      {"    ", 1, ""},
      {"", -2, ""},
      {"\ta\t", 1, "\ta\t"},
      {std::string(" 5\0 a ", 6), 1, "5"},
      {k512, 1, k512.substr(1, 510)},
      {k513, -1, k513},
  };
  for (const auto& [in, result, out] : cases) {
    std::string s = in;
    EXPECT_EQ(trimInput(s), result) << in.size();
    EXPECT_EQ(s, out) << in.size();
  }
}

TEST(CollapseSpacesTest, Table) {
  const std::pair<std::string, std::string> cases[] = {
      {"a  b   c", "a b c"}, {"     x     ", " x "}, {"", ""}};
  for (const auto& [in, out] : cases) {
    std::string s = in;
    EXPECT_EQ(collapseSpaces(s), 1);
    EXPECT_EQ(s, out) << in;
  }
}

// What the driver hands back: the spoken names; the trimmed text when no rule
// takes it; the caller's own text, untrimmed, when a rule took it and nothing
// was spoken.
TEST(DecodeTextTest, Table) {
  const std::tuple<const char*, std::string, std::string> cases[] = {
      {"en", "", ""},
      {"en", "   ", "   "},
      {"xx", "  a.wav  b.wav  ", "a.wav  b.wav"},
      {"en", " ab ", "ab"},
      {"en", " 5xyz ", " 5xyz "},
      {"en", " " + std::string(600, '7') + "xyz ", " " + std::string(600, '7') + "xyz "},
  };
  for (const auto& [tag, text, result] : cases) {
    for (unsigned char mode : {0, 1}) {
      char* out = nullptr;
      ASSERT_EQ(decodeText(tag, text.c_str(), &out, mode), 0);
      EXPECT_EQ(std::string(out), result) << text;
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

}  // namespace
}  // namespace vela
