// Fuzz target for a whole request: the first byte picks a language tag and a
// mode, the rest is the text. Any crash, sanitizer report or lost buffer is a
// finding. Built as a libFuzzer target with clang (-DVELA_FUZZ=ON), and always
// as the deterministic smoke run in fuzz_smoke.cpp.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "pipeline/text_decoder.h"
#include "vela/vela.h"

namespace {

const char* const kTags[] = {"ru", "en", "uk", "ro", "kk", "tg", "ka", "hy", "ar", "uz", "xx", ""};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const char* tag = kTags[data[0] % std::size(kTags)];
  const unsigned char mode = (data[0] >> 7) & 1;
  const std::string text(reinterpret_cast<const char*>(data + 1), size - 1);

  char* out = nullptr;
  if (vela::decodeText(tag, text.c_str(), &out, mode) == 0) {
    // The answer is either spoken names or the caller's own text: never lost.
    if (out == nullptr) std::abort();
    decodeReleaseBuffer(out);
  }

  std::vector<std::string> files;
  std::ostringstream log;
  DecodeBufferASCII(tag, text, files, log);
  for (const auto& f : files) {
    if (f.empty() || f.find(' ') != std::string::npos) std::abort();
  }
  return 0;
}
