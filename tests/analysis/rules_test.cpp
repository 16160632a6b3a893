#include "analysis/rules.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "grammar/cp1251.h"
#include "pipeline/text_decoder.h"
#include "support/recording_grammar.h"

namespace vela {
namespace {

using testing::CallLog;
using testing::RecordingGrammar;

struct RuleCase {
  std::string text;
  const char* calls;   // what the grammar was asked, "" for nothing
  std::string result;  // what runRules leaves in output
};

// Which rule takes which text, and which groups and digit lists its handler
// passes on. The recording grammar answers every operation with " op".
const RuleCase kRules[] = {
    // negative amounts: speakAmount, then the minus word in front
    {"-12,5rub", "money(2,1|5|12|5|rub)", "MINUS money"},
    {"-,5rub", "money(|5||5|rub)", "MINUS money"},
    {"-0,5kb", "decimal(0|5|0|5|kb)", "MINUS decimal"},
    {"-5xyz", "", "MINUS"},
    // amounts with a unit word
    {"5rub", "money(5||5||rub)", " money"},
    {"5,rub", "money(5||5||rub)", " money"},
    {"5|5kb", "decimal(5|5|5|5|kb)", " decimal"},
    {",25kb", "decimal(|5,2||25|kb)", " decimal"},
    {"1205kb", "count(5,0,2,1|1205|kb)", " count"},
    {"12345678901rub", "money(||12345678901||rub)", " money"},
    {"5.5pcs", "", ""},  // a fraction with a unit that takes none
    {"5xyz", "", ""},    // unknown unit
    {"5 rub", "", "5 rub"},
    {"5ёж"_cp, "", "5ёж"_cp},  // ё is not a letter of the unit class
    // dates
    {"31.12.1999", "date(31|12|1999|19|99)", " date"},
    {"1.05.2015", "date(1|05|2015|20|15)", " date"},
    {"31.12.1999(I)", "date(31|12|1999|I|99)", " date"},
    {"12.05(I)", "date(12|05||I|)", " date"},
    {"1.5", "date(1|5|||)", " date"},
    {"12.05", "date(12|05|||)", " date"},
    {"7.00", "date(7|00|||)", " date"},
    {"31.12.2100", "", "31.12.2100"},
    {"32.1", "number(32.1)", " number"},
    {"1.50", "number(1.50)", " number"},
    {"0.5", "number(0.5)", " number"},
    {"1,5", "number(1,5)", " number"},
    // numbers
    {"15", "number(15)", " number"},
    {"0-05-120", "number(0-05-120)", " number"},
    {"-5", "", "-5"},
    // quoted digit strings and spans
    {"\"12#*\"", "digits(\"12#*\")", " digits"},
    {"\"125:30\"", "span(125|30)", " span"},
    {"\"1:02:03\"", "spans(1|02|03)", " spans"},
    // clock times
    {"12:30", "clock(12|30)", " clock"},
    {"7:05:09", "clocks(7|05|09)", " clocks"},
    {"123:45", "", "123:45"},
    // one character
    {"x", "char(x)", " char"},
    {"#", "char(#)", " char"},
    {"\xB8", "", "\xB8"},  // a lone byte above 0x7F is not printable
    {"ab", "", "ab"},
    // pass-through and empties
    {"file.wav", "", "file.wav"},
    {"12 ab.wav", "", "12 ab.wav"},
    {"5rub.wav", "", "5rub.wav"},
    {"", "", ""},
};

std::string run(const std::string& text, CallLog& log, bool special = false) {
  TextDecoder decoder(boost::make_shared<RecordingGrammar>(log, special), text);
  runRules(decoder);
  return decoder.output;
}

TEST(RulesTest, EachTokenReachesItsHandler) {
  ASSERT_EQ(std::size(decodeRules), 18u);
  for (const auto& c : kRules) {
    CallLog log;
    const std::string result = run(c.text, log);
    EXPECT_EQ(log.joined(), c.calls) << c.text;
    EXPECT_EQ(result, c.result) << c.text;
  }
}

// The special-amount hook is asked first for positive amounts only.
TEST(RulesTest, SpecialAmountComesFirstExceptForNegatives) {
  CallLog log;
  EXPECT_EQ(run("5руб"_cp, log, true), " special");
  EXPECT_EQ(log.joined(), std::string("special(5|") + "руб"_cp + ")");

  CallLog negative;
  EXPECT_EQ(run("-5rub", negative, true), "MINUS money");
  EXPECT_EQ(negative.joined(), "money(5||5||rub)");
}

TEST(RulesTest, DialStringReachesGrammarDirectly) {
  CallLog log;
  TextDecoder decoder(boost::make_shared<RecordingGrammar>(log), "\"1#\"");
  ASSERT_TRUE(boost::regex_match(decoder.text, decoder.match, decodeRules[10].pattern));
  EXPECT_TRUE(decoder.onDialString());
  EXPECT_EQ(log.joined(), "dial(1#)");
}

TEST(RulesTest, TextIsTrimmedOfSpacesOnly) {
  CallLog log;
  EXPECT_EQ(run("   15  ", log), " number");
  CallLog tab;
  EXPECT_EQ(run("\t15", tab), "\t15");
}

TEST(RulesTest, TextOver512BytesIsNotTrimmed) {
  const std::string padded = " " + std::string(511, 'a') + " ";
  CallLog log;
  EXPECT_EQ(run(padded, log), padded);
}

struct SplitCase {
  std::string digits;
  const char* list;
};

const SplitCase kSplits[] = {
    {"1205", "5,0,2,1"}, {"", ""},    {"7", "7"},  {"007", "7,0,0"}, {"123456789", "9,8,7,6,5,4,3,2,1"},
    {"1234567890", ""},  {"12a", ""}, {"1,5", ""},
};

TEST(SplitDigitGroupsTest, Table) {
  for (const auto& c : kSplits) {
    DigitList list{"keep"};
    splitDigitGroups(c.digits, list);
    list.erase(list.begin());
    EXPECT_EQ(testing::joinList(list), c.list) << c.digits;
  }
}

}  // namespace
}  // namespace vela

