// Word tables of Ukrainian with Latin-transliterated prompt names. Every cell
// is ASCII, so the literals need no conversion. Spellings are prompt names and
// stay as they are ("Nool" with its capital, "drugjgo", "trydtsjat " with its
// space, the thousand row 0 spelled apart from row 6).
#include "languages/russian/family_language.h"

namespace vela {
namespace {

// clang-format off
constexpr NumberWords kNumbers = {
    // cardinal: masculine, feminine, neuter
    .cardinal = {{
        {"Nool", "nool", "nool"},
        {"odyn", "odna", "odne"},
        {"dva", "dvi", "dva"},
        {"try", "try", "try"},
        {"chotyry", "chotyry", "chotyry"},
        {"pjat", "pjat", "pjat"},
        {"shist", "shist", "shist"},
        {"sim", "sim", "sim"},
        {"visim", "visim", "visim"},
        {"devjat", "devjat", "devjat"},
    }},
    // ordinal, nominative
    .ordinalNominative = {{
        {"nool", "nool", "nool"},
        {"pershij", "persha", "pershe"},
        {"drugij", "druga", "druge"},
        {"tretij", "tretja", "tretje"},
        {"chetvertij", "chetverta", "chetverte"},
        {"pjatyj", "pjata", "pjate"},
        {"shostyj", "shosta", "shoste"},
        {"sjomyj", "sjoma", "sjome"},
        {"vosmuj", "vosma", "vosmyj"},
        {"devjatyj", "devjata", "devjate"},
    }},
    // ordinal, genitive: masculine only
    .ordinalGenitive = {{
        {"nool", "nool", "nool"},
        {"pershogo", "(ni)", "(ni)"},
        {"drugjgo", "(ni)", "(ni)"},
        {"tretjogo", "(ni)", "(ni)"},
        {"chetvertogo", "(ni)", "(ni)"},
        {"pjatogo", "(ni)", "(ni)"},
        {"shostogo", "(ni)", "(ni)"},
        {"sjomogo", "(ni)", "(ni)"},
        {"vosmogo", "(ni)", "(ni)"},
        {"devjatogo", "(ni)", "(ni)"},
    }},
    // teens: cardinal, (no nominative ordinal), ordinal genitive
    .teens = {{
        {"N/A", kNoForm, "N/A"},
        {"odynadtsjat", kNoForm, "odynadtsjatogo"},
        {"dvanadtsjat", kNoForm, "dvanadtsjatogo"},
        {"trynadtsjat", kNoForm, "trynadtsjatogo"},
        {"chotyrnadtsjat", kNoForm, "chotyrnadtsjatogo"},
        {"pjatnadtsjat", kNoForm, "pjatnadtsjatogo"},
        {"shistnadtsjat", kNoForm, "shistnadtsjatogo"},
        {"simnadtsjat", kNoForm, "simnadtsjatogo"},
        {"visimnadtsjat", kNoForm, "visimnadtsjatogo"},
        {"devjatnadtsjat", kNoForm, "devjatnadtsjatogo"},
    }},
    // tens: cardinal, ordinal genitive, (no nominative ordinal)
    .tens = {{
        {"N/A", "N/A", kNoForm},
        {"desjat", "desjatogo", kNoForm},
        {"dvadtsjat", "dvadtsjatogo", kNoForm},
        {"trydtsjat ", "trydtsjatogo", kNoForm},
        {"sorok", "sorokovogo", kNoForm},
        {"pjatdesjat", "pjatdesjatogo", kNoForm},
        {"shistdesjat", "shostdesjatogo", kNoForm},
        {"simdesjat", "simidesjatogo", kNoForm},
        {"visimdesjat", "visimdesjatogo", kNoForm},
        {"devjanosto", "devjanostogo", kNoForm},
    }},
    // hundreds: cardinal, ordinal genitive
    .hundreds = {{
        {"N/A", "N/A"},
        {"sto", "sotogo"},
        {"dvisti", "dvohsotogo"},
        {"trysta", "trjohsotogo"},
        {"chotyrysta", "chotyrjohsotogo"},
        {"pjatsot", "pjatysotogo"},
        {"shistsot", "shestysotogo"},
        {"simsot", "semysotogo"},
        {"visimsot", "visimsotogo"},
        {"devjatsot", "devjatysotogo"},
    }},
};

// Rows 16, 1, 6 (milliards, millions, thousands) and 12-14 (hours, minutes,
// seconds) are also used by number.
constexpr UnitRow kUnits[] = {
    // key          gender      after 1          after 2-4        after 5+
    {"N/A",         kFeminine,  "tisiacha",      "tisiachi",      "tisiach"},       // 0
    {"N/A",         kMasculine, "miljon",        "miljony",       "miljoniv"},
    {"rub",         kMasculine, "rubl",          "rublja",        "rubliv"},
    {"N/A",         kFeminine,  "kopijka",       "kopijky",       "kopijok"},
    {"d",           kMasculine, "dolar",         "dolary",        "dolariv"},
    {"usd",         kMasculine, "dolar",         "dolary",        "dolariv"},       // 5
    {"N/A",         kFeminine,  "tysjacha",      "tisjachi",      "tisjach"},
    {"N/A",         kMasculine, "cent",          "centi",         "centiv"},
    {"mes",         kNeuter,    "povidomlennja", "povidomlennja", "povidomlen"},
    {"fax",         kMasculine, "faks",          "faksy",         "faksiv"},
    {"gr",          kFeminine,  "gryvnja",       "gryvni",        "gryven"},        // 10
    {"uah",         kFeminine,  "gryvnja",       "gryvni",        "gryven"},
    {"h",           kFeminine,  "godyna",        "godyny",        "godyn"},
    {"min",         kFeminine,  "hvylyna",       "hvylyny",       "hvylyn"},
    {"sec",         kFeminine,  "sekunda",       "sekundy",       "sekund"},
    {"N/A",         kFeminine,  "godyna",        "godyny",        "godin"},         // 15
    {"N/A",         kMasculine, "miljard",       "miljardy",      "miljardiv"},
    {"ab",          kMasculine, "abonent",       "abonenti",      "abonentiv"},
    {"num",         kMasculine, "nomer",         "nomery",        "nomeriv"},
    {"unit",        kFeminine,  "odinitsja",     "odinitsi",      "odinits"},
    {"eye",         kFeminine,  "odinitsja",     "odinitsi",      "odinits"},       // 20
    {"ed",          kFeminine,  "odinitsja",     "odinitsi",      "odinits"},
};

constexpr CurrencyRow kCurrencies[] = {
    // key          minor unit
    {"d",           "cent"},
    {"usd",         "cent"},
    {"rub",         "kopijka"},
    {"gr",          "kopijka"},
    {"uah",         "kopijka"},
};

constexpr SymbolRow kSymbols[] = {
    {"*", "star"},
    {"#", "pound"},
    {"?", "question_mark"},
    {"_", "underlining"},
    {"%", "percent"},
};

constexpr const char* kMonths[] = {
    "",
    "sichnja", "ljutogo", "bereznja", "kvitnja", "travnja", "chervnja",
    "lipnja", "serpnja", "veresnja", "zhovtnia", "listopada", "grudnja",
};
// clang-format on

// Filled when the library loads (a sanitizer build cannot fold pointer tests at compile time).
const NumberViews kNumberViews = viewsOf(kNumbers);

}  // namespace

constinit const FamilyLanguage kUkrainianLanguage = {
    .numbers = &kNumbers,
    .numberViews = &kNumberViews,
    .units = kUnits,
    .currencies = kCurrencies,
    .symbols = kSymbols,
    .months = kMonths,
    .milliardsRow = 16,
    .millionsRow = 1,
    .thousandsRow = 6,
    .hoursRow = 12,
    .minutesRow = 13,
    .secondsRow = 14,
    .speak3Complaint = " wrong parameters for UkranianGrammar::speak3\n\r",
    .zeroBeforeUnit = " nool ",
    .leadingZero = " nool",
    .minusWord = nullptr,
    .femaleSuffix = nullptr,
    .decimals = nullptr,
    .hasDayCaseMarker = false,
    .hoursGender = kFeminine,
    .year2000 = " dvohtysjachnyj",
    .yearWord = " roky",
};

}  // namespace vela
