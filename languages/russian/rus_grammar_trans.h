// Russian with Latin-transliterated prompt names ("odin", "rublya").
#pragma once

#include "languages/russian/family_grammar.h"

namespace vela {

// The Russian readings over transliterated tables (mode 1 of the Russian
// tags). It speaks no decimal fraction and has no "female" suffix.
class RusGrammarTrans final : public RussianFamilyGrammar<RusGrammarTrans> {
 public:
  static const FamilyLanguage& language() { return kRussianTransLanguage; }
};

}  // namespace vela
