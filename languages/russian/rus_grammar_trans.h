// Russian with Latin-transliterated prompt names.
#pragma once

#include "grammar/grammar_base.h"

namespace vela {

// Its words and readings are not built yet: every operation keeps the
// GrammarBase default, and no unit word is known.
class RusGrammarTrans final : public GrammarBase<RusGrammarTrans> {};

}  // namespace vela
