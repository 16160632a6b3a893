#include "languages/english/english_grammar.h"

#include <algorithm>
#include <string_view>

#include "grammar/complaints.h"
#include "grammar/helpers.h"
#include "grammar/unit_keys.h"
#include "languages/english/english_cardinal.h"
#include "languages/english/english_words.h"

namespace vela {

using english::buildCardinal;
using english::CardinalBuilder;
using english::CurrencyPair;
using english::emitPhrases;
using english::GroupPhrase;
using english::joinWords;
using english::UnitRecord;
using english::WordList;

namespace {

// A zero count of these units is one phrase.
constexpr NoneAmount kNoneAmounts[] = {
    {"msg", "no messages"},
    {"mes", "no messages"},
    {"num", "no numbers"},
};

// The first record whose code matches the suffix (case-insensitively), or
// null. A clock time with seconds asks for three units.
const UnitRecord* findUnit(const std::string& unit) {
  thread_local LastLookup<const UnitRecord*, 3> last;
  return last.get(english::kUnits, unit, [&]() -> const UnitRecord* {
    for (const UnitRecord& record : english::kUnits)
      if (matchesWord(unit, record.code)) return &record;
    return nullptr;
  });
}

// The first currency whose major unit is `record`, or null (also for a null record).
const CurrencyPair* findCurrency(const UnitRecord* record) {
  for (const CurrencyPair& pair : english::kCurrencies)
    if (pair.major == record) return &pair;
  return nullptr;
}

// A decimal text as digits, least significant first: "05" gives 5, 0. The
// list is the thread's own and keeps its room from one request to the next;
// it holds until the next call on the thread.
constexpr std::size_t kListRoom = 16;  // digits of any time, date or amount part of a short text

const DigitList& textToDigits(const std::string& text) {
  thread_local DigitList digits = [] {
    DigitList room;
    room.reserve(kListRoom);
    return room;
  }();
  digits.clear();
  for (auto c = text.rbegin(); c != text.rend(); ++c) digits.emplace_back(1, *c);
  return digits;
}

// Puts `record` after the number. Zero has no phrases: it is said as "zero"
// with the plural, appended to `out` straight away ("zero hours").
void attachRecord(CardinalBuilder& number, const UnitRecord& record, std::string& out) {
  if (number.phrases.empty()) {
    out += "zero ";
    out += record.plural;
    return;
  }
  number.phrases.back().record = &record;
}

// The minor part of money: the first two fraction digits, cut not rounded, a
// missing second digit counting as zero (.5 is fifty, .999 is ninety nine).
// A list of the thread's own, as above.
const DigitList& minorDigits(const DigitList& fracList) {
  thread_local DigitList digits = [] {
    DigitList room;
    room.reserve(2);
    return room;
  }();
  digits.clear();
  if (fracList.empty()) return digits;
  // fracList is least significant first
  digits.emplace_back(fracList.size() >= 2 ? std::string_view(fracList[fracList.size() - 2]) : "");
  digits.emplace_back(fracList.back());
  return digits;
}

// Whether a number read from `list`, which is empty for more than nine digits,
// leaves a digit of `digits` unsaid.
bool dropsNumber(const DigitList& list, const std::string& digits) {
  return list.empty() && hasDigitAbove(digits, 0);
}

// 0-11 are AM, 12-23 PM with 12 taken off: noon is said as zero hours PM.
std::string toTwelveHour(const std::string& hours, bool& pm) {
  int h = readInt(hours);
  if (h > 23) leaveUnsaid();  // past the day: the hours said are not the ones written
  pm = h > 11;
  if (pm) h -= 12;
  return std::to_string(h);
}

// "<hours> hours and <minutes> minutes", each a count through the amount
// dispatcher. The count after " and " is joined with its own space, so the
// text holds a double space there ("five hours and  ten minutes"); consumers
// split at spaces.
void speakHoursAndMinutes(EnglishGrammar& grammar, const std::string& hours, const std::string& minutes,
                          std::string& out) {
  grammar.speakAmount(textToDigits(hours), {}, "", "", "h", out);
  out += " and ";
  grammar.speakAmount(textToDigits(minutes), {}, "", "", "min", out);
}

}  // namespace

bool EnglishGrammar::speakSpecialAmount(const std::string& intDigits, const std::string& unit,
                                        std::string& out) {
  return speakNoneAmount(kNoneAmounts, intDigits, unit, out);
}

// Currencies are records of the unit table.
void EnglishGrammar::listUnitKeys(std::vector<std::string>& keys) {
  appendKeys(keys, english::kUnits, &UnitRecord::code);
  appendKeys(keys, kNoneAmounts, &NoneAmount::unit);
}

bool EnglishGrammar::isUnit(const std::string& unit) { return findUnit(unit) != nullptr; }

bool EnglishGrammar::isCurrency(const std::string& unit) { return findCurrency(findUnit(unit)) != nullptr; }

bool EnglishGrammar::allowsFraction(const std::string&) { return false; }

void EnglishGrammar::speakCount(const DigitList& intList, const std::string& intDigits,
                                const std::string& unit, std::string& out) {
  const UnitRecord* record = findUnit(unit);
  if (record == nullptr) return;
  if (dropsNumber(intList, intDigits)) leaveUnsaid();  // beyond nine digits: said as zero
  CardinalBuilder number = buildCardinal(intList);
  attachRecord(number, *record, out);
  WordList words;
  emitPhrases(number, words);
  joinWords(words, out);
}

// "one dollar and five cents"; a zero major part is said "zero dollars" and
// takes no "and" before the cents.
void EnglishGrammar::speakMoney(const DigitList& intList, const DigitList& fracList,
                                const std::string& intDigits, const std::string& fracDigits,
                                const std::string& unit, std::string& out) {
  const CurrencyPair* currency = findCurrency(findUnit(unit));
  if (currency == nullptr) return;
  // Beyond nine digits a part is said as zero; fraction digits after the second are cut.
  if (dropsNumber(intList, intDigits) || dropsNumber(fracList, fracDigits) ||
      fracDigits.find_first_not_of('0', 2) != std::string::npos)
    leaveUnsaid();
  CardinalBuilder major = buildCardinal(intList);
  attachRecord(major, *currency->major, out);
  CardinalBuilder minor = buildCardinal(minorDigits(fracList));
  if (!minor.phrases.empty()) {
    minor.phrases.back().record = currency->minor;
    if (!major.phrases.empty()) major.phrases.push_back(GroupPhrase{.record = &english::kConjunction});
  }
  WordList words;
  emitPhrases(major, words);
  emitPhrases(minor, words);
  joinWords(words, out);
}

void EnglishGrammar::speakMinorUnits(const DigitList&, const DigitList&, const std::string&,
                                     const std::string&, const std::string&, std::string&) {}

void EnglishGrammar::speakDecimal(const DigitList&, const DigitList&, const std::string&, const std::string&,
                                  const std::string&, std::string&) {}

// "the fifth of may two thousand and five". Only the centuries 19 and 20 have
// a word; the last two year digits follow as a number after "and". A month
// outside 1-12 (the date patterns let "00" through) is left out with its "of".
int EnglishGrammar::speakDate(const std::string& day, const std::string& month, const std::string&,
                              const std::string& century, const std::string& yearTail, std::string& out) {
  const std::string ordinal = english::dayOrdinal(day);  // outlives the list that views it
  WordList words{"the", ordinal};
  const int monthNumber = readInt(month);
  if (monthNumber >= 1 && monthNumber <= 12) {
    words.emplace_back("of");
    words.emplace_back(english::kMonths[monthNumber - 1]);
  } else {
    leaveUnsaid();  // month 0 has no name
  }
  if (century == "19") words.emplace_back("nineteen hundred");
  if (century == "20") words.emplace_back("two thousand");
  // A date marked "(I)" comes with the century "I": its year's first two digits are not said.
  if (century != "19" && century != "20" && !yearTail.empty()) leaveUnsaid();
  WordList yearWords;
  const CardinalBuilder rest = buildCardinal(textToDigits(yearTail));
  if (!rest.phrases.empty()) {
    words.emplace_back(english::kConjunction.singular);
    emitPhrases(rest, yearWords);
  }
  joinWords(words, out);
  joinWords(yearWords, out);
  return 1;
}

// Bare numbers are read digit by digit, like digit strings.
void EnglishGrammar::speakNumber(const DigitList& tokenList, std::string& out) {
  speakDigitString(tokenList, out);
}

// Every character gives a word and a space (an empty word for anything but a
// digit). Zero is "nought", or "zero" in a string that opens with a quote.
void EnglishGrammar::speakDigitString(const DigitList& tokenList, std::string& out) {
  const auto first =
      std::find_if(tokenList.begin(), tokenList.end(), [](const std::string& p) { return !p.empty(); });
  const char* zeroWord = (first != tokenList.end() && first->front() == '"') ? "zero" : "nought";
  for (const std::string& piece : tokenList) {
    for (char c : piece) {
      if (c == '0') out += zeroWord;
      if (c >= '1' && c <= '9') out += english::kDigitWords[c - '0'].unit;
      // A key, or the separator of a number's fraction, has no word; quotes and dashes say nothing.
      if (c == '*' || c == '#' || c == '.' || c == ',' || c == '|') leaveUnsaid();
      out += ' ';
    }
  }
}

// Keypad keys: "ought" for 0, "sharp", "star"; any other character says nothing.
void EnglishGrammar::speakDialString(const std::string& keys, std::string& out) {
  const std::string_view dialKeys = english::kDialKeys;
  WordList words;
  for (char key : keys) {
    const std::size_t at = dialKeys.find(key);
    if (at != std::string_view::npos) words.emplace_back(english::kDialWords[at]);
  }
  joinWords(words, out);
}

void EnglishGrammar::speakCharacter(const std::string& character, std::string& out) {
  if (character.empty()) return;
  if (character[0] >= '0' && character[0] <= '9') {
    out += english::kDigitWords[character[0] - '0'].unit;
    return;
  }
  for (const english::SymbolRow& row : english::kSymbols) {
    if (character == row.symbol) {
      out += row.word;
      return;
    }
  }
  leaveUnsaid();  // a character without a word
}

// "two hours and five minutes PM" for 14:05.
void EnglishGrammar::speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) {
  bool pm = false;
  speakHoursAndMinutes(*this, toTwelveHour(hours, pm), minutes, out);
  out += pm ? " PM" : " AM";
}

void EnglishGrammar::speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                               const std::string& seconds, std::string& out) {
  bool pm = false;
  speakHoursAndMinutes(*this, toTwelveHour(hours, pm), minutes, out);
  out += " and ";
  speakAmount(textToDigits(seconds), {}, "", "", "sec", out);
  out += pm ? " PM" : " AM";
}

// A span of time: no 12-hour conversion, no AM/PM.
void EnglishGrammar::speakDuration(const std::string& hours, const std::string& minutes, std::string& out) {
  speakHoursAndMinutes(*this, hours, minutes, out);
}

}  // namespace vela
