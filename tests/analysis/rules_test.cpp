#include "analysis/rules.h"

#include <gtest/gtest.h>

#include "grammar/cp1251.h"
#include "pipeline/text_decoder.h"
#include "support/recording_grammar.h"

namespace vela {
namespace {

using testing::RecordingGrammar;

// The grammar's calls and the runner's result for `text`.
std::pair<std::string, std::string> run(const std::string& text, bool special = false) {
  RecordingGrammar grammar(special);
  TextDecoder decoder(grammar, text);
  runRules(decoder);
  return {grammar.calls(), decoder.output};
}

struct RuleCase {
  std::string text;
  const char* calls;   // what the grammar was asked, "" for nothing
  std::string result;  // what the runner leaves
};

// Which groups and digit lists each rule's handler passes on (which rule takes
// which text is the differential test's business). The recording grammar
// answers every operation with " op".
const RuleCase kRules[] = {
    // negative amounts: the amount, then the minus word in front, even of nothing
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
    // dates
    {"31.12.1999", "date(31|12|1999|19|99)", " date"},
    {"31.12.1999(I)", "date(31|12|1999|I|99)", " date"},
    {"12.05(I)", "date(12|05||I|)", " date"},
    {"1.5", "date(1|5|||)", " date"},
    {"7.00", "date(7|00|||)", " date"},
    // numbers
    {"32.1", "number(32.1)", " number"},
    {"1.50", "number(1.50)", " number"},
    {"0.5", "number(0.5)", " number"},
    {"1,5", "number(1,5)", " number"},
    {"15", "number(15)", " number"},
    {"0-05-120", "number(0-05-120)", " number"},
    // quoted digit strings and spans; clock times
    {"\"12#*\"", "digits(\"12#*\")", " digits"},
    {"\"125:30\"", "span(125|30)", " span"},
    {"\"1:02:03\"", "spans(1|02|03)", " spans"},
    {"12:30", "clock(12|30)", " clock"},
    {"7:05:09", "clocks(7|05|09)", " clocks"},
    // one character
    {"x", "char(x)", " char"},
    // pass-through and the empty text
    {"file.wav", "", "file.wav"},
    {"-5.wav", "", "-5.wav"},  // a file name though a rule would take it
    {"", "", ""},
};

TEST(RulesTest, EachTokenReachesItsHandler) {
  for (const auto& c : kRules) {
    const auto [calls, result] = run(c.text);
    EXPECT_EQ(calls, c.calls) << c.text;
    EXPECT_EQ(result, c.result) << c.text;
  }
}

// The special-amount hook is asked first, for positive amounts only.
TEST(RulesTest, SpecialAmountComesFirstExceptForNegatives) {
  EXPECT_EQ(run("5руб"_cp, true),
            std::make_pair("special(5|" + std::string("руб"_cp) + ")", std::string(" special")));
  EXPECT_EQ(run("-5rub", true), std::make_pair(std::string("money(5||5||rub)"), std::string("MINUS money")));
}

// The runner never reaches the dial-string rule (the digit-string rule takes
// its texts first); its handler still passes the keys on.
TEST(RulesTest, DialStringHandler) {
  RecordingGrammar grammar;
  TextDecoder decoder(grammar, "\"1#\"");
  ASSERT_EQ(classifyToken(decoder.text, kDialString, decoder.match), kDialString);
  EXPECT_TRUE(decoder.onDialString());
  EXPECT_EQ(grammar.calls(), "dial(1#)");
}

// Very long runs of digits, on which a regular expression engine gives up:
// every text of the Java entry's 10,240 bytes or more finds its rules in one pass.
TEST(RulesTest, LongDigitRunsStillReachTheirRule) {
  const std::string digits(20000, '7');
  EXPECT_EQ(run(digits).first, "number(" + digits + ")");
  EXPECT_EQ(run(digits + "rub").first, "money(||" + digits + "||rub)");
  EXPECT_EQ(run(digits + "-rub").second, digits + "-rub");
  EXPECT_EQ(rulesTakingWholeText("-" + digits + ",5rub"), 1u << kNegativeAmount | 1u << kNegativeFraction);
  EXPECT_EQ(rulesTakingWholeText(digits + "-"), 0u);
}

TEST(SplitDigitGroupsTest, Table) {
  const std::pair<std::string, const char*> cases[] = {
      {"1205", "5,0,2,1"}, {"", ""},    {"007", "7,0,0"}, {"123456789", "9,8,7,6,5,4,3,2,1"},
      {"1234567890", ""},  {"1,5", ""},
  };
  for (const auto& [digits, expected] : cases) {
    DigitList list{"kept"};
    splitDigitGroups(digits, list);
    EXPECT_EQ(testing::joinList(list), std::string("kept") + (*expected ? "," : "") + expected) << digits;
  }
}

}  // namespace
}  // namespace vela
