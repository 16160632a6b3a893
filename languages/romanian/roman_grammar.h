// Romanian, also used for Moldova.
#pragma once

#include <string>

#include "grammar/grammar_base.h"

namespace vela {

// Latin prompt names without diacritics. Counted nouns take " de " after a
// number ending in 20..99 ("douazeci si cinci de lei"); money is the major
// count, " si" and the minor count; clock times begin with "ora"; dates read
// an ordinal first day ("intai"), the month and the year. Digit strings and
// keypad strings say a run of two or three equal digits as "double"/"triple".
// Decimals are not spoken: the language has no decimal words here.
class RomanGrammar final : public GrammarBase<RomanGrammar> {
 public:
  bool speakSpecialAmount(const std::string& intDigits, const std::string& unit, std::string& out) override;
  int speakDate(const std::string& day, const std::string& month, const std::string& year,
                const std::string& century, const std::string& yearTail, std::string& out) override;
  void speakNumber(const DigitList& tokenList, std::string& out) override;
  void speakDigitString(const DigitList& tokenList, std::string& out) override;
  void speakDialString(const std::string& keys, std::string& out) override;
  void speakCharacter(const std::string& character, std::string& out) override;
  void speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) override;
  void speakDuration(const std::string& hours, const std::string& minutes, std::string& out) override;
  void speakDurationWithSeconds(const std::string& hours, const std::string& minutes,
                                const std::string& seconds, std::string& out) override;
  void appendMinus(std::string& out) override;
  void speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                 const std::string& seconds, std::string& out) override;

  // Reached through speakAmount, in the order the base expects.
  virtual bool isUnit(const std::string& unit);
  virtual bool isCurrency(const std::string& unit);
  virtual void speakMoney(const DigitList& intList, const DigitList& fracList, const std::string& intDigits,
                          const std::string& fracDigits, const std::string& unit, std::string& out);
  virtual void speakCount(const DigitList& intList, const std::string& intDigits, const std::string& unit,
                          std::string& out);
  // Always false, with a diagnostic: a decimal amount is spoken only as money.
  virtual bool allowsFraction(const std::string& unit);
  virtual void speakMinorUnits(const DigitList& intList, const DigitList& fracList,
                               const std::string& intDigits, const std::string& fracDigits,
                               const std::string& unit, std::string& out);
  // Never reached through speakAmount (no unit allows a fraction); says so and speaks nothing.
  virtual void speakDecimal(const DigitList& intList, const DigitList& fracList, const std::string& intDigits,
                            const std::string& fracDigits, const std::string& unit, std::string& out);
};

}  // namespace vela
