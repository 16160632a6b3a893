// Fuzz target for a whole request: the first byte picks the language tag from
// every tag the library knows, an unknown one and an empty one; the second is
// the mode, as the Java entry passes it (its two low bits are vela_read's
// options); the rest is the text. Any crash,
// sanitizer report or lost buffer is a finding. Built as a libFuzzer target
// with clang (-DVELA_FUZZ=ON), and always as the deterministic smoke run in
// fuzz_smoke.cpp.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "grammar/factory.h"
#include "pipeline/text_decoder.h"
#include "vela/vela.h"

namespace {

const std::vector<std::string>& tags() {
  static const std::vector<std::string> all = [] {
    std::vector<std::string> t;
    for (std::string_view tag : vela::knownTags()) t.emplace_back(tag);
    t.emplace_back("xx");  // unknown: spoken in English
    t.emplace_back("");
    return t;
  }();
  return all;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  const std::string& tag = tags()[data[0] % tags().size()];
  const unsigned char mode = data[1];
  const std::string text(reinterpret_cast<const char*>(data + 2), size - 2);

  char* out = nullptr;
  if (vela::decodeText(tag.c_str(), text.c_str(), &out, mode) == 0) {
    // The answer is either spoken names or the caller's own text: never lost.
    if (out == nullptr) std::abort();
    decodeReleaseBuffer(out);
  }

  // vela_read: the mode's low bits are its options.
  const unsigned options = mode & (VELA_LATIN | VELA_STRICT_TAG);
  vela_reading reading{};
  const int rc = vela_read(tag.c_str(), text.c_str(), options, &reading);
  if (rc == -3 && (options & VELA_STRICT_TAG) == 0) std::abort();
  if (rc == 0) {
    const std::string_view names = reading.names == nullptr ? "" : reading.names;
    const std::string_view diagnostics = reading.diagnostics == nullptr ? "" : reading.diagnostics;
    if (reading.names == nullptr || reading.diagnostics == nullptr) std::abort();
    if (reading.status < VELA_SPOKEN || reading.status > VELA_FILE_NAMES) std::abort();
    // Single spaces between names, none at either end; every complaint ends its line.
    if (!names.empty() && (names.front() == ' ' || names.back() == ' ')) std::abort();
    if (names.find("  ") != std::string_view::npos) std::abort();
    if (!diagnostics.empty() && diagnostics.back() != '\n') std::abort();
  } else if (reading.names != nullptr || reading.diagnostics != nullptr) {
    std::abort();  // zeroed on every error
  }
  vela_reading_free(&reading);

  std::vector<std::string> files;
  std::ostringstream log;
  DecodeBufferASCII(tag, text, files, log);
  for (const auto& f : files) {
    if (f.empty() || f.find(' ') != std::string::npos) std::abort();
  }
  return 0;
}
