// RussianFamilyGrammar<T>: the slots of a Russian-family language, written
// once. Each forwards to the family's readings (FamilySpeaker) over the tables
// T names with `static const FamilyLanguage& language()`.
#pragma once

#include <string>
#include <vector>

#include "grammar/grammar_base.h"
#include "grammar/helpers.h"
#include "grammar/unit_keys.h"
#include "languages/russian/family_language.h"
#include "languages/russian/family_speaker.h"

namespace vela {

template <class T>
class RussianFamilyGrammar : public GrammarBase<T> {
 public:
  // The unit keys (only they pass isUnit: a currency, or the female suffix,
  // is read only when it is a unit key too) and the currency keys.
  static void listUnitKeys(std::vector<std::string>& keys) {
    appendKeys(keys, T::language().units, &UnitRow::key);
    appendKeys(keys, T::language().currencies, &CurrencyRow::key);
  }

  // Slots 2-11: speakDate returns 1 when the date was spoken, 0 when it was rejected.
  int speakDate(const std::string& day, const std::string& month, const std::string& year,
                const std::string& century, const std::string&, std::string& out) override {
    return speaker().speakDate(day, month, year, century, out);
  }
  void speakNumber(const DigitList& tokenList, std::string& out) override {
    speaker().speakNumber(tokenList, out);
  }
  void speakDigitString(const DigitList& tokenList, std::string& out) override {
    speaker().speakDigitString(tokenList, out);
  }
  void speakCharacter(const std::string& character, std::string& out) override {
    speaker().speakCharacter(character, out);
  }
  void speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) override {
    speaker().speakClockTime(hours, minutes, out);
  }
  void speakDuration(const std::string& hours, const std::string& minutes, std::string& out) override {
    speaker().speakDuration(hours, minutes, out);
  }
  // A language without its own minus word keeps the interface's default.
  void appendMinus(std::string& out) override {
    if (T::language().minusWord == nullptr)
      GrammarBase<T>::appendMinus(out);
    else
      speaker().appendMinus(out);
  }
  void speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                 const std::string& seconds, std::string& out) override {
    speaker().speakClockTimeWithSeconds(hours, minutes, seconds, out);
  }

  // Slots 13-19, reached through speakAmount.
  virtual bool isUnit(const std::string& unit) { return speaker().isUnit(unit); }
  virtual bool isCurrency(const std::string& unit) { return speaker().isCurrency(unit); }
  virtual void speakMoney(const DigitList&, const DigitList&, const std::string& intDigits,
                          const std::string& fracDigits, const std::string& unit, std::string& out) {
    speaker().speakMoney(intDigits, fracDigits, unit, out);
  }
  virtual void speakCount(const DigitList&, const std::string& intDigits, const std::string& unit,
                          std::string& out) {
    speaker().speakCount(intDigits, unit, out);
  }
  virtual bool allowsFraction(const std::string&) { return true; }
  virtual void speakMinorUnits(const DigitList&, const DigitList&, const std::string&,
                               const std::string& fracDigits, const std::string& unit, std::string& out) {
    speaker().speakMinorUnits(fracDigits, unit, out);
  }
  virtual void speakDecimal(const DigitList&, const DigitList&, const std::string& intDigits,
                            const std::string& fracDigits, const std::string& unit, std::string& out) {
    speaker().speakDecimal(intDigits, fracDigits, unit, out);
  }

  // The number core the operations above share.
  int speak3(const DigitGroup& group, int gender, int genitive, int ordinal, std::string& out) const {
    return speaker().speak3(group, gender, genitive, ordinal, out);
  }
  void appendUnitForm(const DigitGroup& group, std::string& out, int unitRow, int mode) const {
    speaker().appendUnitForm(group, out, unitRow, mode);
  }
  int getGender(const std::string& suffix) const { return speaker().getGender(suffix); }
  int findUnit(const std::string& suffix) const { return speaker().findUnit(suffix); }
  int findSymbol(const std::string& token) const { return speaker().findSymbol(token); }

 private:
  // The group readings are made on the language's first use.
  static FamilySpeaker speaker() {
    static const GroupReadings readings{FamilySpeaker(T::language())};
    return FamilySpeaker(T::language(), &readings);
  }
};

}  // namespace vela
