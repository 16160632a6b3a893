// English; also the grammar for every unknown language tag.
#pragma once

#include <string>
#include <vector>

#include "grammar/grammar_base.h"

namespace vela {

// Numbers with the British "and" ("one hundred and five"), units and money
// with singular after exactly one, dates as "the fifth of may two thousand and
// five", 12-hour clock times with AM/PM. Bare numbers and quoted digit strings
// are read digit by digit. Durations with seconds say nothing and the minus
// word is the base's "minus ".
class EnglishGrammar final : public GrammarBase<EnglishGrammar> {
 public:
  // The words that may follow a number and change the reading, from the tables.
  static void listUnitKeys(std::vector<std::string>& keys);

  bool speakSpecialAmount(const std::string& intDigits, const std::string& unit, std::string& out) override;
  int speakDate(const std::string& day, const std::string& month, const std::string& year,
                const std::string& century, const std::string& yearTail, std::string& out) override;
  void speakNumber(const DigitList& tokenList, std::string& out) override;
  void speakDigitString(const DigitList& tokenList, std::string& out) override;
  void speakDialString(const std::string& keys, std::string& out) override;
  void speakCharacter(const std::string& character, std::string& out) override;
  void speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) override;
  void speakDuration(const std::string& hours, const std::string& minutes, std::string& out) override;
  void speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                 const std::string& seconds, std::string& out) override;

  // Reached through speakAmount, in the order the base expects.
  virtual bool isUnit(const std::string& unit);
  virtual bool isCurrency(const std::string& unit);
  virtual void speakMoney(const DigitList& intList, const DigitList& fracList, const std::string& intDigits,
                          const std::string& fracDigits, const std::string& unit, std::string& out);
  virtual void speakCount(const DigitList& intList, const std::string& intDigits, const std::string& unit,
                          std::string& out);
  // Always false: a decimal amount is spoken only with a currency.
  virtual bool allowsFraction(const std::string& unit);
  virtual void speakMinorUnits(const DigitList& intList, const DigitList& fracList,
                               const std::string& intDigits, const std::string& fracDigits,
                               const std::string& unit, std::string& out);
  virtual void speakDecimal(const DigitList& intList, const DigitList& fracList, const std::string& intDigits,
                            const std::string& fracDigits, const std::string& unit, std::string& out);
};

}  // namespace vela
