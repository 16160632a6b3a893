// The number core of the Russian family, called directly for what the public
// API never reaches: the tables' gaps, arguments out of range, unknown
// suffixes, and the limits of dates that the input patterns never let through.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "grammar/cp1251.h"
#include "languages/russian/family_speaker.h"
#include "support/speak.h"

namespace vela::testing {
namespace {

const FamilySpeaker kRussian(kRussianLanguage);
const FamilySpeaker kTrans(kRussianTransLanguage);
const FamilySpeaker kUkrainian(kUkrainianLanguage);

DigitGroup groupOf(const char* digits) {
  DigitGroup group;
  getDigitGroup(digits, &group, 0);
  return group;
}

TEST(RussianNumberCore, Speak3RefusesGenitiveWithoutOrdinal) {
  std::string out = "kept";
  int result = -1;
  EXPECT_EQ(capturedStdout([&] { result = kRussian.speak3(groupOf("5"), 0, 1, 0, out); }),
            " wrong parameters for RusGrammar::speak3\n\r");
  EXPECT_EQ(result, 0);
  EXPECT_EQ(out, "kept");
  EXPECT_EQ(capturedStdout([&] { kUkrainian.speak3(groupOf("5"), 0, 1, 0, out); }),
            " wrong parameters for UkranianGrammar::speak3\n\r");
}

// A unit row outside the table appends nothing and reads nothing; a symbol is
// matched whole, never by its first character.
TEST(RussianNumberCore, OutsideTheTables) {
  std::string out;
  kRussian.appendUnitForm(groupOf("5"), out, -1, 1);
  kRussian.appendUnitForm(groupOf("5"), out, 88, 1);
  EXPECT_EQ(out, "");
  EXPECT_EQ(kRussian.findSymbol("##"), 0);
}

// A bare zero says nothing; "female" is feminine in Russian only; an unknown
// suffix is reported and drops the units group, the higher groups stay.
TEST(RussianNumberCore, SpeakCountSuffixes) {
  const struct {
    const FamilySpeaker* speaker;
    const char* digits;
    const char* suffix;
    const char* printed;
    const char* words;
  } cases[] = {
      {&kRussian, "0", "", "", ""},
      {&kRussian, "2", "female", "", "две"_cp},
      {&kTrans, "2", "female", " wrong suffix (getGender) female \r\n", ""},
      {&kRussian, "5005", "xyz", " wrong suffix (getGender) xyz \r\n", "пять тысяч"_cp},
  };
  for (const auto& c : cases) {
    std::string out;
    EXPECT_EQ(capturedStdout([&] { c.speaker->speakCount(c.digits, c.suffix, out); }), c.printed);
    EXPECT_EQ(joinNames(out), c.words) << c.digits << c.suffix;
  }
  std::string out;
  EXPECT_EQ(capturedStdout([&] { kRussian.speakDecimal("2", "5", "", out); }),
            " wrong suffix (getGender)  \r\n");
  EXPECT_EQ(joinNames(out), "две целых пять десятых"_cp);  // the words before the unit stay
}

// Day 32, day 0, month 13, years below 1000, 1000, 2999 and 3000; a rejected
// date returns 0 and appends nothing.
TEST(RussianNumberCore, DateLimits) {
  const struct {
    const char* day;
    const char* month;
    const char* year;
    const char* words;
    const char* printed;
  } cases[] = {
      {"32", "1", "2015", "", " incorrect day 32 \r\n"},
      {"0", "5", "", "мая"_cp, ""},
      {"1", "13", "2015", "", " incorrect month 13 \r\n"},
      {"1", "5", "999", "первого мая"_cp, ""},
      {"1", "5", "1000", "первого мая одна тысяча года"_cp, ""},
      {"1", "5", "2999", "первого мая две тысячи девятьсот девяносто девятого года"_cp, ""},
      {"1", "5", "3000", "", " incorrect year 3 \r\n"},
  };
  for (const auto& c : cases) {
    std::string out;
    int result = -1;
    EXPECT_EQ(capturedStdout([&] { result = kRussian.speakDate(c.day, c.month, c.year, "20", out); }),
              c.printed);
    EXPECT_EQ(result, *c.printed == '\0' ? 1 : 0) << c.day << "." << c.month << "." << c.year;
    EXPECT_EQ(joinNames(out), c.words) << c.day << "." << c.month << "." << c.year;
  }
}

// Numbers and amounts read from the group readings say exactly what the
// word-by-word reading says: every group value in every position, in every
// language, with a unit of each gender and without.
TEST(RussianNumberCore, GroupReadingsSayWhatTheWordsSay) {
  for (const FamilyLanguage* language : {&kRussianLanguage, &kRussianTransLanguage, &kUkrainianLanguage}) {
    const GroupReadings readings{FamilySpeaker(*language)};
    const FamilySpeaker fast(*language, &readings);
    const FamilySpeaker slow(*language);
    std::vector<std::string> units;  // a unit word of each gender
    for (int gender : {kMasculine, kFeminine, kNeuter}) {
      for (const UnitRow& row : language->units) {
        if (row.gender == gender) {
          units.emplace_back(row.form1);
          break;
        }
      }
    }
    for (int value = 0; value < 1000; ++value) {
      for (const std::string& digits :
           {std::to_string(value), std::to_string(value) + "007", std::to_string(value) + "000000",
            std::to_string(value) + "000000000", "1" + std::to_string(value + 1000).substr(1) + "001002"}) {
        for (const std::string& unit : units) {
          std::string a, b;
          fast.speakCount(digits, unit, a);
          slow.speakCount(digits, unit, b);
          ASSERT_EQ(a, b) << digits << " " << unit;
        }
        std::string a, b;
        fast.speakNumber({digits}, a);
        slow.speakNumber({digits}, b);
        ASSERT_EQ(a, b) << digits;
      }
    }
  }
}

}  // namespace
}  // namespace vela::testing
