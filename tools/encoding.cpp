#include "tools/encoding.h"

#include "audio/render.h"

namespace vela::tools {

std::optional<std::string> convert(const std::string& text, const char* to, const char* from) {
  return audio::convertText(text, to, from);
}

std::string utf8FromCp1251(const std::string& bytes) { return audio::utf8FromCp1251(bytes); }

std::string recordingFileName(const std::string& name) { return audio::promptFileStem(name) + ".wav"; }

bool skipByteOrderMark(std::string& text) {
  if (text.rfind("\xEF\xBB\xBF", 0) != 0) return false;
  text.erase(0, 3);
  return true;
}

}  // namespace vela::tools
