// Word tables of Russian with Cyrillic prompt names.
#include "grammar/cp1251.h"
#include "languages/russian/family_language.h"

namespace vela {
namespace {

// clang-format off
constexpr NumberWords kNumbers = {
    // cardinal: masculine, feminine, neuter
    .cardinal = {{
        {"ноль"_cp, "ноль"_cp, "ноль"_cp},
        {"один"_cp, "одна"_cp, "одно"_cp},
        {"два"_cp, "две"_cp, "два"_cp},
        {"три"_cp, "три"_cp, "три"_cp},
        {"четыре"_cp, "четыре"_cp, "четыре"_cp},
        {"пять"_cp, "пять"_cp, "пять"_cp},
        {"шесть"_cp, "шесть"_cp, "шесть"_cp},
        {"семь"_cp, "семь"_cp, "семь"_cp},
        {"восемь"_cp, "восемь"_cp, "восемь"_cp},
        {"девять"_cp, "девять"_cp, "девять"_cp},
    }},
    // ordinal, nominative: only the neuter column is Russian; the other two
    // hold transliterated Ukrainian ordinals, which no Russian reading asks for.
    .ordinalNominative = {{
        {"nool", "nool", "nool"},
        {"pershij", "persha", "первое"_cp},
        {"drugij", "druga", "второе"_cp},
        {"tretij", "tretja", "третье"_cp},
        {"chetvertij", "chetverta", "четвертое"_cp},
        {"pjatyj", "pjata", "пятое"_cp},
        {"shostyj", "shosta", "шестое"_cp},
        {"sjomyj", "sjoma", "седьмое"_cp},
        {"vosmuj", "vosma", "восьмое"_cp},
        {"devjatyj", "devjata", "девятое"_cp},
    }},
    // ordinal, genitive: masculine only
    .ordinalGenitive = {{
        {"nool", "nool", "nool"},
        {"первого"_cp, "(ni)", "(ni)"},
        {"второго"_cp, "(ni)", "(ni)"},
        {"третьего"_cp, "(ni)", "(ni)"},
        {"четвертого"_cp, "(ni)", "(ni)"},
        {"пятого"_cp, "(ni)", "(ni)"},
        {"шестого"_cp, "(ni)", "(ni)"},
        {"седьмого"_cp, "(ni)", "(ni)"},
        {"восьмого"_cp, "(ni)", "(ni)"},
        {"девятого"_cp, "(ni)", "(ni)"},
    }},
    // teens: cardinal, ordinal nominative neuter, ordinal genitive
    .teens = {{
        {"N/A", "N/A", "N/A"},
        {"одиннадцать"_cp, "одиннадцатое"_cp, "одиннадцатого"_cp},
        {"двенадцать"_cp, "двенадцатое"_cp, "двенадцатого"_cp},
        {"тринадцать"_cp, "тринадцатое"_cp, "тринадцатого"_cp},
        {"четырнадцать"_cp, "четырнадцатое"_cp, "четырнадцатого"_cp},
        {"пятнадцать"_cp, "пятнадцатое"_cp, "пятнадцатого"_cp},
        {"шестнадцать"_cp, "шестнадцатое"_cp, "шестнадцатого"_cp},
        {"семнадцать"_cp, "семнадцатое"_cp, "семнадцатого"_cp},
        {"восемнадцать"_cp, "восемнадцатое"_cp, "восемнадцатого"_cp},
        {"девятнадцать"_cp, "девятнадцатое"_cp, "девятнадцатого"_cp},
    }},
    // tens: cardinal, ordinal genitive, ordinal nominative neuter
    .tens = {{
        {"N/A", "N/A", "N/A"},
        {"десять"_cp, "десятого"_cp, "десятое"_cp},
        {"двадцать"_cp, "двадцатого"_cp, "двадцатое"_cp},
        {"тридцать"_cp, "тридцатого"_cp, "тридцатое"_cp},
        {"сорок"_cp, "сорокового"_cp, "сороковое"_cp},
        {"пятьдесят"_cp, "пятидесятого"_cp, "пятидесятое"_cp},
        {"шестьдесят"_cp, "шестидесятого"_cp, "шестидесятое"_cp},
        {"семьдесят"_cp, "семидесятого"_cp, "семидесятое"_cp},
        {"восемьдесят"_cp, "восьмидесятого"_cp, "восьмидесятое"_cp},
        {"девяносто"_cp, "девяностого"_cp, "девяностое"_cp},
    }},
    // hundreds: cardinal, ordinal genitive (no nominative ordinal)
    .hundreds = {{
        {"N/A", "N/A"},
        {"сто"_cp, "сотого"_cp},
        {"двести"_cp, "двухсотого"_cp},
        {"триста"_cp, "трехсотого"_cp},
        {"четыреста"_cp, "четырехсотого"_cp},
        {"пятьсот"_cp, "пятисотого"_cp},
        {"шестьсот"_cp, "шестисотого"_cp},
        {"семьсот"_cp, "семисотого"_cp},
        {"восемьсот"_cp, "восьмисотого"_cp},
        {"девятьсот"_cp, "девятисотого"_cp},
    }},
};

// Rows 1, 6, 15 (millions, thousands, milliards), 11-13 (hours, minutes,
// seconds) and 81-83 (decimal words) are also used by number.
constexpr UnitRow kUnits[] = {
    // key          gender      after 1               after 2-4              after 5+
    {"N/A",         kFeminine,  "тысяча"_cp,          "тысячи"_cp,           "тысяч"_cp},               // 0
    {"N/A",         kMasculine, "миллион"_cp,         "миллиона"_cp,         "миллионов"_cp},
    {"rub",         kMasculine, "рубль"_cp,           "рубля"_cp,            "рублей"_cp},
    {"N/A",         kFeminine,  "копейка"_cp,         "копейки"_cp,          "копеек"_cp},
    {"d",           kMasculine, "доллар"_cp,          "доллара"_cp,          "долларов"_cp},
    {"usd",         kMasculine, "доллар"_cp,          "доллара"_cp,          "долларов"_cp},            // 5
    {"N/A",         kFeminine,  "тысяча"_cp,          "тысячи"_cp,           "тысяч"_cp},
    {"N/A",         kMasculine, "цент"_cp,            "цента"_cp,            "центов"_cp},
    {"mes",         kNeuter,    "сообщение"_cp,       "сообщения"_cp,        "сообщений"_cp},
    {"fax",         kMasculine, "факс"_cp,            "факса"_cp,            "факсов"_cp},
    {"ed",          kFeminine,  "единица"_cp,         "единицы"_cp,          "единиц"_cp},              // 10
    {"h",           kMasculine, "час"_cp,             "часа"_cp,             "часов"_cp},
    {"min",         kFeminine,  "минута"_cp,          "минуты"_cp,           "минут"_cp},
    {"sec",         kFeminine,  "секунда"_cp,         "секунды"_cp,          "секунд"_cp},
    {"N/A",         kMasculine, "час"_cp,             "часа"_cp,             "часов"_cp},
    {"N/A",         kMasculine, "миллиард"_cp,        "миллиарда"_cp,        "миллиардов"_cp},          // 15
    {"ab",          kMasculine, "абонент"_cp,         "абонента"_cp,         "абонентов"_cp},
    {"num",         kMasculine, "номер"_cp,           "номера"_cp,           "номеров"_cp},
    {"цел"_cp,      kFeminine,  "целая"_cp,           "целых"_cp,            "целых"_cp},
    {"тыс"_cp,      kFeminine,  "тысяча"_cp,          "тысячи"_cp,           "тысяч"_cp},
    {"милл"_cp,     kMasculine, "миллион"_cp,         "миллиона"_cp,         "миллионов"_cp},           // 20
    {"руб"_cp,      kMasculine, "рубль"_cp,           "рубля"_cp,            "рублей"_cp},
    {"долл"_cp,     kMasculine, "доллар"_cp,          "доллара"_cp,          "долларов"_cp},
    {"коп"_cp,      kFeminine,  "копейка"_cp,         "копейки"_cp,          "копеек"_cp},
    {"цент"_cp,     kMasculine, "цент"_cp,            "цента"_cp,            "центов"_cp},
    {"шт"_cp,       kFeminine,  "штука"_cp,           "штуки"_cp,            "штук"_cp},                // 25
    {"абон"_cp,     kMasculine, "абонент"_cp,         "абонента"_cp,         "абонентов"_cp},
    {"тел"_cp,      kMasculine, "телефон"_cp,         "телефона"_cp,         "телефонов"_cp},
    {"мм"_cp,       kMasculine, "миллиметр"_cp,       "миллиметра"_cp,       "миллиметров"_cp},
    {"мин"_cp,      kFeminine,  "минута"_cp,          "минуты"_cp,           "минут"_cp},
    {"дн"_cp,       kMasculine, "день"_cp,            "дня"_cp,              "дней"_cp},                // 30
    {"ч"_cp,        kMasculine, "час"_cp,             "часа"_cp,             "часов"_cp},
    {"сек"_cp,      kFeminine,  "секунда"_cp,         "секунды"_cp,          "секунд"_cp},
    {"сообщ"_cp,    kNeuter,    "сообщение"_cp,       "сообщения"_cp,        "сообщений"_cp},
    {"факс"_cp,     kMasculine, "факс"_cp,            "факса"_cp,            "факсов"_cp},
    {"ед"_cp,       kFeminine,  "единица"_cp,         "единицы"_cp,          "единиц"_cp},              // 35
    {"unit",        kFeminine,  "единица"_cp,         "единицы"_cp,          "единиц"_cp},
    {"eye",         kFeminine,  "единица"_cp,         "единицы"_cp,          "единиц"_cp},
    {"dinar",       kMasculine, "dinar",              "dinara",              "dinarov"},
    {"dzd",         kMasculine, "dinar",              "dinara",              "dinarov"},
    {"N/A",         kMasculine, "fils",               "filsa",               "filsov"},                 // 40
    {"amd",         kMasculine, "dram",               "drama",               "dramov"},
    {"N/A",         kFeminine,  "luma",               "lumy",                "lum"},
    {"gel",         kMasculine, "lari",               "lari",                "lari"},
    {"N/A",         kMasculine, "tetri",              "tetri",               "tetri"},
    {"kzt",         kMasculine, "tenge",              "tenge",               "tenge"},                  // 45
    {"N/A",         kMasculine, "tiyn",               "tiyna",               "tiynov"},
    {"tjs",         kMasculine, "somoni",             "somoni",              "somoni"},
    {"N/A",         kMasculine, "diram",              "dirama",              "diramov"},
    {"leu",         kMasculine, "leu",                "leu",                 "leu"},
    {"mdl",         kMasculine, "leu",                "leu",                 "leu"},                    // 50
    {"N/A",         kMasculine, "ban",                "bana",                "banov"},
    {"gr",          kFeminine,  "gryvnja",            "gryvni",              "gryven"},
    {"uah",         kFeminine,  "gryvnja",            "gryvni",              "gryven"},
    {"N/A",         kFeminine,  "kopijka",            "kopijky",             "kopijok"},
    {"uzs",         kMasculine, "sum",                "suma",                "sumov"},                  // 55
    {"N/A",         kMasculine, "tiyin",              "tiyina",              "tiyinov"},
    {"kgs",         kMasculine, "som",                "soma",                "somov"},
    {"N/A",         kMasculine, "tyjyn",              "tyjyna",              "tyjynov"},
    {"ed",          kFeminine,  "единица"_cp,         "единицы"_cp,          "единиц"_cp},
    {"bt",          kMasculine, "байт"_cp,            "байта"_cp,            "байт"_cp},                // 60
    {"kb",          kMasculine, "килобайт"_cp,        "килобайта"_cp,        "килобайт"_cp},
    {"mb",          kMasculine, "мегабайт"_cp,        "мегабайта"_cp,        "мегабайт"_cp},
    {"gb",          kMasculine, "гигабайт"_cp,        "гигабайта"_cp,        "гигабайт"_cp},
    {"cel",         kFeminine,  "целая"_cp,           "целых"_cp,            "целых"_cp},
    {"tis",         kFeminine,  "тысяча"_cp,          "тысячи"_cp,           "тысяч"_cp},               // 65
    {"mill",        kMasculine, "миллион"_cp,         "миллиона"_cp,         "миллионов"_cp},
    {"rub",         kMasculine, "рубль"_cp,           "рубля"_cp,            "рублей"_cp},
    {"d",           kMasculine, "доллар"_cp,          "доллара"_cp,          "долларов"_cp},
    {"kop",         kFeminine,  "копейка"_cp,         "копейки"_cp,          "копеек"_cp},
    {"cent",        kMasculine, "цент"_cp,            "цента"_cp,            "центов"_cp},              // 70
    {"sht",         kFeminine,  "штука"_cp,           "штуки"_cp,            "штук"_cp},
    {"abon",        kMasculine, "абонент"_cp,         "абонента"_cp,         "абонентов"_cp},
    {"tel",         kMasculine, "телефон"_cp,         "телефона"_cp,         "телефонов"_cp},
    {"mm",          kMasculine, "миллиметр"_cp,       "миллиметра"_cp,       "миллиметров"_cp},
    {"min",         kFeminine,  "минута"_cp,          "минуты"_cp,           "минут"_cp},               // 75
    {"dn",          kMasculine, "день"_cp,            "дня"_cp,              "дней"_cp},
    {"chas",        kMasculine, "час"_cp,             "часа"_cp,             "часов"_cp},
    {"sek",         kFeminine,  "секунда"_cp,         "секунды"_cp,          "секунд"_cp},
    {"mes",         kNeuter,    "сообщение"_cp,       "сообщения"_cp,        "сообщений"_cp},
    {"fax",         kMasculine, "факс"_cp,            "факса"_cp,            "факсов"_cp},              // 80
    {"tsl",         kFeminine,  "целая"_cp,           "целые"_cp,            "целых"_cp},
    {"des",         kFeminine,  "десятая"_cp,         "десятые"_cp,          "десятых"_cp},
    {"sot",         kFeminine,  "сотая"_cp,           "сотые"_cp,            "сотых"_cp},
    {"ed",          kFeminine,  "единица"_cp,         "единицы"_cp,          "единиц"_cp},
    {"ед"_cp,       kFeminine,  "единица"_cp,         "единицы"_cp,          "единиц"_cp},              // 85
    {"bl",          kMasculine, "балл"_cp,            "балла"_cp,            "баллов"_cp},
    {"бл"_cp,       kMasculine, "балл"_cp,            "балла"_cp,            "баллов"_cp},
};

constexpr CurrencyRow kCurrencies[] = {
    // key          minor unit
    {"d",           "цент"_cp},
    {"usd",         "цент"_cp},
    {"долл"_cp,     "цент"_cp},
    {"rub",         "копейка"_cp},
    {"руб"_cp,      "копейка"_cp},
    {"dinar",       "fils"},
    {"dzd",         "fils"},
    {"amd",         "luma"},
    {"gel",         "tetri"},
    {"kzt",         "tiyn"},
    {"tjs",         "diram"},
    {"leu",         "ban"},
    {"mdl",         "ban"},
    {"gr",          "kopijka"},
    {"uah",         "kopijka"},
    {"uzs",         "tiyin"},
    {"kgs",         "tyjyn"},
};

constexpr SymbolRow kSymbols[] = {
    {"*", "звездочка"_cp},
    {"#", "решетка"_cp},
    {"?", "знак_вопроса"_cp},
    {"_", "подчеркивание"_cp},
    {"%", "процент"_cp},
};

constexpr const char* kMonths[] = {
    "",
    "января"_cp, "февраля"_cp, "марта"_cp, "апреля"_cp, "мая"_cp, "июня"_cp,
    "июля"_cp, "августа"_cp, "сентября"_cp, "октября"_cp, "ноября"_cp, "декабря"_cp,
};

// clang-format on

constexpr DecimalKeys kDecimalKeys = {.whole = "tsl", .tenths = "des", .hundredths = "sot"};

// Filled when the library loads (a sanitizer build cannot fold pointer tests at compile time).
const NumberViews kNumberViews = viewsOf(kNumbers);

}  // namespace

constinit const FamilyLanguage kRussianLanguage = {
    .numbers = &kNumbers,
    .numberViews = &kNumberViews,
    .units = kUnits,
    .currencies = kCurrencies,
    .symbols = kSymbols,
    .months = kMonths,
    .milliardsRow = 15,
    .millionsRow = 1,
    .thousandsRow = 6,
    .hoursRow = 11,
    .minutesRow = 12,
    .secondsRow = 13,
    .speak3Complaint = " wrong parameters for RusGrammar::speak3\n\r",
    .zeroBeforeUnit = " ноль "_cp,
    .leadingZero = " ноль"_cp,
    .minusWord = "минус "_cp,
    .femaleSuffix = "female",
    .decimals = &kDecimalKeys,
    .hasDayCaseMarker = true,
    .hoursGender = kMasculine,
    .year2000 = " двухтысячного"_cp,
    .yearWord = " года"_cp,
};

}  // namespace vela
