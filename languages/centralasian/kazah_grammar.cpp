#include "languages/centralasian/kazah_grammar.h"

namespace vela {
namespace {

using centralasian::KeyWord;

constexpr centralasian::KazakhStyleNumbers kNumbers = {
    .ones = {"nol", "bir", "eki", "ush", "tort", "bes", "alty", "zheti", "segiz", "togyz"},
    .ordinalOnes = {"nol", "birinshi", "ekinshi", "ushinshi", "tortinshi", "besinshi", "altynshy",
                    "zhetinshi", "segizinshi", "togyzynshy"},
    .tens = {"", "on", "zhiyrma", "otyz", "qyryq", "elu", "alpys", "zhetpis", "seksen", "toqsan"},
    .ordinalTens = {"", "onynshy", "zhiyrmasynshy", "otyzynshy", "qyrqynshy", "eluinshi", "alpysynshy",
                    "zhetpisinshi", "sekseninshi", "toqsanynshy"},
    .zero = " nol",
    .hundred = {" zhuz", "inshi"},
    .thousand = {" myng", "ynshy"},
    .million = {" million", "inshi"},
    .milliard = {" milliard", "ynshy"},
};

// key     word
// clang-format off
constexpr KeyWord kUnits[] = {
    {"d",    "dollar"},
    {"usd",  "dollar"},
    {"rub",  "rubl"},
    {"kzt",  "tenge"},
    {"ab",   "abonent"},
    {"mes",  "habarlama"},
    {"num",  "nomir"},
    {"fax",  "faks"},
    {"h",    "sagat"},
    {"min",  "minut"},
    {"sec",  "sekund"},
    {"ed",   "edinkaz"},
    {"eye",  "edinkaz"},
    {"unit", "edinkaz"},
};
// clang-format on

// key -> minor unit; "rub" takes "diram" and "kzt" the spelling "tiyn".
// clang-format off
constexpr KeyWord kCurrencies[] = {
    {"d",   "tsent"},
    {"usd", "tsent"},
    {"rub", "diram"},
    {"kzt", "tiyn"},
};
// clang-format on

// clang-format off
constexpr KeyWord kSymbols[] = {
    {"*", "zhuldyzsha"},
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
    // Month 0 is not a month: its slot says "nuhsad".
    .months = {"nuhsad", "qangtarynda", "aqpanynda", "nauryzynda", "sauirinde", "mamyrynda", "mausymynda",
               "shildesinde", "tamyzynda", "qyrqujeginde", "qazanynda", "qarashasynda", "zheltoqsanynda"},
    .duration = {.zeroHours = "nol ",
                 .hoursWord = " sagat ",
                 .zeroMinutes = " nol ",
                 .minutesWord = " minuttan"},
    .clock = {.minutesEnd = " minutta", .beforeSeconds = " minut", .secondsEnd = " sekundta"},
    .amounts = {.zeroTimeUnit = "nol ", .absence = " zhoq", .zeroAmount = "nol ", .glideBeforeMinor = false},
};

const centralasian::KazakhStyleLanguage kLanguage = {
    .numbers = &kNumbers,
    .tables = &kTables,
    .yearWord = " zhyldyng",
    .yearWordNeedsYear = false,
    .hoursLead = "",
    .hoursWord = " sagat",
};

}  // namespace

const centralasian::KazakhStyleLanguage& KazahGrammar::language() { return kLanguage; }

}  // namespace vela
