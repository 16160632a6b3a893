#include "support/source_words.h"

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "tools/encoding.h"

namespace vela::testing {

bool isUnitLetter(unsigned char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c >= 0xC0; }

const std::vector<std::string>& sourceWords() {
  static const std::vector<std::string> words = [] {
    std::set<std::string> found;
    const std::regex literal("\"([^\"\\\\\\n]{1,40})\"");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(VELA_SOURCE_DIR "/languages")) {
      if (!entry.is_regular_file()) continue;
      std::ifstream in(entry.path());
      std::stringstream text;
      text << in.rdbuf();
      const std::string source = text.str();
      for (auto m = std::sregex_iterator(source.begin(), source.end(), literal); m != std::sregex_iterator();
           ++m) {
        const auto cp = tools::convert((*m)[1].str(), "WINDOWS-1251", "UTF-8");
        if (!cp) continue;
        bool letters = true;
        for (char c : *cp) letters = letters && isUnitLetter(static_cast<unsigned char>(c));
        if (letters) found.insert(*cp);
      }
    }
    return std::vector<std::string>(found.begin(), found.end());
  }();
  return words;
}

}  // namespace vela::testing
