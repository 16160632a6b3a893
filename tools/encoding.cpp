#include "tools/encoding.h"

#include <iconv.h>

#include <array>
#include <cstdio>
#include <cstring>

#include "audio/render.h"

namespace vela::tools {
namespace {

// The UTF-8 spelling of every Windows-1251 byte, built once with iconv.
const std::array<std::string, 256>& utf8Table() {
  static const std::array<std::string, 256> table = [] {
    std::array<std::string, 256> t;
    for (int byte = 0; byte < 256; ++byte) {
      const std::string one(1, static_cast<char>(byte));
      t[byte] = convert(one, "UTF-8", "WINDOWS-1251").value_or("\xEF\xBF\xBD");
    }
    return t;
  }();
  return table;
}

}  // namespace

std::optional<std::string> convert(const std::string& text, const char* to, const char* from) {
  iconv_t cd = iconv_open(to, from);
  if (cd == reinterpret_cast<iconv_t>(-1))  // NOLINT(performance-no-int-to-ptr): iconv's error value
    return std::nullopt;
  std::string in = text;
  std::string out(text.size() * 4 + 4, '\0');
  char* inPtr = in.data();
  char* outPtr = out.data();
  std::size_t inLeft = in.size();
  std::size_t outLeft = out.size();
  const std::size_t rc = iconv(cd, &inPtr, &inLeft, &outPtr, &outLeft);
  iconv_close(cd);
  if (rc == static_cast<std::size_t>(-1) || rc > 0) return std::nullopt;  // rc > 0: lossy conversion
  out.resize(out.size() - outLeft);
  return out;
}

std::string utf8FromCp1251(const std::string& bytes) {
  std::string out;
  for (char c : bytes) out += utf8Table()[static_cast<unsigned char>(c)];
  return out;
}

std::string recordingFileName(const std::string& name) { return audio::promptFileStem(name) + ".wav"; }

bool skipByteOrderMark(std::string& text) {
  if (text.rfind("\xEF\xBB\xBF", 0) != 0) return false;
  text.erase(0, 3);
  return true;
}

}  // namespace vela::tools
