// Kazakh.
#pragma once

#include <string>

#include "languages/centralasian/family_grammar.h"

namespace vela {

// Kazakh with Latin prompt names ("bir", "zhuz", "qangtarynda"): cardinal and
// ordinal numbers, dates as year, day, month, clock times, spans, counts and
// money with tiyn and cents. Only the number speller and the date are its own;
// the other readings are the family's over the Kazakh tables.
class KazahGrammar final : public CentralAsianGrammar<KazahGrammar> {
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
