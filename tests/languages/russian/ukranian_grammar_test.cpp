// Ukrainian: the Russian readings over Ukrainian tables, with its differences.
#include <gtest/gtest.h>

#include "russian_test_support.h"

namespace vela {
namespace {

using testing_russian::decodeRaw;
using testing_russian::speak;

struct Case {
  const char* text;
  const char* prompts;  // the caller's text when nothing is spoken
};

TEST(UkranianGrammar, Readings) {
  const Case cases[] = {
      // numbers, genders and zero
      {"\"0\"", "Nool"},
      {"007", "nool nool sim"},
      {"0min", "nool hvylyn"},
      {"1000", "odna tysjacha"},
      {"2000", "dvi tisjachi"},
      {"5000", "pjat tisjach"},
      {"1000000", "odyn miljon"},
      {"2000000000", "dva miljardy"},
      {"12", "dvanadtsjat"},
      {"2h", "dvi godyny"},
      {"21mes", "dvadtsjat odne povidomlennja"},
      // money
      {"12.50uah", "dvanadtsjat gryven pjatdesjat kopijok"},
      {"1.01usd", "odyn dolar odyn cent"},
      {"2.02rub", "dva rublja dvi kopijky"},
      {"2.5d", "dva dolary pjatdesjat centiv"},
      {"-5uah", "minus pjat gryven"},
      // dates take no case marker and end in "roky"
      {"1.05.2000", "pershogo travnja dvohtysjachnyj roky"},
      {"1.05.2005", "pershogo travnja dvi tisjachi pjatogo roky"},
      {"22.02.1999", "dvadtsjat drugjgo ljutogo odna tysjacha devjatsot devjanosto devjatogo roky"},
      {"12.05(I)", "dvanadtsjatogo travnja"},
      // times are feminine
      {"01:00", "odna godyna nool hvylyn"},
      {"2:22", "dvi godyny dvadtsjat dvi hvylyny"},
      {"21:01:02", "dvadtsjat odna godyna odna hvylyna dvi sekundy"},
      {"\"0:05\"", "nool godyn pjat hvylyn"},
      {"#", "pound"},
      // no decimal words
      {"2.5h", "2.5h"},
      {"1,5", "1,5"},
  };
  for (const Case& c : cases) EXPECT_EQ(speak("uk", c.text), c.prompts) << c.text;
}

TEST(UkranianGrammar, TrailingSpaceOfThirty) { EXPECT_EQ(decodeRaw("uk", "30"), " trydtsjat "); }

}  // namespace
}  // namespace vela
