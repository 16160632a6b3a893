// Russian with Cyrillic prompt names.
#pragma once

#include <string>

#include "grammar/grammar_base.h"
#include "grammar/helpers.h"

namespace vela {

// Numbers in three genders with the plural forms after them, amounts of money
// and counted units, dates, times and decimal fractions. The readings are
// those of the whole Russian family (FamilySpeaker) over the Russian tables.
class RusGrammar final : public GrammarBase<RusGrammar> {
 public:
  // Slots 2-11: returns 1 when the date was spoken, 0 when it was rejected.
  int speakDate(const std::string& day, const std::string& month, const std::string& year,
                const std::string& century, const std::string& yearTail, std::string& out) override;
  void speakNumber(const DigitList& tokenList, std::string& out) override;
  void speakDigitString(const DigitList& tokenList, std::string& out) override;
  void speakCharacter(const std::string& character, std::string& out) override;
  void speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) override;
  void speakDuration(const std::string& hours, const std::string& minutes, std::string& out) override;
  void appendMinus(std::string& out) override;
  void speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                 const std::string& seconds, std::string& out) override;

  // Slots 13-19, reached through speakAmount.
  virtual bool isUnit(const std::string& unit);
  virtual bool isCurrency(const std::string& unit);
  virtual void speakMoney(const DigitList& intList, const DigitList& fracList, const std::string& intDigits,
                          const std::string& fracDigits, const std::string& unit, std::string& out);
  virtual void speakCount(const DigitList& intList, const std::string& intDigits, const std::string& unit,
                          std::string& out);
  virtual bool allowsFraction(const std::string& unit);
  virtual void speakMinorUnits(const DigitList& intList, const DigitList& fracList,
                               const std::string& intDigits, const std::string& fracDigits,
                               const std::string& unit, std::string& out);
  virtual void speakDecimal(const DigitList& intList, const DigitList& fracList, const std::string& intDigits,
                            const std::string& fracDigits, const std::string& unit, std::string& out);

  // The number core the operations above share.
  int speak3(const DigitGroup& group, int gender, int genitive, int ordinal, std::string& out) const;
  void appendUnitForm(const DigitGroup& group, std::string& out, int unitRow, int mode) const;
  int getGender(const std::string& suffix) const;
  int findUnit(const std::string& suffix) const;
  int findSymbol(const std::string& token) const;
};

}  // namespace vela
