// CentralAsianGrammar<T>: the slots of the Central Asian and Caucasian family,
// written once over the language class T, which supplies:
//   static const centralasian::FamilyTables& tables();
//   static void speakCardinal(digits, out);   // a number before a unit word, in a span, in a piece
//   static void speakHoursPhrase(hours, minutes, out);  // hours already checked
//   static void speakSeconds(seconds, out);   // the seconds of a clock time
//   int speakDate(...) override;              // each language orders its date itself
// A language overrides a slot only where it reads the token differently.
#pragma once

#include <string>

#include "grammar/grammar_base.h"
#include "languages/centralasian/family.h"

namespace vela {

template <class T>
class CentralAsianGrammar : public GrammarBase<T> {
 public:
  // A language without a leading-zero word reads a plain number digit by digit,
  // through its own digit-string slot.
  void speakNumber(const DigitList& tokenList, std::string& out) override {
    const centralasian::FamilyTables& tables = T::tables();
    if (tables.leadingZero == nullptr) {
      this->speakDigitString(tokenList, out);
      return;
    }
    centralasian::speakDashedNumber(tables, &T::speakCardinal, joined(tokenList), out);
  }
  void speakDigitString(const DigitList& tokenList, std::string& out) override {
    centralasian::speakDigits(T::tables(), joined(tokenList), out);
  }
  void speakCharacter(const std::string& character, std::string& out) override {
    centralasian::speakCharacter(T::tables(), character, out);
  }
  // The closing word is said even when the hours were refused.
  void speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) override {
    speakHoursMinutes(hours, minutes, out);
    out += T::tables().clock.minutesEnd;
  }
  void speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                 const std::string& seconds, std::string& out) override {
    speakHoursMinutes(hours, minutes, out);
    out += T::tables().clock.beforeSeconds;
    T::speakSeconds(seconds, out);
    out += T::tables().clock.secondsEnd;
  }
  void speakDuration(const std::string& hours, const std::string& minutes, std::string& out) override {
    centralasian::speakDuration(T::tables(), &T::speakCardinal, hours, minutes, out);
  }

  // Slots 13-19, reached through speakAmount. Every word is a unit; a currency
  // is a key of the currency table; no unit takes a fraction.
  virtual bool isUnit(const std::string&) { return true; }
  virtual bool isCurrency(const std::string& unit) {
    return centralasian::findWord(T::tables().currencies, unit) != nullptr;
  }
  virtual void speakMoney(const DigitList& intList, const DigitList& fracList, const std::string& intDigits,
                          const std::string& fracDigits, const std::string& unit, std::string& out) {
    this->speakMinorUnits(intList, fracList, intDigits, fracDigits, unit, out);
  }
  virtual void speakCount(const DigitList&, const std::string& intDigits, const std::string& unit,
                          std::string& out) {
    centralasian::speakCount(T::tables(), &T::speakCardinal, intDigits, unit, out);
  }
  virtual bool allowsFraction(const std::string&) { return false; }
  virtual void speakMinorUnits(const DigitList&, const DigitList&, const std::string& intDigits,
                               const std::string& fracDigits, const std::string& unit, std::string& out) {
    centralasian::speakMoney(T::tables(), &T::speakCardinal, intDigits, fracDigits, unit, out);
  }
  virtual void speakDecimal(const DigitList&, const DigitList&, const std::string&, const std::string&,
                            const std::string&, std::string&) {}

 protected:
  // The shared front of both clock slots: hours past 24 are refused with a
  // diagnostic and nothing is said for them.
  static void speakHoursMinutes(const std::string& hours, const std::string& minutes, std::string& out) {
    DigitGroup group;
    if (!centralasian::hoursAccepted(hours, group)) return;
    T::speakHoursPhrase(hours, minutes, out);
  }

  static std::string joined(const DigitList& tokenList) {
    std::string text;
    for (const std::string& piece : tokenList) text += piece;
    return text;
  }
};

}  // namespace vela
