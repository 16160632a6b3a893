#include "pipeline/text_decoder.h"

#include <cstdlib>
#include <cstring>

#include "analysis/rules.h"
#include "grammar/factory.h"

namespace vela {

TextDecoder::TextDecoder(std::string_view tag, std::string_view requestText, unsigned char mode) {
  reset(tag, requestText, mode);
}

TextDecoder::TextDecoder(IGrammar& injected, std::string_view requestText)
    : grammar(&injected), text(requestText) {
  trimInput(text);
}

void TextDecoder::reserveBuffers() {
  text.reserve(kRequestBytes);
  output.reserve(kReadingBytes);
  work.reserve(kReadingBytes);
  errorText.reserve(kRequestBytes);
  for (std::string& group : groups_) group.reserve(kRequestBytes);
  minus_.reserve(kRequestBytes);
  intList_.reserve(9);
  fracList_.reserve(9);
  tokenList_.resize(1);
  tokenList_[0].reserve(kRequestBytes);
}

void TextDecoder::reset(std::string_view tag, std::string_view requestText, unsigned char mode) {
  trimInput(requestText);
  text.assign(requestText);
  output.clear();
  errorText.clear();
  // `match` is left as it is: the classifier sets it before any handler reads it.
  grammar = &grammarFor(tag, mode, errorText);
  failed = errorText.empty() ? 0 : 1;
}

int trimInput(std::string_view& s) {
  if (s.size() > 512) return -1;
  if (s.empty()) return -2;
  const char* begin = s.data();
  const auto* zero = static_cast<const char*>(std::memchr(begin, '\0', s.size()));
  const char* end = zero != nullptr ? zero : begin + s.size();  // a trimmed text ends at its first zero byte
  while (begin < end && *begin == ' ') ++begin;
  while (end > begin && end[-1] == ' ') --end;
  s = std::string_view(begin, static_cast<std::size_t>(end - begin));
  return 1;
}

int trimInput(std::string& s) {
  std::string_view view = s;
  const int result = trimInput(view);
  if (result == 1) s.assign(view);  // a part of itself: assign moves the bytes safely
  return result;
}

int collapseSpaces(std::string& s) {
  std::size_t kept = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s[i] == ' ' && kept > 0 && s[kept - 1] == ' ') continue;
    s[kept++] = s[i];
  }
  s.resize(kept);
  return 1;
}

namespace {

// A malloc'ed, zero-terminated copy of `bytes`, or null.
char* copyToMallocBuffer(const char* bytes, std::size_t length) {
  auto* buffer = static_cast<char*>(std::malloc(length + 1));
  if (buffer == nullptr) return nullptr;
  std::memcpy(buffer, bytes, length);
  buffer[length] = '\0';
  return buffer;
}

}  // namespace

TextDecoder& threadDecoder() {
  thread_local TextDecoder decoder = [] {
    TextDecoder warm;
    warm.reserveBuffers();
    return warm;
  }();
  return decoder;
}

int decodeText(const char* languageTag, const char* text, char** out, unsigned char mode) {
  if (out == nullptr) return -1;
  *out = nullptr;
  const std::string_view callerText = text != nullptr ? text : "";
  TextDecoder& decoder = threadDecoder();
  decoder.reset(languageTag != nullptr ? languageTag : "", callerText, mode);
  runRules(decoder);
  // Nothing spoken: the caller gets its own text back, untrimmed.
  const std::string_view result = decoder.output.empty() ? callerText : std::string_view(decoder.output);
  *out = copyToMallocBuffer(result.data(), result.size());
  return *out == nullptr ? -2 : 0;
}

}  // namespace vela
