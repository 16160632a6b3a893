// Romanian readings. Expectations are the exact bytes handed back, spaces
// included: the number words carry their own leading spaces, so readings hold
// double spaces where a space and a number word meet ("ora  doua").
#include "languages/romanian/roman_grammar.h"

#include <gtest/gtest.h>

#include <string>

#include "languages/romanian/roman_number.h"
#include "support/speak.h"

namespace vela::testing {
namespace {

// The number core through counts ("rub" is feminine, "leu" masculine), dates
// (the ordinal one) and bare numbers (counting forms).
const Reading kNumbers[] = {
    {"1rub", " unu rubla"},
    {"1leu", " un leu"},
    {"2rub", " doua rubli"},
    {"21rub", " douazeci si una de rubli"},
    {"100leu", "o suta lei"},
    {"120leu", "o suta douazeci si de lei"},
    {"2000leu", "  doua mii  lei"},
    {"1001000leu", "un miliono mie  lei"},
    {"0", "zero "},
    {"1234567", "un milion doua sute treizeci si patru mii cinci sute saizeci si sapte"},
    {"999999999",
     " noua sute nouazeci si noua milioane  noua sute nouazeci si noua mii noua sute nouazeci si noua"},
};

// " de " from 20 in the last two digits, the neuter nouns (masculine one,
// feminine two), special amounts, case-insensitive suffixes, and money.
const Reading kCountsAndMoney[] = {
    {"20leu", " douazeci de lei"},
    {"5LEU", " cinci lei"},
    {"21min", " douazeci si una de minute"},
    {"3fax", " trei faxuri"},
    {"0num", "Nu exista numere"},
    {"00num", " numere"},
    {"0NUM", "zero  numere"},
    {"-0num", "minus zero  numere"},
    {"5bani", "5bani"},
    // Nine digits at most reach a count; more leave no digits to read.
    {"12345678901min", " minute"},
    // Money: the minor part padded from one digit and cut beyond two.
    {"25.50leu", " douazeci si cinci de lei si cincizeci de bani"},
    {"12.567leu", " doisprezece lei si cincizeci si sase de bani"},
    {"0.05leu", " cinci bani"},
    {",5leu", " cincizeci de bani"},
    {"7.0leu", " sapte lei"},
    {"21eur", " douazeci si unu de euro"},
    {"-5leu", "minus  cinci lei"},
    {"12345678901leu", "unu doi trei patru cinci sase sapte opt noua zero unu  lei"},
};

// Day ordinal one, months 0 and 13, the year, the double spaces of the clock.
const Reading kDatesAndTimes[] = {
    {"1.12.2015", " intai decembrie   doua mii  cincisprezece"},
    {"2.02.2000", " doi februarie   doua mii "},
    {"31.12.1999(I)", " treizeci si unu decembrie o mie noua sute nouazeci si noua"},
    {"5.00.2015", " cinci    doua mii  cincisprezece"},
    {"12.05(I)", " doisprezece mai"},
    {"14:05", "ora  paisprezece  cinci minute"},
    {"0:30", "ora zero  treizeci minute"},
    {"1:01:01", "ora  unu  unu minut  unu secunda"},
    {"10:21:30", "ora  zece  douazeci si una minute  treizeci secunde"},
    {"25:00", "ora  douazeci si cinci zero zero"},
};

// The readings this grammar chose: leading zeros and dashes, digit by digit
// beyond nine digits, "double"/"triple" runs, keys, symbols, spans of time.
const Reading kChosen[] = {
    {"007", "zero zero  sapte"},
    {"100-1", "o suta  unu"},
    {"12-345-6", " doisprezece trei sute patruzeci si cinci  sase"},
    {"1234567890", "unu doi trei patru cinci sase sapte opt noua zero "},
    {"000123456789",
     "zero zero zero  o suta douazeci si trei milioane  patru sute cincizeci si sase mii sapte "
     "sute optzeci si noua"},
    {"\"112\"", "double unu doi "},
    {"\"1112\"", "triple unu doi "},
    {"\"11111\"", "triple unu double unu "},
    {"\"12#*\"", "unu doi diez steluta "},
    {"\"**00\"", "steluta steluta double zero "},
    {"#", "diez"},
    {"\"2:30\"", " doua ore treizeci de minute"},
    {"\"0:00\"", "zero  minute"},
    {"\"1:02:03\"", " unu ora doua minute trei secunde"},
    {"\"0:00:21\"", " douazeci si una de secunde"},
    {"\"1234567890:00\"", "unu doi trei patru cinci sase sapte opt noua zero  de ore"},
};

TEST(RomanGrammar, Numbers) { expectRawReadings("ro", kNumbers); }
TEST(RomanGrammar, CountsAndMoney) { expectRawReadings("ro", kCountsAndMoney); }
TEST(RomanGrammar, DatesAndTimes) { expectRawReadings("ro", kDatesAndTimes); }
TEST(RomanGrammar, ChosenReadings) { expectRawReadings("ro", kChosen); }

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
  EXPECT_EQ(capturedStdout([&] { grammar.speakCount({"5"}, "5", "xyz", out); }), " wrong suffix xyz \r\n");
  EXPECT_EQ(out, " cinci ");
  const Complaint refused[] = {
      {"1.5min", " no decimal reading min \r\n", "1.5min"},
      {"1,5", " no decimal reading 1,5 \r\n", "1,5"},
  };
  expectComplaints("ro", refused);
}

}  // namespace
}  // namespace vela::testing
