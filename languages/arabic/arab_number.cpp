#include "languages/arabic/arab_number.h"

#include <array>
#include <cstring>
#include <iterator>
#include <string_view>

#include "grammar/complaints.h"
#include "grammar/helpers.h"

namespace vela::arabic {
namespace {

constexpr std::size_t kMaxDigits = 12;  // milliards are the highest group

// What one group call needs besides its digits.
struct GroupContext {
  bool ordinal;
  bool feminine;
  bool oblique;
  const ArabicUnitRecord* noun;  // the counted noun's record, or null: no noun
  ArabicCase grammaticalCase;
};

const char* nounForm(const ArabicUnitRecord* record, long long count, ArabicCase grammaticalCase);

const char* ordinalWord(int k, bool feminine) {
  return feminine ? kOrdinals[k].feminine : kOrdinals[k].masculine;
}

const char* cardinalWord(int k, bool formB) { return formB ? kCardinals[k].b : kCardinals[k].a; }

void appendNoun(const GroupContext& c, long long count, std::string& text) {
  if (c.noun != nullptr) text += nounForm(c.noun, count, c.grammaticalCase);
}

// 3-10 in the form of the opposite gender; eight before a feminine noun in the
// nominative has a word of its own.
const char* oppositeGenderWord(int k, const GroupContext& c) {
  if (k == 8 && c.feminine && !c.oblique) return kEightFeminineNominative;
  return cardinalWord(k, !c.feminine);
}

// 1 and 2: the noun comes first (" duulaar waahid").
void speakOneOrTwo(int n, const GroupContext& c, std::string& text) {
  if (c.ordinal) {
    text += ordinalWord(n, c.feminine);
    return;
  }
  appendNoun(c, n, text);
  if (n == 2 && c.oblique)
    text += c.feminine ? kTwoFeminineOblique : kTwoMasculineOblique;
  else
    text += cardinalWord(n, c.feminine);
}

// 3-10: the number with "t" glued on before a masculine noun, a space before a
// feminine one, then the plural.
void speakThreeToTen(int n, const GroupContext& c, std::string& text) {
  if (c.ordinal) {
    text += ordinalWord(n, c.feminine);
    return;
  }
  text += oppositeGenderWord(n, c);
  text += c.feminine ? " " : kConstructEnding;
  appendNoun(c, n, text);
}

// 11-19: form A whatever the gender (12 has oblique words of its own), then the
// singular.
void speakTeen(int n, const GroupContext& c, std::string& text) {
  if (c.ordinal) {
    text += ordinalWord(n, false);
    return;
  }
  if (n == 12 && c.oblique)
    text += c.feminine ? kTwelveFeminineOblique : kTwelveMasculineOblique;
  else
    text += cardinalWord(n, false);
  appendNoun(c, n, text);
}

// The units of 21-99, said before the tens.
const char* unitsBeforeTens(int u, const GroupContext& c) {
  if (c.ordinal) return ordinalWord(u, false);
  if (u == 1) return cardinalWord(1, c.feminine);
  if (u == 2 && c.oblique) return c.feminine ? kTwoFeminineOblique : kTwoMasculineOblique;
  if (u == 2) return cardinalWord(2, c.feminine);
  return oppositeGenderWord(u, c);
}

// 20-99: "<units> wa <tens stem>uun" and the singular, ordinals included.
void speakTens(const DigitGroup& g, const GroupContext& c, std::string& text) {
  if (g.units > 0) {
    text += unitsBeforeTens(g.units, c);
    text += kAnd;
  }
  text += kTensStems[g.tens / 10];
  text += c.oblique ? kTensOblique : kTensNominative;
  appendNoun(c, 1, text);
}

void speakGroup(const DigitGroup& g, const GroupContext& c, std::string& text);

// 100-999: the hundreds word, then " wa" and the rest with its noun; a round
// hundred glues "t" on (except 200) and takes the singular.
void speakHundreds(const DigitGroup& g, const GroupContext& c, std::string& text) {
  const int h = g.hundreds / 100;
  text += kHundreds[h];
  const DigitGroup rest{.value = 0, .hundreds = 0, .tens = g.tens, .teen = g.teen, .units = g.units};
  if (rest.tens + rest.teen + rest.units != 0) {
    text += kAnd;
    speakGroup(rest, c, text);
    return;
  }
  if (h != 2) text += kConstructEnding;
  appendNoun(c, g.hundreds, text);
}

void speakGroup(const DigitGroup& g, const GroupContext& c, std::string& text) {
  const int n = g.hundreds + g.tens + g.teen + g.units;
  if (n >= 100 && n <= 999)
    speakHundreds(g, c, text);
  else if (n >= 20)
    speakTens(g, c, text);
  else if (n >= 11)
    speakTeen(n, c, text);
  else if (n >= 3)
    speakThreeToTen(n, c, text);
  else if (n >= 1)
    speakOneOrTwo(n, c, text);
}

// The code and singular of every unit record as views: a look-up compares
// lengths before bytes, and the lengths are counted at compile time.
struct RecordNames {
  std::string_view code;
  std::string_view singular;
};

constexpr auto kRecordNames = [] {
  std::array<RecordNames, std::size(kUnitRecords)> names{};
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = {kUnitRecords[i].code, kUnitRecords[i].singular};
  return names;
}();

// Only the last twelve digits are read: a non-zero digit above them is left unsaid.
void noteDigitsBeyondTwelve(std::string_view number) {
  if (number.size() <= kMaxDigits) return;
  if (number.substr(0, number.size() - kMaxDigits).find_first_not_of('0') != std::string_view::npos)
    leaveUnsaid();
}

// The completed value of a group: its own three digits only.
int groupValue(const DigitGroup& g) { return g.hundreds + g.tens + g.teen + g.units; }

}  // namespace

// An amount asks for its unit and its minor unit again and again: the last
// two answers are kept per thread.
const ArabicUnitRecord* findUnitRecord(std::string_view wanted) {
  thread_local LastLookup<const ArabicUnitRecord*> last;
  return last.get(kUnitRecords, wanted, [&]() -> const ArabicUnitRecord* {
    for (std::size_t i = 0; i < std::size(kUnitRecords); ++i)
      if (wanted == kRecordNames[i].code || wanted == kRecordNames[i].singular) return &kUnitRecords[i];
    return nullptr;
  });
}

int unitGender(const std::string& token) {
  const ArabicUnitRecord* record = findUnitRecord(token);
  return record != nullptr ? record->gender : kNoGender;
}

namespace {

// The noun of `record` after `count`; "" without a record.
const char* nounForm(const ArabicUnitRecord* record, long long count, ArabicCase grammaticalCase) {
  if (record == nullptr) return "";
  if (count == 2) {
    const bool thousand = std::strcmp(record->code, kThousandCode) == 0;
    return thousand && grammaticalCase == ArabicCase::kOblique ? kTwoThousandOblique : record->dual;
  }
  if (count >= 3 && count <= 10) return record->plural;
  return record->singular;
}

void speakGroupCounting(const DigitGroup& group, bool ordinal, int gender, ArabicCase grammaticalCase,
                        const ArabicUnitRecord* noun, std::string& result) {
  const GroupContext context{.ordinal = ordinal,
                             .feminine = gender == kFeminine,
                             .oblique = grammaticalCase == ArabicCase::kOblique,
                             .noun = noun,
                             .grammaticalCase = grammaticalCase};
  speakGroup(group, context, result);
}

}  // namespace

const char* arabicNounForm(const std::string& token, long long count, ArabicCase grammaticalCase) {
  return nounForm(findUnitRecord(token), count, grammaticalCase);
}

void speakArabicGroup(const DigitGroup& group, bool ordinal, int gender, ArabicCase grammaticalCase,
                      const std::string& token, std::string& result) {
  speakGroupCounting(group, ordinal, gender, grammaticalCase, findUnitRecord(token), result);
}

long long arabicNumberValue(std::string_view number) {
  noteDigitsBeyondTwelve(number);
  const std::size_t from = number.size() > kMaxDigits ? number.size() - kMaxDigits : 0;
  long long value = 0;
  for (std::size_t i = from; i < number.size(); ++i)
    value = value * 10 + ((number[i] >= '0' && number[i] <= '9') ? number[i] - '0' : 0);
  return value;
}

// Milliards, millions and thousands: one or two is the noun alone (" ^alf",
// " ^alfaan"), more is the group with its noun (" thalaathat aalaaf"), always
// masculine. After the lowest non-zero group the unit's noun follows alone,
// in the form for the whole number (" milyuun duulaar").
void speakArabicNumber(const std::string& number, bool ordinal, int gender, ArabicCase grammaticalCase,
                       const std::string& token, std::string& result) {
  noteDigitsBeyondTwelve(number);
  const std::string_view digits =
      number.size() > kMaxDigits ? std::string_view(number).substr(number.size() - kMaxDigits) : number;
  static const ArabicUnitRecord* const kScales[3] = {
      findUnitRecord(kMilliardCode), findUnitRecord(kMillionCode), findUnitRecord(kThousandCode)};
  const std::array<DigitGroup, 4> groups = getDigitGroups(digits);
  const ArabicUnitRecord* noun = findUnitRecord(token);  // looked up once for the whole number

  for (int i = 0; i < 3; ++i) {
    const int value = groupValue(groups[i]);
    if (value == 0) continue;
    const ArabicUnitRecord* scale = kScales[i];
    if (value <= 2)
      result += nounForm(scale, value, grammaticalCase);
    else
      speakGroupCounting(groups[i], ordinal, kMasculine, grammaticalCase, scale, result);
    bool lowerNonZero = false;
    for (int j = i + 1; j < 4; ++j) lowerNonZero = lowerNonZero || groupValue(groups[j]) != 0;
    if (!lowerNonZero) {
      result += nounForm(noun, arabicNumberValue(digits), grammaticalCase);
      return;
    }
    result += kAnd;
  }
  speakGroupCounting(groups[3], ordinal, gender, grammaticalCase, noun, result);
}

}  // namespace vela::arabic
