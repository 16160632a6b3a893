// Ukrainian with Latin-transliterated prompt names ("odyn", "hvylyna").
#pragma once

#include "languages/russian/family_grammar.h"

namespace vela {

// The readings of the Russian family over Ukrainian tables: teens and tens
// have no nominative ordinal, dates take no case marker, times are feminine,
// no decimal fraction is spoken, and the minus word is the interface's default.
class UkranianGrammar final : public RussianFamilyGrammar<UkranianGrammar> {
 public:
  static const FamilyLanguage& language() { return kUkrainianLanguage; }
};

}  // namespace vela
