// Texts and prompt names at the terminal: UTF-8 there, Windows-1251 in the
// library (unless --raw), shared by the commands that read texts.
#pragma once

#include <optional>
#include <string>

#include "tools/cli/command.h"

namespace vela::cli {

// The text as the library takes it; nullopt (after a message on standard
// error) when it cannot be written in Windows-1251.
std::optional<std::string> requestText(const LanguageOptions& options, const std::string& text);

// A prompt name (Windows-1251) as the terminal shows it.
std::string shownName(const LanguageOptions& options, const std::string& name);

// False (after a message) when the tag is unknown: the texts are then English.
bool checkTag(const LanguageOptions& options);

}  // namespace vela::cli
