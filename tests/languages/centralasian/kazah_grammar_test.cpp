// Kazakh readings through the public API, and its number speller on its own.
#include "languages/centralasian/kazah_grammar.h"

#include <gtest/gtest.h>

#include "support/speak.h"

namespace vela::testing {
namespace {

const Reading kKazakh[] = {
    // Plain numbers: leading zeros said one by one, dash-separated pieces, the
    // hundred without "one", the thousand with it, a cardinal keeps its millions.
    {"007", "nol nol zheti"},
    {"12-05", "on eki nol bes"},
    {"32.1", "otyz eki bir"},
    {"0,25", "nol zhiyrma bes"},
    {"115", "zhuz on bes"},
    {"2008", "eki myng segiz"},
    {"1002003000", "bir milliard eki million ush myng"},
    // More than twelve digits: the last twelve are read.
    {"2000000000001", "bir"},
    // Dates: ordinal year, its word, ordinal day, locative month; month 0 says
    // the word in slot 0; a date without a year still says the year word.
    {"5.01.2008(I)", "eki myng segizinshi zhyldyng besinshi qangtarynda"},
    {"31.12.1999", "bir myng togyz zhuz toqsan togyzynshy zhyldyng otyz birinshi zheltoqsanynda"},
    {"5.00.2008", "eki myng segizinshi zhyldyng besinshi nuhsad"},
    {"12.05", "zhyldyng on ekinshi mamyrynda"},
    // Clock times and spans; a span with seconds is not spoken.
    {"7:05:30", "zheti sagat bes minut otyz sekundta"},
    {"\"0:00\"", "nol sagat nol minuttan"},
    {"\"1:02:03\"", "\"1:02:03\""},
    // Counts: the zero phrase "nol" before the three time units (as written),
    // "zhoq" after any other word; an unknown word and a fraction say nothing.
    {"21MIN", "zhiyrma bir minut"},
    {"0h", "nol sagat"},
    {"00sec", "nol sekund"},
    {"0H", "sagat zhoq"},
    {"5xyz", "5xyz"},
    {"-5h", "minus bes sagat"},
    // Money: a zero amount, a one-digit minor part counting tens, a minor part
    // alone, "rub" with "diram", a long minor part read whole.
    {"0.00kzt", "nol tenge"},
    {"1.5kzt", "bir tenge elu tiyn"},
    {"12.50rub", "on eki rubl elu diram"},
    {"5.567d", "bes dollar bes zhuz alpys zheti tsent"},
    // Digit strings and characters.
    {"\"1#*\"", "bir"},
    {"#", "panjara"},
    {"x", "x"},
};

TEST(KazahGrammar, Readings) {
  expectReadings("kk", kKazakh);
  const Complaint refused[] = {
      {"25:10", "wrong time (hours) 25\r\n", "minutta"},
      {"99:00:00", "wrong time (hours) 99\r\n", "minut nol sekundta"},
  };
  expectComplaints("kk", refused);
}

// The blanks travel inside the words: a group opens with its own blank and
// the ordinal suffix fuses onto the scale word.
TEST(KazahGrammar, ExactBytes) {
  const Reading cases[] = {
      {"100", "  zhuz"},
      {"20.05.2000", "  eki myngynshy zhyldyng   zhiyrmasynshy mamyrynda"},
      {"0ab", "abonent zhoq"},
  };
  expectRawReadings("kk", cases);
}

// An empty character says nothing, a digit (which only a direct call hands
// over) its word.
TEST(KazahGrammar, DirectCharacters) {
  KazahGrammar g;
  std::string out = "x";
  g.speakCharacter("", out);
  g.speakCharacter("7", out);
  EXPECT_EQ(out, "xzheti");
}

// The ordinal mark on the last word, or on the last scale word of a round
// number; the millions are skipped by an ordinal milliard with thousands.
TEST(KazahGrammar, OrdinalSpeller) {
  const Reading cases[] = {
      {"0", ""},
      {"15", "on besinshi"},
      {"20", "zhiyrmasynshy"},
      {"1000000", "bir millioninshi"},
      {"3002000", "ush million eki myngynshy"},
      {"2000000000", "eki milliardynshy"},
      {"1000000007", "bir milliard zhetinshi"},
      {"1000005000", "bir milliard bes myngynshy"},
      {"1002005000", "bir milliard eki million bes myngynshy"},
  };
  for (const Reading& c : cases) {
    std::string out;
    KazahGrammar::speakInteger(c.text, out, true);
    EXPECT_EQ(joinNames(out), c.prompts) << c.text;
  }
  std::string zero;
  KazahGrammar::speakInteger("000", zero, false);
  EXPECT_EQ(zero, "");
}

}  // namespace
}  // namespace vela::testing
