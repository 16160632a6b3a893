// The only place where language tags are known.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "grammar/igrammar.h"

namespace vela {

// The grammar for `tag` (exact, case-sensitive). `transliterated` matters only
// for the Russian tags: 0 gives Cyrillic prompt names, any other value Latin
// ones. An unknown tag gets the English grammar and " language tag incorrect"
// in `error`; a known tag leaves `error` alone.
//
// Grammars hold no state, so each class has one instance that lives as long
// as the library: the result is never owned by the caller and never released.
IGrammar& grammarFor(std::string_view tag, unsigned char transliterated, std::string& error);

// Every tag the factory knows, each once, in the order they are tried.
std::vector<std::string_view> knownTags();

// Appends to `keys` the unit words the grammar of `tag` lists for the tools
// (grammar/unit_keys.h). An unknown tag is English, as above.
void listUnitKeys(const std::string& tag, unsigned char transliterated, std::vector<std::string>& keys);

}  // namespace vela
