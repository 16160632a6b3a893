// Georgian.
#pragma once

#include <string>

#include "grammar/helpers.h"
#include "languages/centralasian/family_grammar.h"

namespace vela {

// Georgian with Latin prompt names ("erti", "otsdaerti", "ianvars"). Numbers
// are vigesimal, 1..99 each one word, in a compound form when more of the
// number follows and a final form for its last word; a plain number is read
// digit by digit. Dates are day, month, year.
class GeorgGrammar final : public CentralAsianGrammar<GeorgGrammar> {
 public:
  int speakDate(const std::string& day, const std::string& month, const std::string& year,
                const std::string& century, const std::string& yearTail, std::string& out) override;

  // A whole number; `final` puts its last word in the final form (multipliers
  // before a scale word are always final).
  static void speakInteger(const std::string& digits, std::string& out, bool final);
  static void speakGroup(DigitGroup group, std::string& out, bool final);

  static const centralasian::FamilyTables& tables();
  // Counts, money and spans say their numbers in the final form.
  static void speakCardinal(const std::string& digits, std::string& out) { speakInteger(digits, out, true); }
  static void speakHoursPhrase(const std::string& hours, const std::string& minutes, std::string& out);
  static void speakSeconds(const std::string& seconds, std::string& out);
};

}  // namespace vela
