// Tajik readings through the public API, and its speller on its own.
#include "languages/centralasian/tadjik_grammar.h"

#include <gtest/gtest.h>

#include "support/speak.h"

namespace vela::testing {
namespace {

const Reading kTajik[] = {
    // The connective "u" fused onto the word before it, with the glide "y"
    // after a vowel; none after a scale word that ends the number; teens from
    // their own row; "sifr" for leading zeros.
    {"11", "yozdah"},
    {"25", "bistu panj"},
    {"31", "siyu yak"},
    {"110", "sadu dah"},
    {"205", "dusadu panj"},
    {"1001", "yak hazoru yak"},
    {"2000005", "du millionu panj"},
    {"1200000", "yak millionu dusad hazor"},
    {"0105", "sifr sadu panj"},
    {"0,25", "sifr bistu panj"},
    {"2000000000001", "yak"},
    // Dates: ordinal day with "i", month with "i soli", ordinal year; month 0
    // says slot 0; a date without a year still takes the ordinal suffix.
    {"5.01.2008", "panjumi yanvari soli du hazoru hashtum"},
    {"2.03.1999", "duyumi marti soli yak hazoru nuhsadu navadu nuhum"},
    {"30.11.2000", "siyumi noyabri soli du hazorum"},
    {"5.00.2008", "panjumi nuhsadi soli du hazoru hashtum"},
    {"12.05", "duvozdahumi mayi solium"},
    // Clock times and spans.
    {"7:05", "soati haftu panj daqiqa"},
    {"10:00", "soati dahu nol daqiqa"},
    {"7:05:30", "soati haftu panj daqiqayu si soniya"},
    {"\"0:00\"", "nol soat nol daqiqa"},
    // Counts with "nest"; money with the connective before the minor part.
    {"0ab", "mushtari nest"},
    {"21min", "bistu yak daqiqa"},
    {"5.5tjs", "panj somoniyu panjoh diram"},
    {"0.5tjs", "panjoh diram"},
    {"3.03usd", "se dollaru se sent"},
    // Digit strings and symbols.
    {"\"105\"", "yak sifr panj"},
    {"#", "panjara"},
};

TEST(TadjikGrammar, Readings) {
  expectReadings("tg", kTajik);
  const Complaint refused[] = {{"25:10", "wrong time (hours) 25\r\n", "daqiqa"}};
  expectComplaints("tg", refused);
}

// The hundreds word opens its group without a blank; only where it would
// fuse onto a zero or an earlier piece is a blank put before it.
TEST(TadjikGrammar, ExactBytes) {
  const Reading cases[] = {
      {"105", " sadu panj"},
      {"5", "  panj"},
      {"1005", " yak hazoru   panj"},
      {"5-500", "  panj panjsad"},
      {"200000", "dusad hazor"},
      {"5-200000", "  panj dusad hazor"},
      {"0200000", " sifr dusad hazor"},
      {"5.50tjs", "  panj somoniyu   panjoh diram"},
  };
  expectRawReadings("tg", cases);
}

}  // namespace
}  // namespace vela::testing
