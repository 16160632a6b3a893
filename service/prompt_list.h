// A language's prompts for the playground's second view and the recording
// URLs: every name the language can answer with, each with an example text
// that says it (a recording script: the context a voice talent reads it in).
#pragma once

#include <map>
#include <string>

namespace vela::service {

// Prompt name (Windows-1251) -> a text (Windows-1251) whose whole reading says
// it, the shortest reading found; "" when the enumeration gave none.
using PromptList = std::map<std::string, std::string>;

// Works out the list of (tag, latin): the prompt inventory, and examples from
// the inventory's own enumeration, each checked through vela_read. Takes a
// second or so; the service keeps the answer.
PromptList makePromptList(const std::string& tag, bool latin);

}  // namespace vela::service
