// Romanian readings. Expectations are the exact bytes handed back, spaces
// included: the number words carry their own leading spaces, so readings hold
// double spaces where a space and a number word meet ("ora  doua").
#include "languages/romanian/roman_grammar.h"

#include <gtest/gtest.h>

#include <string>

#include "languages/romanian/roman_number.h"
#include "vela/vela.h"

namespace {

using namespace vela;

struct Case {
  const char* text;
  const char* prompts;
};

std::string decode(const char* tag, const char* text) {
  char* out = nullptr;
  EXPECT_EQ(decodeBuffer(tag, text, &out), 0) << text;
  std::string result = out != nullptr ? out : "";
  decodeReleaseBuffer(out);
  return result;
}

void expectDecodes(const char* tag, const Case* begin, const Case* end) {
  for (const Case* c = begin; c != end; ++c) EXPECT_EQ(decode(tag, c->text), c->prompts) << c->text;
}

// The number core through counts ("rub" is feminine, "leu" masculine), dates
// (the ordinal one) and bare numbers (counting forms).
const Case kNumbers[] = {
    {"1rub", " unu rubla"},
    {"1leu", " un leu"},
    {"1.05", " intai mai"},
    {"2rub", " doua rubli"},
    {"2leu", " doi lei"},
    {"12rub", " douasprezece rubli"},
    {"12leu", " doisprezece lei"},
    {"15leu", " cincisprezece lei"},
    {"0leu", "zero  lei"},
    {"21rub", " douazeci si una de rubli"},
    {"100leu", "o suta lei"},
    {"105leu", "o suta cinci lei"},
    {"110leu", "o suta zece lei"},
    {"120leu", "o suta douazeci si de lei"},
    {"125leu", "o suta douazeci si cinci de lei"},
    {"1000leu", "o mie  lei"},
    {"2000leu", "  doua mii  lei"},
    {"1005leu", "o mie  cinci lei"},
    {"2000000leu", "  doua milioane   lei"},
    {"1001000leu", "un miliono mie  lei"},
    {"1", " unu"},
    {"2", " doi"},
    {"0", "zero "},
    {"2012", "  doua mii  doisprezece"},
    {"1234567", "un milion doua sute treizeci si patru mii cinci sute saizeci si sapte"},
    {"999999999",
     " noua sute nouazeci si noua milioane  noua sute nouazeci si noua mii noua sute nouazeci si noua"},
};

// " de " from 20 in the last two digits, the neuter nouns (masculine one,
// feminine two), special amounts, case-insensitive suffixes, and money.
const Case kCountsAndMoney[] = {
    {"19leu", " nouasprezece lei"},
    {"20leu", " douazeci de lei"},
    {"25leu", " douazeci si cinci de lei"},
    {"101leu", "o suta unu lei"},
    {"1020leu", "o mie  douazeci si de lei"},
    {"5leu", " cinci lei"},
    {"5LEU", " cinci lei"},
    {"1min", " un minut"},
    {"2min", " doua minute"},
    {"21min", " douazeci si una de minute"},
    {"1fax", " un fax"},
    {"3fax", " trei faxuri"},
    {"1mes", " un mesaj"},
    {"2h", " doua ore"},
    {"3buk", " trei bukati"},
    {"0num", "Nu exista numere"},
    {"0mes", "Nu exista mesaj"},
    {"00num", " numere"},
    {"0NUM", "zero  numere"},
    {"-0num", "minus zero  numere"},
    {"5xyz", "5xyz"},
    {"5bani", "5bani"},
    // Nine digits at most reach a count; more leave no digits to read.
    {"12345678901min", " minute"},
    // Money: the minor part padded from one digit and cut beyond two.
    {"25.50leu", " douazeci si cinci de lei si cincizeci de bani"},
    {"12.5leu", " doisprezece lei si cincizeci de bani"},
    {"12.567leu", " doisprezece lei si cincizeci si sase de bani"},
    {"1.01d", " un dolar si un cent"},
    {"2.02rub", " doua rubli si doua kopeici"},
    {"20.20usd", " douazeci de dolari si douazeci de centi"},
    {"0.05leu", " cinci bani"},
    {",5leu", " cincizeci de bani"},
    {"0.00leu", "zero  lei"},
    {"00leu", "zero  lei"},
    {"7.0leu", " sapte lei"},
    {"007leu", " sapte lei"},
    {"5mdl", " cinci lei"},
    {"5RON", " cinci lei"},
    {"21eur", " douazeci si unu de euro"},
    {"1.5eur", " un euro si cincizeci de centi"},
    {"-5leu", "minus  cinci lei"},
    {"12345678901leu", "unu doi trei patru cinci sase sapte opt noua zero unu  lei"},
};

// Day ordinal one, months 0 and 13, the year, the double spaces of the clock.
const Case kDatesAndTimes[] = {
    {"1.12.2015", " intai decembrie   doua mii  cincisprezece"},
    {"1.01.2015", " intai januare   doua mii  cincisprezece"},
    {"2.02.2000", " doi februarie   doua mii "},
    {"1.01.1900", " intai januare o mie noua sute"},
    {"31.12.1999(I)", " treizeci si unu decembrie o mie noua sute nouazeci si noua"},
    {"5.00.2015", " cinci    doua mii  cincisprezece"},
    {"12.05", " doisprezece mai"},
    {"12.05(I)", " doisprezece mai"},
    {"2:00", "ora  doua zero zero"},
    {"2:00:00", "ora  doua zero zero"},
    {"14:05", "ora  paisprezece  cinci minute"},
    {"14:05:00", "ora  paisprezece  cinci minute"},
    {"0:30", "ora zero  treizeci minute"},
    {"00:30", "ora zero  treizeci minute"},
    {"0:00", "ora zero zero zero"},
    {"0:00:00", "ora zero zero zero"},
    {"0:00:05", "ora zero  cinci secunde"},
    {"1:01:01", "ora  unu  unu minut  unu secunda"},
    {"10:21:30", "ora  zece  douazeci si una minute  treizeci secunde"},
    {"25:00", "ora  douazeci si cinci zero zero"},
};

// The readings this grammar chose: leading zeros and dashes, digit by digit
// beyond nine digits, "double"/"triple" runs, keys, symbols, spans of time.
const Case kChosen[] = {
    {"007", "zero zero  sapte"},
    {"12-34", " doisprezece  treizeci si patru"},
    {"100-1", "o suta  unu"},
    {"05-0", "zero  cinci zero "},
    {"1234567890", "unu doi trei patru cinci sase sapte opt noua zero "},
    {"000123456789",
     "zero zero zero  o suta douazeci si trei milioane  patru sute cincizeci si sase mii sapte "
     "sute optzeci si noua"},
    {"\"112\"", "double unu doi "},
    {"\"1112\"", "triple unu doi "},
    {"\"1111\"", "double unu double unu "},
    {"\"11111\"", "triple unu double unu "},
    {"\"1111111\"", "triple unu double unu double unu "},
    {"\"1212\"", "unu doi unu doi "},
    {"\"0\"", "zero "},
    {"\"12#*\"", "unu doi diez steluta "},
    {"\"**00\"", "steluta steluta double zero "},
    {"+", "plus"},
    {"#", "diez"},
    {":", "doua puncte"},
    {"a", "a"},
    {"\"2:30\"", " doua ore treizeci de minute"},
    {"\"0:01\"", " un minut"},
    {"\"1:00\"", " unu ora"},
    {"\"0:00\"", "zero  minute"},
    {"\"125:30\"", "o suta douazeci si cinci de ore treizeci de minute"},
    {"\"1:02:03\"", " unu ora doua minute trei secunde"},
    {"\"0:00:21\"", " douazeci si una de secunde"},
    {"\"0:00:00\"", "zero  secunde"},
    {"\"1234567890:00\"", "unu doi trei patru cinci sase sapte opt noua zero  de ore"},
};

TEST(RomanGrammar, Numbers) { expectDecodes("ro", std::begin(kNumbers), std::end(kNumbers)); }

TEST(RomanGrammar, CountsAndMoney) {
  expectDecodes("ro", std::begin(kCountsAndMoney), std::end(kCountsAndMoney));
}

TEST(RomanGrammar, DatesAndTimes) {
  expectDecodes("ro", std::begin(kDatesAndTimes), std::end(kDatesAndTimes));
}

TEST(RomanGrammar, ChosenReadings) { expectDecodes("ro", std::begin(kChosen), std::end(kChosen)); }

// Every Romanian and Moldovan tag reaches the same grammar.
TEST(RomanGrammar, EveryTag) {
  for (const char* tag : {"ROMANIAN", "mol", "mo", "rom", "ro", "rum", "MOLDOVA"}) {
    EXPECT_EQ(decode(tag, "25.50leu"), " douazeci si cinci de lei si cincizeci de bani") << tag;
  }
}

// Calls the classifier cannot make: ten digits and stray bytes in the number
// core, years and months outside what the date patterns let through, a suffix
// without a noun, and the characters that only speakCharacter gets directly.
TEST(RomanGrammar, DirectCalls) {
  using romanian::sayGroup;
  using romanian::sayNumber;
  EXPECT_EQ(sayNumber("1234567890", 0, 0), " opt sute nouazeci si");
  EXPECT_EQ(sayNumber("1000000000", 1, 0), " ");
  EXPECT_EQ(sayNumber("99999999999999999999", 1, 0), " noua sute nouazeci si noua");
  EXPECT_EQ(sayNumber("1", 1, 1), " intai");
  EXPECT_EQ(sayNumber("01", 1, 0), " un");
  EXPECT_EQ(sayNumber("", 0, 0), "");
  EXPECT_EQ(sayGroup("1000", 0), "");
  EXPECT_EQ(sayGroup("2x", 1), " douazeci si");
  EXPECT_EQ(sayGroup("x\xFF", 1), "");

  const struct {
    const char* day;
    const char* month;
    const char* year;
    const char* prompts;
  } dates[] = {
      {"1", "13", "2015", " intai    doua mii  cincisprezece"},
      {"2", "5", "1899", " doi mai"},
      {"2", "5", "3000", " doi mai   trei mii "},
      {"2", "5", "3001", " doi mai"},
      {"x", "-1", "99999999999", " "},
  };
  for (const auto& d : dates) {
    RomanGrammar grammar;
    std::string out;
    EXPECT_EQ(grammar.speakDate(d.day, d.month, d.year, "", "", out), 0);
    EXPECT_EQ(out, d.prompts) << d.day << "." << d.month << "." << d.year;
  }

  RomanGrammar grammar;
  std::string out;
  grammar.speakCharacter("7", out);
  grammar.speakCharacter("77", out);
  grammar.speakCharacter("", out);
  EXPECT_EQ(out, "sapte");
  out.clear();
  grammar.speakDialString("55#x", out);
  EXPECT_EQ(out, "double cinci diez ");
}

// Diagnostics on standard output: a suffix without a noun still reads the
// number and one space; a fraction is refused with a line saying so.
TEST(RomanGrammar, Diagnostics) {
  RomanGrammar grammar;
  std::string out;
  ::testing::internal::CaptureStdout();
  grammar.speakCount({"5"}, "5", "xyz", out);
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), " wrong suffix xyz \r\n");
  EXPECT_EQ(out, " cinci ");

  ::testing::internal::CaptureStdout();
  EXPECT_EQ(decode("ro", "1.5min"), "1.5min");
  EXPECT_EQ(decode("ro", "1,5"), "1,5");
  EXPECT_EQ(::testing::internal::GetCapturedStdout(),
            " no decimal reading min \r\n no decimal reading 1,5 \r\n");
}

}  // namespace
