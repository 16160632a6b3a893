// A grammar that speaks nothing real: every operation records its name and
// arguments as one line "op(arg1|arg2|...)" and appends a fixed word, so the
// classifier and the handlers can be tested without a language.
#pragma once

#include <string>
#include <vector>

#include "grammar/grammar_base.h"

namespace vela::testing {

struct CallLog {
  std::vector<std::string> calls;
  std::string joined() const;
};

class RecordingGrammar final : public GrammarBase<RecordingGrammar> {
 public:
  explicit RecordingGrammar(CallLog& log, bool specialAmount = false) : log_(log), special_(specialAmount) {}

  bool speakSpecialAmount(const std::string& intDigits, const std::string& unit, std::string& out) override;
  int speakDate(const std::string& day, const std::string& month, const std::string& year,
                const std::string& century, const std::string& yearTail, std::string& out) override;
  void speakNumber(const DigitList& tokens, std::string& out) override;
  void speakDigitString(const DigitList& tokens, std::string& out) override;
  void speakDialString(const std::string& keys, std::string& out) override;
  void speakCharacter(const std::string& character, std::string& out) override;
  void speakClockTime(const std::string& h, const std::string& m, std::string& out) override;
  void speakDuration(const std::string& h, const std::string& m, std::string& out) override;
  void speakDurationWithSeconds(const std::string& h, const std::string& m, const std::string& s,
                                std::string& out) override;
  void appendMinus(std::string& out) override;
  void speakClockTimeWithSeconds(const std::string& h, const std::string& m, const std::string& s,
                                 std::string& out) override;

  // Amount slots: "rub" is a currency, "kb" a unit taking fractions, "pcs" a
  // unit without fractions; anything else is unknown.
  virtual bool isUnit(const std::string& unit);
  virtual bool isCurrency(const std::string& unit);
  virtual void speakMoney(const DigitList& intList, const DigitList& fracList, const std::string& intDigits,
                          const std::string& fracDigits, const std::string& unit, std::string& out);
  virtual void speakCount(const DigitList& intList, const std::string& intDigits, const std::string& unit,
                          std::string& out);
  virtual bool allowsFraction(const std::string& unit);
  virtual void speakMinorUnits(const DigitList&, const DigitList&, const std::string&, const std::string&,
                               const std::string&, std::string&) {}
  virtual void speakDecimal(const DigitList& intList, const DigitList& fracList, const std::string& intDigits,
                            const std::string& fracDigits, const std::string& unit, std::string& out);

 private:
  void record(const std::string& op, const std::vector<std::string>& args, std::string& out);
  CallLog& log_;
  bool special_;
};

// "5,0,2,1" for the list {5,0,2,1}.
std::string joinList(const DigitList& list);

}  // namespace vela::testing
