// Numbers, plural forms, units and money of the Russian family.
#include "languages/russian/family_speaker.h"

#include <array>
#include <iterator>
#include <string_view>

#include "grammar/complaints.h"

namespace vela {
namespace {

// The row of a ten-row table for `value` = row * scale, row 1..9; -1 otherwise.
int rowOf(int value, int scale) {
  if (value <= 0 || value % scale != 0 || value / scale > 9) return -1;
  return value / scale;
}

// A form the table lacks is spoken as the cardinal.
std::string_view orCardinal(std::string_view form, std::string_view cardinal) {
  return form.data() != nullptr ? form : cardinal;
}

// A word without data appends nothing, not even its space.
void appendWord(std::string_view word, std::string& out) {
  if (word.data() == nullptr) return;
  out += ' ';
  out += word;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view teenWord(const NumberViews& words, int teen, bool genitive, bool ordinal) {
  if (teen < 11 || teen > 19) return {};
  const NumberViews::Teen& row = words.teens[teen - 10];
  if (!ordinal) return row.cardinal;
  return genitive ? row.ordinalGenitive : orCardinal(row.ordinalNominative, row.cardinal);
}

std::string_view unitsWord(const NumberViews& words, int units, int gender, bool genitive, bool ordinal) {
  if (units < 1 || units > 9 || gender < kMasculine || gender > kNeuter) return {};
  const auto& table = genitive ? words.ordinalGenitive : ordinal ? words.ordinalNominative : words.cardinal;
  return table[units][gender];
}

// Only the last spoken word of an ordinal takes the ordinal form: "двадцать первое", "двадцатое".
std::string_view tensWord(const NumberViews& words, const DigitGroup& group, bool genitive, bool ordinal) {
  const int row = rowOf(group.tens, 10);
  if (row < 0) return {};
  const NumberViews::Tens& tens = words.tens[row];
  if (!ordinal || group.units != 0) return tens.cardinal;
  return genitive ? tens.ordinalGenitive : orCardinal(tens.ordinalNominative, tens.cardinal);
}

// A round hundred asked for as a nominative ordinal stays the cardinal ("сто").
std::string_view hundredsWord(const NumberViews& words, const DigitGroup& group, bool genitive) {
  const int row = rowOf(group.hundreds, 100);
  if (row < 0) return {};
  const bool last = group.tens == 0 && group.teen == 0 && group.units == 0;
  return genitive && last ? words.hundreds[row].ordinalGenitive : words.hundreds[row].cardinal;
}

// Whether `hundredths` says the whole fraction `fracDigits`: its first two
// digits are that number and the rest are zeros ("230" is 23; "234" and "005"
// are not). Zeros cut from the end lose nothing.
bool saysAllOf(const std::string& fracDigits, int hundredths) {
  if (fracDigits.size() < 2) return true;
  return (fracDigits[0] - '0') * 10 + (fracDigits[1] - '0') == hundredths &&
         fracDigits.find_first_not_of('0', 2) == std::string::npos;
}

// A fraction as hundredths: one digit is padded ("5" is 50) and digits beyond
// the second are cut, not rounded ("567" is 56).
int hundredthsOf(const std::string& fracDigits) {
  int n = readInt(fracDigits);
  if (fracDigits.size() == 1) n *= 10;
  for (int i = 0; i < 6 && n > 99; ++i) n /= 10;
  if (n > 99) {
    complain("wrong fractal part %s\r\n", fracDigits.c_str());
  } else if (!saysAllOf(fracDigits, n)) {
    leaveUnsaid();  // a digit after the second is cut, or "005" was read as five hundredths
  }
  return n;
}

// The four groups of a cardinal; only the last twelve digits have words.
std::array<DigitGroup, 4> cardinalGroups(std::string_view digits) {
  if (hasDigitAbove(digits, 12)) leaveUnsaid();  // the digits above the milliards
  return getDigitGroups(digits);
}

}  // namespace

int FamilySpeaker::speak3(const DigitGroup& group, int gender, int genitive, int ordinal,
                          std::string& out) const {
  if (genitive != 0 && ordinal == 0) {
    complain("%s", lang_.speak3Complaint);
    return 0;
  }
  const NumberViews& words = *lang_.numberViews;
  const std::string_view units = group.teen != 0
                                     ? teenWord(words, group.teen, genitive != 0, ordinal != 0)
                                     : unitsWord(words, group.units, gender, genitive != 0, ordinal != 0);
  appendWord(hundredsWord(words, group, genitive != 0), out);
  appendWord(tensWord(words, group, genitive != 0, ordinal != 0), out);
  appendWord(units, out);
  return 1;
}

const UnitRow* FamilySpeaker::unitRow(int row) const {
  if (row < 0 || static_cast<std::size_t>(row) >= lang_.units.size()) return nullptr;
  return &lang_.units[row];
}

// 11..19 never reach the units test, so "11 рублей" but "21 рубль", "22 рубля".
void FamilySpeaker::appendUnitForm(const DigitGroup& group, std::string& out, int unitRowIndex,
                                   int mode) const {
  const UnitRow* row = unitRow(unitRowIndex);
  if (row == nullptr) return;
  if (group.value == 0 && mode == 0) return;
  if (group.teen != 0) return appendWord(row->form5, out);
  if (group.units == 1) return appendWord(row->form1, out);
  if (group.units >= 2 && group.units <= 4) return appendWord(row->form2, out);
  if (group.tens == 0 && group.hundreds == 0 && group.units == 0) {
    if (mode == 0) return;
    if (mode == 2) {
      out += lang_.zeroBeforeUnit;
      out += row->form5;
      return;
    }
  }
  appendWord(row->form5, out);
}

int FamilySpeaker::findUnit(std::string_view suffix) const {
  thread_local LastLookup<int> last;
  return last.get(lang_.units.data(), suffix, [&] {
    for (std::size_t i = 0; i < lang_.units.size(); ++i) {
      if (matchesWord(suffix, lang_.units[i].key) || matchesWord(suffix, lang_.units[i].form1.data())) {
        return static_cast<int>(i);
      }
    }
    return -1;
  });
}

int FamilySpeaker::getGender(const std::string& suffix) const { return genderOf(findUnit(suffix)); }

int FamilySpeaker::genderOf(int row) const {
  const UnitRow* unit = unitRow(row);
  return unit != nullptr ? unit->gender : -1;
}

int FamilySpeaker::findSymbol(const std::string& token) const {
  for (std::size_t i = 0; i < lang_.symbols.size(); ++i) {
    if (token == lang_.symbols[i].key) return static_cast<int>(i) + 1;
  }
  return 0;
}

const char* FamilySpeaker::findMinorCurrency(const std::string& suffix) const {
  thread_local LastLookup<const char*> last;
  return last.get(lang_.currencies.data(), suffix, [&]() -> const char* {
    for (const CurrencyRow& row : lang_.currencies) {
      if (matchesWord(suffix, row.key)) return row.minorUnit;
    }
    return nullptr;
  });
}

bool FamilySpeaker::isUnit(const std::string& unit) const {
  thread_local LastLookup<bool> last;
  return last.get(lang_.units.data(), unit, [&] {
    for (const UnitRow& row : lang_.units) {
      if (matchesWord(unit, row.key)) return true;
    }
    return false;
  });
}

bool FamilySpeaker::isCurrency(const std::string& unit) const { return findMinorCurrency(unit) != nullptr; }

namespace {

struct VariantForm {
  int gender;
  int FamilyLanguage::*unitRow;  // the scale word's row; null for the units group
};

constexpr VariantForm kVariantForms[GroupReadings::kCount] = {
    {kMasculine, nullptr},
    {kFeminine, nullptr},
    {kNeuter, nullptr},
    // "одна тысяча", "две тысячи": thousands are feminine.
    {kFeminine, &FamilyLanguage::thousandsRow},
    {kMasculine, &FamilyLanguage::millionsRow},
    {kMasculine, &FamilyLanguage::milliardsRow},
};

// The units group in `gender`, or -1 for a gender no variant has.
int unitsVariant(int gender) { return gender >= kMasculine && gender <= kNeuter ? gender : -1; }

}  // namespace

void FamilySpeaker::speakGroup(const DigitGroup& group, GroupReadings::Variant variant,
                               std::string& out) const {
  // A group whose value and digits disagree on zero (a byte that is not a
  // digit) is spelled out rather than looked up.
  const bool zero = GroupReadings::groupDigits(group) == 0;
  if (readings_ != nullptr && (group.value == 0) == zero) {
    const std::string_view reading = readings_->reading(variant, group);
    if (!reading.empty()) out += reading;
    return;
  }
  const VariantForm& form = kVariantForms[variant];
  speak3(group, form.gender, 0, 0, out);
  if (form.unitRow != nullptr) appendUnitForm(group, out, lang_.*form.unitRow, 0);
}

// Milliards, millions and thousands (the first three of `groups`); returns
// whether all of them are zero.
bool FamilySpeaker::speakHigherGroups(const std::array<DigitGroup, 4>& groups, std::string& out) const {
  speakGroup(groups[0], GroupReadings::kMilliards, out);
  speakGroup(groups[1], GroupReadings::kMillions, out);
  speakGroup(groups[2], GroupReadings::kThousands, out);
  return groups[0].value == 0 && groups[1].value == 0 && groups[2].value == 0;
}

void FamilySpeaker::speakCardinal(std::string_view digits, int gender, std::string& out) const {
  const std::array<DigitGroup, 4> groups = cardinalGroups(digits);
  speakHigherGroups(groups, out);
  speakUnitsGroup(groups[3], gender, out);
}

void FamilySpeaker::speakUnitsGroup(const DigitGroup& group, int gender, std::string& out) const {
  const int variant = unitsVariant(gender);
  if (variant >= 0) return speakGroup(group, static_cast<GroupReadings::Variant>(variant), out);
  speak3(group, gender, 0, 0, out);
}

// "0руб" is "ноль рублей", but "5000руб" is "пять тысяч рублей" without "ноль".
void FamilySpeaker::speakCount(const std::string& digits, const std::string& suffix, std::string& out) const {
  if (suffix.empty()) return speakCardinal(digits, kMasculine, out);
  if (lang_.femaleSuffix != nullptr && suffix == lang_.femaleSuffix)
    return speakCardinal(digits, kFeminine, out);
  const std::array<DigitGroup, 4> groups = cardinalGroups(digits);
  const bool belowThousand = speakHigherGroups(groups, out);
  const DigitGroup& group = groups[3];
  const int row = findUnit(suffix);
  const int gender = genderOf(row);
  if (gender == -1) {
    complain(" wrong suffix (getGender) %s \r\n", suffix.c_str());
    return;
  }
  speakUnitsGroup(group, gender, out);
  if (row >= 0) {
    appendUnitForm(group, out, row, belowThousand ? 2 : 1);
  } else {
    complain(" wrong suffix %s \r\n", suffix.c_str());
  }
}

void FamilySpeaker::speakNumber(const DigitList& tokenList, std::string& out) const {
  for (const std::string& token : tokenList) {
    std::size_t start = 0;
    for (;;) {
      const std::size_t dash = token.find('-', start);
      speakNumberPiece(std::string_view(token).substr(start, dash - start), out);
      if (dash == std::string::npos) break;
      start = dash + 1;
    }
  }
}

// Leading zeros are read one by one ("007": "ноль ноль семь"). A number with a
// fraction ("1,5") is read as a decimal where the language has the words, and
// not at all where it has none; its separator never reaches the digit groups.
void FamilySpeaker::speakNumberPiece(std::string_view piece, std::string& out) const {
  std::size_t separator = 0;
  while (separator < piece.size() && isDigit(piece[separator])) ++separator;
  if (separator < piece.size()) {
    if (lang_.decimals != nullptr) {
      speakDecimalNumber(std::string(piece.substr(0, separator)), std::string(piece.substr(separator + 1)),
                         out);
    } else {
      leaveUnsaid();  // the whole number: the language has no decimal words
    }
    return;
  }
  std::size_t zeros = 0;
  for (; zeros < piece.size() && piece[zeros] == '0'; ++zeros) out += lang_.leadingZero;
  if (zeros < piece.size()) speakCardinal(piece.substr(zeros), kMasculine, out);
}

void FamilySpeaker::speakDigitString(const DigitList& tokenList, std::string& out) const {
  for (const std::string& token : tokenList) {
    for (char c : token) {
      if (isDigit(c)) out += lang_.numbers->cardinal[c - '0'][kMasculine];
      if (c == '*' || c == '#') leaveUnsaid();  // keys have no word in a digit string
      out += ' ';
    }
  }
}

void FamilySpeaker::speakCharacter(const std::string& token, std::string& out) const {
  if (token.empty()) return;
  if (isDigit(token[0])) {
    out += lang_.numbers->cardinal[token[0] - '0'][kMasculine];
    return;
  }
  const int symbol = findSymbol(token);
  if (symbol > 0) {
    out += lang_.symbols[symbol - 1].word;
  } else {
    leaveUnsaid();  // a character without a word
  }
}

void FamilySpeaker::appendMinus(std::string& out) const {
  if (lang_.minusWord != nullptr) out += lang_.minusWord;
}

void FamilySpeaker::speakMoney(const std::string& intDigits, const std::string& fracDigits,
                               const std::string& unit, std::string& out) const {
  speakCount(intDigits, unit, out);
  speakMinorUnits(fracDigits, unit, out);
}

// "12.5руб" is fifty kopecks, "12.05руб" five, "12.567руб" fifty-six.
void FamilySpeaker::speakMinorUnits(const std::string& fracDigits, const std::string& unit,
                                    std::string& out) const {
  const int hundredths = hundredthsOf(fracDigits);  // zero exactly when the digits read as zero
  if (fracDigits.empty() || hundredths == 0) return;
  const DigitGroup group = digitGroupOf(hundredths);
  const char* word = findMinorCurrency(unit);
  if (word == nullptr) return;
  const int row = findUnit(word);
  const int gender = genderOf(row);
  if (row == -1 || gender == -1) {
    complain("wrong minor %s\r\n", word);
    return;
  }
  speakUnitsGroup(group, gender, out);
  appendUnitForm(group, out, row, 0);
}

// The form of a unit row chosen by a one-digit stand-in: "1" form 1, "2" form 2, "5" form 5.
void FamilySpeaker::appendProxyForm(const char* proxyDigit, int row, std::string& out) const {
  DigitGroup group;
  getDigitGroup(proxyDigit, &group, 0);
  appendUnitForm(group, out, row, 2);
}

// "две целых пять десятых", "двадцать одна целая двадцать одна сотая"; at
// most two fractional digits. Returns whether a fraction was spoken.
bool FamilySpeaker::speakDecimalNumber(const std::string& intDigits, const std::string& fracDigits,
                                       std::string& out) const {
  if (lang_.decimals == nullptr) return false;
  if (readInt(intDigits) == 0) out += lang_.leadingZero;
  speakCardinal(intDigits, kFeminine, out);
  DigitGroup whole;
  getDigitGroup(intDigits, &whole, 0);
  appendProxyForm(whole.units == 1 ? "1" : "5", findUnit(lang_.decimals->whole), out);
  if (fracDigits.empty() || readInt(fracDigits) == 0) return false;
  const int n = hundredthsOf(fracDigits);
  if (n % 10 != 0) {
    speakCardinal(std::to_string(n), kFeminine, out);
    appendProxyForm(n % 10 == 1 && n != 11 ? "1" : "5", findUnit(lang_.decimals->hundredths), out);
  } else {
    speakCardinal(std::to_string(n / 10), kFeminine, out);
    appendProxyForm(n / 10 == 1 ? "1" : "5", findUnit(lang_.decimals->tenths), out);
  }
  return true;
}

// After a fraction the unit takes form 2: "две целых пять десятых килобайта".
// A whole fraction ("7.00") ends the reading without the unit.
void FamilySpeaker::speakDecimal(const std::string& intDigits, const std::string& fracDigits,
                                 const std::string& unit, std::string& out) const {
  if (!speakDecimalNumber(intDigits, fracDigits, out)) {
    leaveUnsaid();  // the unit after a whole fraction, or all of it without decimal words
    return;
  }
  const int row = findUnit(unit);
  if (genderOf(row) == -1) {
    complain(" wrong suffix (getGender) %s \r\n", unit.c_str());
    return;
  }
  if (row >= 0) appendProxyForm("2", row, out);
}

}  // namespace vela
