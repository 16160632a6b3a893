#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "support/speak.h"
#include "vela/vela.h"

namespace {

TEST(DecodeBufferTest, OwnsAndReleases) {
  EXPECT_EQ(vela::testing::decodeRaw("en", ""), "");
  EXPECT_EQ(vela::testing::decodeRaw("en", "    "), "    ");
  EXPECT_EQ(vela::testing::decodeRaw("no such tag", "ab"), "ab");
  decodeReleaseBuffer(nullptr);
  EXPECT_EQ(decodeBuffer("en", "1", nullptr), -1);
}

struct AsciiCase {
  std::string tag;
  std::string text;
  bool result;
  std::vector<std::string> files;  // after the call, starting from {"old"}
  std::string log;
};

// The list entry: tag and text lower-cased, names appended, an unknown tag and
// an empty result reported.
const AsciiCase kAscii[] = {
    {"EN", "a.wav  B.WAV c", true, {"old", "a.wav", "b.wav", "c"}, ""},
    {"ru", "12.50RUB", true, {"old", "dvenadcat", "rublei", "pyatdesyat", "kopeek"}, ""},
    {"ENGLISH", "a.wav", false, {"old"}, " language tag incorrect"},
    {"", "a.wav", false, {"old"}, " language tag incorrect"},
    {"en", "   ", false, {"old"}, "input buffer have an incorrect format:    "},
    {"en", "5XYZ", false, {"old"}, "input buffer have an incorrect format: 5XYZ"},
    {"en",
     std::string("\0a.wav", 6),
     false,
     {"old"},
     "input buffer have an incorrect format: " + std::string("\0a.wav", 6)},
};

TEST(DecodeBufferAsciiTest, Table) {
  for (const auto& c : kAscii) {
    std::vector<std::string> files{"old"};
    std::ostringstream log;
    EXPECT_EQ(DecodeBufferASCII(c.tag, c.text, files, log), c.result) << c.tag << "/" << c.text;
    EXPECT_EQ(files, c.files) << c.tag << "/" << c.text;
    EXPECT_EQ(log.str(), c.log) << c.tag << "/" << c.text;
  }
}

}  // namespace