namespace vela {
namespace {

// Very long runs of digits make some patterns backtrack past the engine's
// bounds: those rules then do not apply, and the text still finds its rule.
TEST(RulesTest, LongDigitRunsStillReachTheirRule) {
  const std::string digits(20000, '7');
  CallLog number;
  EXPECT_EQ(run(digits, number), " number");
  EXPECT_EQ(number.joined(), "number(" + digits + ")");

  CallLog amount;
  EXPECT_EQ(run(digits + "rub", amount), " money");
  EXPECT_EQ(amount.joined(), "money(||" + digits + "||rub)");

  CallLog none;
  EXPECT_EQ(run(digits + "-rub", none), digits + "-rub");
  EXPECT_EQ(none.joined(), "");
}

}  // namespace
}  // namespace vela

namespace vela {
namespace {

// The patterns byte for byte: the Cyrillic ranges must be Windows-1251
// (а-я = E0-FF, А-Я = C0-DF), whatever the source file's encoding.
const char* const kPatterns[kDecodeRuleCount] = {
    "[-]{1}([[:digit:]]+)[.|,]{0,1}([[:digit:]]*)([\xE0-\xFF\xC0-\xDF"
    "a-zA-Z]+)",
    "[-]{1}([[:digit:]]*)[.|,]{1}([[:digit:]]+)([\xE0-\xFF\xC0-\xDF"
    "a-zA-Z]+)",
    "([[:digit:]]+)[.|,]{0,1}([[:digit:]]*)([\xE0-\xFF\xC0-\xDF"
    "a-zA-Z]+)",
    "([[:digit:]]*)[.|,]{1}([[:digit:]]+)([\xE0-\xFF\xC0-\xDF"
    "a-zA-Z]+)",
    "([1-9]|[0][1-9]|[1][0-9]|[2][0-9]|[3][0-1])\\.([1-9]|[1][0-2]|[0][0-9])\\.(([1][9]|[2][0])([0-9][0-9]))",
    "([1-9]|[0][1-9]|[1][0-9]|[2][0-9]|[3][0-1])\\.([1-9]|[1][0-2]|[0][0-9])\\.(([1][9]|[2][0])([0-9][0-9]))"
    "\\(I\\)",
    "([1-9]|[0][1-9]|[1][0-9]|[2][0-9]|[3][0-1])\\.([1][0-2]|[0][0-9]|[1-9])",
    "([1-9]|[0][1-9]|[1][0-9]|[2][0-9]|[3][0-1])\\.([1][0-2]|[0][0-9]|[1-9])\\(I\\)",
    "[[:digit:]]+(-[[:digit:]]+)+",
    "\"([[:digit:]#*]+)\"",
    "\"([[:digit:]#*]+)\"",
    "([[:digit:]]{1,2}):([[:digit:]]{2}):([[:digit:]]{2})",
    "\"([[:digit:]]+):([[:digit:]]{2})\"",
    "\"([[:digit:]]+):([[:digit:]]{2}):([[:digit:]]{2})\"",
    "([[:digit:]]{1,2}):([[:digit:]]{2})",
    "([[:digit:]]+)",
    "([[:digit:]]+)([.|,][[:digit:]]+)",
    "([[:print:]])",
};

TEST(RulesTest, PatternsAreExact) {
  for (int i = 0; i < kDecodeRuleCount; ++i) EXPECT_EQ(decodeRules[i].pattern.str(), kPatterns[i]) << i + 1;
}

}  // namespace
}  // namespace vela
