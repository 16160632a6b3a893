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
  const Row rows[] = {
      {Layout::asterisk, {}, Encoding::pcm16, false, {"D/sounds/ru/vela/NAME.wav"}},
      {Layout::asterisk, {16000}, Encoding::pcm16, false, {"D/sounds/ru/vela/NAME.wav16"}},
      {Layout::asterisk,
       {8000, 16000},
       Encoding::pcm16,
       true,
       {"D/sounds/ru/vela/NAME.sln", "D/sounds/ru/vela/NAME.sln16"}},
      {Layout::asterisk, {}, Encoding::alaw, false, {"D/sounds/ru/vela/NAME.alaw"}},
      {Layout::asterisk, {16000}, Encoding::ulaw, false, {""}},
      {Layout::asterisk, {44100}, Encoding::pcm16, false, {""}},
      {Layout::freeswitch,
       {},
       Encoding::pcm16,
       false,
       {"D/ru/ru/v/vela/8000/NAME.wav", "D/ru/ru/v/vela/16000/NAME.wav"}},
      {Layout::freeswitch, {48000}, Encoding::ulaw, false, {"D/ru/ru/v/vela/48000/NAME.wav"}},
      {Layout::freeswitch, {}, Encoding::pcm16, true, {""}},
  };
  for (const Row& row : rows) {
    vela::audio::ExportRequest request;
    request.layout = row.layout;
    request.destination = "D";
    request.language = "ru";
    request.voiceName = "v";
    request.rates = row.rates;
    request.encoding = row.encoding;
    request.headerless = row.headerless;
    const auto targets = vela::audio::exportTargets(request);
    std::vector<std::string> paths;
    if (!targets) {
      paths.push_back("");
    } else {
      for (const auto& t : *targets) {
        paths.push_back(t.folder + "/NAME" + t.extension);
        EXPECT_EQ(t.format.encoding, row.encoding);
      }
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
