// What the family's grammars share: days and months the date patterns never
// deliver are refused with their complaint (Armenian checks the month first),
// 0 is returned and nothing is appended.
#include <gtest/gtest.h>

#include <string>

#include "grammar/factory.h"
#include "support/speak.h"

namespace vela::testing {
namespace {

TEST(CentralAsianFamily, RefusedDates) {
  const struct {
    const char* tag;
    const char* day;
    const char* month;
    const char* printed;
  } cases[] = {
      {"kk", "32", "1", " incorrect day 32 \r\n"},    {"tg", "1", "13", " incorrect month 13 \r\n"},
      {"ka", "32", "1", " incorrect day 32 \r\n"},    {"ka", "1", "13", " incorrect month 13 \r\n"},
      {"hy", "32", "13", " incorrect month 13 \r\n"}, {"hy", "32", "1", " incorrect day 32 \r\n"},
  };
  for (const auto& c : cases) {
    std::string error, out = "x";
    IGrammar& grammar = grammarFor(c.tag, 0, error);
    int result = -1;
    EXPECT_EQ(capturedStdout([&] { result = grammar.speakDate(c.day, c.month, "2008", "20", "08", out); }),
              c.printed)
        << c.tag << " " << c.day << "." << c.month;
    EXPECT_EQ(result, 0) << c.tag;
    EXPECT_EQ(out, "x") << c.tag;
  }
}

}  // namespace
}  // namespace vela::testing
