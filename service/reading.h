// A reading as the routes need it: the query's lang, text, latin and fallback
// checked and converted, the library asked through vela_read, the answer
// split into names and complaint lines.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "service/routes.h"

namespace vela::service {

struct ReadingRequest {
  std::string tag;   // as sent (ASCII in practice), also the voice's key
  std::string text;  // Windows-1251
  bool latin = false;
  bool fallback = false;  // fallback=en: an unknown tag is read in English
};

struct Reading {
  std::vector<std::string> names;        // Windows-1251
  std::vector<std::string> diagnostics;  // Windows-1251, one complaint each
  int status = 0;                        // enum vela_status
  bool unknownTag = false;
};

// The lang, text, latin and fallback parameters; an error answer (400) when
// one is missing or malformed, or the text is too long or not Windows-1251.
std::variant<ReadingRequest, Response> parseReadingRequest(const Target& target);

// Reads the text; an error answer for an unknown tag (400, unless fallback)
// or when memory runs out (503).
std::variant<Reading, Response> readText(const ReadingRequest& request);

// "spoken", "partly_spoken", "not_spoken", "file_names".
std::string_view statusName(int status);

// The voice's key for a request: the tag, with "-t" for Latin names.
std::string voiceKey(const ReadingRequest& request);

}  // namespace vela::service
