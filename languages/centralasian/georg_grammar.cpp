#include "languages/centralasian/georg_grammar.h"

#include <array>

#include "grammar/complaints.h"

namespace vela {
namespace {

using centralasian::KeyWord;

struct Forms {
  const char* compound;  // something of the same number follows
  const char* final;     // the number's last word
};

// 0..99: rows 20..99 are score words (ots 20, ormots 40, samots 60, otkhmots 80)
// with "da" and the row of the rest, or with "i" when the rest is 0.
constexpr std::array<Forms, 100> kUpTo99 = {{
    {"null", "nuli"},                                 // 0
    {"ert", "erti"},                                  // 1
    {"or", "ori"},                                    // 2
    {"sam", "sami"},                                  // 3
    {"otkh", "otkhi"},                                // 4
    {"khut", "khuti"},                                // 5
    {"eqvs", "eqvsi"},                                // 6
    {"shvid", "shvidi"},                              // 7
    {"rva", "rva"},                                   // 8
    {"tskhra", "tskhra"},                             // 9
    {"at", "ati"},                                    // 10
    {"tertmet", "tertmeti"},                          // 11
    {"tormet", "tormeti"},                            // 12
    {"tsamet", "tsameti"},                            // 13
    {"totkhmet", "totkhmeti"},                        // 14
    {"tkhutmet", "tkhutmeti"},                        // 15
    {"teqvsmet", "teqvsmeti"},                        // 16
    {"chvidmet", "chvidmeti"},                        // 17
    {"tvramet", "tvrameti"},                          // 18
    {"tskhramet", "tskhrameti"},                      // 19
    {"ots", "otsi"},                                  // 20
    {"otsdaert", "otsdaerti"},                        // 21
    {"otsdaor", "otsdaori"},                          // 22
    {"otsdasam", "otsdasami"},                        // 23
    {"otsdaotkh", "otsdaotkhi"},                      // 24
    {"otsdakhut", "otsdakhuti"},                      // 25
    {"otsdaeqvs", "otsdaeqvsi"},                      // 26
    {"otsdashvid", "otsdashvidi"},                    // 27
    {"otsdarva", "otsdarva"},                         // 28
    {"otsdatskhra", "otsdatskhra"},                   // 29
    {"otsdaat", "otsdaati"},                          // 30
    {"otsdatertmet", "otsdatertmeti"},                // 31
    {"otsdatormet", "otsdatormeti"},                  // 32
    {"otsdatsamet", "otsdatsameti"},                  // 33
    {"otsdatotkhmet", "otsdatotkhmeti"},              // 34
    {"otsdatkhutmet", "otsdatkhutmeti"},              // 35
    {"otsdateqvsmet", "otsdateqvsmeti"},              // 36
    {"otsdachvidmet", "otsdachvidmeti"},              // 37
    {"otsdatvramet", "otsdatvrameti"},                // 38
    {"otsdatskhramet", "otsdatskhrameti"},            // 39
    {"ormots", "ormotsi"},                            // 40
    {"ormotsdaert", "ormotsdaerti"},                  // 41
    {"ormotsdaor", "ormotsdaori"},                    // 42
    {"ormotsdasam", "ormotsdasami"},                  // 43
    {"ormotsdaotkh", "ormotsdaotkhi"},                // 44
    {"ormotsdakhut", "ormotsdakhuti"},                // 45
    {"ormotsdaeqvs", "ormotsdaeqvsi"},                // 46
    {"ormotsdashvid", "ormotsdashvidi"},              // 47
    {"ormotsdarva", "ormotsdarva"},                   // 48
    {"ormotsdatskhra", "ormotsdatskhra"},             // 49
    {"ormotsdaat", "ormotsdaati"},                    // 50
    {"ormotsdatertmet", "ormotsdatertmeti"},          // 51
    {"ormotsdatormet", "ormotsdatormeti"},            // 52
    {"ormotsdatsamet", "ormotsdatsameti"},            // 53
    {"ormotsdatotkhmet", "ormotsdatotkhmeti"},        // 54
    {"ormotsdatkhutmet", "ormotsdatkhutmeti"},        // 55
    {"ormotsdateqvsmet", "ormotsdateqvsmeti"},        // 56
    {"ormotsdachvidmet", "ormotsdachvidmeti"},        // 57
    {"ormotsdatvramet", "ormotsdatvrameti"},          // 58
    {"ormotsdatskhramet", "ormotsdatskhrameti"},      // 59
    {"samots", "samotsi"},                            // 60
    {"samotsdaert", "samotsdaerti"},                  // 61
    {"samotsdaor", "samotsdaori"},                    // 62
    {"samotsdasam", "samotsdasami"},                  // 63
    {"samotsdaotkh", "samotsdaotkhi"},                // 64
    {"samotsdakhut", "samotsdakhuti"},                // 65
    {"samotsdaeqvs", "samotsdaeqvsi"},                // 66
    {"samotsdashvid", "samotsdashvidi"},              // 67
    {"samotsdarva", "samotsdarva"},                   // 68
    {"samotsdatskhra", "samotsdatskhra"},             // 69
    {"samotsdaat", "samotsdaati"},                    // 70
    {"samotsdatertmet", "samotsdatertmeti"},          // 71
    {"samotsdatormet", "samotsdatormeti"},            // 72
    {"samotsdatsamet", "samotsdatsameti"},            // 73
    {"samotsdatotkhmet", "samotsdatotkhmeti"},        // 74
    {"samotsdatkhutmet", "samotsdatkhutmeti"},        // 75
    {"samotsdateqvsmet", "samotsdateqvsmeti"},        // 76
    {"samotsdachvidmet", "samotsdachvidmeti"},        // 77
    {"samotsdatvramet", "samotsdatvrameti"},          // 78
    {"samotsdatskhramet", "samotsdatskhrameti"},      // 79
    {"otkhmots", "otkhmotsi"},                        // 80
    {"otkhmotsdaert", "otkhmotsdaerti"},              // 81
    {"otkhmotsdaor", "otkhmotsdaori"},                // 82
    {"otkhmotsdasam", "otkhmotsdasami"},              // 83
    {"otkhmotsdaotkh", "otkhmotsdaotkhi"},            // 84
    {"otkhmotsdakhut", "otkhmotsdakhuti"},            // 85
    {"otkhmotsdaeqvs", "otkhmotsdaeqvsi"},            // 86
    {"otkhmotsdashvid", "otkhmotsdashvidi"},          // 87
    {"otkhmotsdarva", "otkhmotsdarva"},               // 88
    {"otkhmotsdatskhra", "otkhmotsdatskhra"},         // 89
    {"otkhmotsdaat", "otkhmotsdaati"},                // 90
    {"otkhmotsdatertmet", "otkhmotsdatertmeti"},      // 91
    {"otkhmotsdatormet", "otkhmotsdatormeti"},        // 92
    {"otkhmotsdatsamet", "otkhmotsdatsameti"},        // 93
    {"otkhmotsdatotkhmet", "otkhmotsdatotkhmeti"},    // 94
    {"otkhmotsdatkhutmet", "otkhmotsdatkhutmeti"},    // 95
    {"otkhmotsdateqvsmet", "otkhmotsdateqvsmeti"},    // 96
    {"otkhmotsdachvidmet", "otkhmotsdachvidmeti"},    // 97
    {"otkhmotsdatvramet", "otkhmotsdatvrameti"},      // 98
    {"otkhmotsdatskhramet", "otkhmotsdatskhrameti"},  // 99
}};

// By hundreds digit; row 0 is never spoken.
constexpr std::array<Forms, 10> kHundreds = {{
    {"", ""},
    {"as", "asi"},
    {"oras", "orasi"},
    {"samas", "samasi"},
    {"otkhas", "otkhasi"},
    {"khutas", "khutasi"},
    {"eqvsas", "eqvsasi"},
    {"shvidas", "shvidasi"},
    {"rvaas", "rvaasi"},
    {"tskhraas", "tskhraasi"},
}};

constexpr Forms kThousand = {" atas", " atasi"};
constexpr Forms kMillion = {" milion", " milioni"};
constexpr Forms kMilliard = {" milliard", " milliardi"};
constexpr Forms kZeroGroup = {" null", " nuli"};

// key     word
// clang-format off
constexpr KeyWord kUnits[] = {
    {"d",    "dolari"},
    {"usd",  "dolari"},
    {"rub",  "rubl"},
    {"gel",  "lari"},
    {"ab",   "abonenti"},
    {"mes",  "shetkobineba"},
    {"num",  "nomeri"},
    {"fax",  "faqsi"},
    {"h",    "saati"},
    {"min",  "tsuti"},
    {"sec",  "tsami"},
    {"eye",  "erteuli"},
    {"unit", "erteuli"},
    {"ed",   "erteuli"},
};
// clang-format on

// key -> minor unit
// clang-format off
constexpr KeyWord kCurrencies[] = {
    {"d",   "tsenti"},
    {"usd", "tsenti"},
    {"rub", "kopejka"},
    {"gel", "tetri"},
};
// clang-format on

// clang-format off
constexpr KeyWord kSymbols[] = {
    {"*", "varskvlavi"},
    {"#", "bade"},
    {"?", "kitkhvis_nishani"},
    {"_", "qveda_khazi"},
    {"%", "protsenti"},
};
// clang-format on

const centralasian::FamilyTables kTables = {
    .units = kUnits,
    .currencies = kCurrencies,
    .symbols = kSymbols,
    .digitWords = {"nuli", "erti", "ori", "sami", "otkhi", "khuti", "eqvsi", "shvidi", "rva", "tskhra"},
    .leadingZero = nullptr,  // a plain number is read digit by digit
    // Month 0 has no word.
    .months = {"", "ianvars", "tebervals", "marts", "aprils", "maiss", "ivniss", "ivliss", "agvistos",
               "seqtembers", "oqtombers", "noembers", "dekembers"},
    .duration = {.zeroHours = "nuli",
                 .hoursWord = " saati ",
                 .zeroMinutes = " nuli",
                 .minutesWord = " tsuti"},
    .clock = {.minutesEnd = " tsutze", .beforeSeconds = " tsutze da ", .secondsEnd = " tsamze"},
    .amounts = {.zeroTimeUnit = "nuli ",
                .absence = " ar aris",
                .zeroAmount = "nuli ",
                .glideBeforeMinor = false},
};

const char* form(const Forms& forms, bool final) { return final ? forms.final : forms.compound; }

// The last two digits become one index 0..99 (tens), the hundreds a digit;
// units keeps the last digit (1 for 11, 21, ...).
DigitGroup normalisedGroup(const std::string& digits, int cut) {
  DigitGroup group = centralasian::groupOf(digits, cut);
  centralasian::normaliseLastTwo(group);
  return group;
}

void speakNormalisedGroup(const DigitGroup& group, std::string& out, bool final) {
  out += " ";
  if (group.value == 0) out += form(kZeroGroup, final);
  if (group.hundreds > 0 && group.hundreds < 10) {
    out += form(kHundreds[group.hundreds], final && group.tens == 0);
    out += " ";
  }
  if (group.tens > 0 && group.tens < 100) {
    out += " ";
    out += form(kUpTo99[group.tens], final);
    out += " ";
  }
}

}  // namespace

const centralasian::FamilyTables& GeorgGrammar::tables() { return kTables; }

void GeorgGrammar::speakGroup(DigitGroup group, std::string& out, bool final) {
  centralasian::normaliseLastTwo(group);
  speakNormalisedGroup(group, out, final);
}

// A thousands group ending in 1 says only the scale word: 1000 is atasi, and so
// are the thousands of 11 000, 21 000 and 101 000.
void GeorgGrammar::speakInteger(const std::string& digits, std::string& out, bool final) {
  centralasian::noteDigitsBeyondTwelve(digits);
  auto [g9, g6, g3, g0] = getDigitGroups(digits);
  for (DigitGroup* group : {&g9, &g6, &g3, &g0}) centralasian::normaliseLastTwo(*group);
  using centralasian::hasDigits;
  const bool m = hasDigits(g6), t = hasDigits(g3), u = hasDigits(g0);
  if (hasDigits(g9)) {
    speakNormalisedGroup(g9, out, true);
    out += form(kMilliard, final && !m && !t && !u);
  }
  if (m) {
    speakNormalisedGroup(g6, out, true);
    out += form(kMillion, final && !t && !u);
  }
  if (t) {
    if (g3.units != 1)
      speakNormalisedGroup(g3, out, true);
    else if (g3.tens != 1 || g3.hundreds != 0)
      leaveUnsaid();  // the thousands of 11 000, 21 000, 101 000: only the scale word is said
    out += form(kThousand, final && !u);
  }
  if (u) speakNormalisedGroup(g0, out, final);
}

// Day, month, year: "khut ianvars ori atas rva tsels"; day 1 is "pirvel".
int GeorgGrammar::speakDate(const std::string& day, const std::string& month, const std::string& year,
                            const std::string&, const std::string&, std::string& out) {
  DigitGroup group;
  if (!centralasian::dayAccepted(day, group)) return 0;
  const std::size_t start = out.size();
  out += " ";
  if (group.value == 1)
    out += "pirvel";
  else
    speakInteger(day, out, false);
  if (!centralasian::monthAccepted(month, group)) {
    out.resize(start);
    return 0;
  }
  out += " ";
  out += centralasian::wordAt(kTables.months, group.value);
  speakInteger(year, out, false);
  out += " tsels";
  return 1;
}

void GeorgGrammar::speakHoursPhrase(const std::string& hours, const std::string& minutes, std::string& out) {
  speakNormalisedGroup(normalisedGroup(hours, 0), out, false);
  out += " saatze";
  speakNormalisedGroup(normalisedGroup(minutes, 0), out, false);
}

void GeorgGrammar::speakSeconds(const std::string& seconds, std::string& out) {
  speakNormalisedGroup(normalisedGroup(seconds, 0), out, false);
}

}  // namespace vela
