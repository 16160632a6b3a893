// English word tables: number words, day ordinals, month names, the words that
// follow a number (scales, units, currencies) and the keypad and symbol words.
// Every string is a prompt name and is kept byte for byte, odd spellings
// included ("eigth hundred", "lumms", "tetris" are the names of the recordings).
#pragma once

namespace vela::english {

// The words for one digit in each position of a three-digit group.
struct DigitWords {
  const char* unit;      // d
  const char* teen;      // 10 + d
  const char* tens;      // d * 10
  const char* hundreds;  // d * 100
};

// Indexed by the digit. Row 0 above the units is never spoken: a zero digit
// there says nothing.
inline constexpr DigitWords kDigitWords[10] = {
    // unit   teen          tens        hundreds
    {"zero", "N/A", "N/A", "N/A"},
    {"one", "eleven", "ten", "one hundred"},
    {"two", "twelve", "twenty", "two hundred"},
    {"three", "thirteen", "thirty", "three hundred"},
    {"four", "fourteen", "forty", "four hundred"},
    {"five", "fifteen", "fifty", "five hundred"},
    {"six", "sixteen", "sixty", "six hundred"},
    {"seven", "seventeen", "seventy", "seven hundred"},
    {"eight", "eighteen", "eighty", "eigth hundred"},
    {"nine", "nineteen", "ninety", "nine hundred"},
};

struct OrdinalRow {
  int number;
  const char* word;
};

// Days of the month that have a word of their own; 21-29 and 31 are composed
// from a tens word and one of these.
inline constexpr OrdinalRow kOrdinals[] = {
    {1, "first"},      {2, "second"},       {3, "third"},       {4, "fourth"},      {5, "fifth"},
    {6, "sixth"},      {7, "seventh"},      {8, "eighth"},      {9, "ninth"},       {10, "tenth"},
    {11, "eleventh"},  {12, "twelfth"},     {13, "thirteenth"}, {14, "fourteenth"}, {15, "fifteenth"},
    {16, "sixteenth"}, {17, "seventeenth"}, {18, "eighteenth"}, {19, "nineteenth"}, {20, "twentieth"},
    {30, "thirtieth"},
};

// Month 1 to 12, at index month - 1.
inline constexpr const char* kMonths[12] = {
    "january", "february", "march",     "april",   "may",      "june",
    "july",    "august",   "september", "october", "november", "december",
};

// A word spoken after a number: the suffix that selects it and its forms after
// exactly one and after any other number. A code of "N/A" is never selected by
// a suffix (suffixes are lower-cased before the comparison); such records are
// reached as scale words, the conjunction or the minor part of a currency.
struct UnitRecord {
  const char* code;
  const char* singular;
  const char* plural;
};

// Searched in this order; the first code that matches wins.
inline constexpr UnitRecord kUnits[26] = {
    // code   singular      plural
    {"N/A", "thousand", "thousand"},      // 0
    {"N/A", "million", "million"},        // 1
    {"d", "dollar", "dollars"},           // 2
    {"N/A", "cent", "cents"},             // 3
    {"N/A", "and", "and"},                // 4
    {"msg", "message", "messages"},       // 5
    {"fax", "fax", "faxes"},              // 6
    {"h", "hour", "hours"},               // 7
    {"min", "minute", "minutes"},         // 8
    {"sec", "second", "seconds"},         // 9
    {"num", "number", "numbers"},         // 10
    {"rub", "ruble", "rubles"},           // 11
    {"N/A", "kopeck", "kopecks"},         // 12
    {"mes", "message", "messages"},       // 13
    {"ab", "subscriber", "subscribers"},  // 14
    {"gel", "lari", "laris"},             // 15
    {"N/A", "tetri", "tetris"},           // 16
    {"amd", "dram", "drams"},             // 17
    {"N/A", "lumm", "lumms"},             // 18
    {"bt", "byte", "bytes"},              // 19
    {"kb", "kilobyte", "kilobytes"},      // 20
    {"mb", "megabyte", "megabytes"},      // 21
    {"gb", "gigabyte", "gigabytes"},      // 22
    {"usd", "dollar", "dollars"},         // 23
    {"kzt", "tenge", "tenges"},           // 24
    {"N/A", "tiyn", "tiyn"},              // 25
};

inline constexpr const UnitRecord& kThousand = kUnits[0];
inline constexpr const UnitRecord& kMillion = kUnits[1];
inline constexpr const UnitRecord& kConjunction = kUnits[4];

// A currency: the record of its major unit and of its minor unit.
struct CurrencyPair {
  const UnitRecord* major;
  const UnitRecord* minor;
};

// Searched in this order; the first pair whose major is the suffix's record wins.
inline constexpr CurrencyPair kCurrencies[] = {
    {&kUnits[2], &kUnits[3]},    // d    dollar / cent
    {&kUnits[11], &kUnits[12]},  // rub  ruble  / kopeck
    {&kUnits[15], &kUnits[16]},  // gel  lari   / tetri
    {&kUnits[17], &kUnits[18]},  // amd  dram   / lumm
    {&kUnits[24], &kUnits[25]},  // kzt  tenge  / tiyn
    {&kUnits[23], &kUnits[3]},   // usd  dollar / cent
};

// Keypad keys and their words, position for position: a zero key is "ought".
inline constexpr char kDialKeys[] = "0123456789#*";
inline constexpr const char* kDialWords[12] = {
    "ought", "one", "two", "three", "four", "five", "six", "seven", "eight", "nine", "sharp", "star",
};

struct SymbolRow {
  const char* symbol;
  const char* word;
};

// Single characters other than digits that have a word; "#" alone is "pound".
inline constexpr SymbolRow kSymbols[] = {
    {"*", "star"}, {"#", "pound"}, {"?", "question_mark"}, {"_", "underlining"}, {"%", "percent"},
};

}  // namespace vela::english
