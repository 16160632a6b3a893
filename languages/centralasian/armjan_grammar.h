// Armenian.
#pragma once

#include <string>

#include "grammar/helpers.h"
#include "languages/centralasian/family_grammar.h"

namespace vela {

// Armenian with Latin prompt names ("mek", "erku harjur", "dram"). Its words
// carry their own leading blank; teens have their own words; there is no
// ordinal, only a case suffix on the last word of a group ("erkusn",
// "hingin"). A plain number is read digit by digit; dates are year, month,
// day. Spans, counts and money are phrased its own way, and it alone speaks
// spans with seconds.
class ArmjanGrammar final : public CentralAsianGrammar<ArmjanGrammar> {
 public:
  int speakDate(const std::string& day, const std::string& month, const std::string& year,
                const std::string& century, const std::string& yearTail, std::string& out) override;
  void speakDuration(const std::string& hours, const std::string& minutes, std::string& out) override;
  void speakDurationWithSeconds(const std::string& hours, const std::string& minutes,
                                const std::string& seconds, std::string& out) override;
  void speakCount(const DigitList& intList, const std::string& intDigits, const std::string& unit,
                  std::string& out) override;
  void speakMinorUnits(const DigitList& intList, const DigitList& fracList, const std::string& intDigits,
                       const std::string& fracDigits, const std::string& unit, std::string& out) override;

  // A whole number (zero says "zro"); one group, with the case suffix on its
  // last word when `withCase` is set.
  static void speakInteger(const std::string& digits, std::string& out);
  static void speakGroup(const DigitGroup& group, std::string& out, bool withCase);

  static const centralasian::FamilyTables& tables();
  static void speakCardinal(const std::string& digits, std::string& out) { speakInteger(digits, out); }
  static void speakHoursPhrase(const std::string& hours, const std::string& minutes, std::string& out);
  static void speakSeconds(const std::string& seconds, std::string& out);
};

}  // namespace vela
