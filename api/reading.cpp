// vela_read: a reading that says how much of the text it speaks, with the
// request's complaints kept in it instead of printed.
#include <cstdlib>
#include <cstring>
#include <exception>
#include <string_view>

#include "analysis/rules.h"
#include "grammar/complaints.h"
#include "pipeline/text_decoder.h"
#include "vela/vela.h"

namespace {

// A malloc'ed copy of `output`'s non-empty space-separated pieces, joined by
// single spaces; null when memory runs out.
char* joinNames(std::string_view output) {
  auto* names = static_cast<char*>(std::malloc(output.size() + 1));
  if (names == nullptr) return nullptr;
  std::size_t length = 0;
  std::size_t pos = 0;
  while (pos < output.size()) {
    std::size_t space = output.find(' ', pos);
    if (space == std::string_view::npos) space = output.size();
    if (space > pos) {
      if (length > 0) names[length++] = ' ';
      std::memcpy(names + length, output.data() + pos, space - pos);
      length += space - pos;
    }
    pos = space + 1;
  }
  names[length] = '\0';
  return names;
}

char* copyOf(std::string_view bytes) {
  auto* copy = static_cast<char*>(std::malloc(bytes.size() + 1));
  if (copy == nullptr) return nullptr;
  std::memcpy(copy, bytes.data(), bytes.size());
  copy[bytes.size()] = '\0';
  return copy;
}

int statusOf(int firstRule, const vela::TextDecoder& decoder, const char* names, bool partial) {
  if (firstRule < 0) {
    return decoder.text.find(".wav") != std::string::npos ? VELA_FILE_NAMES : VELA_NOT_SPOKEN;
  }
  if (names[0] == '\0') return VELA_NOT_SPOKEN;
  return partial ? VELA_PARTLY_SPOKEN : VELA_SPOKEN;
}

int read(const char* tag, const char* text, unsigned options, vela_reading* reading) {
  vela::TextDecoder& decoder = vela::threadDecoder();
  const unsigned char mode = (options & VELA_LATIN) != 0 ? 1 : 0;
  decoder.reset(tag != nullptr ? tag : "", text != nullptr ? text : "", mode);
  if (decoder.isFailed() && (options & VELA_STRICT_TAG) != 0) return -3;

  const vela::RequestReport report;
  const int firstRule = vela::runRules(decoder);
  const bool passedThrough = firstRule < 0 && decoder.text.find(".wav") == std::string::npos;
  char* names = joinNames(passedThrough ? std::string_view() : std::string_view(decoder.output));
  char* diagnostics = names != nullptr ? copyOf(report.complaints()) : nullptr;
  if (diagnostics == nullptr) {
    std::free(names);
    return -2;
  }
  reading->names = names;
  reading->diagnostics = diagnostics;
  reading->status = statusOf(firstRule, decoder, names, report.partial());
  reading->unknown_tag = decoder.isFailed() ? 1 : 0;
  return 0;
}

}  // namespace

extern "C" VELA_API int vela_read(const char* tag, const char* text, unsigned options,
                                  vela_reading* reading) {
  if (reading == nullptr) return -1;
  *reading = vela_reading{};
  try {
    return read(tag, text, options, reading);
  } catch (const std::exception&) {
    // What the strings throw here is memory exhaustion; nothing unwinds into C.
    return -2;
  }
}

extern "C" VELA_API void vela_reading_free(vela_reading* reading) {
  if (reading == nullptr) return;
  std::free(reading->names);
  std::free(reading->diagnostics);
  reading->names = nullptr;
  reading->diagnostics = nullptr;
}

#define VELA_STRINGIFY_(x) #x
#define VELA_STRINGIFY(x) VELA_STRINGIFY_(x)

extern "C" VELA_API const char* vela_version(void) {
  return VELA_STRINGIFY(VELA_VERSION_MAJOR) "." VELA_STRINGIFY(VELA_VERSION_MINOR) "." VELA_STRINGIFY(
      VELA_VERSION_PATCH);
}
