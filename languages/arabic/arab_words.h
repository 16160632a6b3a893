// Arabic word tables. Every string is a prompt name in Latin transliteration
// ("^" and "c" stand for hamza and ayn and are part of the names) and is kept
// byte for byte, odd spellings included ("cithnaacashara", "tiscatacashrata"
// are the names of the recordings). Words are stored with their leading space,
// which is the separator when they are appended; the endings "t", "uun" and
// "iin" have none and are glued to the word before them.
#pragma once

namespace vela::arabic {

inline constexpr int kMasculine = 0;
inline constexpr int kFeminine = 1;
inline constexpr int kNoGender = -1;  // a token that names no counted noun

// Form A: masculine 1 and 2, and 3-10 with a feminine noun; form B the reverse.
struct CardinalForms {
  const char* a;
  const char* b;
};

// Indexed by the number. 15 is one entry holding two prompts, always spoken
// together, and has no form B; form B of 11-19 is never spoken.
inline constexpr CardinalForms kCardinals[20] = {
    // form A                              form B
    {" sifr", " sifr"},                               // 0
    {" waahid", " waahida"},                          // 1
    {" ^ithnaan", " ^ithnataan"},                     // 2
    {" thalaath", " thalaatha"},                      // 3
    {" ^arbac", " ^arbaca"},                          // 4
    {" khams", " khamsa"},                            // 5
    {" sitt", " sitta"},                              // 6
    {" sabc", " sabca"},                              // 7
    {" thamaan", " thamaaniya"},                      // 8
    {" tisc", " tisca"},                              // 9
    {" cashr", " cashra"},                            // 10
    {" ^ahadacashara", " ^ihdaacashrata"},            // 11
    {" cithnaacashara", " ^ithnaacashrata"},          // 12
    {" thalaathatacashara", " thalaathacashrata"},    // 13
    {" ^arbacatacashara", " ^arbacacashrata"},        // 14
    {" khamsatacashara khamsacashrata", ""},          // 15
    {" sittatacashara", " sittacashrata"},            // 16
    {" sabcatacashara", " sabcacashrata"},            // 17
    {" thamaaniyatacashara", " thamaaniyacashrata"},  // 18
    {" tiscatacashara", " tiscatacashrata"},          // 19
};

struct OrdinalForms {
  const char* masculine;
  const char* feminine;
};

// Indexed by the number.
inline constexpr OrdinalForms kOrdinals[20] = {
    // masculine            feminine
    {" sifr", " sifr"},                             // 0
    {" l^awwal", " lwaahida"},                      // 1
    {" ththaanii", " ththaaniya"},                  // 2
    {" ththaalith", " ththaalitha"},                // 3
    {" rraabic", " rraabica"},                      // 4
    {" lkhaamis", " lkhaamisa"},                    // 5
    {" ssaadis", " ssaadisa"},                      // 6
    {" ssaabic", " ssaabica"},                      // 7
    {" ththaamin", " ththaamina"},                  // 8
    {" ttaasic", " ttaasica"},                      // 9
    {" lcaashir", " lcaashira"},                    // 10
    {" lhadiyacashar", " lhadiyacashrata"},         // 11
    {" ththaaniyacashar", " ththaaniyacashrata"},   // 12
    {" ththaalithcashar", " ththaalithacashrata"},  // 13
    {" rraabiccashar", " rraabicacashrata"},        // 14
    {" lkhaamiscashar", " lkhaamisacashrata"},      // 15
    {" ssaadiscashar", " ssaadisacashrata"},        // 16
    {" ssaabiccashar", " ssaabicacashrata"},        // 17
    {" ththaamincashar", " ththaaminacashrata"},    // 18
    {" ttaasiccashar", " ttaasicacashrata"},        // 19
};

// By tens digit; the ending "uun" or "iin" is glued on. 0 and 1 are never used.
inline constexpr const char* kTensStems[10] = {
    "N/A", "N/A", " ^ishr", " thalaath", " ^arba^", " khams", " sitt", " sab^", " thamaan", " tis^",
};

// By hundreds digit; 0 is never used.
inline constexpr const char* kHundreds[10] = {
    "N/A",         " mi^a",      " mi^ataan",  " thalaathumi^a", " ^arbacumi^a",
    " khamsumi^a", " sittumi^a", " sabcumi^a", " thamaanimi^a",  " tiscumi^a",
};

// Words with a use of their own.
inline constexpr const char* kTwoMasculineOblique = " ^ithnayan";
inline constexpr const char* kTwoFeminineOblique = " ^ithnatayn";
inline constexpr const char* kTwelveMasculineOblique = " ^ithnaycashara";
inline constexpr const char* kTwelveFeminineOblique = " ^ithnataycashrata";
inline constexpr const char* kEightFeminineNominative = " thamaanii";
inline constexpr const char* kTwoThousandOblique = " ^alfayn";
inline constexpr const char* kAnd = " wa";
inline constexpr const char* kNone = " laa_yuujadu";  // a zero count: "there is none"
inline constexpr const char* kConstructEnding = "t";
inline constexpr const char* kTensNominative = "uun";
inline constexpr const char* kTensOblique = "iin";
inline constexpr const char* kMinus = " naqs";

// A word counted by a number: the suffix that selects it, its gender and its
// forms after 1 (and 0, 11 and above), 2, and 3-10.
struct ArabicUnitRecord {
  const char* code;
  int gender;
  const char* singular;
  const char* dual;
  const char* plural;
};

// Searched in this order; the first match wins. The first three are also the
// scale nouns of a whole number.
inline constexpr ArabicUnitRecord kUnitRecords[20] = {
    // code     gender      singular        dual               plural
    {"alf", kMasculine, " ^alf", " ^alfaan", " aalaaf"},                       // 0
    {"mln", kMasculine, " milyuun", " milyuunaan", " malaaiin"},               // 1
    {"mld", kMasculine, " milyaar", " milyaaraan", " milyaaraat"},             // 2
    {"num", kMasculine, " raqm", " raqmaan", " ^arqaam"},                      // 3
    {"mes", kMasculine, " khabar", " khabaraan", " ^akhbaar"},                 // 4
    {"h", kFeminine, " saaca", " saacaataan", " saacaat"},                     // 5
    {"min", kFeminine, " daqiiqa", " daqiiqataan", " daqaa^iq"},               // 6
    {"sec", kFeminine, " thaaniya", " thaaniyataan", " thawaanin"},            // 7
    {"d", kMasculine, " duulaar", " duulaaraan", " duulaaraat"},               // 8
    {"usd", kMasculine, " duulaar", " duulaaraan", " duulaaraat"},             // 9
    {"siint", kMasculine, " siint", " siintaan", " siintaat"},                 // 10
    {"dinar", kMasculine, " diinaar", " diinaaraan", " danaaniir"},            // 11
    {"dzd", kMasculine, " diinaar", " diinaaraan", " danaaniir"},              // 12
    {"fils", kMasculine, " fils", " filsaan", " filsaat"},                     // 13
    {"b", kMasculine, " bayt", " baytaan", " baytaat"},                        // 14
    {"kb", kMasculine, " kiiluubayt", " kiiluubaytaan", " kiiluubaytaat"},     // 15
    {"mb", kMasculine, " miighaabayt", " miighaabaytaan", " miighaabaytaat"},  // 16
    {"eye", kFeminine, " wahda", " wahdaan", " wahdaat"},                      // 17
    {"unit", kFeminine, " wahda", " wahdaan", " wahdaat"},                     // 18
    {"ed", kFeminine, " wahda", " wahdaan", " wahdaat"},                       // 19
};

inline constexpr const char* kThousandCode = "alf";
inline constexpr const char* kMillionCode = "mln";
inline constexpr const char* kMilliardCode = "mld";

// A currency and the code of its minor unit.
struct CurrencyRow {
  const char* code;
  const char* minorCode;
};

inline constexpr CurrencyRow kCurrencies[4] = {
    {"d", "siint"},
    {"usd", "siint"},
    {"dinar", "fils"},
    {"dzd", "fils"},
};

// How many decimal places the minor unit of a currency counts.
struct MinorDigitsRow {
  const char* code;
  int digits;
};

inline constexpr MinorDigitsRow kMinorDigits[4] = {
    {"d", 2},
    {"usd", 2},
    {"dinar", 3},
    {"dzd", 3},
};

struct SymbolRow {
  const char* symbol;
  const char* word;
};

// Single characters other than digits that have a word.
inline constexpr SymbolRow kSymbols[5] = {
    {"*", " calaamatu_nnajma"},         {"#", " shabaka"},          {"?", " calaamatu_l^istifhaam"},
    {"_", " calaamatu_khatti_ttahtii"}, {"%", " calaama_mi^awiya"},
};

// By month number. A month "00" gets through the date patterns; it has always
// been said with the recording that precedes January, the hundreds word
// " tiscumi^a", and hosts rely on that, so it is entry 0.
inline constexpr const char* kMonths[13] = {
    " tiscumi^a",                                           // 0
    " yanaayir",  " fibraayir", " maars",    " ^abriil",    // 1-4
    " maayuu",    " yuunyuu",   " yuulyuu",  " ^ughustus",  // 5-8
    " sabtambar", " ^uktubr",   " nufambar", " diisambar",  // 9-12
};

// Date words.
inline constexpr const char* kOf = " min";     // between day and month
inline constexpr const char* kYear = " ^aam";  // before the year number

// Clock-time words.
inline constexpr const char* kTheHour = " ^assaaca";
inline constexpr const char* kQuarterPast = " rrubc";
inline constexpr const char* kThirdPast = " ththulth";
inline constexpr const char* kHalf = " nnisf";
inline constexpr const char* kTo = " ^illaa";
inline constexpr const char* kThirdTo = " thulth";
inline constexpr const char* kQuarterTo = " rubc";
inline constexpr const char* kMidnightDuration = " muntasafi_llayl";

// Periods of the day, by the hour told.
inline constexpr const char* kAtMidnight = " fi_muntasafi_llayl";       // 0
inline constexpr const char* kAtNoon = " zuhran";                       // 12
inline constexpr const char* kAfterMidnight = " bacd_muntasafi_llayl";  // 1-4
inline constexpr const char* kMorning = " sabaahan";                    // 5-11
inline constexpr const char* kAfternoon = " bacd_zzuhr";                // 13-16
inline constexpr const char* kEvening = " masaa^an";                    // 17-23

}  // namespace vela::arabic
