// The library's C exports: thin shells around the request driver.
#include <cctype>
#include <cstdlib>
#include <exception>

#include "analysis/rules.h"
#include "pipeline/text_decoder.h"
#include "vela/vela.h"

extern "C" VELA_API int decodeBuffer(const char* languageTag, const char* text, char** out) {
  try {
    return vela::decodeText(languageTag, text, out, 0);
  } catch (const std::exception&) {
    // Nothing may unwind into a C host; what the string and vector types throw
    // here is memory exhaustion (bad_alloc, length_error).
    if (out != nullptr) *out = nullptr;
    return -2;
  }
}

extern "C" VELA_API void decodeReleaseBuffer(void* buffer) { std::free(buffer); }

namespace {

// ASCII lower-casing, as the C library's tolower does in the "C" locale; kept
// independent of whatever locale the host has set.
std::string lowerAscii(const std::string& s) {
  std::string lowered = s;
  for (char& c : lowered) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lowered;
}

// Appends the non-empty space-separated pieces of `names` to `files`.
void appendNames(const std::string& names, std::vector<std::string>& files) {
  std::size_t pos = 0;
  while (pos < names.size()) {
    std::size_t space = names.find(' ', pos);
    if (space == std::string::npos) space = names.size();
    if (space > pos) files.push_back(names.substr(pos, space - pos));
    pos = space + 1;
  }
}

}  // namespace

extern "C" VELA_API bool DecodeBufferASCII(const std::string& languageTag, const std::string& text,
                                           std::vector<std::string>& files, std::ostream& log) {
  vela::TextDecoder decoder(lowerAscii(languageTag), lowerAscii(text), 1);
  if (decoder.isFailed()) {
    log << decoder.getErrorText();
    return false;
  }
  vela::runRules(decoder);
  log << decoder.getErrorText();
  if (decoder.getOutput().empty()) {
    log << "input buffer have an incorrect format: " << text;
    return false;
  }
  appendNames(decoder.getOutput(), files);
  return true;
}

#if defined(_WIN32)
#include <windows.h>

// No per-thread state: thread attach and detach notifications are not needed.
BOOL APIENTRY DllMain(HMODULE module, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(module);
  return TRUE;
}
#endif
