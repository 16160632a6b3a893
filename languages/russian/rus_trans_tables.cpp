// Word tables of Russian with Latin-transliterated prompt names. Every cell is
// ASCII, so the literals need no conversion. Spellings are prompt names and
// stay as they are ("tretiego", "shectogo", "tridcat " with its space).
#include "languages/russian/family_language.h"

namespace vela {
namespace {

// clang-format off
constexpr NumberWords kNumbers = {
    // cardinal: masculine, feminine, neuter
    .cardinal = {{
        {"nol", "nol", "nol"},
        {"odin", "odna", "odno"},
        {"dva", "dve", "dva"},
        {"tri", "tri", "tri"},
        {"chetire", "chetire", "chetire"},
        {"pyat", "pyat", "pyat"},
        {"shest", "shest", "shest"},
        {"sem", "sem", "sem"},
        {"vosem", "vosem", "vosem"},
        {"devyat", "devyat", "devyat"},
    }},
    // ordinal, nominative: the neuter column is Russian, the others Ukrainian
    .ordinalNominative = {{
        {"nool", "nool", "nool"},
        {"pershij", "persha", "pervoe"},
        {"drugij", "druga", "vtoroe"},
        {"tretij", "tretja", "tretie"},
        {"chetvertij", "chetverta", "chetvertoe"},
        {"pjatyj", "pjata", "pyatoe"},
        {"shostyj", "shosta", "shestoe"},
        {"sjomyj", "sjoma", "sedmoe"},
        {"vosmuj", "vosma", "vosmoe"},
        {"devjatyj", "devjata", "devyatoe"},
    }},
    // ordinal, genitive: masculine only
    .ordinalGenitive = {{
        {"nool", "nool", "nool"},
        {"pervogo", "(ni)", "(ni)"},
        {"vtorogo", "(ni)", "(ni)"},
        {"tretiego", "(ni)", "(ni)"},
        {"chetvertogo", "(ni)", "(ni)"},
        {"pyatogo", "(ni)", "(ni)"},
        {"shectogo", "(ni)", "(ni)"},
        {"sedmogo", "(ni)", "(ni)"},
        {"vosmogo", "(ni)", "(ni)"},
        {"devyatogo", "(ni)", "(ni)"},
    }},
    // teens: cardinal, ordinal nominative neuter, ordinal genitive
    .teens = {{
        {"N/A", "N/A", "N/A"},
        {"odinnadcat", "odinnadcatoe", "odinnadcatogo"},
        {"dvenadcat", "dvenadcatoe", "dvenadcatogo"},
        {"trinadcat", "trinadcatoe", "trinadcatogo"},
        {"chetirnadcat", "chetirnadcatoe", "chetirnadcatogo"},
        {"pyatnadcat", "pyatnadcatoe", "pyatnadcatogo"},
        {"schestnadcat", "schestnadcatoe", "schestnadcatogo"},
        {"semnadcat", "semnadcatoe", "semnadcatogo"},
        {"vosemnadcat", "vosemnadcatoe", "vosemnadcatogo"},
        {"devyatnadcat", "devyatnadcatoe", "devyatnadcatogo"},
    }},
    // tens: cardinal, ordinal genitive, ordinal nominative neuter
    .tens = {{
        {"N/A", "N/A", "N/A"},
        {"desyat", "desyatogo", "desyatoe"},
        {"dvadcat", "dvadcatogo", "dvadcatoe"},
        {"tridcat ", "tridcatogo", "tridcatoe"},
        {"sorok", "sorokovogo", "sorokovoe"},
        {"pyatdesyat", "pyatidesyatogo", "pyatidesyatoe"},
        {"schestdesyat", "schestidesyatogo", "schestidesyatoe"},
        {"semdesyat", "semidesyatogo", "semidesyatoe"},
        {"vosemdesyat", "vosmidesyatogo", "vosmidesyatoe"},
        {"devyanosto", "devyanostogo", "devyanostoe"},
    }},
    // hundreds: cardinal, ordinal genitive
    .hundreds = {{
        {"N/A", "N/A"},
        {"sto", "sotogo"},
        {"dvesti", "dvuhsotogo"},
        {"trista", "trehsotogo"},
        {"chetiresta", "chetirehsotogo"},
        {"pyatsot", "pyatisotogo"},
        {"schestsot", "schestisotogo"},
        {"semsot", "semisotogo"},
        {"vosemsot", "vosmisotogo"},
        {"devyatsot", "devyatisotogo"},
    }},
};

// Rows 14, 1, 5 (milliards, millions, thousands) and 10-12 (hours, minutes,
// seconds) are also used by number.
constexpr UnitRow kUnits[] = {
    // key          gender      after 1          after 2-4        after 5+
    {"N/A",         kFeminine,  "tisyacha",      "tisyachi",      "tisyach"},       // 0
    {"N/A",         kMasculine, "million",       "milliona",      "millionov"},
    {"rub",         kMasculine, "rubl",          "rublya",        "rublei"},
    {"N/A",         kFeminine,  "kopeika",       "kopeiki",       "kopeek"},
    {"d",           kMasculine, "dollar",        "dollara",       "dollarov"},
    {"N/A",         kFeminine,  "tisyacha",      "tisyachi",      "tisyach"},       // 5
    {"N/A",         kMasculine, "cent",          "centa",         "centov"},
    {"mes",         kNeuter,    "soobschenie",   "soobscheniya",  "soobschenii"},
    {"fax",         kMasculine, "faks",          "faksa",         "faksov"},
    {"gel",         kMasculine, "lari",          "lari",          "lari"},
    {"h",           kMasculine, "chas",          "chasa",         "chasov"},        // 10
    {"min",         kFeminine,  "minuta",        "minuti",        "minut"},
    {"sec",         kFeminine,  "sekunda",       "sekundi",       "sekund"},
    {"N/A",         kMasculine, "chas",          "chasa",         "chasov"},
    {"N/A",         kMasculine, "milliard",      "milliarda",     "milliardov"},
    {"ab",          kMasculine, "abonent",       "abonenta",      "abonentov"},     // 15
    {"num",         kMasculine, "nomer",         "nomera",        "nomerov"},
    {"cel",         kFeminine,  "celaya",        "celih",         "celih"},
    {"tis",         kFeminine,  "tisyacha",      "tisyachi",      "tisyach"},
    {"mill",        kMasculine, "million",       "milliona",      "millionov"},
    {"rub",         kMasculine, "rubl'",         "rublya",        "rublei"},        // 20
    {"doll",        kMasculine, "dollar",        "dollara",       "dollarov"},
    {"kop",         kFeminine,  "kopeika",       "kopeiki",       "kopeek"},
    {"cent",        kMasculine, "cent",          "centa",         "centov"},
    {"scht",        kFeminine,  "schtuka",       "schtuki",       "schtuk"},
    {"abon",        kMasculine, "abonent",       "abonenta",      "abonentov"},     // 25
    {"tel",         kMasculine, "telefon",       "telefona",      "telefonov"},
    {"mm",          kMasculine, "millimetr",     "millimetra",    "millimetrov"},
    {"min",         kFeminine,  "minuta",        "minuti",        "minut"},
    {"dn",          kMasculine, "den",           "dnya",          "dnei"},
    {"ch",          kMasculine, "chas",          "chasa",         "chasov"},        // 30
    {"sek",         kFeminine,  "sekunda",       "sekundi",       "sekund"},
    {"soobsch",     kNeuter,    "soobschenie",   "soobschenija",  "soobschenii"},
    {"faks",        kMasculine, "faks",          "faksa",         "faksov"},
    {"ed",          kFeminine,  "edinica",       "edinici",       "edinic"},
    {"N/A",         kMasculine, "tetri",         "tetri",         "tetri"},         // 35
    {"amd",         kMasculine, "dram",          "drama",         "dramov"},
    {"N/A",         kMasculine, "luma",          "lumy",          "lum"},
    {"som",         kMasculine, "som",           "soma",          "somov"},
    {"tyi",         kMasculine, "tyiyn",         "tyiyna",        "tyiynov"},
    {"kzt",         kMasculine, "tenge",         "tenge",         "tenge"},         // 40
    {"bt",          kMasculine, "bait",          "baita",         "baitov"},
    {"kb",          kMasculine, "kilobait",      "kilobaita",     "kilobaitov"},
    {"mb",          kMasculine, "megabait",      "megabaita",     "megabaitov"},
    {"gb",          kMasculine, "gigabait",      "gigabaita",     "gigabaitov"},
    {"rub",         kMasculine, "rubl'",         "rublya",        "rublei"},        // 45
    {"usd",         kMasculine, "dollar",        "dollara",       "dollarov"},
    {"dinar",       kMasculine, "dinar",         "dinara",        "dinarov"},
    {"dzd",         kMasculine, "dinar",         "dinara",        "dinarov"},
    {"N/A",         kMasculine, "fils",          "filsa",         "filsov"},
    {"amd",         kMasculine, "dram",          "drama",         "dramov"},        // 50
    {"N/A",         kFeminine,  "luma",          "lumy",          "lum"},
    {"gel",         kMasculine, "lari",          "lari",          "lari"},
    {"N/A",         kMasculine, "tetri",         "tetri",         "tetri"},
    {"kzt",         kMasculine, "tenge",         "tenge",         "tenge"},
    {"N/A",         kMasculine, "tiyn",          "tiyna",         "tiynov"},        // 55
    {"tjs",         kMasculine, "somoni",        "somoni",        "somoni"},
    {"N/A",         kMasculine, "diram",         "dirama",        "diramov"},
    {"leu",         kMasculine, "leu",           "leu",           "leu"},
    {"mdl",         kMasculine, "leu",           "leu",           "leu"},
    {"N/A",         kMasculine, "ban",           "bana",          "banov"},         // 60
    {"gr",          kFeminine,  "gryvnja",       "gryvni",        "gryven"},
    {"uah",         kFeminine,  "gryvnja",       "gryvni",        "gryven"},
    {"N/A",         kFeminine,  "kopijka",       "kopijky",       "kopijok"},
    {"uzs",         kMasculine, "sum",           "suma",          "sumov"},
    {"N/A",         kMasculine, "tiyin",         "tiyina",        "tiyinov"},       // 65
    {"kgs",         kMasculine, "som",           "soma",          "somov"},
    {"N/A",         kMasculine, "tyjyn",         "tyjyna",        "tyjynov"},
    {"unit",        kFeminine,  "edinica",       "edinici",       "edinic"},
    {"eye",         kFeminine,  "edinica",       "edinici",       "edinic"},
};

// "USD" and "RUB" hold capitals and so never match a lower-cased suffix; "amd"
// names a minor unit ("lumm") that no unit row has, so its minor part is dropped.
constexpr CurrencyRow kCurrencies[] = {
    // key          minor unit
    {"d",           "cent"},
    {"USD",         "cent"},
    {"rub",         "kopeika"},
    {"RUB",         "kopeika"},
    {"gel",         "tetri"},
    {"amd",         "lumm"},
    {"som",         "tyi"},
    {"kzt",         "tyi"},
    {"dinar",       "fils"},
    {"dzd",         "fils"},
    {"tjs",         "diram"},
    {"leu",         "ban"},
    {"mdl",         "ban"},
    {"gr",          "kopijka"},
    {"uah",         "kopijka"},
    {"uzs",         "tiyin"},
    {"kgs",         "tyjyn"},
    {"usd",         "cent"},
};

constexpr SymbolRow kSymbols[] = {
    {"*", "zvezdochka"},
    {"#", "reschetka"},
    {"?", "znak_voprosa"},
    {"_", "podcherkivanie"},
    {"%", "procent"},
};

constexpr const char* kMonths[] = {
    "",
    "janvarya", "fevralya", "marta", "aprelya", "maja", "iyunya",
    "iyulya", "avgusta", "sentyabrya", "oktyabrya", "noyabrya", "dekabrya",
};
// clang-format on

// Filled when the library loads (a sanitizer build cannot fold pointer tests at compile time).
const NumberViews kNumberViews = viewsOf(kNumbers);

}  // namespace

constinit const FamilyLanguage kRussianTransLanguage = {
    .numbers = &kNumbers,
    .numberViews = &kNumberViews,
    .units = kUnits,
    .currencies = kCurrencies,
    .symbols = kSymbols,
    .months = kMonths,
    .milliardsRow = 14,
    .millionsRow = 1,
    .thousandsRow = 5,
    .hoursRow = 10,
    .minutesRow = 11,
    .secondsRow = 12,
    .speak3Complaint = " wrong parameters for RusGrammar::speak3\n\r",
    .zeroBeforeUnit = " nol ",
    .leadingZero = " nol",
    .minusWord = "minus ",
    .femaleSuffix = nullptr,
    .decimals = nullptr,
    .hasDayCaseMarker = true,
    .hoursGender = kMasculine,
    .year2000 = " dvuhtisyachnogo",
    .yearWord = " goda",
};

}  // namespace vela
