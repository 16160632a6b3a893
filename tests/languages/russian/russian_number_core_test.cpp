// The number core of the Russian grammars, called directly: one digit group in
// every form, the unit-word modes, the lookups, and the limits of dates and
// times that the input patterns never let through.
#include <gtest/gtest.h>

#include "grammar/cp1251.h"
#include "languages/russian/family_language.h"
#include "languages/russian/rus_grammar.h"
#include "languages/russian/rus_grammar_trans.h"
#include "languages/russian/ukranian_grammar.h"
#include "russian_test_support.h"

namespace vela {
namespace {

using testing_russian::capturedStdout;
using testing_russian::joinNames;

DigitGroup groupOf(const char* digits) {
  DigitGroup group;
  getDigitGroup(digits, &group, 0);
  return group;
}

struct Speak3Case {
  const char* digits;
  int gender;
  int genitive;
  int ordinal;
  const char* words;
};

// Cardinal by gender, nominative and genitive ordinals (only the last word is
// ordinal), the table's gaps, and groups that speak nothing.
TEST(RussianNumberCore, Speak3Forms) {
  const Speak3Case cases[] = {
      {"1", kMasculine, 0, 0, "один"_cp},
      {"1", kFeminine, 0, 0, "одна"_cp},
      {"1", kNeuter, 0, 0, "одно"_cp},
      {"2", kFeminine, 0, 0, "две"_cp},
      {"1", kNeuter, 0, 1, "первое"_cp},
      {"1", kMasculine, 0, 1, "pershij"},  // the table's cell as it stands
      {"1", kMasculine, 1, 1, "первого"_cp},
      {"3", kFeminine, 1, 1, "(ni)"},
      {"21", kNeuter, 0, 1, "двадцать первое"_cp},
      {"20", kNeuter, 0, 1, "двадцатое"_cp},
      {"20", kMasculine, 1, 1, "двадцатого"_cp},
      {"40", kMasculine, 1, 1, "сорокового"_cp},
      {"12", kNeuter, 0, 1, "двенадцатое"_cp},
      {"12", kMasculine, 1, 1, "двенадцатого"_cp},
      {"15", 7, 0, 0, "пятнадцать"_cp},  // teens ignore the gender
      {"5", 3, 0, 0, ""},                // a gender out of range gives no units word
      {"100", kNeuter, 0, 1, "сто"_cp},  // no nominative ordinal of a hundred
      {"100", kMasculine, 1, 1, "сотого"_cp},
      {"110", kMasculine, 1, 1, "сто десятого"_cp},
      {"999", kMasculine, 1, 1, "девятьсот девяносто девятого"_cp},
      {"305", kMasculine, 0, 0, "триста пять"_cp},
      {"0", kMasculine, 0, 0, ""},
      {"000", kMasculine, 1, 1, ""},
  };
  for (const Speak3Case& c : cases) {
    std::string out;
    EXPECT_EQ(RusGrammar().speak3(groupOf(c.digits), c.gender, c.genitive, c.ordinal, out), 1);
    EXPECT_EQ(joinNames(out), c.words) << c.digits << " " << c.gender << c.genitive << c.ordinal;
  }
}

TEST(RussianNumberCore, Speak3RefusesGenitiveWithoutOrdinal) {
  std::string out = "kept";
  int result = -1;
  EXPECT_EQ(capturedStdout([&] { result = RusGrammar().speak3(groupOf("5"), 0, 1, 0, out); }),
            " wrong parameters for RusGrammar::speak3\n\r");
  EXPECT_EQ(result, 0);
  EXPECT_EQ(out, "kept");
  EXPECT_EQ(capturedStdout([&] { UkranianGrammar().speak3(groupOf("5"), 0, 1, 0, out); }),
            " wrong parameters for UkranianGrammar::speak3\n\r");
}

// Teens and tens have no nominative ordinal in Ukrainian: the cardinal stands in.
TEST(RussianNumberCore, UkrainianSpeak3) {
  const Speak3Case cases[] = {
      {"12", kNeuter, 0, 1, "dvanadtsjat"},      {"12", kMasculine, 1, 1, "dvanadtsjatogo"},
      {"20", kNeuter, 0, 1, "dvadtsjat"},        {"20", kMasculine, 1, 1, "dvadtsjatogo"},
      {"21", kNeuter, 0, 1, "dvadtsjat pershe"}, {"2", kMasculine, 1, 1, "drugjgo"},
      {"200", kMasculine, 1, 1, "dvohsotogo"},
  };
  for (const Speak3Case& c : cases) {
    std::string out;
    UkranianGrammar().speak3(groupOf(c.digits), c.gender, c.genitive, c.ordinal, out);
    EXPECT_EQ(joinNames(out), c.words) << c.digits;
  }
}

// The form of a unit word after a group, byte for byte (row 2: рубль).
TEST(RussianNumberCore, AppendUnitFormModes) {
  const struct {
    const char* digits;
    int mode;
    const char* appended;
  } cases[] = {
      {"1", 0, " рубль"_cp},
      {"21", 0, " рубль"_cp},
      {"101", 0, " рубль"_cp},
      {"2", 0, " рубля"_cp},
      {"4", 0, " рубля"_cp},
      {"24", 0, " рубля"_cp},
      {"5", 0, " рублей"_cp},
      {"10", 0, " рублей"_cp},
      {"11", 0, " рублей"_cp},
      {"12", 0, " рублей"_cp},
      {"14", 0, " рублей"_cp},
      {"111", 0, " рублей"_cp},
      {"100", 0, " рублей"_cp},
      {"0", 0, ""},
      {"0", 1, " рублей"_cp},
      {"0", 2, " ноль рублей"_cp},
      {"5000", 0, ""},
      {"5000", 1, " рублей"_cp},
      {"5000", 2, " ноль рублей"_cp},
  };
  for (const auto& c : cases) {
    std::string out;
    RusGrammar().appendUnitForm(groupOf(c.digits), out, 2, c.mode);
    EXPECT_EQ(out, c.appended) << c.digits << " mode " << c.mode;
  }
  std::string out;
  RusGrammar().appendUnitForm(groupOf("5"), out, -1, 1);
  RusGrammar().appendUnitForm(groupOf("5"), out, 88, 1);
  EXPECT_EQ(out, "");
  RusGrammarTrans().appendUnitForm(groupOf("0"), out, 2, 2);
  EXPECT_EQ(out, " nol rublei");
  out.clear();
  UkranianGrammar().appendUnitForm(groupOf("0"), out, 13, 2);
  EXPECT_EQ(out, " nool hvylyn");
}

// Keys and words are found case-insensitively, first row first; "N/A" is never a key.
TEST(RussianNumberCore, Lookups) {
  RusGrammar ru;
  EXPECT_EQ(ru.findUnit("руб"_cp), 21);
  EXPECT_EQ(ru.findUnit("РУБ"_cp), 21);
  EXPECT_EQ(ru.findUnit("рубль"_cp), 2);
  EXPECT_EQ(ru.findUnit("копейка"_cp), 3);
  EXPECT_EQ(ru.findUnit("N/A"), -1);
  EXPECT_EQ(ru.findUnit("xyz"), -1);
  EXPECT_EQ(ru.getGender("шт"_cp), kFeminine);
  EXPECT_EQ(ru.getGender("mes"), kNeuter);
  EXPECT_EQ(ru.getGender("xyz"), -1);
  EXPECT_EQ(ru.findSymbol("#"), 2);
  EXPECT_EQ(ru.findSymbol("%"), 5);
  EXPECT_EQ(ru.findSymbol("##"), 0);
  EXPECT_TRUE(ru.isUnit("шт"_cp));
  EXPECT_FALSE(ru.isUnit("штука"_cp));
  EXPECT_FALSE(ru.isUnit("рубль"_cp));
  EXPECT_TRUE(ru.isCurrency("USD"));
  EXPECT_FALSE(ru.isCurrency("шт"_cp));
  RusGrammarTrans trans;
  EXPECT_EQ(trans.findUnit("rub"), 2);  // "rubl", never "rubl'"
  EXPECT_EQ(trans.findUnit("rubl'"), 20);
  EXPECT_TRUE(trans.isCurrency("usd"));
}

TEST(RussianNumberCore, TableBytesAreWindows1251) {
  std::string out;
  RusGrammar().speakCount({}, "5", "rub", out);
  EXPECT_EQ(out, " \xEF\xFF\xF2\xFC \xF0\xF3\xE1\xEB\xE5\xE9");  // " пять рублей"
}

// Zero is never spoken by a group: a bare zero count says nothing, with a unit "ноль".
TEST(RussianNumberCore, ZeroCount) {
  std::string out;
  RusGrammar().speakCount({}, "0", "", out);
  EXPECT_EQ(out, "");
  RusGrammar().speakCount({}, "0", "sec", out);
  EXPECT_EQ(out, " ноль секунд"_cp);
}

TEST(RussianNumberCore, UnknownSuffixesAreReported) {
  std::string out;
  EXPECT_EQ(capturedStdout([&] { RusGrammar().speakCount({}, "5005", "xyz", out); }),
            " wrong suffix (getGender) xyz \r\n");
  EXPECT_EQ(joinNames(out), "пять тысяч"_cp);  // the higher groups stay
  out.clear();
  EXPECT_EQ(capturedStdout([&] { RusGrammarTrans().speakCount({}, "2", "female", out); }),
            " wrong suffix (getGender) female \r\n");
  EXPECT_EQ(out, "");
  RusGrammar().speakCount({}, "2", "female", out);
  EXPECT_EQ(joinNames(out), "две"_cp);
  out.clear();
  EXPECT_EQ(capturedStdout([&] { RusGrammar().speakDecimal({}, {"5"}, "2", "5", "", out); }),
            " wrong suffix (getGender)  \r\n");
  EXPECT_EQ(joinNames(out), "две целых пять десятых"_cp);
}

// Limits of the date that the input patterns never let through.
TEST(RussianNumberCore, DateLimits) {
  const struct {
    const char* day;
    const char* month;
    const char* year;
    int result;
    const char* words;
    const char* printed;
  } cases[] = {
      {"31", "12", "", 1, "тридцать первого декабря"_cp, ""},
      {"32", "1", "2015", 0, "", " incorrect day 32 \r\n"},
      {"0", "5", "", 1, "мая"_cp, ""},
      {"1", "13", "2015", 0, "", " incorrect month 13 \r\n"},
      {"1", "0", "2015", 0, "", " incorrect month 0 \r\n"},
      {"1", "5", "999", 1, "первого мая"_cp, ""},
      {"1", "5", "1000", 1, "первого мая одна тысяча года"_cp, ""},
      {"1", "5", "2999", 1, "первого мая две тысячи девятьсот девяносто девятого года"_cp, ""},
      {"1", "5", "3000", 0, "", " incorrect year 3 \r\n"},
      {"1", "5", "12015", 0, "", " incorrect year 12 \r\n"},
  };
  for (const auto& c : cases) {
    std::string out;
    int result = -1;
    EXPECT_EQ(capturedStdout([&] { result = RusGrammar().speakDate(c.day, c.month, c.year, "20", "", out); }),
              c.printed);
    EXPECT_EQ(result, c.result) << c.day << "." << c.month << "." << c.year;
    EXPECT_EQ(joinNames(out), c.words) << c.day << "." << c.month << "." << c.year;
  }
}

TEST(RussianNumberCore, TimeLimits) {
  std::string out;
  RusGrammar().speakClockTimeWithSeconds("24", "60", "", out);
  EXPECT_EQ(joinNames(out), "двадцать четыре часа шестьдесят минут"_cp);
  out.clear();
  EXPECT_EQ(capturedStdout([&] { RusGrammar().speakClockTimeWithSeconds("25", "00", "00", out); }),
            "wrong time (hours) 25\r\n");
  EXPECT_EQ(out, "");
}

// The dispatcher: an unknown unit is -1; all three grammars take fractions.
TEST(RussianNumberCore, AmountResults) {
  std::string out;
  EXPECT_EQ(RusGrammar().speakAmount({"5"}, {}, "5", "", "xyz", out), -1);
  EXPECT_EQ(RusGrammar().speakAmount({"5"}, {"5"}, "5", "5", "kb", out), 0);
  EXPECT_EQ(RusGrammarTrans().speakAmount({"5"}, {"5"}, "5", "5", "kb", out), 0);
  EXPECT_EQ(UkranianGrammar().speakAmount({"5"}, {"5"}, "5", "5", "h", out), 0);
  EXPECT_EQ(joinNames(out), "пять целых пять десятых килобайта"_cp);
}

}  // namespace
}  // namespace vela
