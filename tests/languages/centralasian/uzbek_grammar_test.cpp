// Uzbek readings through the public API, and its number speller on its own.
#include "languages/centralasian/uzbek_grammar.h"

#include <gtest/gtest.h>

#include "support/speak.h"

namespace vela::testing {
namespace {

const Reading kUzbek[] = {
    // Numbers: "yuz" alone for 100, "bir ming" for 1000.
    {"007", "nol nol yetti"},
    {"115", "yuz on besh"},
    {"2008", "ikki ming sakkiz"},
    {"9-11", "toqqiz on bir"},
    {"3000070", "uch million yetmish"},
    // Dates: ordinal year and "yil", ordinal day, month name; month 0 says none.
    {"5.01.2008", "ikki ming sakkizinchi yil beshinchi yanvar"},
    {"20.05.2000", "ikki minginchi yil yigirmanchi may"},
    {"30.12.1999", "bir ming toqqiz yuz toqson toqqizinchi yil ottizinchi dekabr"},
    {"12.10", "on ikkinchi oktabr"},
    {"5.00.2008", "ikki ming sakkizinchi yil beshinchi"},
    // Clock times and spans.
    {"7:05", "soat yetti besh daqiqa"},
    {"7:05:30", "soat yetti besh daqiqa ottiz soniya"},
    {"\"1:30\"", "bir soat ottiz daqiqa"},
    // Counts and the zero phrase with "yoq".
    {"3mes", "uch xabar"},
    {"0ab", "abonent yoq"},
    // Money: som and tiyin, dollar and sent, rubl and kopeyka.
    {"1500.50uzs", "bir ming besh yuz som ellik tiyin"},
    {"2.01rub", "ikki rubl bir kopeyka"},
    // Digit strings and symbols.
    {"\"0#1\"", "nol bir"},
    {"#", "panjara"},
};

TEST(UzbekGrammar, Readings) {
  expectReadings("uz", kUzbek);
  const Complaint refused[] = {{"25:00", "wrong time (hours) 25\r\n", "daqiqa"}};
  expectComplaints("uz", refused);
}

}  // namespace
}  // namespace vela::testing
