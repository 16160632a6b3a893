// Texts and prompt names at the terminal: UTF-8 there, Windows-1251 in the
// library (unless --raw); readings through the library's public vela_read.
#pragma once

#include <optional>
#include <string>

#include "tools/cli/command.h"
#include "vela/vela.h"

namespace vela::cli {

// The text as the library takes it; nullopt, after a message on standard
// error that starts with `where` ("line 3", or the text in quotes), when it is
// not UTF-8 or holds a character Windows-1251 lacks.
std::optional<std::string> requestText(const LanguageOptions& options, const std::string& where,
                                       const std::string& text);

// A prompt name, or several separated by spaces (Windows-1251), as the
// terminal shows them.
std::string shownName(const LanguageOptions& options, const std::string& names);

// One reading of a request by vela_read, in the language and mode of
// `options`; freed with it. Throws std::bad_alloc when memory runs out.
class Reading {
 public:
  Reading(const LanguageOptions& options, const std::string& request);
  ~Reading() { vela_reading_free(&reading_); }
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;

  const char* names() const { return reading_.names; }
  int status() const { return reading_.status; }
  bool unknownTag() const { return reading_.unknown_tag != 0; }
  // True when the whole text was spoken, or passed through as file names.
  bool complete() const { return status() == VELA_SPOKEN || status() == VELA_FILE_NAMES; }
  // Prints the reading's complaints on standard error, one a line, as
  // "vela: WHERE: complaint"; a text not wholly spoken without a complaint
  // gets a line that says so.
  void complain(const LanguageOptions& options, const std::string& where) const;

 private:
  vela_reading reading_{};
};

// False (after a message) when the tag is unknown: the texts are then English.
bool checkTag(const LanguageOptions& options);

}  // namespace vela::cli
