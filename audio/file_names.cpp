// File names of prompts: UTF-8 with the bytes file systems dislike escaped.
#include <iconv.h>

#include <array>
#include <cstdio>
#include <cstring>

#include "audio/render.h"

namespace vela::audio {

std::optional<std::string> convertText(std::string_view text, const char* to, const char* from) {
  iconv_t cd = iconv_open(to, from);
  if (cd == reinterpret_cast<iconv_t>(-1))  // NOLINT(performance-no-int-to-ptr): iconv's error value
    return std::nullopt;
  std::string in(text);
  std::string out(text.size() * 4 + 4, '\0');
  char* inPtr = in.data();
  char* outPtr = out.data();
  std::size_t inLeft = in.size();
  std::size_t outLeft = out.size();
  const std::size_t rc = iconv(cd, &inPtr, &inLeft, &outPtr, &outLeft);
  iconv_close(cd);
  if (rc != 0) return std::nullopt;  // an error, or a lossy conversion
  out.resize(out.size() - outLeft);
  return out;
}

namespace {

// The UTF-8 spelling of every Windows-1251 byte; the undefined 0x98 is U+FFFD
// (it is always escaped in file names).
const std::array<std::string, 256>& utf8Table() {
  static const std::array<std::string, 256> table = [] {
    std::array<std::string, 256> t;
    for (int byte = 0; byte < 256; ++byte) {
      t[byte] = convertText(std::string(1, static_cast<char>(byte)), "UTF-8", "WINDOWS-1251")
                    .value_or("\xEF\xBF\xBD");
    }
    return t;
  }();
  return table;
}

bool disliked(unsigned char byte, bool first) {
  if (byte < 0x20 || byte == 0x7F || byte == 0x98) return true;
  if (first && byte == '.') return true;
  return std::strchr("/\\:*?\"<>|%", byte) != nullptr;
}

int hexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

std::string utf8FromCp1251(std::string_view bytes) {
  std::string out;
  for (char c : bytes) out += utf8Table()[static_cast<unsigned char>(c)];
  return out;
}

std::string promptFileStem(std::string_view name) {
  std::string file;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const auto byte = static_cast<unsigned char>(name[i]);
    if (disliked(byte, i == 0)) {
      char escaped[4];
      std::snprintf(escaped, sizeof escaped, "%%%02X", byte);
      file += escaped;
    } else {
      file += utf8Table()[byte];
    }
  }
  return file;
}

std::optional<std::string> promptNameOfStem(std::string_view stem) {
  std::string name;
  std::string run;  // UTF-8 between escapes
  const auto flush = [&]() -> bool {
    if (run.empty()) return true;
    const auto bytes = convertText(run, "WINDOWS-1251", "UTF-8");
    if (!bytes) return false;
    name += *bytes;
    run.clear();
    return true;
  };
  for (std::size_t i = 0; i < stem.size(); ++i) {
    if (stem[i] != '%') {
      run += stem[i];
      continue;
    }
    if (i + 2 >= stem.size() || hexValue(stem[i + 1]) < 0 || hexValue(stem[i + 2]) < 0 || !flush())
      return std::nullopt;
    name += static_cast<char>(hexValue(stem[i + 1]) * 16 + hexValue(stem[i + 2]));
    i += 2;
  }
  if (!flush() || promptFileStem(name) != stem) return std::nullopt;
  return name;
}

}  // namespace vela::audio
