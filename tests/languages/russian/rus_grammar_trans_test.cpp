// Transliterated Russian (mode 1): the Russian readings over Latin prompt names.
#include <gtest/gtest.h>

#include <cstdlib>

#include "pipeline/text_decoder.h"
#include "russian_test_support.h"

namespace vela {
namespace {

using testing_russian::capturedStdout;
using testing_russian::joinNames;
using testing_russian::speakAscii;

// decodeText in mode 1, exactly as returned: unlike DecodeBufferASCII it keeps
// capitals, so the "(I)" marker reaches the grammar.
std::string decodeTransRaw(const std::string& text) {
  char* out = nullptr;
  EXPECT_EQ(decodeText("ru", text.c_str(), &out, 1), 0);
  std::string result = out != nullptr ? out : "";
  std::free(out);
  return result;
}

struct Case {
  const char* text;
  const char* prompts;  // "" when DecodeBufferASCII declines
};

TEST(RusGrammarTrans, Readings) {
  const Case cases[] = {
      // money: "rub" is rubl (row 2), the capital rows "USD"/"RUB" never match
      {"12.50rub", "dvenadcat rublei pyatdesyat kopeek"},
      {"12.50RUB", "dvenadcat rublei pyatdesyat kopeek"},
      {"1rub", "odin rubl"},
      {"2.02rub", "dva rublya dve kopeiki"},
      {"1.01usd", "odin dollar odin cent"},
      {"2.02USD", "dva dollara dva centa"},
      {"3.50som", "tri soma pyatdesyat tyiynov"},
      {"2.22kzt", "dva tenge dvadcat dva tyiyna"},
      {"-5rub", "minus pyat rublei"},
      {"0rub", "nol rublei"},
      // numbers and plural forms
      {"30", "tridcat"},
      {"31rub", "tridcat odin rubl"},
      {"11kb", "odinnadcat kilobaitov"},
      {"2000", "dve tisyachi"},
      {"1000000", "odin million"},
      {"21scht", "dvadcat odna schtuka"},
      {"007", "nol nol sem"},
      {"\"10\"", "odin nol"},
      {"#", "reschetka"},
      // dates and times
      {"1.05.2000", "pervogo maja dvuhtisyachnogo goda"},
      {"30.12.2005", "tridcatogo dekabrya dve tisyachi pyatogo goda"},
      {"3.03.1999", "tretiego marta odna tisyacha devyatsot devyanosto devyatogo goda"},
      {"01:01:01", "odin chas odna minuta odna sekunda"},
      {"00:00", "nol chasov nol minut"},
      // no decimal words: a fraction with a non-currency unit speaks nothing
      {"2.5kb", ""},
      {"1,5", ""},
  };
  for (const Case& c : cases) EXPECT_EQ(speakAscii("ru", c.text), c.prompts) << c.text;
}

TEST(RusGrammarTrans, NominativeDayWithMarker) {
  EXPECT_EQ(joinNames(decodeTransRaw("1.05(I)")), "pervoe maja");
  EXPECT_EQ(joinNames(decodeTransRaw("30.01(I)")), "tridcatoe janvarya");
}

// The minor unit of "amd" is "lumm", which no unit row has: the minor part is dropped.
TEST(RusGrammarTrans, ArmenianMinorUnitIsReported) {
  std::string prompts;
  EXPECT_EQ(capturedStdout([&] { prompts = speakAscii("ru", "5.50amd"); }), "wrong minor lumm\r\n");
  EXPECT_EQ(prompts, "pyat dramov");
}

// "tridcat " keeps its trailing space; consumers drop the empty piece.
TEST(RusGrammarTrans, TrailingSpaceOfThirty) {
  EXPECT_EQ(decodeTransRaw("30"), " tridcat ");
  EXPECT_EQ(decodeTransRaw("33rub"), " tridcat  tri rublya");
}

}  // namespace
}  // namespace vela
