// The status of a reading in the Russian family, English and Romanian: every
// way a grammar leaves part of a text unsaid or changed makes it partly spoken,
// and the near misses that say everything stay spoken.
#include <gtest/gtest.h>

#include <string>

#include "grammar/cp1251.h"
#include "vela/vela.h"

namespace vela {
namespace {

struct StatusCase {
  const char* tag;
  unsigned options;
  const char* text;
  int status;
  const char* diagnostics;
};

constexpr int kSpoken = VELA_SPOKEN;
constexpr int kPartly = VELA_PARTLY_SPOKEN;
constexpr int kNone = VELA_NOT_SPOKEN;

const StatusCase kCases[] = {
    // Russian family: digits above the milliards, a fraction cut or misread,
    // a unit dropped after a whole fraction, keys without a word, a decimal
    // where the language has no decimal words.
    {"ru", 0, "1000000000001", kPartly, ""},
    {"ru", 0, "1000000000001руб"_cp, kPartly, ""},
    {"ru", 0, "1.234", kPartly, ""},
    {"ru", 0, "1.005", kPartly, ""},
    {"ru", 0, "12.001руб"_cp, kPartly, ""},
    {"ru", 0, "7.00kb", kPartly, ""},
    {"ru", 0, "\"1*#\"", kPartly, ""},
    {"ru", VELA_LATIN, "-1,5kb", kPartly, ""},
    {"ru", 0, "1.00.2015", kNone, "incorrect month 0\n"},
    // ... and what says everything: twelve digits, leading zeros above them,
    // zeros cut from a fraction, zero seconds.
    {"ru", 0, "999999999999", kSpoken, ""},
    {"ru", 0, "0000000000001руб"_cp, kSpoken, ""},
    {"ru", 0, "1.23", kSpoken, ""},
    {"ru", 0, "1.230", kSpoken, ""},
    {"ru", 0, "12.500руб"_cp, kSpoken, ""},
    {"ru", 0, "\"0123456789\"", kSpoken, ""},
    {"ru", 0, "7:05:00", kSpoken, ""},

    // English: a count or money part beyond nine digits said as zero, cents
    // cut, a number above the millions, a decimal separator or key without a
    // word, month 0 and the century of a marked date left out, hours past the
    // day, the zero phrase that ignores a fraction.
    {"en", 0, "1234567890usd", kPartly, ""},
    {"en", 0, "1234567890min", kPartly, ""},
    {"en", 0, "12.505usd", kPartly, ""},
    {"en", 0, "1.5000000000usd", kPartly, ""},
    {"en", 0, "\"1234567890:00\"", kPartly, ""},
    {"en", 0, "1,5", kPartly, ""},
    {"en", 0, "\"1*#\"", kPartly, ""},
    {"en", 0, "1.00.2015", kPartly, ""},
    {"en", 0, "1.05.2015(I)", kPartly, ""},
    {"en", 0, "24:00", kPartly, ""},
    {"en", 0, "0.5msg", kPartly, ""},
    {"en", 0, "0000000000usd", kSpoken, ""},
    {"en", 0, "12.500usd", kSpoken, ""},
    {"en", 0, "\"999999999:00\"", kSpoken, ""},
    {"en", 0, "0-05-120", kSpoken, ""},
    {"en", 0, "23:59", kSpoken, ""},
    {"en", 0, "0,0msg", kSpoken, ""},

    // Romanian: a count beyond nine digits says only its noun, the minor part
    // is cut, month 0, the zero phrase; money beyond nine digits is said digit
    // by digit and keys have words.
    {"ro", 0, "1234567890min", kPartly, ""},
    {"ro", 0, "12.505leu", kPartly, ""},
    {"ro", 0, "1.00.2015", kPartly, ""},
    {"ro", 0, "0.5mes", kPartly, ""},
    {"ro", 0, "1234567890leu", kSpoken, ""},
    {"ro", 0, "\"*#0\"", kSpoken, ""},
};

TEST(StatusWestTest, PartialReadingsAreNeverSpoken) {
  for (const StatusCase& c : kCases) {
    vela_reading reading;
    ASSERT_EQ(vela_read(c.tag, c.text, c.options, &reading), 0) << c.text;
    EXPECT_EQ(reading.status, c.status) << c.tag << " " << c.text << ": " << reading.names;
    EXPECT_STREQ(reading.diagnostics, c.diagnostics) << c.tag << " " << c.text;
    vela_reading_free(&reading);
  }
}

}  // namespace
}  // namespace vela
