// Where each platform finds an exported prompt, and the map of Debian's
// Asterisk recordings.
#include "audio/platforms.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using vela::audio::Encoding;
using vela::audio::Layout;

TEST(PlatformsTest, ExportTargetsAreWherePlatformsLook) {
  struct Row {
    Layout layout;
    std::vector<int> rates;
    Encoding encoding;
    bool headerless;
    std::vector<std::string> paths;  // folder + "/NAME" + extension, "" when refused
  };
  // clang-format off
  const Row rows[] = {
      {Layout::asterisk, {}, Encoding::pcm16, false, {"D/sounds/ru/vela/NAME.wav"}},
      {Layout::asterisk, {16000}, Encoding::pcm16, false, {"D/sounds/ru/vela/NAME.wav16"}},
      {Layout::asterisk, {8000, 16000}, Encoding::pcm16, true, {"D/sounds/ru/vela/NAME.sln", "D/sounds/ru/vela/NAME.sln16"}},
      {Layout::asterisk, {}, Encoding::alaw, false, {"D/sounds/ru/vela/NAME.alaw"}},
      {Layout::asterisk, {16000}, Encoding::ulaw, false, {""}},  // .ulaw and .alaw are 8 kHz only
      {Layout::asterisk, {44100}, Encoding::pcm16, false, {""}},
      {Layout::freeswitch, {}, Encoding::pcm16, false, {"D/ru/ru/v/vela/8000/NAME.wav", "D/ru/ru/v/vela/16000/NAME.wav"}},
      {Layout::freeswitch, {48000}, Encoding::ulaw, false, {"D/ru/ru/v/vela/48000/NAME.wav"}},
      {Layout::freeswitch, {}, Encoding::pcm16, true, {""}},
  };
  // clang-format on
  for (const Row& row : rows) {
    // layout, destination, language, region, voice name, rates, encoding, headerless
    const auto targets =
        vela::audio::exportTargets({row.layout, "D", "ru", "", "v", row.rates, row.encoding, row.headerless});
    std::vector<std::string> paths(targets ? 0 : 1, "");
    if (targets)
      for (const auto& t : *targets) {
        paths.push_back(t.folder + "/NAME" + t.extension);
        EXPECT_EQ(t.format.encoding, row.encoding);
      }
    EXPECT_EQ(paths, row.paths) << row.paths[0];
  }
}

TEST(PlatformsTest, AsteriskMapRowsAreWholeAndUnique) {
  for (const char* language : {"ru", "en"}) {
    const auto rows = vela::audio::asteriskSounds(language);
    EXPECT_GT(rows.size(), 50u) << language;
    std::set<std::string> prompts;
    for (const auto& row : rows) {
      EXPECT_TRUE(prompts.insert(row.prompt).second) << "one recording per prompt: " << row.prompt;
      EXPECT_FALSE(row.sound.empty() || row.transcript.empty()) << row.prompt;
      EXPECT_TRUE(vela::audio::promptNameOfStem(row.prompt).has_value()) << row.prompt;
    }
  }
  EXPECT_TRUE(vela::audio::asteriskSounds("uk").empty());
}

}  // namespace
