// TextDecoder: the state of one request, from the caller's text to the prompt
// names. Its strings keep their capacity when the decoder is reset for the next
// request, so a thread that reuses one decoder allocates nothing once warm.
#pragma once

#include <string>
#include <string_view>

#include "analysis/classifier.h"
#include "grammar/igrammar.h"

namespace vela {

class TextDecoder {
 public:
  // Takes the grammar of `languageTag` (mode selects Cyrillic or transliterated
  // Russian) and trims `text`. An unknown tag gives English and sets `failed`.
  TextDecoder(std::string_view languageTag, std::string_view text, unsigned char mode);
  // Uses the given grammar as it is: lets a caller (a test) put in any grammar.
  TextDecoder(IGrammar& grammar, std::string_view text);
  TextDecoder() = default;

  // Gives every buffer room for a text of kRequestBytes and a reading of
  // kReadingBytes, so that such requests on this decoder allocate nothing.
  static constexpr std::size_t kRequestBytes = 64;
  static constexpr std::size_t kReadingBytes = 1024;
  void reserveBuffers();

  // Starts a new request on this decoder, as the first constructor does.
  void reset(std::string_view languageTag, std::string_view text, unsigned char mode);

  const std::string& getOutput() const { return output; }
  const std::string& getErrorText() const { return errorText; }
  bool isFailed() const { return failed != 0; }

  // Token handlers: each reads the groups of `match`, calls the grammar and
  // leaves the token's prompt names in `output`. They always return true.
  bool onNegativeAmount();
  bool onAmount();
  bool onDate();
  bool onMarkedDate();
  bool onNumber();
  bool onDigitString();
  bool onDialString();
  bool onCharacter();
  bool onClockTime();
  bool onClockTimeWithSeconds();
  bool onDuration();
  bool onDurationWithSeconds();

  IGrammar* grammar = nullptr;  // one instance per grammar class, never owned
  std::string text;             // trimmed at construction; the rule runner's input
  std::string output;           // the handlers' and then the rule runner's result
  std::string errorText;        // the factory's complaint about the tag, if any
  TokenMatch match;             // groups of the match the current handler works on
  int failed = 0;               // 1 when the tag was not recognised
  std::string work;             // the rule runner's text between rules

 private:
  // Group k of `match` as a string (empty when the rule has no such group).
  const std::string& group(int k);
  void speakDateFromMatch(const std::string& century);
  void speakWholeToken(void (IGrammar::*speak)(const DigitList&, std::string&));

  // Argument buffers of the handlers, reused from request to request.
  std::string groups_[TokenMatch::kGroups];
  std::string minus_;
  DigitList intList_, fracList_, tokenList_;
};

// Trims leading and trailing spaces (0x20 only) of a text of 1 to 512 bytes and
// returns 1; such a text also ends at its first zero byte. A longer text is
// left as it is (-1), an empty one returns -2.
int trimInput(std::string& s);
// The same on a view of the caller's bytes: nothing is copied.
int trimInput(std::string_view& s);

// Turns every run of spaces into one space; returns 1.
int collapseSpaces(std::string& s);

// The calling thread's decoder, its buffers reserved: every request on a
// thread reuses it, so its buffers stay warm.
TextDecoder& threadDecoder();

// Runs one request: the prompt names of `text` in a malloc'ed, zero-terminated
// buffer stored in *out (the caller's own text when nothing was spoken).
// Returns 0, or -2 when the buffer cannot be allocated (*out is then null).
// Apart from that buffer, a request of up to 64 bytes with a reading of up to
// 1 KB allocates nothing once the calling thread has made one such request.
int decodeText(const char* languageTag, const char* text, char** out, unsigned char mode);

}  // namespace vela
