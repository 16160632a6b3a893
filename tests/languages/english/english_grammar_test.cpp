// English readings, end to end through decodeBuffer. Expectations are the exact
// bytes handed back, spaces included: counts joined after " and " keep their
// own space, digit strings end every word with a space.
#include "languages/english/english_grammar.h"

#include <gtest/gtest.h>

#include <string>

#include "grammar/cp1251.h"
#include "vela/vela.h"

namespace {

using namespace vela;

struct Case {
  const char* text;
  const char* prompts;
};

// The English tags, and "english", which no table knows and so falls back to
// English.
const char* const kTags[] = {"en", "eng", "ENGLISH", "english"};

std::string decode(const char* tag, const char* text) {
  char* out = nullptr;
  EXPECT_EQ(decodeBuffer(tag, text, &out), 0);
  std::string result = out != nullptr ? out : "";
  decodeReleaseBuffer(out);
  return result;
}

void expectAll(const Case* begin, const Case* end) {
  for (const char* tag : kTags)
    for (const Case* c = begin; c != end; ++c)
      EXPECT_EQ(decode(tag, c->text), c->prompts) << tag << " " << c->text;
}

template <std::size_t N>
void expectAll(const Case (&cases)[N]) {
  expectAll(cases, cases + N);
}

// The "and" rules and the scale words; "million" for every group from the
// millions up. Ten digits only reach the builder through a quoted span.
const Case kCardinals[] = {
    {"5num", "five numbers"},
    {"10num", "ten numbers"},
    {"15num", "fifteen numbers"},
    {"20num", "twenty numbers"},
    {"21num", "twenty one numbers"},
    {"100num", "one hundred numbers"},
    {"105num", "one hundred and five numbers"},
    {"110num", "one hundred and ten numbers"},
    {"111num", "one hundred and eleven numbers"},
    {"800num", "eigth hundred numbers"},
    {"1005num", "one thousand and five numbers"},
    {"1100num", "one thousand one hundred numbers"},
    {"1105num", "one thousand one hundred and five numbers"},
    {"20005num", "twenty thousand and five numbers"},
    {"100005num", "one hundred thousand and five numbers"},
    {"120000num", "one hundred and twenty thousand numbers"},
    {"120015num", "one hundred and twenty thousand and fifteen numbers"},
    {"1000001num", "one million and one numbers"},
    {"1000100num", "one million one hundred numbers"},
    {"999999999num",
     "nine hundred and ninety nine million nine hundred and ninety nine thousand nine hundred and "
     "ninety nine numbers"},
    {"0007num", "seven numbers"},
    {"\"1000000000:00\"", "one million hours and zero minutes"},
    {"\"2500000000:00\"", "two million five hundred million hours and zero minutes"},
    {"\"125:30\"", "one hundred and twenty five hours and  thirty minutes"},
};

// Singular only after exactly one; zero is "zero" with the plural; suffixes
// match case-insensitively; "no messages" only for the exact text 0msg.
const Case kCounts[] = {
    {"1h", "one hour"},
    {"21h", "twenty one hours"},
    {"101h", "one hundred and one hours"},
    {"1001h", "one thousand and one hours"},
    {"0h", "zero hours"},
    {"1fax", "one fax"},
    {"2fax", "two faxes"},
    {"1MIN", "one minute"},
    {"3Kb", "three kilobytes"},
    {"1ab", "one subscriber"},
    {"1mes", "one message"},
    {"0msg", "no messages"},
    {"0mes", "no messages"},
    {"0num", "no numbers"},
    {"00msg", "zero messages"},
    {"0MSG", "zero messages"},
    {"-0msg", "minus zero messages"},
    {"-5h", "minus five hours"},
    {"5,h", "five hours"},
};

// Words that are no unit: the caller's text comes back. Decimals are spoken
// with a currency only (a refused negative amount keeps only its minus word).
const Case kRefused[] = {
    {"5xyz", "5xyz"},       {"5cent", "5cent"},  {"5and", "5and"}, {"1.5h", "1.5h"},
    {"2,25min", "2,25min"}, {"-1.5h", "minus "}, {"5 h", "5 h"},
};

// The minor part is two digits, cut not rounded; "and" only after a non-zero
// major part.
const Case kMoney[] = {
    {"1.05usd", "one dollar and five cents"},
    {"2rub", "two rubles"},
    {"1.5d", "one dollar and fifty cents"},
    {"3.999kzt", "three tenges and ninety nine tiyn"},
    {"0.25usd", "zero dollars twenty five cents"},
    {"21.01amd", "twenty one drams and one lumm"},
    {"1usd", "one dollar"},
    {"1.00usd", "one dollar"},
    {"1.0USD", "one dollar"},
    {"2.567rub", "two rubles and fifty six kopecks"},
    {"1.01gel", "one lari and one tetri"},
    {"2.02gel", "two laris and two tetris"},
    {",5usd", "zero dollars fifty cents"},
    {"0.00usd", "zero dollars"},
    {"1000.10usd", "one thousand dollars and ten cents"},
    {"-1.05usd", "minus one dollar and five cents"},
};

// Centuries 19 and 20 only; the last two digits after "and"; a month "00"
// says no month and no "of".
const Case kDates[] = {
    {"1.01.1999", "the first of january nineteen hundred and ninety nine"},
    {"5.05.2000", "the fifth of may two thousand"},
    {"5.05.2005", "the fifth of may two thousand and five"},
    {"31.12.2099", "the thirty first of december two thousand and ninety nine"},
    {"22.10.1905", "the twenty second of october nineteen hundred and five"},
    {"12.05", "the twelfth of may"},
    {"1.5", "the first of may"},
    {"30.11", "the thirtieth of november"},
    {"12.05(I)", "the twelfth of may"},
    {"31.12.1999(I)", "the thirty first of december and ninety nine"},
    {"5.00.2015", "the fifth two thousand and fifteen"},
    {"5.00", "the fifth"},
    {"31.12.2100", "31.12.2100"},
};

// 12-hour clock: noon is zero hours PM.
const Case kClockTimes[] = {
    {"0:00", "zero hours and zero minutes AM"},
    {"00:30", "zero hours and  thirty minutes AM"},
    {"11:59", "eleven hours and  fifty nine minutes AM"},
    {"12:00", "zero hours and zero minutes PM"},
    {"13:01", "one hour and  one minute PM"},
    {"23:05", "eleven hours and  five minutes PM"},
    {"1:02:03", "one hour and  two minutes and  three seconds AM"},
    {"12:00:01", "zero hours and zero minutes and  one second PM"},
    {"\"0:01\"", "zero hours and  one minute"},
    {"\"13:00\"", "thirteen hours and zero minutes"},
    {"\"1:02:03\"", "\"1:02:03\""},
};

// Digit by digit: "nought" in bare numbers, "zero" in quoted strings; every
// character leaves a word (empty for the rest) and a space.
const Case kDigits[] = {
    {"2005", "two nought nought five "},
    {"\"0070\"", " zero zero seven zero  "},
    {"\"12#*\"", " one two    "},
    {"1-20", "one  two nought "},
    {"1,5", "one  five "},
    {"0.5", "nought  five "},
    {"1.50", "one  five nought "},
};

// A lone digit is a bare number, so only symbols reach speakCharacter here.
const Case kCharacters[] = {
    {"#", "pound"}, {"*", "star"}, {"?", "question_mark"}, {"_", "underlining"}, {"%", "percent"},
    {"a", "a"},     {"!", "!"},
};

TEST(EnglishGrammar, Cardinals) { expectAll(kCardinals); }
TEST(EnglishGrammar, CountsAndSpecialAmounts) { expectAll(kCounts); }
TEST(EnglishGrammar, RefusedAmounts) { expectAll(kRefused); }
TEST(EnglishGrammar, Money) { expectAll(kMoney); }
TEST(EnglishGrammar, Dates) { expectAll(kDates); }
TEST(EnglishGrammar, ClockTimesAndDurations) { expectAll(kClockTimes); }
TEST(EnglishGrammar, DigitStrings) { expectAll(kDigits); }
TEST(EnglishGrammar, Characters) { expectAll(kCharacters); }

TEST(EnglishGrammar, CyrillicUnitIsUnknown) {
  const char* text = "5руб"_cp;
  EXPECT_EQ(decode("en", text), text);
}

// The classifier never routes a dial string here: the operation is called
// directly. Words are joined by single spaces; a key without a word says nothing.
TEST(EnglishGrammar, DialStrings) {
  const struct {
    const char* before;
    const char* keys;
    const char* after;
  } cases[] = {
      {"", "0#*", "ought sharp star"}, {"", "123", "one two three"}, {"", "", ""},
      {"", "0a9", "ought nine"},       {"x", "5", "x five"},         {"", "a", ""},
  };
  for (const auto& c : cases) {
    EnglishGrammar grammar;
    std::string out = c.before;
    grammar.speakDialString(c.keys, out);
    EXPECT_EQ(out, c.after) << c.keys;
  }
}

// A digit as a single character is "zero" ... "nine"; appended without a space.
TEST(EnglishGrammar, CharacterDigits) {
  const Case cases[] = {{"7", "seven"}, {"0", "zero"}, {"9", "nine"}, {"", ""}, {"##", ""}};
  for (const Case& c : cases) {
    EnglishGrammar grammar;
    std::string out;
    grammar.speakCharacter(c.text, out);
    EXPECT_EQ(out, c.prompts) << c.text;
  }
}

// Values the date patterns never deliver: no table is read out of range.
TEST(EnglishGrammar, DateOutOfRangeParts) {
  const struct {
    const char* day;
    const char* month;
    const char* yearTail;
    const char* prompts;
  } cases[] = {
      {"1", "13", "", "the first"},
      {"32", "5", "", "the of may"},
      {"-1", "-1", "", "the"},
      {"x", "x", "x5", "the and five"},
  };
  for (const auto& c : cases) {
    EnglishGrammar grammar;
    std::string out;
    grammar.speakDate(c.day, c.month, "", "", c.yearTail, out);
    EXPECT_EQ(out, c.prompts) << c.day << "." << c.month;
  }
}

}  // namespace
