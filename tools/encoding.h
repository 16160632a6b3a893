// Text at the tool's edges: UTF-8 on the terminal, Windows-1251 in the
// library, and the file names of recordings.
#pragma once

#include <optional>
#include <string>

namespace vela::tools {

// Converts with iconv (the audio module's converter, which also names the
// recordings); nullopt when a character has no counterpart in the target
// encoding or the input is malformed.
std::optional<std::string> convert(const std::string& text, const char* to, const char* from);

// Windows-1251 bytes as UTF-8; the one byte the code page leaves undefined
// (0x98) becomes U+FFFD.
std::string utf8FromCp1251(const std::string& bytes);

// The file that holds the recording of a prompt: the name in UTF-8 with ".wav"
// after it. A byte that a file system dislikes is written as "%" and its two
// hexadecimal digits (of the Windows-1251 byte): control bytes, / \ : * ? " < > |,
// "%" itself, the undefined 0x98, and a "." at the start of the name.
std::string recordingFileName(const std::string& name);

// Removes a UTF-8 byte-order mark from the start of `text`; true when there was one.
bool skipByteOrderMark(std::string& text);

}  // namespace vela::tools
