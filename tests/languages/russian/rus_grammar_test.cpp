// The Russian family through the public API: Russian with Cyrillic prompt
// names, transliterated Russian (mode 1) and Ukrainian over their own tables.
#include <gtest/gtest.h>

#include "grammar/cp1251.h"
#include "support/speak.h"

namespace vela::testing {
namespace {

const Reading kRussian[] = {
    // Plural forms after a number: 1, 2-4, 5+; a ten is not a teen, the teens
    // always take 5+; the unit's gender agrees with one.
    {"21руб"_cp, "двадцать один рубль"_cp},
    {"22руб"_cp, "двадцать два рубля"_cp},
    {"10руб"_cp, "десять рублей"_cp},
    {"1011руб"_cp, "одна тысяча одиннадцать рублей"_cp},
    {"21min", "двадцать одна минута"_cp},
    // Order words: thousands are feminine, an all-zero group says nothing, and
    // only the last twelve digits are spoken (all zero there: the text comes back).
    {"2000", "две тысячи"_cp},
    {"1000000000000", "1000000000000"},
    {"12345678901234567890123456789012345678901",
     "двенадцать миллиардов триста сорок пять миллионов шестьсот семьдесят восемь тысяч "
     "девятьсот один"_cp},
    // Zero: leading zeros one by one, dash-separated pieces; before a unit word
    // only when the whole number is zero.
    {"007", "ноль ноль семь"_cp},
    {"0-05-120", "ноль ноль пять сто двадцать"_cp},
    {"0руб"_cp, "ноль рублей"_cp},
    {"1000руб"_cp, "одна тысяча рублей"_cp},
    // Money: the minor part is padded, read without its leading zero, cut (not
    // rounded) to two digits; a zero minor part is silent; keys in any case.
    {"12.5руб"_cp, "двенадцать рублей пятьдесят копеек"_cp},
    {"12,05руб"_cp, "двенадцать рублей пять копеек"_cp},
    {"1.01usd", "один доллар один цент"_cp},
    {"2.02руб"_cp, "два рубля две копейки"_cp},
    {"3.00руб"_cp, "три рубля"_cp},
    {".50руб"_cp, "ноль рублей пятьдесят копеек"_cp},
    {"1.567руб"_cp, "один рубль пятьдесят шесть копеек"_cp},
    {"1.11RUB", "один рубль одиннадцать копеек"_cp},
    // Only unit keys make an amount: a unit word or "female" leaves the text as it is.
    {"5рубль"_cp, "5рубль"_cp},
    {"2.5female", "2.5female"},
    // Decimals: целая/целых after the whole part, tenths or hundredths (one,
    // eleven), the unit in form 2; a whole fraction ends without the unit.
    {"2.5kb", "две целых пять десятых килобайта"_cp},
    {"21.21kb", "двадцать одна целая двадцать одна сотая килобайта"_cp},
    {"3.11kb", "три целых одиннадцать сотых килобайта"_cp},
    {"7.0kb", "семь целых"_cp},
    // A bare number with a fraction is a decimal; no separator is read as a digit.
    {"32.1", "тридцать две целых одна десятая"_cp},
    {"1|5", "одна целая пять десятых"_cp},
    // Dates: genitive day, nominative with "(I)", only the last word ordinal;
    // day 31 and month 12 pass; years 1000-2999, 2000 as one word.
    {"22.06.1910(I)", "двадцать второе июня одна тысяча девятьсот десятого года"_cp},
    {"30.01(I)", "тридцатое января"_cp},
    {"31.12", "тридцать первого декабря"_cp},
    {"1.05.2000", "первого мая двухтысячного года"_cp},
    {"1.05.1900", "первого мая одна тысяча девятисотого года"_cp},
    // Times: hours masculine, minutes and seconds feminine, zero hours and
    // minutes spoken, zero seconds silent, 24/60/60 pass; durations count hours.
    {"00:00", "ноль часов ноль минут"_cp},
    {"01:01:01", "один час одна минута одна секунда"_cp},
    {"12:30:00", "двенадцать часов тридцать минут"_cp},
    {"24:60:60", "двадцать четыре часа шестьдесят минут шестьдесят секунд"_cp},
    {"\"1000:01\"", "одна тысяча часов одна минута"_cp},
    // Digit strings digit by digit; other characters in them are silent.
    {"\"0123456789\"", "ноль один два три четыре пять шесть семь восемь девять"_cp},
    {"\"12#*\"", "один два"_cp},
};

TEST(RusGrammar, Readings) {
  expectReadings("ru", kRussian);
  // A digit string longer than 31 characters is read whole.
  EXPECT_EQ(speak("ru", "\"" + std::string(40, '7') + "\"").size(), 40 * std::string("семь "_cp).size() - 1);
}

// What is printed on standard output (nothing for a bare decimal); a rejected
// date or time speaks nothing.
TEST(RusGrammar, Diagnostics) {
  const Complaint cases[] = {
      {"1.123456789руб"_cp, "wrong fractal part 123456789\r\n", "один рубль сто двадцать три копейки"_cp},
      {"1.00", " incorrect month 0 \r\n", "1.00"},
      {"25:00", "wrong time (hours) 25\r\n", "25:00"},
      {"10:61", "wrong time (minutes) 10\r\n", "10:61"},
      {"10:00:61", "wrong time (secundes) 10\r\n", "10:00:61"},
      {"1,5", "", "одна целая пять десятых"_cp},
  };
  expectComplaints("ru", cases);
}

// The buffer byte for byte: one space before each number word, none around a
// symbol, two after a year's thousand word and after the minus.
TEST(RusGrammar, OutputBytes) {
  const Reading cases[] = {
      {"5руб"_cp, " \xEF\xFF\xF2\xFC \xF0\xF3\xE1\xEB\xE5\xE9"},  // " пять рублей"
      {"#", "решетка"_cp},
      {"1.05.2001", " первого мая две тысячи  первого года"_cp},
      {"-1руб"_cp, "минус  один рубль"_cp},
  };
  expectRawReadings("ru", cases);
}

// Transliterated: "rub" is rubl (not rubl'), "usd" is reached through the last
// currency row, the minor word of "som" is itself a key; no decimal words.
TEST(RusGrammarTrans, Readings) {
  const Reading cases[] = {
      {"12.50rub", "dvenadcat rublei pyatdesyat kopeek"},
      {"1.01usd", "odin dollar odin cent"},
      {"3.50som", "tri soma pyatdesyat tyiynov"},
      {"-5rub", "minus pyat rublei"},
      {"2001001000", "dva milliarda odin million odna tisyacha"},
      {"#", "reschetka"},
      {"30.12.2005", "tridcatogo dekabrya dve tisyachi pyatogo goda"},
      {"01:01:01", "odin chas odna minuta odna sekunda"},
      {"2.5kb", ""},
      {"1,5", ""},
  };
  expectReadings("ru", cases, true);
  EXPECT_EQ(joinNames(decodeRaw("ru", "1.05(I)", 1)), "pervoe maja");
  EXPECT_EQ(decodeRaw("ru", "30", 1), " tridcat ");  // the prompt name keeps its trailing space
  // The minor unit of "amd" is "lumm", which no unit row has: the minor part is dropped.
  const Complaint amd[] = {{"5.50amd", "wrong minor lumm\r\n", "pyat dramov"}};
  expectComplaints("ru", amd, true);
}

// Ukrainian: capitalised zero in keypad strings, no case marker in dates
// ("roky"), feminine hours, no decimal words.
TEST(UkranianGrammar, Readings) {
  const Reading cases[] = {
      {"\"0\"", "Nool"},
      {"0min", "nool hvylyn"},
      {"2001001000", "dva miljardy odyn miljon odna tysjacha"},
      {"#", "pound"},
      {"12.50uah", "dvanadtsjat gryven pjatdesjat kopijok"},
      {"1.05.2000", "pershogo travnja dvohtysjachnyj roky"},
      {"1.05.2005", "pershogo travnja dvi tisjachi pjatogo roky"},
      {"22.02.1999", "dvadtsjat drugjgo ljutogo odna tysjacha devjatsot devjanosto devjatogo roky"},
      {"12.05(I)", "dvanadtsjatogo travnja"},
      {"01:00", "odna godyna nool hvylyn"},
      {"21:01:02", "dvadtsjat odna godyna odna hvylyna dvi sekundy"},
      {"2.5h", "2.5h"},
  };
  expectReadings("uk", cases);
  EXPECT_EQ(decodeRaw("uk", "30"), " trydtsjat ");  // the prompt name keeps its trailing space
}

}  // namespace
}  // namespace vela::testing
