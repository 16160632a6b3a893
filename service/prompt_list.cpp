#include "service/prompt_list.h"

#include <vela/vela.h>

#include <algorithm>
#include <vector>

#include "tools/inventory.h"

namespace vela::service {
namespace {

// Whether `text`, read as a request, is wholly spoken and says `name`.
bool says(const std::string& tag, bool latin, const std::string& text, const std::string& name) {
  vela_reading reading{};
  if (vela_read(tag.c_str(), text.c_str(), latin ? VELA_LATIN : 0u, &reading) != 0) return false;
  std::vector<std::string> names;
  tools::splitNames(reading.names, names);
  const bool said =
      reading.status == VELA_SPOKEN && std::find(names.begin(), names.end(), name) != names.end();
  vela_reading_free(&reading);
  return said;
}

}  // namespace

std::set<std::string> promptNames(const std::string& tag, bool latin) {
  const tools::QuietGrammars quiet;  // the inventory tries bad inputs on purpose
  return tools::promptInventory(tag, latin ? 1 : 0);
}

PromptList makePromptList(const std::string& tag, bool latin, const std::set<std::string>& names) {
  const unsigned char mode = latin ? 1 : 0;
  PromptList list;
  std::map<std::string, std::size_t> bestAnswer;  // the length of the reading kept for each name
  {
    const tools::QuietGrammars quiet;
    for (const std::string& name : names) list[name];
    std::vector<std::string> said;
    tools::forEachReading(tag, mode, [&](const std::string& text, const std::string& answer) {
      said.clear();
      tools::splitNames(answer, said);
      for (const std::string& name : said) {
        const auto entry = list.find(name);
        if (entry == list.end()) continue;
        const auto best = bestAnswer.find(name);
        if (best != bestAnswer.end() && best->second <= answer.size()) continue;
        if (!says(tag, latin, text, name)) continue;
        entry->second = text;
        bestAnswer[name] = answer.size();
      }
    });
  }
  return list;
}

}  // namespace vela::service
