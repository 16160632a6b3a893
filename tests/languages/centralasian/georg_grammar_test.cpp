// Georgian readings through the public API, and its vigesimal speller on its own.
#include "languages/centralasian/georg_grammar.h"

#include <gtest/gtest.h>

#include "support/speak.h"

namespace vela::testing {
namespace {

const Reading kGeorgian[] = {
    // A plain number digit by digit.
    {"2008", "ori nuli nuli rva"},
    {"12-05", "erti ori nuli khuti"},
    // Counts say their number in the final form: vigesimal words, the final
    // hundreds only with nothing after them, final multipliers before a scale
    // word, and no multiplier for a thousands group ending in 1.
    {"28ab", "otsdarva abonenti"},
    {"99ab", "otkhmotsdatskhrameti abonenti"},
    {"121ab", "as otsdaerti abonenti"},
    {"2000ab", "ori atasi abonenti"},
    {"2001ab", "ori atas erti abonenti"},
    {"11000ab", "atasi abonenti"},
    {"101000ab", "atasi abonenti"},
    {"200000ab", "orasi atasi abonenti"},
    {"3000005ab", "sami milion khuti abonenti"},
    {"5000000001ab", "khuti milliard erti abonenti"},
    // Zero counts.
    {"0h", "nuli saati"},
    {"0ab", "abonenti ar aris"},
    // Dates: day in the compound form, day 1 "pirvel" by value, month 0 with no
    // word, the year in the compound form and "tsels".
    {"1.03.2008", "pirvel marts ori atas rva tsels"},
    {"21.12.1999", "otsdaert dekembers atas tskhraas otkhmotsdatskhramet tsels"},
    {"5.00.2008", "khut ori atas rva tsels"},
    // Clock times and spans.
    {"7:05", "shvid saatze khut tsutze"},
    {"24:00", "otsdaotkh saatze null tsutze"},
    {"7:05:30", "shvid saatze khut tsutze da otsdaat tsamze"},
    {"\"0:00\"", "nuli saati nuli tsuti"},
    // Money in the final form; a one-digit minor part counts tens.
    {"0.5gel", "ormotsdaati tetri"},
    {"5.05gel", "khuti lari khuti tetri"},
    {"1.5usd", "erti dolari ormotsdaati tsenti"},
    // Digit strings and symbols.
    {"\"0123456789\"", "nuli erti ori sami otkhi khuti eqvsi shvidi rva tskhra"},
    {"#", "bade"},
};

TEST(GeorgGrammar, Readings) {
  expectReadings("ka", kGeorgian);
  const Complaint refused[] = {{"25:00", "wrong time (hours) 25\r\n", "tsutze"}};
  expectComplaints("ka", refused);
}

// The blanks: a group opens with one, a word inside it is padded on both
// sides, so no hundreds word leaves its blank behind.
TEST(GeorgGrammar, ExactBytes) {
  const Reading cases[] = {{"43ab", "  ormotsdasami  abonenti"}, {"143ab", " as  ormotsdasami  abonenti"}};
  expectRawReadings("ka", cases);
}

}  // namespace
}  // namespace vela::testing
