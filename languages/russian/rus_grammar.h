// Russian with Cyrillic prompt names.
#pragma once

#include "languages/russian/family_grammar.h"

namespace vela {

// Numbers in three genders with the plural forms after them, amounts of money
// and counted units, dates, times and decimal fractions. The readings are
// those of the whole Russian family (FamilySpeaker) over the Russian tables.
class RusGrammar final : public RussianFamilyGrammar<RusGrammar> {
 public:
  static const FamilyLanguage& language() { return kRussianLanguage; }
};

}  // namespace vela
