#include "tools/cli/text.h"

#include "grammar/factory.h"
#include "tools/encoding.h"

namespace vela::cli {

std::optional<std::string> requestText(const LanguageOptions& options, const std::string& text) {
  std::optional<std::string> request = options.raw ? text : tools::convert(text, "WINDOWS-1251", "UTF-8");
  if (!request) std::fprintf(stderr, "vela: cannot write \"%s\" in Windows-1251\n", text.c_str());
  return request;
}

std::string shownName(const LanguageOptions& options, const std::string& name) {
  return options.raw ? name : tools::utf8FromCp1251(name);
}

bool checkTag(const LanguageOptions& options) {
  std::string tagError;
  grammarFor(options.tag, options.mode, tagError);
  if (tagError.empty()) return true;
  std::fprintf(stderr, "vela: unknown language tag \"%s\"; speaking English\n", options.tag.c_str());
  return false;
}

}  // namespace vela::cli
