// Tajik readings through the public API, and its speller on its own.
#include "languages/centralasian/tadjik_grammar.h"

#include <gtest/gtest.h>

#include "family_test_support.h"

namespace {

using namespace vela;
using namespace vela::testing_family;

const Reading kTajik[] = {
    // The connective "u" fused onto the word before it, with the glide "y"
    // after a vowel; none after a scale word that ends the number; teens from
    // their own row; "sifr" for leading zeros.
    {"0", "sifr"},
    {"11", "yozdah"},
    {"25", "bistu panj"},
    {"31", "siyu yak"},
    {"100", "sad"},
    {"105", "sadu panj"},
    {"110", "sadu dah"},
    {"120", "sadu bist"},
    {"205", "dusadu panj"},
    {"1000", "yak hazor"},
    {"1001", "yak hazoru yak"},
    {"1005", "yak hazoru panj"},
    {"1000000", "yak million"},
    {"2000000", "du million"},
    {"2000005", "du millionu panj"},
    {"1200000", "yak millionu dusad hazor"},
    {"3000000000", "se milliard"},
    {"0105", "sifr sadu panj"},
    {"5-500", "panj panjsad"},
    {"0,25", "sifr bistu panj"},
    {"2000000000001", "yak"},
    // Dates: ordinal day with "i", month with "i soli", ordinal year; month 0
    // says slot 0; a date without a year says no year.
    {"5.01.2008", "panjumi yanvari soli du hazoru hashtum"},
    {"2.03.1999", "duyumi marti soli yak hazoru nuhsadu navadu nuhum"},
    {"30.11.2000", "siyumi noyabri soli du hazorum"},
    {"5.00.2008", "panjumi nuhsadi soli du hazoru hashtum"},
    {"12.05", "duvozdahumi mayi soli"},
    // Clock times and spans.
    {"7:05", "soati haftu panj daqiqa"},
    {"2:30", "soati duyu si daqiqa"},
    {"10:00", "soati dahu nol daqiqa"},
    {"7:05:30", "soati haftu panj daqiqayu si soniya"},
    {"\"0:00\"", "nol soat nol daqiqa"},
    {"\"1:30\"", "yak soat si daqiqa"},
    // Counts with "nest"; money with the connective before the minor part.
    {"0ab", "mushtari nest"},
    {"0h", "nol soat"},
    {"5num", "panj raqamash"},
    {"21min", "bistu yak daqiqa"},
    {"0tjs", "nol somoni"},
    {"5.50tjs", "panj somoniyu panjoh diram"},
    {"5.5tjs", "panj somoniyu panjoh diram"},
    {"0.5tjs", "panjoh diram"},
    {"3.03usd", "se dollaru se sent"},
    {"2rub", "du rubl"},
    // Digit strings and symbols.
    {"\"105\"", "yak sifr panj"},
    {"*", "sitoracha"},
    {"#", "panjara"},
    {"?", "alomati_savol"},
    {"_", "defisi_poyoni"},
    {"%", "foiz"},
};

TEST(TadjikGrammar, ThroughDecodeBuffer) {
  for (const char* tag : {"tg", "tgk", "TADJIK", "TAJIK", "TAJIKISTAN"}) expectReadings(tag, kTajik);
}

// The hundreds word opens its group without a blank; a piece of a plain
// number is given one.
TEST(TadjikGrammar, ExactBytes) {
  EXPECT_EQ(decodeRaw("tg", "105"), "  sadu panj");
  EXPECT_EQ(decodeRaw("tg", "5-500"), "   panj  panjsad");
  EXPECT_EQ(decodeRaw("tg", "5.50tjs"), "  panj somoniyu   panjoh diram");
}

const Refusal kTajikRefusals[] = {
    {"25:10", "wrong time (hours) 25\r\n", "daqiqa"},
};

TEST(TadjikGrammar, RefusedHours) { expectRefusals("tg", kTajikRefusals); }

TEST(TadjikGrammar, RefusedDates) {
  TadjikGrammar g;
  std::string out;
  int result = -1;
  EXPECT_EQ(capturedStdout([&] { result = g.speakDate("32", "1", "2008", "20", "08", out); }),
            " incorrect day 32 \r\n");
  EXPECT_EQ(capturedStdout([&] { result = g.speakDate("1", "13", "2008", "20", "08", out); }),
            " incorrect month 13 \r\n");
  EXPECT_EQ(result, 0);
  EXPECT_EQ(out, "");
}

// The ordinal: the cardinal, the glide after a vowel, "um".
const Spelled kOrdinals[] = {
    {"2", "duyum"},   {"3", "seyum"},  {"5", "panjum"},
    {"20", "bistum"}, {"30", "siyum"}, {"1000", "yak hazorum"},
};

TEST(TadjikGrammar, OrdinalSpeller) {
  for (const Spelled& c : kOrdinals) {
    std::string out;
    TadjikGrammar::speakOrdinal(c.digits, out);
    EXPECT_EQ(joinNames(out), c.words) << c.digits;
  }
}

}  // namespace
