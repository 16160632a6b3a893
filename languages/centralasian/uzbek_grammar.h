// Uzbek.
#pragma once

#include <string>

#include "languages/centralasian/family_grammar.h"

namespace vela {

// Uzbek with Latin prompt names in lower-case ASCII ("bir", "yuz", "tort"):
// built like Kazakh, with the Uzbek tables. Ordinals take -inchi, or -nchi
// after a vowel; dates are year, day, month; money in som and tiyin.
class UzbekGrammar final : public CentralAsianGrammar<UzbekGrammar> {
 public:
  int speakDate(const std::string& day, const std::string& month, const std::string& year,
                const std::string& century, const std::string& yearTail, std::string& out) override;

  // A whole number, cardinal or ordinal (the ordinal mark on its last word).
  static void speakInteger(const std::string& digits, std::string& out, bool ordinal);

  // What the family slots ask of the language.
  static const centralasian::FamilyTables& tables();
  static void speakCardinal(const std::string& digits, std::string& out);
  static void speakHoursPhrase(const std::string& hours, const std::string& minutes, std::string& out);
  static void speakSeconds(const std::string& seconds, std::string& out);
};

}  // namespace vela
