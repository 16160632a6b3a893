// English readings. Expectations are the exact bytes handed back, spaces
// included: counts joined after " and " keep their own space, digit strings
// end every word with a space.
#include "languages/english/english_grammar.h"

#include <gtest/gtest.h>

#include <string>

#include "support/speak.h"

namespace vela::testing {
namespace {

const Reading kEnglish[] = {
    // The "and" rules and the scale words; "million" for every group from the
    // millions up. Ten digits only reach the builder through a quoted span.
    {"15num", "fifteen numbers"},
    {"21num", "twenty one numbers"},
    {"111num", "one hundred and eleven numbers"},
    {"1005num", "one thousand and five numbers"},
    {"1100num", "one thousand one hundred numbers"},
    {"120000num", "one hundred and twenty thousand numbers"},
    {"1000001num", "one million and one numbers"},
    {"\"2500000000:00\"", "two million five hundred million hours and zero minutes"},
    // Singular only for exactly one; suffixes match case-insensitively; "no
    // messages" only for the exact text 0msg; a decimal needs a currency.
    {"1MIN", "one minute"},
    {"0msg", "no messages"},
    {"00msg", "zero messages"},
    {"0MSG", "zero messages"},
    {"-5h", "minus five hours"},
    {"1.5h", "1.5h"},
    // The minor part is two digits, cut not rounded; "and" only after a
    // non-zero major part; an empty integer part is zero.
    {"1.5d", "one dollar and fifty cents"},
    {"3.999kzt", "three tenges and ninety nine tiyn"},
    {"0.25usd", "zero dollars twenty five cents"},
    {"21.01amd", "twenty one drams and one lumm"},
    {"2.5rub", "two rubles and fifty kopecks"},
    {"1.0USD", "one dollar"},
    {",5usd", "zero dollars fifty cents"},
    // Centuries 19 and 20 only (the "(I)" form passes none); the last two
    // digits after "and"; a month "00" says no month and no "of".
    {"1.01.1999", "the first of january nineteen hundred and ninety nine"},
    {"5.05.2000", "the fifth of may two thousand"},
    {"31.12.1999(I)", "the thirty first of december and ninety nine"},
    {"5.00.2015", "the fifth two thousand and fifteen"},
    // 12-hour clock, noon is zero hours PM; a quoted span keeps its hours and
    // has no AM/PM; a span with seconds is not spoken.
    {"00:30", "zero hours and  thirty minutes AM"},
    {"12:00", "zero hours and zero minutes PM"},
    {"13:01", "one hour and  one minute PM"},
    {"12:00:01", "zero hours and zero minutes and  one second PM"},
    {"\"13:00\"", "thirteen hours and zero minutes"},
    {"\"1:02:03\"", "\"1:02:03\""},
    // Digit by digit: "nought" in bare numbers, "zero" in quoted strings; any
    // other character (quotes, '#', '*') leaves an empty word.
    {"2005", "two nought nought five "},
    {"\"0070\"", " zero zero seven zero  "},
    {"\"12#*\"", " one two    "},
    {"#", "pound"},
};

TEST(EnglishGrammar, Readings) { expectRawReadings("en", kEnglish); }

// Calls the classifier never makes, on a result that already holds `before`:
// dial strings (dial words are joined by single spaces, a key without a word
// says nothing), digits and longer tokens to speakCharacter, and date parts the
// patterns never deliver (no table is read out of range).
TEST(EnglishGrammar, DirectCalls) {
  using Call = void (*)(EnglishGrammar&, std::string&);
  const struct {
    Call call;
    const char* before;
    const char* after;
  } cases[] = {
      {[](auto& g, auto& out) { g.speakDialString("0#*", out); }, "", "ought sharp star"},
      {[](auto& g, auto& out) { g.speakDialString("0a9", out); }, "", "ought nine"},
      {[](auto& g, auto& out) { g.speakDialString("5", out); }, "x", "x five"},
      {[](auto& g, auto& out) { g.speakCharacter("0", out); }, "x", "xzero"},
      {[](auto& g, auto& out) { g.speakCharacter("##", out); }, "", ""},
      {[](auto& g, auto& out) { g.speakDate("1", "13", "", "", "", out); }, "", "the first"},
      {[](auto& g, auto& out) { g.speakDate("32", "5", "", "", "", out); }, "", "the of may"},
      {[](auto& g, auto& out) { g.speakDate("-1", "-1", "", "", "", out); }, "", "the"},
      {[](auto& g, auto& out) { g.speakDate("x", "x", "", "", "x5", out); }, "", "the and five"},
  };
  for (const auto& c : cases) {
    EnglishGrammar grammar;
    std::string out = c.before;
    c.call(grammar, out);
    EXPECT_EQ(out, c.after) << &c - cases;
  }
}

}  // namespace
}  // namespace vela::testing
