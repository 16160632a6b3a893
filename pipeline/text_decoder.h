// TextDecoder: the state of one request, from the caller's text to the prompt
// names. Built on the stack for one request; nothing in it outlives the call.
#pragma once

#include <boost/regex.hpp>
#include <boost/shared_ptr.hpp>
#include <string>

#include "grammar/igrammar.h"

namespace vela {

class TextDecoder {
 public:
  // Asks the factory for the grammar of `languageTag` (mode selects Cyrillic or
  // transliterated Russian) and trims `text`. An unknown tag gives English and
  // sets `failed`.
  TextDecoder(const std::string& languageTag, const std::string& text, unsigned char mode);
  // Uses the given grammar as it is: lets a caller (a test) put in any grammar.
  TextDecoder(boost::shared_ptr<IGrammar> grammar, const std::string& text);

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

  boost::shared_ptr<IGrammar> grammar;
  std::string languageTag;
  std::string text;       // trimmed at construction; the rule runner's input
  std::string output;     // the handlers' and then the rule runner's result
  std::string errorText;  // the factory's complaint about the tag, if any
  boost::smatch match;    // groups of the match the current handler works on
  int failed = 0;         // 1 when the tag was not recognised

 private:
  std::string group(int k) const;
  void speakDateFromMatch(const std::string& century);
};

// Trims leading and trailing spaces (0x20 only) of a text of 1 to 512 bytes and
// returns 1; such a text also ends at its first zero byte. A longer text is
// left as it is (-1), an empty one returns -2.
int trimInput(std::string& s);

// Turns every run of spaces into one space; returns 1.
int collapseSpaces(std::string& s);

// Runs one request: the prompt names of `text` in a malloc'ed, zero-terminated
// buffer stored in *out (the caller's own text when nothing was spoken).
// Returns 0, or -2 when the buffer cannot be allocated (*out is then null).
int decodeText(const char* languageTag, const char* text, char** out, unsigned char mode);

}  // namespace vela
