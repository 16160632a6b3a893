// Romanian word tables. Prompt names are Latin without diacritics and are kept
// byte for byte as the recordings are named, odd spellings included
// ("januare", "kopeika").
#pragma once

namespace vela::romanian {

// --- numbers ---

// Units and teens 0..20, one column per gender of the number: feminine (0) and
// masculine (any other value).
inline constexpr const char* kUnitsAndTeens[21][2] = {
    // feminine        masculine
    {"zero", "zero"},
    {"una", "unu"},
    {"doua", "doi"},
    {"trei", "trei"},
    {"patru", "patru"},
    {"cinci", "cinci"},
    {"sase", "sase"},
    {"sapte", "sapte"},
    {"opt", "opt"},
    {"noua", "noua"},
    {"zece", "zece"},
    {"unsprezece", "unsprezece"},
    {"douasprezece", "doisprezece"},
    {"treisprezece", "treisprezece"},
    {"paisprezece", "paisprezece"},
    {"cincisprezece", "cincisprezece"},
    {"saisprezece", "saisprezece"},
    {"saptesprezece", "saptesprezece"},
    {"optsprezece", "optsprezece"},
    {"nouasprezece", "nouasprezece"},
    {"douazeci", "douazeci"},
};

// By the tens digit; rows 0 and 1 are never reached (20 and below are read
// from the table above).
inline constexpr const char* kTens[10] = {
    "douazeci",  "zece",    "douazeci",  "treizeci", "patruzeci",
    "cincizeci", "saizeci", "saptezeci", "optzeci",  "nouazeci",
};

// By the hundreds digit; a zero hundreds digit says nothing, so row 0 is never reached.
inline constexpr const char* kHundreds[10] = {
    "nouazeci",   "o suta",    "doua sute",  "trei sute", "patru sute",
    "cinci sute", "sase sute", "sapte sute", "opt sute",  "noua sute",
};

inline constexpr const char* kConjunction = " si";  // after a tens word
inline constexpr const char* kZeroGroup = "zero ";
inline constexpr const char* kFirst = " intai";      // the ordinal one
inline constexpr const char* kOneFeminine = " unu";  // "1" read with gender 0
inline constexpr const char* kOneMasculine = " un";  // "1" read with gender 1
inline constexpr const char* kOneMillion = "un milion";
inline constexpr const char* kMillions = " milioane ";
inline constexpr const char* kOneThousand = "o mie";
inline constexpr const char* kThousands = " mii";

// --- counted nouns ---

enum NounGender : int { kFeminine = 0, kMasculine = 1, kNeuter = 2 };

struct GenderRow {
  const char* key;
  int gender;
};

// The gender of a noun by its key; a key not listed is feminine.
// clang-format off
inline constexpr GenderRow kNounGenders[15] = {
    // key    gender
    {"d",    kMasculine},
    {"rub",  kFeminine},
    {"kop",  kFeminine},
    {"o",    kFeminine},
    {"min",  kNeuter},
    {"cent", kMasculine},
    {"fax",  kNeuter},
    {"mes",  kNeuter},
    {"leu",  kMasculine},
    {"sec",  kFeminine},
    {"num",  kNeuter},
    {"ban",  kMasculine},
    {"eye",  kFeminine},
    {"unit", kFeminine},
    {"ed",   kFeminine},
};
// clang-format on

struct NounRow {
  const char* key;  // "N/A": reached by no suffix (keys are matched lower-case)
  const char* singular;
  const char* plural;
};

// Searched in this order; the first key that matches wins.
inline constexpr NounRow kNouns[20] = {
    // key    singular    plural
    {"N/A", "mie", "mii"},
    {"N/A", "milion", "milioane"},
    {"N/A", "miliard", "miliarde"},
    {"d", "dolar", "dolari"},
    {"rub", "rubla", "rubli"},
    {"kop", "kopeika", "kopeici"},
    {"o", "ora", "ore"},
    {"min", "minut", "minute"},
    {"buk", "bukata", "bukati"},
    {"fax", "fax", "faxuri"},
    {"mes", "mesaj", "mesaje"},
    {"leu", "leu", "lei"},
    {"ban", "ban", "bani"},
    {"cent", "cent", "centi"},
    {"num", "numar", "numere"},
    {"sec", "secunda", "secunde"},
    {"h", "ora", "ore"},
    {"eye", "unitate", "unitati"},
    {"unit", "unitate", "unitati"},
    {"ed", "unitate", "unitati"},
};

// Nouns of this grammar's own currencies, searched after the two tables above.
struct ExtraNounRow {
  const char* key;
  int gender;
  const char* singular;
  const char* plural;
};

inline constexpr ExtraNounRow kExtraNouns[] = {
    // key    gender       singular  plural
    {"eur", kMasculine, "euro", "euro"},
};

// A currency word: the noun keys of its major and minor units.
struct CurrencyRow {
  const char* key;
  const char* major;
  const char* minor;
};

// clang-format off
inline constexpr CurrencyRow kCurrencies[] = {
    // key   major  minor
    {"leu", "leu", "ban"},
    {"d",   "d",   "cent"},
    {"rub", "rub", "kop"},
    {"mdl", "leu", "ban"},   // Moldovan leu
    {"ron", "leu", "ban"},   // Romanian leu
    {"usd", "d",   "cent"},
    {"eur", "eur", "cent"},
};
// clang-format on

// --- dates and times ---

// Month 1..12 at its number; entry 0 is never spoken.
inline constexpr const char* kMonths[13] = {
    "",      "januare", "februarie",  "martie",    "aprilie",   "mai",       "iunie",
    "iulie", "august",  "septembrie", "octombrie", "noiembrie", "decembrie",
};

inline constexpr const char* kCountLink = " de ";  // after a number ending in 20..99
inline constexpr const char* kHourWord = "ora ";
inline constexpr const char* kHourZero = "ora zero";
inline constexpr const char* kZeroZero = " zero zero";
inline constexpr const char* kNoNumbers = "Nu exista numere";
inline constexpr const char* kNoMessages = "Nu exista mesaj";
inline constexpr const char* kMinuteKey = "min";
inline constexpr const char* kSecondKey = "sec";
inline constexpr const char* kHourKey = "h";

// --- keys and characters ---

inline constexpr const char* kDouble = "double";  // a digit said twice
inline constexpr const char* kTriple = "triple";  // a digit said three times
inline constexpr const char* kMinusWord = "minus ";

struct SymbolRow {
  char symbol;
  const char* word;
};

// Keypad keys and the usual symbols; a character not listed says nothing.
// clang-format off
inline constexpr SymbolRow kSymbols[] = {
    {'*', "steluta"},
    {'#', "diez"},
    {'+', "plus"},
    {'-', "minus"},
    {'=', "egal"},
    {'.', "punct"},
    {',', "virgula"},
    {':', "doua puncte"},
    {'/', "slash"},
    {'%', "procent"},
    {'@', "arond"},
    {'$', "dolar"},
};
// clang-format on

}  // namespace vela::romanian
