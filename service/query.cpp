#include "service/query.h"

#include <iconv.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <vector>

namespace vela::service {
namespace {

int hexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// The conversion descriptors of this thread, opened once: iconv_open loads
// and sets up a converter, which costs more than converting a short text.
class Converters {
 public:
  ~Converters() {
    for (const auto& [key, cd] : open_) iconv_close(cd);
  }
  // The descriptor for from -> to (string literals), reset to its initial
  // state; (iconv_t)-1 when the system has no such conversion.
  iconv_t get(const char* to, const char* from) {
    for (const auto& [key, cd] : open_)
      if (key.first == to && key.second == from) {
        iconv(cd, nullptr, nullptr, nullptr, nullptr);
        return cd;
      }
    iconv_t cd = iconv_open(to, from);
    if (cd != reinterpret_cast<iconv_t>(-1))
      open_.push_back({{to, from}, cd});  // NOLINT(performance-no-int-to-ptr)
    return cd;
  }

 private:
  std::vector<std::pair<std::pair<const char*, const char*>, iconv_t>> open_;
};

// One iconv conversion. On failure, `failedAt` is the input offset where it
// stopped and the result is nullopt.
std::optional<std::string> iconvert(std::string_view in, const char* to, const char* from,
                                    std::size_t& failedAt) {
  thread_local Converters converters;
  iconv_t cd = converters.get(to, from);
  if (cd == reinterpret_cast<iconv_t>(-1)) {  // NOLINT(performance-no-int-to-ptr): iconv's error value
    failedAt = 0;
    return std::nullopt;
  }
  std::string input(in);
  std::string out(in.size() * 4 + 4, '\0');
  char* inPtr = input.data();
  char* outPtr = out.data();
  std::size_t inLeft = input.size();
  std::size_t outLeft = out.size();
  const std::size_t rc = iconv(cd, &inPtr, &inLeft, &outPtr, &outLeft);
  if (rc == static_cast<std::size_t>(-1) || rc > 0) {  // rc > 0: a lossy conversion
    failedAt = input.size() - inLeft;
    return std::nullopt;
  }
  out.resize(out.size() - outLeft);
  return out;
}

bool isAscii(std::string_view text) {
  for (const char c : text)
    if (static_cast<unsigned char>(c) >= 0x80) return false;
  return true;
}

// The UTF-8 spelling of every Windows-1251 byte; the undefined 0x98 is U+FFFD.
const std::array<std::string, 256>& utf8Table() {
  static const std::array<std::string, 256> table = [] {
    std::array<std::string, 256> t;
    for (int byte = 0; byte < 256; ++byte) {
      std::size_t failedAt = 0;
      t[byte] = iconvert(std::string(1, static_cast<char>(byte)), "UTF-8", "WINDOWS-1251", failedAt)
                    .value_or("\xEF\xBF\xBD");
    }
    return t;
  }();
  return table;
}

}  // namespace

const std::string* Target::find(std::string_view key) const {
  for (const auto& [k, v] : params)
    if (k == key) return &v;
  return nullptr;
}

std::optional<std::string> percentDecode(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      out += text[i];
      continue;
    }
    if (i + 2 >= text.size()) return std::nullopt;
    const int high = hexValue(text[i + 1]);
    const int low = hexValue(text[i + 2]);
    if (high < 0 || low < 0) return std::nullopt;
    out += static_cast<char>(high * 16 + low);
    i += 2;
  }
  return out;
}

std::optional<std::string> parseTarget(std::string_view raw, Target& target) {
  const std::size_t question = raw.find('?');
  target.path = std::string(raw.substr(0, question));
  target.params.clear();
  if (target.path.empty() || target.path[0] != '/') return "the request target must start with \"/\"";
  if (question == std::string_view::npos) return std::nullopt;
  std::string_view query = raw.substr(question + 1);
  while (!query.empty()) {
    const std::size_t amp = query.find_first_of("&;");
    std::string pair(query.substr(0, amp));
    query = amp == std::string_view::npos ? std::string_view() : query.substr(amp + 1);
    if (pair.empty()) continue;
    for (char& c : pair)
      if (c == '+') c = ' ';
    const std::size_t eq = pair.find('=');
    std::optional<std::string> key = percentDecode(std::string_view(pair).substr(0, eq));
    std::optional<std::string> value =
        eq == std::string::npos ? std::string() : percentDecode(std::string_view(pair).substr(eq + 1));
    if (!key || !value) return "bad percent-encoding in the query (a \"%\" needs two hexadecimal digits)";
    if (key->find('\0') != std::string::npos || value->find('\0') != std::string::npos)
      return "a NUL character in the query";
    target.params.emplace_back(std::move(*key), std::move(*value));
  }
  return std::nullopt;
}

Converted toCp1251(std::string_view utf8) {
  if (isAscii(utf8)) return {std::string(utf8), ""};  // the same bytes in both
  std::size_t failedAt = 0;
  const std::optional<std::string> codePoints = iconvert(utf8, "UTF-32LE", "UTF-8", failedAt);
  if (!codePoints) return {"", "invalid UTF-8 at byte " + std::to_string(failedAt)};
  std::optional<std::string> bytes = iconvert(utf8, "WINDOWS-1251", "UTF-8", failedAt);
  if (bytes) return {std::move(*bytes), ""};
  // Name the first character the code page lacks: convert one at a time.
  for (std::size_t i = 0; i + 4 <= codePoints->size(); i += 4) {
    std::size_t ignored = 0;
    if (!iconvert(std::string_view(*codePoints).substr(i, 4), "WINDOWS-1251", "UTF-32LE", ignored)) {
      const auto* p = reinterpret_cast<const unsigned char*>(codePoints->data() + i);
      const unsigned long cp = p[0] | (p[1] << 8) | (p[2] << 16) | (static_cast<unsigned long>(p[3]) << 24);
      char name[16];
      std::snprintf(name, sizeof name, "U+%04lX", cp);
      return {"", std::string("character ") + name + " is not in Windows-1251"};
    }
  }
  return {"", "a character is not in Windows-1251"};
}

std::string toUtf8(std::string_view cp1251) {
  std::string out;
  out.reserve(cp1251.size() * 2);
  for (char c : cp1251) out += utf8Table()[static_cast<unsigned char>(c)];
  return out;
}

}  // namespace vela::service
