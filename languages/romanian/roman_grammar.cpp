#include "languages/romanian/roman_grammar.h"

#include <initializer_list>
#include <string_view>

#include "grammar/complaints.h"
#include "grammar/helpers.h"
#include "grammar/unit_keys.h"
#include "languages/romanian/roman_number.h"
#include "languages/romanian/roman_words.h"

namespace vela {

namespace {

// Bare numbers and digits are said as one counts: "unu", "doi", "doisprezece".
// Any gender other than 0 and 1 reads the masculine column, one included.
constexpr int kCounting = 2;

// sayNumber reads at most nine digits whole; a longer text is said digit by digit.
constexpr std::size_t kLongestNumber = 9;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

const char* digitWord(char c) { return romanian::kUnitsAndTeens[c - '0'][1]; }

int genderOf(const std::string& key) {
  for (const romanian::GenderRow& row : romanian::kNounGenders)
    if (matchesWord(key, row.key)) return row.gender;
  for (const romanian::ExtraNounRow& row : romanian::kExtraNouns)
    if (matchesWord(key, row.key)) return row.gender;
  return romanian::kFeminine;
}

// The singular (plural = false) or plural of the noun of `key`; null when no table knows it.
const char* findNoun(const std::string& key, bool plural) {
  for (const romanian::NounRow& row : romanian::kNouns)
    if (matchesWord(key, row.key)) return plural ? row.plural : row.singular;
  for (const romanian::ExtraNounRow& row : romanian::kExtraNouns)
    if (matchesWord(key, row.key)) return plural ? row.plural : row.singular;
  return nullptr;
}

// The word of a symbol character; null when it has none.
const char* symbolWord(char symbol) {
  for (const romanian::SymbolRow& row : romanian::kSymbols)
    if (row.symbol == symbol) return row.word;
  return nullptr;
}

// A zero count of these units is one phrase.
constexpr NoneAmount kNoneAmounts[] = {
    {"num", romanian::kNoNumbers},
    {"mes", romanian::kNoMessages},
};

const romanian::CurrencyRow* findCurrency(const std::string& unit) {
  for (const romanian::CurrencyRow& row : romanian::kCurrencies)
    if (matchesWord(unit, row.key)) return &row;
  return nullptr;
}

// Singular only after exactly one; a text beyond 128 characters is always plural.
const char* nounAfter(const std::string& number, const std::string& key) {
  const bool plural = number.size() > 128 || readInt(number) != 1;
  const char* noun = findNoun(key, plural);
  return noun != nullptr ? noun : "";
}

// 20 and more in the last two digits takes " de " before the noun.
bool takesDe(const std::string& number) {
  const std::size_t n = number.size();
  if (n < 2 || !isDigit(number[n - 2]) || !isDigit(number[n - 1])) return false;
  return (number[n - 2] - '0') * 10 + (number[n - 1] - '0') >= 20;
}

void appendDigitByDigit(std::string_view digits, std::string& out) {
  for (char c : digits) {
    if (!isDigit(c)) continue;
    out += digitWord(c);
    out += ' ';
  }
}

void appendNumberWords(std::string_view number, int gender, std::string& out) {
  if (number.size() <= kLongestNumber) return romanian::appendNumber(number, gender, 0, out);
  appendDigitByDigit(number, out);
}

// The number and its noun: "douazeci si cinci de lei", "un leu", "doua minute".
// A neuter noun takes the masculine one and the feminine two: "un minut",
// "doua minute". A key without a noun leaves the number and one space.
void appendCount(const std::string& number, const std::string& key, std::string& out) {
  int gender = genderOf(key);
  if (gender == romanian::kNeuter) gender = readInt(number) == 1 ? romanian::kMasculine : romanian::kFeminine;
  const char* noun = nounAfter(number, key);
  appendNumberWords(number, gender, out);
  out += takesDe(number) && *noun != '\0' ? romanian::kCountLink : " ";
  out += noun;
}

// "007" is "7", "000" is "0", "" is "0".
std::string withoutLeadingZeros(const std::string& digits) {
  const std::size_t first = digits.find_first_not_of('0');
  if (first == std::string::npos) return "0";
  return digits.substr(first);
}

// The minor part as two digits: "5" is "50", "567" is "56" (cut, not rounded).
std::string minorDigits(const std::string& fracDigits) {
  if (fracDigits.find_first_not_of('0', 2) != std::string::npos)
    leaveUnsaid();  // the digits after the second
  std::string minor = fracDigits.substr(0, 2);
  if (minor.size() == 1) minor += '0';
  return minor;
}

void refuseDecimal(const std::string& text) { complain(" no decimal reading %s \r\n", text.c_str()); }

// A number with its leading zeros said one by one: "007" is "zero zero  sapte".
void speakNumberPiece(std::string_view piece, std::string& out) {
  std::size_t zeros = 0;
  for (; zeros < piece.size() && piece[zeros] == '0'; ++zeros) out += romanian::kZeroGroup;
  if (zeros < piece.size()) appendNumberWords(piece.substr(zeros), kCounting, out);
}

// Keys one by one; a run of two or three equal digits is "double"/"triple" and
// the digit. A longer run is cut into threes from its start, with two pairs
// rather than a lone digit at its end: 4 = 2+2, 5 = 3+2, 7 = 3+2+2.
void speakKeys(std::string_view keys, std::string& out) {
  for (std::size_t i = 0; i < keys.size();) {
    const char key = keys[i];
    std::size_t run = 1;
    if (isDigit(key))
      while (i + run < keys.size() && keys[i + run] == key) ++run;
    i += run;
    if (key == '*' || key == '#') (out += symbolWord(key)) += ' ';
    if (!isDigit(key)) continue;
    while (run > 0) {
      const std::size_t take = run == 4 ? 2 : run < 3 ? run : 3;
      if (take == 2) (out += romanian::kDouble) += ' ';
      if (take == 3) (out += romanian::kTriple) += ' ';
      (out += digitWord(key)) += ' ';
      run -= take;
    }
  }
}

// A clock field: its first two characters, a leading "0" dropped ("05" is "5").
std::string timeField(const std::string& field) {
  std::string text = field.substr(0, 2);
  if (text.size() == 2 && text[0] == '0') text.erase(0, 1);
  return text;
}

// Counted parts of a span of time, the zero ones left out; all zero says the
// last part's zero ("zero  minute").
struct SpanPart {
  const std::string& digits;
  const char* key;
};

void speakSpan(std::initializer_list<SpanPart> parts, std::string& out) {
  bool spoken = false;
  for (const SpanPart& part : parts) {
    const std::string number = withoutLeadingZeros(part.digits);
    if (number == "0") continue;
    appendCount(number, part.key, out);
    spoken = true;
  }
  if (!spoken) appendCount("0", (parts.end() - 1)->key, out);
}

}  // namespace

// --- amounts ---

bool RomanGrammar::speakSpecialAmount(const std::string& intDigits, const std::string& unit,
                                      std::string& out) {
  return speakNoneAmount(kNoneAmounts, intDigits, unit, out);
}

// Nouns, their genders, currencies and the zero phrases.
void RomanGrammar::listUnitKeys(std::vector<std::string>& keys) {
  appendKeys(keys, romanian::kNouns, &romanian::NounRow::key);
  appendKeys(keys, romanian::kExtraNouns, &romanian::ExtraNounRow::key);
  appendKeys(keys, romanian::kNounGenders, &romanian::GenderRow::key);
  appendKeys(keys, romanian::kCurrencies, &romanian::CurrencyRow::key);
  appendKeys(keys, kNoneAmounts, &NoneAmount::unit);
}

bool RomanGrammar::isUnit(const std::string& unit) {
  return findNoun(unit, false) != nullptr || findCurrency(unit) != nullptr;
}

bool RomanGrammar::isCurrency(const std::string& unit) { return findCurrency(unit) != nullptr; }

bool RomanGrammar::allowsFraction(const std::string& unit) {
  refuseDecimal(unit);
  return false;
}

void RomanGrammar::speakCount(const DigitList& intList, const std::string& intDigits, const std::string& unit,
                              std::string& out) {
  if (intList.empty() && !intDigits.empty()) leaveUnsaid();  // beyond nine digits only the noun is said
  std::string number;
  for (auto digit = intList.rbegin(); digit != intList.rend(); ++digit) number += *digit;
  if (findNoun(unit, false) == nullptr) complain(" wrong suffix %s \r\n", unit.c_str());
  appendCount(number, unit, out);
}

// "douazeci si cinci de lei si cincizeci de bani". The major part is read from
// its digit string, so an amount beyond nine digits is said digit by digit. A
// zero major part leaves only the minor part; zero and zero say "zero  lei".
void RomanGrammar::speakMoney(const DigitList& intList, const DigitList& fracList,
                              const std::string& intDigits, const std::string& fracDigits,
                              const std::string& unit, std::string& out) {
  const romanian::CurrencyRow* currency = findCurrency(unit);
  if (currency == nullptr) return;
  const std::string major = withoutLeadingZeros(intDigits);
  const bool majorZero = major == "0";
  const bool minorZero = readInt(minorDigits(fracDigits)) == 0;
  if (!majorZero || minorZero) appendCount(major, currency->major, out);
  if (minorZero) return;
  if (!majorZero) out += romanian::kConjunction;
  speakMinorUnits(intList, fracList, intDigits, fracDigits, unit, out);
}

// The minor part alone ("cincizeci de bani"); nothing for a zero minor part or
// a unit that is not a currency.
void RomanGrammar::speakMinorUnits(const DigitList&, const DigitList&, const std::string&,
                                   const std::string& fracDigits, const std::string& unit, std::string& out) {
  const romanian::CurrencyRow* currency = findCurrency(unit);
  const std::string minor = minorDigits(fracDigits);
  if (currency == nullptr || readInt(minor) == 0) return;
  appendCount(minor, currency->minor, out);
}

void RomanGrammar::speakDecimal(const DigitList&, const DigitList&, const std::string&, const std::string&,
                                const std::string& unit, std::string&) {
  refuseDecimal(unit);
}

void RomanGrammar::appendMinus(std::string& out) { out += romanian::kMinusWord; }

// --- numbers, digits and characters ---

// Dash-separated numbers are read one after another, one space apart. A
// number with a fraction ("1,5") is not spoken.
void RomanGrammar::speakNumber(const DigitList& tokenList, std::string& out) {
  for (const std::string& token : tokenList) {
    if (token.find_first_not_of("0123456789-") != std::string::npos) {
      refuseDecimal(token);
      continue;
    }
    std::size_t start = 0;
    for (;;) {
      const std::size_t dash = token.find('-', start);
      if (start != 0) out += ' ';
      speakNumberPiece(std::string_view(token).substr(start, dash - start), out);
      if (dash == std::string::npos) break;
      start = dash + 1;
    }
  }
}

// The quoted string arrives with its quotes, which say nothing.
void RomanGrammar::speakDigitString(const DigitList& tokenList, std::string& out) {
  for (const std::string& token : tokenList) speakKeys(token, out);
}

void RomanGrammar::speakDialString(const std::string& keys, std::string& out) { speakKeys(keys, out); }

void RomanGrammar::speakCharacter(const std::string& character, std::string& out) {
  if (character.size() != 1) return;
  if (isDigit(character[0])) {
    out += digitWord(character[0]);
    return;
  }
  if (const char* word = symbolWord(character[0])) {
    out += word;
  } else {
    leaveUnsaid();  // a character without a word
  }
}

// --- dates and times ---

// "intai decembrie doua mii cincisprezece": the day as a masculine number with
// the ordinal one, the month, and the four-digit year from 1900 to 3000.
int RomanGrammar::speakDate(const std::string& day, const std::string& month, const std::string& year,
                            const std::string&, const std::string&, std::string& out) {
  romanian::appendNumber(day, romanian::kMasculine, 1, out);
  out += ' ';
  const int monthNumber = readInt(month);
  if (monthNumber >= 1 && monthNumber <= 12) {
    out += romanian::kMonths[monthNumber];
  } else {
    leaveUnsaid();  // month 0 has no name
  }
  const int yearNumber = readInt(year);
  if (yearNumber >= 1900 && yearNumber <= 3000) {
    out += ' ';
    romanian::appendNumber(year, romanian::kFeminine, 1, out);
  }
  return 0;
}

namespace {

// " cinci minute": a clock field as a feminine number and its noun.
void appendTimeField(const std::string& field, const char* key, std::string& out) {
  out += ' ';
  romanian::appendNumber(field, romanian::kFeminine, 0, out);
  out += ' ';
  out += nounAfter(field, key);
}

}  // namespace

// "ora  paisprezece  cinci minute" for 14:05; "ora  doua zero zero" for 2:00.
// No range checks: 25:00 is "ora" and twenty-five.
void RomanGrammar::speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                             const std::string& seconds, std::string& out) {
  const int h = readInt(hours);
  const int m = readInt(minutes);
  const int s = readInt(seconds);
  if (h != 0) {
    out += romanian::kHourWord;
    romanian::appendNumber(timeField(hours), romanian::kFeminine, 0, out);
  } else {
    out += romanian::kHourZero;
  }
  if (m != 0) {
    const std::string field = timeField(minutes);
    appendTimeField(field, romanian::kMinuteKey, out);
    if (s == 0) return;
  }
  if (m == 0 && s == 0) {
    out += romanian::kZeroZero;
    return;
  }
  const std::string field = timeField(seconds);
  appendTimeField(field, romanian::kSecondKey, out);
}

// h:mm is said as h:mm:00.
void RomanGrammar::speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) {
  speakClockTimeWithSeconds(hours, minutes, "0", out);
}

// "doua ore treizeci de minute": counted hours and minutes.
void RomanGrammar::speakDuration(const std::string& hours, const std::string& minutes, std::string& out) {
  speakSpan({{hours, romanian::kHourKey}, {minutes, romanian::kMinuteKey}}, out);
}

void RomanGrammar::speakDurationWithSeconds(const std::string& hours, const std::string& minutes,
                                            const std::string& seconds, std::string& out) {
  speakSpan({{hours, romanian::kHourKey}, {minutes, romanian::kMinuteKey}, {seconds, romanian::kSecondKey}},
            out);
}

}  // namespace vela
