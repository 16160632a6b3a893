// Arabic, with singular, dual and plural noun forms.
#pragma once

#include <string>

#include "grammar/grammar_base.h"

namespace vela {

// Latin-transliterated prompt names, each appended with its own leading space.
// Every unit word reaches speakCount or, for a currency, speakMoney; decimals
// are not spoken. Bare numbers and digit strings are read digit by digit.
// Dates and clock times use the day-of-month ordinals and the feminine hour
// ordinals; an h:mm:ss clock time says nothing.
class ArabGrammar final : public GrammarBase<ArabGrammar> {
 public:
  int speakDate(const std::string& day, const std::string& month, const std::string& year,
                const std::string& century, const std::string& yearTail, std::string& out) override;
  void speakNumber(const DigitList& tokenList, std::string& out) override;
  void speakDigitString(const DigitList& tokenList, std::string& out) override;
  void speakCharacter(const std::string& character, std::string& out) override;
  void speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) override;
  void speakDuration(const std::string& hours, const std::string& minutes, std::string& out) override;
  void speakDurationWithSeconds(const std::string& hours, const std::string& minutes,
                                const std::string& seconds, std::string& out) override;
  void appendMinus(std::string& out) override;
  // Says nothing: there is no Arabic reading of a clock time with seconds.
  void speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                 const std::string& seconds, std::string& out) override;

  // Reached through speakAmount, in the order the base expects.
  // Always true: a word that names no noun is turned away by speakCount.
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
