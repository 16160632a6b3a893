// Ukrainian: the Russian readings over Ukrainian tables, with its differences.
#include <gtest/gtest.h>

#include "russian_test_support.h"

namespace vela::testing_russian {
namespace {

const Reading kReadings[] = {
    // zeros, digits and the order rows of this table
    {"\"0\"", "Nool"},
    {"007", "nool nool sim"},
    {"0min", "nool hvylyn"},
    {"2001001000", "dva miljardy odyn miljon odna tysjacha"},
    {"#", "pound"},
    // money, and the interface's minus
    {"12.50uah", "dvanadtsjat gryven pjatdesjat kopijok"},
    {"-5uah", "minus pjat gryven"},
    // dates take no case marker and end in "roky"
    {"1.05.2000", "pershogo travnja dvohtysjachnyj roky"},
    {"1.05.2005", "pershogo travnja dvi tisjachi pjatogo roky"},
    {"22.02.1999", "dvadtsjat drugjgo ljutogo odna tysjacha devjatsot devjanosto devjatogo roky"},
    {"12.05(I)", "dvanadtsjatogo travnja"},
    // times are feminine
    {"01:00", "odna godyna nool hvylyn"},
    {"21:01:02", "dvadtsjat odna godyna odna hvylyna dvi sekundy"},
    // no decimal words
    {"2.5h", "2.5h"},
    {"1,5", "1,5"},
};

TEST(UkranianGrammar, Readings) {
  expectReadings("uk", kReadings);
  EXPECT_EQ(decodeRaw("uk", "30"), " trydtsjat ");  // the prompt name keeps its trailing space
}

}  // namespace
}  // namespace vela::testing_russian
