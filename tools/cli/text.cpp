#include "tools/cli/text.h"

#include <new>
#include <string_view>

#include "tools/encoding.h"

namespace vela::cli {
namespace {

// True when `text` is well-formed UTF-8.
bool isUtf8(const std::string& text) { return tools::convert(text, "UTF-8", "UTF-8").has_value(); }

// The first character of UTF-8 `text` that Windows-1251 lacks, or "".
std::string firstUnwritable(const std::string& text) {
  for (std::size_t start = 0, end = 0; start < text.size(); start = end) {
    end = start + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) ++end;
    std::string character = text.substr(start, end - start);
    if (!tools::convert(character, "WINDOWS-1251", "UTF-8")) return character;
  }
  return "";
}

}  // namespace

std::optional<std::string> requestText(const LanguageOptions& options, const std::string& where,
                                       const std::string& text) {
  if (options.raw) return text;
  std::optional<std::string> request = tools::convert(text, "WINDOWS-1251", "UTF-8");
  if (request) return request;
  if (!isUtf8(text)) {
    std::fprintf(stderr, "vela: %s: not UTF-8 (for Windows-1251 bytes, use --raw)\n", where.c_str());
  } else {
    std::fprintf(stderr, "vela: %s: Windows-1251 has no \"%s\"\n", where.c_str(),
                 firstUnwritable(text).c_str());
  }
  return std::nullopt;
}

std::string shownName(const LanguageOptions& options, const std::string& names) {
  return options.raw ? names : tools::utf8FromCp1251(names);
}

Reading::Reading(const LanguageOptions& options, const std::string& request) {
  const unsigned flags = options.mode != 0 ? VELA_LATIN : 0u;
  if (vela_read(options.tag.c_str(), request.c_str(), flags, &reading_) != 0) throw std::bad_alloc();
}

void Reading::complain(const LanguageOptions& options, const std::string& where) const {
  std::string_view complaints = reading_.diagnostics;
  while (!complaints.empty()) {
    const std::size_t end = complaints.find('\n');
    const std::string line(complaints.substr(0, end));
    std::fprintf(stderr, "vela: %s: %s\n", where.c_str(), shownName(options, line).c_str());
    complaints.remove_prefix(end == std::string_view::npos ? complaints.size() : end + 1);
  }
  if (reading_.diagnostics[0] != '\0' || complete()) return;
  std::fprintf(stderr, "vela: %s: %s\n", where.c_str(),
               status() == VELA_NOT_SPOKEN ? "nothing in it can be spoken" : "only partly spoken");
}

bool checkTag(const LanguageOptions& options) {
  if (!Reading(options, "").unknownTag()) return true;
  std::fprintf(stderr, "vela: unknown language tag \"%s\"; speaking English\n", options.tag.c_str());
  return false;
}

}  // namespace vela::cli
