// Armenian.
#pragma once

#include "grammar/grammar_base.h"

namespace vela {

// Its words and readings are not built yet: every operation keeps the
// GrammarBase default, and no unit word is known.
class ArmjanGrammar final : public GrammarBase<ArmjanGrammar> {};

}  // namespace vela
