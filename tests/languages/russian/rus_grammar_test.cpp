// Russian (Cyrillic prompt names) through the public API.
#include <gtest/gtest.h>

#include "grammar/cp1251.h"
#include "russian_test_support.h"

namespace vela {
namespace {

using testing_russian::capturedStdout;
using testing_russian::decodeRaw;
using testing_russian::speak;

struct Case {
  const char* text;     // UTF-8 in the source, Windows-1251 in the binary
  const char* prompts;  // the names joined by single spaces
};

void expectReadings(const Case* cases, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    EXPECT_EQ(speak("ru", cases[i].text), cases[i].prompts) << "text #" << i << ": " << cases[i].text;
  }
}

template <std::size_t N>
void expectReadings(const Case (&cases)[N]) {
  expectReadings(cases, N);
}

TEST(RusGrammar, AcceptanceExample) {
  EXPECT_EQ(speak("ru", "12.50руб"_cp), "двенадцать рублей пятьдесят копеек"_cp);
}

// Plural forms after a number: 1, 2-4, 5+; the teens always take 5+.
TEST(RusGrammar, PluralFormsOfUnitWords) {
  const Case cases[] = {
      {"1руб"_cp, "один рубль"_cp},
      {"2руб"_cp, "два рубля"_cp},
      {"4руб"_cp, "четыре рубля"_cp},
      {"5руб"_cp, "пять рублей"_cp},
      {"10руб"_cp, "десять рублей"_cp},
      {"11руб"_cp, "одиннадцать рублей"_cp},
      {"14руб"_cp, "четырнадцать рублей"_cp},
      {"20руб"_cp, "двадцать рублей"_cp},
      {"21руб"_cp, "двадцать один рубль"_cp},
      {"22руб"_cp, "двадцать два рубля"_cp},
      {"25руб"_cp, "двадцать пять рублей"_cp},
      {"111руб"_cp, "сто одиннадцать рублей"_cp},
      {"1011руб"_cp, "одна тысяча одиннадцать рублей"_cp},
      {"100руб"_cp, "сто рублей"_cp},
      {"3kb", "три килобайта"_cp},
      {"5kb", "пять килобайт"_cp},
      {"1mes", "одно сообщение"_cp},
      {"2mes", "два сообщения"_cp},
  };
  expectReadings(cases);
}

// Gender of the counted thing agrees with one and two; thousands are feminine.
TEST(RusGrammar, GenderAgreement) {
  const Case cases[] = {
      {"1шт"_cp, "одна штука"_cp},
      {"2шт"_cp, "две штуки"_cp},
      {"21min", "двадцать одна минута"_cp},
      {"2d", "два доллара"_cp},
      {"1000", "одна тысяча"_cp},
      {"2000", "две тысячи"_cp},
      {"5000", "пять тысяч"_cp},
      {"21000", "двадцать одна тысяча"_cp},
      {"1001", "одна тысяча один"_cp},
      {"1000000", "один миллион"_cp},
      {"2000000", "два миллиона"_cp},
      {"2000000000", "два миллиарда"_cp},
      {"1002003004", "один миллиард два миллиона три тысячи четыре"_cp},
      {"999999999999",
       "девятьсот девяносто девять миллиардов девятьсот девяносто девять миллионов "
       "девятьсот девяносто девять тысяч девятьсот девяносто девять"_cp},
  };
  expectReadings(cases);
}

// Zero is spoken before a unit word only when the whole number is zero.
TEST(RusGrammar, ZeroWithAndWithoutUnit) {
  const Case cases[] = {
      {"0", "ноль"_cp},
      {"007", "ноль ноль семь"_cp},
      {"0-05-120", "ноль ноль пять сто двадцать"_cp},
      {"0руб"_cp, "ноль рублей"_cp},
      {"0min", "ноль минут"_cp},
      {"1000руб"_cp, "одна тысяча рублей"_cp},
      {"5000руб"_cp, "пять тысяч рублей"_cp},
      {"1000000руб"_cp, "один миллион рублей"_cp},
  };
  expectReadings(cases);
}

// Only twelve digits are spoken: the milliards group is the last one.
TEST(RusGrammar, LongNumbersKeepTheirLastTwelveDigits) {
  const Case cases[] = {
      {"1000000000000", ""},  // nothing spoken: the caller's text comes back
      {"1234567890123",
       "двести тридцать четыре миллиарда пятьсот шестьдесят семь миллионов восемьсот девяносто тысяч "
       "сто двадцать три"_cp},
      {"12345678901234567890123456789012345678901",
       "двенадцать миллиардов триста сорок пять миллионов шестьсот семьдесят восемь тысяч "
       "девятьсот один"_cp},
  };
  EXPECT_EQ(speak("ru", cases[0].text), "1000000000000");
  expectReadings(cases + 1, 2);
}

// The currency word follows the major part; the minor part is padded or cut to two digits.
TEST(RusGrammar, Money) {
  const Case cases[] = {
      {"12.50руб"_cp, "двенадцать рублей пятьдесят копеек"_cp},
      {"12.5руб"_cp, "двенадцать рублей пятьдесят копеек"_cp},
      {"12,05руб"_cp, "двенадцать рублей пять копеек"_cp},
      {"1.01usd", "один доллар один цент"_cp},
      {"2.02руб"_cp, "два рубля две копейки"_cp},
      {"3.00руб"_cp, "три рубля"_cp},
      {"3.0руб"_cp, "три рубля"_cp},
      {"0.50руб"_cp, "ноль рублей пятьдесят копеек"_cp},
      {".50руб"_cp, "ноль рублей пятьдесят копеек"_cp},
      {"1.567руб"_cp, "один рубль пятьдесят шесть копеек"_cp},
      {"1.999руб"_cp, "один рубль девяносто девять копеек"_cp},
      {"1.11RUB", "один рубль одиннадцать копеек"_cp},
      {"5.21d", "пять долларов двадцать один цент"_cp},
      {"5.21долл"_cp, "пять долларов двадцать один цент"_cp},
      {"21руб"_cp, "двадцать один рубль"_cp},
      {"2.03gel", "два lari три tetri"_cp},
      {"1.01uah", "одна gryvnja одна kopijka"_cp},
      {"-5руб"_cp, "минус пять рублей"_cp},
  };
  expectReadings(cases);
}

TEST(RusGrammar, MinorPartBeyondSixCutsIsReported) {
  std::string prompts;
  const std::string printed = capturedStdout([&] { prompts = speak("ru", "1.123456789руб"_cp); });
  EXPECT_EQ(printed, "wrong fractal part 123456789\r\n");
  EXPECT_EQ(prompts, "один рубль сто двадцать три копейки"_cp);
}

// isUnit takes keys only; an unknown or word-only unit leaves the text as it is.
TEST(RusGrammar, UnknownUnitsAreNotSpoken) {
  const char* texts[] = {"5рубль"_cp, "5штука"_cp, "5xyz", "2.5female"};
  for (const char* text : texts) EXPECT_EQ(speak("ru", text), text) << text;
}

// Decimal fractions: whole part, then tenths or hundredths, then the unit in form 2.
TEST(RusGrammar, Decimals) {
  const Case cases[] = {
      {"0.5kb", "ноль целых пять десятых килобайта"_cp},
      {"1.5kb", "одна целая пять десятых килобайта"_cp},
      {"2.5kb", "две целых пять десятых килобайта"_cp},
      {"11.1kb", "одиннадцать целых одна десятая килобайта"_cp},
      {"21.21kb", "двадцать одна целая двадцать одна сотая килобайта"_cp},
      {"3.11kb", "три целых одиннадцать сотых килобайта"_cp},
      {"2.05kb", "две целых пять сотых килобайта"_cp},
      {"2.50kb", "две целых пять десятых килобайта"_cp},
      {"2.125kb", "две целых двенадцать сотых килобайта"_cp},
      {"7.0kb", "семь целых"_cp},
      {"7.00min", "семь целых"_cp},
      {"2.5min", "две целых пять десятых минуты"_cp},
      {"1000.5kb", "одна тысяча целых пять десятых килобайта"_cp},
      {"-5,5kb", "минус пять целых пять десятых килобайта"_cp},
  };
  expectReadings(cases);
}

// A bare number with a fraction is read as a decimal; the separator is never a digit.
TEST(RusGrammar, BareNumbersWithAFraction) {
  const Case cases[] = {
      {"1,5", "одна целая пять десятых"_cp},
      {"32.1", "тридцать две целых одна десятая"_cp},
      {"0.5", "ноль целых пять десятых"_cp},
      {"0,05", "ноль целых пять сотых"_cp},
      {"7.0", "семь целых"_cp},
      {"1|5", "одна целая пять десятых"_cp},
  };
  expectReadings(cases);
  EXPECT_EQ(capturedStdout([] { speak("ru", "1,5"); }), "");
}

// Dates: genitive day (nominative with "(I)"), month, year 1000-2999.
TEST(RusGrammar, Dates) {
  const Case cases[] = {
      {"1.05.2015", "первого мая две тысячи пятнадцатого года"_cp},
      {"1.05(I)", "первое мая"_cp},
      {"22.06.2015(I)", "двадцать второе июня две тысячи пятнадцатого года"_cp},
      {"30.01", "тридцатого января"_cp},
      {"30.01(I)", "тридцатое января"_cp},
      {"11.11(I)", "одиннадцатое ноября"_cp},
      {"31.12", "тридцать первого декабря"_cp},
      {"20.12", "двадцатого декабря"_cp},
      {"1.05.2000", "первого мая двухтысячного года"_cp},
      {"1.05.2001", "первого мая две тысячи первого года"_cp},
      {"1.05.2010", "первого мая две тысячи десятого года"_cp},
      {"1.05.1999", "первого мая одна тысяча девятьсот девяносто девятого года"_cp},
      {"1.05.1900", "первого мая одна тысяча девятисотого года"_cp},
  };
  expectReadings(cases);
}

// A rejected date prints why and speaks nothing (the caller's text comes back).
TEST(RusGrammar, RejectedDates) {
  const struct {
    const char* text;
    const char* printed;
  } cases[] = {
      {"1.00.2015", " incorrect month 0 \r\n"},
      {"1.00", " incorrect month 0 \r\n"},
  };
  for (const auto& c : cases) {
    std::string prompts;
    EXPECT_EQ(capturedStdout([&] { prompts = speak("ru", c.text); }), c.printed) << c.text;
    EXPECT_EQ(prompts, c.text);
  }
}

// Times: hours masculine, minutes and seconds feminine; zero seconds are silent.
TEST(RusGrammar, ClockTimesAndDurations) {
  const Case cases[] = {
      {"7:05", "семь часов пять минут"_cp},
      {"10:05", "десять часов пять минут"_cp},
      {"00:00", "ноль часов ноль минут"_cp},
      {"01:01:01", "один час одна минута одна секунда"_cp},
      {"2:22:22", "два часа двадцать две минуты двадцать две секунды"_cp},
      {"12:30:00", "двенадцать часов тридцать минут"_cp},
      {"24:60:60", "двадцать четыре часа шестьдесят минут шестьдесят секунд"_cp},
      {"\"1:05\"", "один час пять минут"_cp},
      {"\"0:00\"", "ноль часов ноль минут"_cp},
      {"\"1000:01\"", "одна тысяча часов одна минута"_cp},
  };
  expectReadings(cases);
}

TEST(RusGrammar, RejectedTimesQuoteTheHours) {
  const struct {
    const char* text;
    const char* printed;
  } cases[] = {
      {"25:00", "wrong time (hours) 25\r\n"},
      {"10:61", "wrong time (minutes) 10\r\n"},
      {"10:00:61", "wrong time (secundes) 10\r\n"},
  };
  for (const auto& c : cases) {
    std::string prompts;
    EXPECT_EQ(capturedStdout([&] { prompts = speak("ru", c.text); }), c.printed) << c.text;
    EXPECT_EQ(prompts, c.text);
  }
}

// Digit strings are read digit by digit; symbols by name.
TEST(RusGrammar, DigitStringsAndCharacters) {
  const Case cases[] = {
      {"\"0123456789\"", "ноль один два три четыре пять шесть семь восемь девять"_cp},
      {"\"12#*\"", "один два"_cp},
      {"#", "решетка"_cp},
      {"*", "звездочка"_cp},
      {"?", "знак_вопроса"_cp},
      {"_", "подчеркивание"_cp},
      {"%", "процент"_cp},
  };
  expectReadings(cases);
  EXPECT_EQ(speak("ru", "\"" + std::string(40, '7') + "\"").size(), 40 * std::string("семь "_cp).size() - 1);
  EXPECT_EQ(speak("ru", "a"), "a");
}

// Where the spaces go: one before each number word, none around a symbol.
TEST(RusGrammar, SpacingOfTheOutput) {
  EXPECT_EQ(decodeRaw("ru", "21руб"_cp), " двадцать один рубль"_cp);
  EXPECT_EQ(decodeRaw("ru", "0руб"_cp), " ноль рублей"_cp);
  EXPECT_EQ(decodeRaw("ru", "#"), "решетка"_cp);
  EXPECT_EQ(decodeRaw("ru", "1.05.2001"), " первого мая две тысячи  первого года"_cp);
  EXPECT_EQ(decodeRaw("ru", "-1руб"_cp), "минус  один рубль"_cp);
}

}  // namespace
}  // namespace vela
