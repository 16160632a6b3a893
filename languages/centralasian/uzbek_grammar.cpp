#include "languages/centralasian/uzbek_grammar.h"

namespace vela {
namespace {

using centralasian::KeyWord;

// Latin Uzbek in lower-case ASCII: oʻ and gʻ are written o and g, the
// apostrophe is dropped (toʻrt -> tort, oʻn -> on, toʻqqiz -> toqqiz).
constexpr centralasian::KazakhStyleNumbers kNumbers = {
    .ones = {"nol", "bir", "ikki", "uch", "tort", "besh", "olti", "yetti", "sakkiz", "toqqiz"},
    .ordinalOnes = {"nol", "birinchi", "ikkinchi", "uchinchi", "tortinchi", "beshinchi", "oltinchi",
                    "yettinchi", "sakkizinchi", "toqqizinchi"},
    .tens = {"", "on", "yigirma", "ottiz", "qirq", "ellik", "oltmish", "yetmish", "sakson", "toqson"},
    .ordinalTens = {"", "oninchi", "yigirmanchi", "ottizinchi", "qirqinchi", "ellikinchi", "oltmishinchi",
                    "yetmishinchi", "saksoninchi", "toqsoninchi"},
    .zero = " nol",
    .hundred = {" yuz", "inchi"},
    .thousand = {" ming", "inchi"},
    .million = {" million", "inchi"},
    .milliard = {" milliard", "inchi"},
};

// key     word
// clang-format off
constexpr KeyWord kUnits[] = {
    {"d",    "dollar"},
    {"usd",  "dollar"},
    {"rub",  "rubl"},
    {"uzs",  "som"},
    {"ab",   "abonent"},
    {"mes",  "xabar"},
    {"num",  "raqam"},
    {"fax",  "faks"},
    {"h",    "soat"},
    {"min",  "daqiqa"},
    {"sec",  "soniya"},
    {"ed",   "birlik"},
    {"eye",  "birlik"},
    {"unit", "birlik"},
};
// clang-format on

// key -> minor unit
// clang-format off
constexpr KeyWord kCurrencies[] = {
    {"d",   "sent"},
    {"usd", "sent"},
    {"rub", "kopeyka"},
    {"uzs", "tiyin"},
};
// clang-format on

// clang-format off
constexpr KeyWord kSymbols[] = {
    {"*", "yulduzcha"},
    {"#", "panjara"},
    {"?", "soroq_belgisi"},
    {"_", "ost_chiziqcha"},
    {"%", "foiz"},
};
// clang-format on

const centralasian::FamilyTables kTables = {
    .units = kUnits,
    .currencies = kCurrencies,
    .symbols = kSymbols,
    .digitWords = kNumbers.ones,
    .leadingZero = " nol",
    // Month 0 is no month and says nothing.
    .months = {"", "yanvar", "fevral", "mart", "aprel", "may", "iyun", "iyul", "avgust", "sentabr", "oktabr",
               "noyabr", "dekabr"},
    // "\"1:30\"": bir soat ottiz daqiqa
    .duration = {.zeroHours = "nol ",
                 .hoursWord = " soat ",
                 .zeroMinutes = " nol ",
                 .minutesWord = " daqiqa"},
    // "7:05": soat yetti besh daqiqa; "7:05:30": ... besh daqiqa ottiz soniya
    .clock = {.minutesEnd = " daqiqa", .beforeSeconds = " daqiqa", .secondsEnd = " soniya"},
    .amounts = {.zeroTimeUnit = "nol ", .absence = " yoq", .zeroAmount = "nol ", .glideBeforeMinor = false},
};

// "5.01.2008": ikki ming sakkizinchi yil beshinchi yanvar
const centralasian::KazakhStyleLanguage kLanguage = {
    .numbers = &kNumbers,
    .tables = &kTables,
    .yearWord = " yil",
    .yearWordNeedsYear = true,
    .hoursLead = " soat",
    .hoursWord = "",
};

}  // namespace

const centralasian::KazakhStyleLanguage& UzbekGrammar::language() { return kLanguage; }

}  // namespace vela
