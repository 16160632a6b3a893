// Uzbek readings through the public API, and its number speller on its own.
#include "languages/centralasian/uzbek_grammar.h"

#include <gtest/gtest.h>

#include "family_test_support.h"

namespace {

using namespace vela;
using namespace vela::testing_family;

const Reading kUzbek[] = {
    // Numbers: "yuz" alone for 100, "bir ming" for 1000.
    {"0", "nol"},
    {"007", "nol nol yetti"},
    {"21", "yigirma bir"},
    {"40", "qirq"},
    {"100", "yuz"},
    {"115", "yuz on besh"},
    {"1000", "bir ming"},
    {"2008", "ikki ming sakkiz"},
    {"9-11", "toqqiz on bir"},
    {"3000070", "uch million yetmish"},
    // Dates: ordinal year and "yil", ordinal day, month name; month 0 says none.
    {"5.01.2008", "ikki ming sakkizinchi yil beshinchi yanvar"},
    {"20.05.2000", "ikki minginchi yil yigirmanchi may"},
    {"1.09.1990", "bir ming toqqiz yuz toqsoninchi yil birinchi sentabr"},
    {"30.12.1999", "bir ming toqqiz yuz toqson toqqizinchi yil ottizinchi dekabr"},
    {"12.10", "on ikkinchi oktabr"},
    {"5.00.2008", "ikki ming sakkizinchi yil beshinchi"},
    // Clock times and spans.
    {"7:05", "soat yetti besh daqiqa"},
    {"0:00", "soat nol nol daqiqa"},
    {"7:05:30", "soat yetti besh daqiqa ottiz soniya"},
    {"\"1:30\"", "bir soat ottiz daqiqa"},
    {"\"0:00\"", "nol soat nol daqiqa"},
    // Counts and the zero phrase with "yoq".
    {"3mes", "uch xabar"},
    {"5unit", "besh birlik"},
    {"2num", "ikki raqam"},
    {"1fax", "bir faks"},
    {"0ab", "abonent yoq"},
    {"0h", "nol soat"},
    {"0min", "nol daqiqa"},
    // Money: som and tiyin, dollar and sent, rubl and kopeyka.
    {"0uzs", "nol som"},
    {"1500.50uzs", "bir ming besh yuz som ellik tiyin"},
    {"0.5usd", "ellik sent"},
    {"2.01rub", "ikki rubl bir kopeyka"},
    {"7d", "yetti dollar"},
    // Digit strings and symbols.
    {"\"0#1\"", "nol bir"},
    {"*", "yulduzcha"},
    {"#", "panjara"},
    {"?", "soroq_belgisi"},
    {"_", "ost_chiziqcha"},
    {"%", "foiz"},
};

TEST(UzbekGrammar, ThroughDecodeBuffer) {
  for (const char* tag : {"uz", "uzb", "UZBEK", "OUSZBEK", "UZBEKISTAN"}) expectReadings(tag, kUzbek);
}

const Refusal kUzbekRefusals[] = {
    {"25:00", "wrong time (hours) 25\r\n", "daqiqa"},
};

TEST(UzbekGrammar, RefusedHours) { expectRefusals("uz", kUzbekRefusals); }

// -inchi after a consonant, -nchi after a vowel; the round scale words.
const Spelled kOrdinals[] = {
    {"1", "birinchi"},
    {"2", "ikkinchi"},
    {"6", "oltinchi"},
    {"7", "yettinchi"},
    {"10", "oninchi"},
    {"20", "yigirmanchi"},
    {"50", "ellikinchi"},
    {"200", "ikki yuzinchi"},
    {"1000", "bir minginchi"},
    {"1000000", "bir millioninchi"},
    {"2000000000", "ikki milliardinchi"},
};

TEST(UzbekGrammar, OrdinalSpeller) {
  for (const Spelled& c : kOrdinals) {
    std::string out;
    UzbekGrammar::speakInteger(c.digits, out, true);
    EXPECT_EQ(joinNames(out), c.words) << c.digits;
  }
}

}  // namespace
