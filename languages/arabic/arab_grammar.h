// Arabic, with singular, dual and plural noun forms.
#pragma once

#include "grammar/grammar_base.h"

namespace vela {

// Its words and readings are not built yet: every operation keeps the
// GrammarBase default, and no unit word is known.
class ArabGrammar final : public GrammarBase<ArabGrammar> {};

}  // namespace vela
