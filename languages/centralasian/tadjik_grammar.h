// Tajik.
#pragma once

#include <string>

#include "grammar/helpers.h"
#include "languages/centralasian/family_grammar.h"

namespace vela {

// Tajik with Latin prompt names ("yak", "dusad", "somoni"). Numbers are joined
// by the connective "u" written onto the word before it (sadu panj, yak
// hazoru yak), with a glide "y" after a vowel (siyu yak); ordinals are the
// cardinal with "um" (panjum, duyum). Dates are day, month, year.
class TadjikGrammar final : public CentralAsianGrammar<TadjikGrammar> {
 public:
  int speakDate(const std::string& day, const std::string& month, const std::string& year,
                const std::string& century, const std::string& yearTail, std::string& out) override;

  // The cardinal speller (there is no ordinal flag) and one of its groups.
  static void speakInteger(const std::string& digits, std::string& out);
  static void speakGroup(DigitGroup group, std::string& out);
  // The cardinal with the ordinal suffix.
  static void speakOrdinal(const std::string& digits, std::string& out);

  static const centralasian::FamilyTables& tables();
  static void speakCardinal(const std::string& digits, std::string& out) { speakInteger(digits, out); }
  static void speakHoursPhrase(const std::string& hours, const std::string& minutes, std::string& out);
  static void speakSeconds(const std::string& seconds, std::string& out);
};

}  // namespace vela
