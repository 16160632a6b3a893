#include "languages/arabic/arab_grammar.h"

#include <string_view>

#include "grammar/complaints.h"
#include "grammar/helpers.h"
#include "grammar/unit_keys.h"
#include "languages/arabic/arab_number.h"

namespace vela {

using arabic::ArabicCase;
using arabic::speakArabicNumber;

namespace {

// The first unit record whose code matches the suffix case-insensitively, or null.
const arabic::ArabicUnitRecord* findUnitCode(const std::string& unit) {
  for (const arabic::ArabicUnitRecord& record : arabic::kUnitRecords)
    if (matchesWord(unit, record.code)) return &record;
  return nullptr;
}

const arabic::CurrencyRow* findCurrency(const std::string& unit) {
  for (const arabic::CurrencyRow& row : arabic::kCurrencies)
    if (matchesWord(unit, row.code)) return &row;
  return nullptr;
}

int minorDigitCount(const std::string& code) {
  for (const arabic::MinorDigitsRow& row : arabic::kMinorDigits)
    if (std::string_view(code) == row.code) return row.digits;
  return 0;
}

// The noun look-up compares exactly, so "5USD" is spoken as "5usd".
std::string lowered(const std::string& unit) {
  std::string token = unit;
  for (char& c : token) c = static_cast<char>(lowerCp1251(static_cast<unsigned char>(c)));
  return token;
}

// A digit's word: form A for 1 and 2, form B for the others (" sifr",
// " thalaatha" ...); "" for any other character.
const char* digitWord(char c) {
  if (c < '0' || c > '9') return "";
  const int d = c - '0';
  return d == 1 || d == 2 ? arabic::kCardinals[d].a : arabic::kCardinals[d].b;
}

}  // namespace

// Every word is a unit, but only a code of the unit table is counted, only a
// currency code is money, and the minor part's length is looked up by code.
void ArabGrammar::listUnitKeys(std::vector<std::string>& keys) {
  appendKeys(keys, arabic::kUnitRecords, &arabic::ArabicUnitRecord::code);
  appendKeys(keys, arabic::kCurrencies, &arabic::CurrencyRow::code);
  appendKeys(keys, arabic::kMinorDigits, &arabic::MinorDigitsRow::code);
}

bool ArabGrammar::isUnit(const std::string&) { return true; }

bool ArabGrammar::isCurrency(const std::string& unit) { return findCurrency(unit) != nullptr; }

bool ArabGrammar::allowsFraction(const std::string&) { return false; }

// A zero count is " laa_yuujadu" (there is none) with the singular noun.
void ArabGrammar::speakCount(const DigitList&, const std::string& intDigits, const std::string& unit,
                             std::string& out) {
  const arabic::ArabicUnitRecord* record = findUnitCode(unit);
  if (record == nullptr) {
    leaveUnsaid();  // a word that names no noun: the count is not said
    return;
  }
  const std::string token = lowered(unit);
  if (arabic::arabicNumberValue(intDigits) != 0) {
    speakArabicNumber(intDigits, false, record->gender, ArabicCase::kNominative, token, out);
    return;
  }
  out += arabic::kNone;
  out += arabic::arabicNounForm(token, 0, ArabicCase::kNominative);
}

void ArabGrammar::speakMoney(const DigitList& intList, const DigitList& fracList,
                             const std::string& intDigits, const std::string& fracDigits,
                             const std::string& unit, std::string& out) {
  speakMinorUnits(intList, fracList, intDigits, fracDigits, unit, out);
}

// "<major> wa <minor>". The fraction counts minor units once padded on the
// right to the currency's decimal places (5.5 dinar is five hundred fils); a
// longer fraction is kept whole, not cut. A zero major part is left out with
// its " wa"; both parts zero is " laa_yuujadu" and the singular.
void ArabGrammar::speakMinorUnits(const DigitList&, const DigitList&, const std::string& intDigits,
                                  const std::string& fracDigits, const std::string& unit, std::string& out) {
  const arabic::CurrencyRow* currency = findCurrency(unit);
  if (currency == nullptr) return;
  const std::string token = lowered(unit);
  std::string fraction = fracDigits;
  const auto places = static_cast<std::size_t>(minorDigitCount(currency->code));
  if (fraction.size() < places) fraction.append(places - fraction.size(), '0');
  const bool majorZero = arabic::arabicNumberValue(intDigits) == 0;
  const bool minorZero = arabic::arabicNumberValue(fraction) == 0;
  if (!majorZero) {
    speakArabicNumber(intDigits, false, arabic::unitGender(token), ArabicCase::kNominative, token, out);
    if (minorZero) return;
    out += arabic::kAnd;
  } else if (minorZero) {
    out += arabic::kNone;
    out += arabic::arabicNounForm(token, 0, ArabicCase::kNominative);
    return;
  }
  // A fraction longer than the minor unit's places is read whole, as that
  // many minor units: the amount said is not the amount written.
  if (fracDigits.size() > places) leaveUnsaid();
  const std::string minor = currency->minorCode;
  speakArabicNumber(fraction, false, arabic::unitGender(minor), ArabicCase::kNominative, minor, out);
}

void ArabGrammar::speakDecimal(const DigitList&, const DigitList&, const std::string&, const std::string&,
                               const std::string&, std::string&) {}

void ArabGrammar::speakNumber(const DigitList& tokenList, std::string& out) {
  speakDigitString(tokenList, out);
}

// Every character gives its word and a space; a character that is not a digit
// (a quote, "#", "*", a decimal point) gives the space alone.
void ArabGrammar::speakDigitString(const DigitList& tokenList, std::string& out) {
  std::string text;
  for (const std::string& piece : tokenList) text += piece;
  for (char c : text) {
    // "#", "*" and a decimal point have no word; the quotes and the dashes
    // between groups are not read.
    if (*digitWord(c) == '\0' && c != '"' && c != '-') leaveUnsaid();
    out += digitWord(c);
    out += ' ';
  }
}

// A digit, or one of the symbols with a word; anything else says nothing.
void ArabGrammar::speakCharacter(const std::string& character, std::string& out) {
  if (character.empty()) return;
  if (character[0] >= '0' && character[0] <= '9') {
    out += digitWord(character[0]);
    return;
  }
  for (const arabic::SymbolRow& row : arabic::kSymbols) {
    if (character == row.symbol) {
      out += row.word;
      return;
    }
  }
}

void ArabGrammar::appendMinus(std::string& out) { out += arabic::kMinus; }

void ArabGrammar::speakClockTimeWithSeconds(const std::string&, const std::string&, const std::string&,
                                            std::string&) {}

}  // namespace vela
