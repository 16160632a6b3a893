#include "languages/centralasian/tadjik_grammar.h"

#include <array>

namespace vela {
namespace {

using centralasian::KeyWord;
using centralasian::wordAt;

// Ones and teens, by value 0..19.
constexpr std::array<const char*, 20> kOnesAndTeens = {
    "nol", "yak",    "du",       "se",      "chor",    "panj",    "shash",    "haft",   "hasht",    "nuh",
    "dah", "yozdah", "duvozdah", "senzdah", "chordah", "ponzdah", "shonzdah", "habdah", "hazhdach", "nuzdah",
};

// By tens digit; row 0 is never read.
constexpr std::array<const char*, 10> kTens = {
    "", "dah", "bist", "si", "chil", "panjoh", "shast", "haftod", "hashtod", "navad",
};

// By hundreds digit; row 0 is never read.
constexpr std::array<const char*, 10> kHundreds = {
    "", "sad", "dusad", "sesad", "chorsad", "panjsad", "shashsad", "haftsad", "hashtsad", "nuhsad",
};

// key     word
// clang-format off
constexpr KeyWord kUnits[] = {
    {"d",    "dollar"},
    {"usd",  "dollar"},
    {"rub",  "rubl"},
    {"tjs",  "somoni"},
    {"ab",   "mushtari"},
    {"mes",  "habar"},
    {"fax",  "faks"},
    {"num",  "raqamash"},
    {"h",    "soat"},
    {"min",  "daqiqa"},
    {"sec",  "soniya"},
    {"eye",  "vohid"},
    {"unit", "vohid"},
    {"ed",   "vohid"},
};
// clang-format on

// key -> minor unit
// clang-format off
constexpr KeyWord kCurrencies[] = {
    {"d",   "sent"},
    {"usd", "sent"},
    {"rub", "diram"},
    {"tjs", "diram"},
};
// clang-format on

// clang-format off
constexpr KeyWord kSymbols[] = {
    {"*", "sitoracha"},
    {"#", "panjara"},
    {"?", "alomati_savol"},
    {"_", "defisi_poyoni"},
    {"%", "foiz"},
};
// clang-format on

const centralasian::FamilyTables kTables = {
    .units = kUnits,
    .currencies = kCurrencies,
    .symbols = kSymbols,
    .digitWords = {"sifr", "yak", "du", "se", "chor", "panj", "shash", "haft", "hasht", "nuh"},
    .leadingZero = " sifr",
    // Month 0 is not a month: its slot says "nuhsad".
    .months = {"nuhsad", "yanvar", "fevral", "mart", "aprel", "may", "iyun", "iyul", "avgust", "sentyabr",
               "oktyabr", "noyabr", "dekabr"},
    .duration = {.zeroHours = "nol ",
                 .hoursWord = " soat ",
                 .zeroMinutes = " nol ",
                 .minutesWord = " daqiqa"},
    .clock = {.minutesEnd = " daqiqa", .beforeSeconds = " daqiqayu", .secondsEnd = " soniya"},
    .amounts = {.zeroTimeUnit = "nol ", .absence = " nest", .zeroAmount = "nol ", .glideBeforeMinor = true},
};

// The connective after a scale word, when anything follows it.
void appendScale(const DigitGroup& group, const char* scale, bool more, std::string& out) {
  TadjikGrammar::speakGroup(group, out);
  out += scale;
  if (more) out += "u ";
}

}  // namespace

const centralasian::FamilyTables& TadjikGrammar::tables() { return kTables; }

void TadjikGrammar::speakGroup(DigitGroup group, std::string& out) {
  centralasian::normaliseTeen(group);
  const std::size_t start = out.size();
  if (group.value == 0) out += " nol";
  const bool rest = group.tens != 0 || group.units != 0;
  if (group.hundreds != 0) {
    out.resize(start);  // the hundreds word takes the place of a zero word
    out += wordAt(kHundreds, group.hundreds / 100);
    if (rest) {
      centralasian::appendGlide(out, start);
      out += "u";
    }
  }
  if (group.teen != 0) {
    out += " ";
    out += wordAt(kOnesAndTeens, group.teen);
  } else if (group.tens != 0) {
    out += " ";
    out += wordAt(kTens, group.tens / 10);
    if (group.units != 0) {
      centralasian::appendGlide(out, start);
      out += "u ";
      out += wordAt(kOnesAndTeens, group.units);
    }
  } else if (group.units != 0) {
    out += " ";
    out += wordAt(kOnesAndTeens, group.units);
  }
}

// The connective follows a scale word whenever a lower group is spoken (the
// last twelve digits decide, so a long number never overflows the test).
void TadjikGrammar::speakInteger(const std::string& digits, std::string& out) {
  using centralasian::hasDigits;
  centralasian::noteDigitsBeyondTwelve(digits);
  const auto [g9, g6, g3, g0] = getDigitGroups(digits);
  const bool m = hasDigits(g6), t = hasDigits(g3), u = hasDigits(g0);
  if (hasDigits(g9)) appendScale(g9, " milliard", m || t || u, out);
  if (m) appendScale(g6, " million", t || u, out);
  if (t) appendScale(g3, " hazor", u, out);
  if (u) {
    out += " ";
    speakGroup(g0, out);
  }
}

// The suffix is said even after a number that says nothing: a date without
// its year ends in "solium".
void TadjikGrammar::speakOrdinal(const std::string& digits, std::string& out) {
  const std::size_t start = out.size();
  speakInteger(digits, out);
  centralasian::appendGlide(out, start);
  out += "um";
}

// Day, month, year: "panjumi yanvari soli du hazoru hashtum".
int TadjikGrammar::speakDate(const std::string& day, const std::string& month, const std::string& year,
                             const std::string&, const std::string&, std::string& out) {
  DigitGroup group;
  if (!centralasian::dayAccepted(day, group)) return 0;
  const std::size_t start = out.size();
  speakOrdinal(day, out);
  out += "i";
  if (!centralasian::monthAccepted(month, group)) {
    out.resize(start);
    return 0;
  }
  out += " ";
  out += wordAt(kTables.months, group.value);
  out += "i soli";
  speakOrdinal(year, out);
  return 1;
}

// "soati haftu panj": the hours joined to the minutes by the connective.
void TadjikGrammar::speakHoursPhrase(const std::string& hours, const std::string& minutes, std::string& out) {
  out += " soati ";
  speakGroup(centralasian::groupOf(hours, 0), out);
  centralasian::appendGlide(out);
  out += "u";
  speakGroup(centralasian::groupOf(minutes, 0), out);
}

void TadjikGrammar::speakSeconds(const std::string& seconds, std::string& out) {
  speakGroup(centralasian::groupOf(seconds, 0), out);
}

}  // namespace vela
