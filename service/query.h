// The request target as the handlers see it: the path as sent and the query's
// parameters, each percent-decoded once; and the text checks every handler
// that passes a text to the library makes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vela::service {

struct Target {
  std::string path;  // as sent, not decoded: routes match it byte for byte
  std::vector<std::pair<std::string, std::string>> params;

  // The first value of `key`, or null when the query does not have it.
  const std::string* find(std::string_view key) const;
};

// Splits "/v1/read?lang=ru&text=12.50%D1%80" into its path and decoded
// parameters ("+" is a space). ";" separates parameters too: Asterisk's
// Playback splits its argument at "&", so its URLs use "lang=ru;text=...". Returns the message of a 400
// answer when a "%" is not followed by two hexadecimal digits, the path does not start with "/", or a decoded
// key or value holds a NUL byte.
std::optional<std::string> parseTarget(std::string_view raw, Target& target);

// Decodes %XX escapes (and nothing else); nullopt on a malformed escape.
std::optional<std::string> percentDecode(std::string_view text);

// The outcome of turning a UTF-8 parameter into the library's Windows-1251.
struct Converted {
  std::string bytes;  // Windows-1251 when error is empty
  std::string error;  // the message of a 400 answer
};

// UTF-8 -> Windows-1251. Errors name what is wrong: invalid UTF-8 (with the
// byte offset), or the first character the code page lacks (as U+XXXX).
Converted toCp1251(std::string_view utf8);

// Windows-1251 -> UTF-8 (names and diagnostics on their way out).
std::string toUtf8(std::string_view cp1251);

}  // namespace vela::service
