// Transliterated Russian (mode 1): the Russian readings over Latin prompt names.
#include <gtest/gtest.h>

#include "russian_test_support.h"

namespace vela::testing_russian {
namespace {

const Reading kReadings[] = {
    // money: "rub" is rubl (not rubl'), "usd" is reached through the last
    // currency row, the minor word of "som" is itself a key
    {"12.50rub", "dvenadcat rublei pyatdesyat kopeek"},
    {"1rub", "odin rubl"},
    {"1.01usd", "odin dollar odin cent"},
    {"3.50som", "tri soma pyatdesyat tyiynov"},
    {"-5rub", "minus pyat rublei"},
    {"0rub", "nol rublei"},
    // the order rows of this table, zeros, symbols
    {"2001001000", "dva milliarda odin million odna tisyacha"},
    {"007", "nol nol sem"},
    {"#", "reschetka"},
    // dates and times
    {"1.05.2000", "pervogo maja dvuhtisyachnogo goda"},
    {"30.12.2005", "tridcatogo dekabrya dve tisyachi pyatogo goda"},
    {"01:01:01", "odin chas odna minuta odna sekunda"},
    // no decimal words: a fraction with a non-currency unit speaks nothing
    {"2.5kb", ""},
    {"1,5", ""},
};

TEST(RusGrammarTrans, Readings) {
  expectReadings("ru", kReadings, true);
  EXPECT_EQ(joinNames(decodeRaw("ru", "1.05(I)", 1)), "pervoe maja");
  EXPECT_EQ(decodeRaw("ru", "30", 1), " tridcat ");  // the prompt name keeps its trailing space
}

// The minor unit of "amd" is "lumm", which no unit row has: the minor part is dropped.
TEST(RusGrammarTrans, ArmenianMinorUnitIsReported) {
  std::string prompts;
  EXPECT_EQ(capturedStdout([&] { prompts = speak("ru", "5.50amd", true); }), "wrong minor lumm\r\n");
  EXPECT_EQ(prompts, "pyat dramov");
}

}  // namespace
}  // namespace vela::testing_russian
