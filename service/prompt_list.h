// A language's prompts for the playground's second view and the recording
// URLs: every name the language can answer with, each with an example text
// that says it (a recording script: the context a voice talent reads it in).
#pragma once

#include <map>
#include <set>
#include <string>

namespace vela::service {

// Prompt name (Windows-1251) -> a text (Windows-1251) whose whole reading says
// it, the shortest reading found; "" when the enumeration gave none.
using PromptList = std::map<std::string, std::string>;

// Every prompt name (Windows-1251) the grammar of (tag, latin) can answer
// with: the prompt inventory, a fraction of a second.
std::set<std::string> promptNames(const std::string& tag, bool latin);

// The examples of `names` from the inventory's own enumeration, each checked
// through vela_read. Takes seconds (a minute under the sanitizers); the
// service keeps the answer.
PromptList makePromptList(const std::string& tag, bool latin, const std::set<std::string>& names);

}  // namespace vela::service
