#include "languages/english/english_cardinal.h"

#include <algorithm>

#include "grammar/complaints.h"
#include "grammar/helpers.h"

namespace vela::english {
namespace {

// A digit element as atoi reads it; anything but 0-9 counts as 0, so no word
// table is indexed out of range.
int digitValue(const std::string& element) {
  const int d = readInt(element);
  return (d >= 0 && d <= 9) ? d : 0;
}

// English has no scale word above "million": every group from the millions up
// takes it again.
const UnitRecord* scaleOf(std::size_t group) {
  if (group == 0) return nullptr;
  return group == 1 ? &kThousand : &kMillion;
}

// One non-zero group (or the units group). `saidBefore`: a higher group was
// spoken, so non-zero tens or units are preceded by "and" even without hundreds.
GroupPhrase sayGroup(int hundreds, int tens, int units, bool saidBefore) {
  GroupPhrase phrase;
  if (hundreds != 0) phrase.hundredsWord = kDigitWords[hundreds].hundreds;
  if (tens == 0 && units == 0) return phrase;
  phrase.andBeforeTens = hundreds != 0 || saidBefore;
  if (tens == 1 && units != 0) {
    phrase.tensWord = kDigitWords[units].teen;
    return phrase;
  }
  if (tens != 0) phrase.tensWord = kDigitWords[tens].tens;
  if (units != 0) phrase.unitsWord = kDigitWords[units].unit;
  return phrase;
}

}  // namespace

CardinalBuilder buildCardinal(const DigitList& digits) {
  boost::container::small_vector<int, 15> d;
  for (const std::string& element : digits) d.push_back(digitValue(element));
  d.resize((d.size() + 2) / 3 * 3, 0);  // whole groups of three

  CardinalBuilder builder;
  if (std::all_of(d.begin(), d.end(), [](int x) { return x == 0; })) return builder;
  // Every group above the thousands says "million": a digit above the millions changes the number.
  if (d.size() > 9 && std::any_of(d.begin() + 9, d.end(), [](int x) { return x != 0; })) leaveUnsaid();
  builder.isOne = d[0] == 1 && std::all_of(d.begin() + 1, d.end(), [](int x) { return x == 0; });

  for (std::size_t group = d.size() / 3; group-- > 0;) {
    const int units = d[3 * group], tens = d[3 * group + 1], hundreds = d[3 * group + 2];
    const bool silent = hundreds == 0 && tens == 0 && units == 0;
    if (silent && group > 0) continue;
    GroupPhrase phrase = sayGroup(hundreds, tens, units, !builder.phrases.empty());
    phrase.record = scaleOf(group);
    builder.phrases.push_back(phrase);
  }
  return builder;
}

void emitPhrases(const CardinalBuilder& builder, WordList& words) {
  for (const GroupPhrase& phrase : builder.phrases) {
    if (phrase.hundredsWord != nullptr) words.emplace_back(phrase.hundredsWord);
    if (phrase.andBeforeTens) words.emplace_back(kConjunction.singular);
    if (phrase.tensWord != nullptr) words.emplace_back(phrase.tensWord);
    if (phrase.unitsWord != nullptr) words.emplace_back(phrase.unitsWord);
    if (phrase.record != nullptr)
      words.emplace_back(builder.isOne ? phrase.record->singular : phrase.record->plural);
  }
}

void joinWords(const WordList& words, std::string& out) {
  for (const std::string_view word : words) {
    if (!out.empty() && !word.empty()) out += ' ';
    out += word;
  }
}

namespace {

const char* ordinalWord(int n) {
  for (const OrdinalRow& row : kOrdinals)
    if (row.number == n) return row.word;
  return "";
}

}  // namespace

std::string dayOrdinal(const std::string& day) {
  const int n = readInt(day);
  if (n <= 0 || n >= 32) return "";
  if (n < 20 || n % 10 == 0) return ordinalWord(n);
  return std::string(kDigitWords[n / 10].tens) + " " + ordinalWord(n % 10);  // "twenty first"
}

}  // namespace vela::english
