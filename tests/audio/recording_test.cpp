// The one recording check: bad files of every kind get their own error, fast,
// and an output file is written whole or not at all, even when killed.
#include <signal.h>
#include <sys/wait.h>

#include <chrono>
#include <fstream>

#include "audio/output_file.h"
#include "audio/render.h"
#include "tests/audio/audio_test_support.h"

namespace {

namespace fs = std::filesystem;
using vela::audio::Fault;

void writeBytes(const fs::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

class RecordingTest : public vela::testing::ScratchTest {};

TEST_F(RecordingTest, BadFilesGetTheirOwnErrorQuickly) {
  // The kinds the tool's commands meet are tested with them; these are the rest.
  const struct {
    const char* file;
    void (*make)(const fs::path&);
    Fault fault;
    const char* says;
  } rows[] = {
      {"dangling.wav", [](const fs::path& p) { fs::create_symlink("nowhere.wav", p); }, Fault::missing,
       "no such file"},
      {"cut.wav",
       [](const fs::path& p) {
         vela::testing::writeTone(p, 8000, 1, 1000);
         fs::resize_file(p, 100);
       },
       Fault::truncated, "ends after 56 of the 2000 bytes"},
      {"noframes.wav", [](const fs::path& p) { vela::testing::writeTone(p, 8000, 1, 0); }, Fault::empty,
       "no sound"},
      {"odd.sln", [](const fs::path& p) { writeBytes(p, "abc"); }, Fault::truncated, "inside a sample"},
  };
  for (const auto& row : rows) {
    const fs::path path = dir_ / row.file;
    row.make(path);
    const auto start = std::chrono::steady_clock::now();
    const auto sound = vela::audio::readRecording(path.string());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1)) << row.file;
    ASSERT_FALSE(sound) << row.file;
    EXPECT_EQ(sound.error().fault, row.fault) << row.file << ": " << sound.error().message;
    EXPECT_NE(sound.error().message.find(row.says), std::string::npos) << sound.error().message;
    EXPECT_NE(sound.error().message.find(row.file), std::string::npos) << "the message names the file";
  }
}

TEST_F(RecordingTest, HeaderlessFilesAreReadByTheirExtension) {
  // 800 bytes: 400 frames of 16-bit samples, or 800 of 8-bit mu-law or A-law.
  for (const auto& [file, rate, frames] :
       {std::tuple{"a.sln", 8000, 400}, std::tuple{"a.sln16", 16000, 400}, std::tuple{"a.alaw", 8000, 800}}) {
    writeBytes(dir_ / file, std::string(800, '\x55'));
    const auto sound = vela::audio::readRecording((dir_ / file).string());
    ASSERT_TRUE(sound) << sound.error().message;
    EXPECT_EQ(std::tuple(sound->info.rate, sound->info.frames, sound->info.channels),
              std::tuple(rate, frames, 1))
        << file;
  }
}

TEST_F(RecordingTest, TheFirstFolderWithAFileWinsAndExtensionsKeepTheirOrder) {
  for (const char* folder : {"real", "demo"}) fs::create_directories(dir_ / folder);
  // real/a.wav is found first, and reported rather than skipped: "x" is no recording.
  for (const char* file : {"real/a.sln", "real/a.wav", "demo/a.wav", "demo/b.ulaw", "demo/b.flac"})
    writeBytes(dir_ / file, "x");
  const vela::audio::Voice voice{{(dir_ / "real").string(), (dir_ / "demo").string()}};
  EXPECT_EQ(vela::audio::findRecording(voice, "a"), (dir_ / "real" / "a.wav").string());
  EXPECT_EQ(vela::audio::findRecording(voice, "b"), (dir_ / "demo" / "b.flac").string());
  EXPECT_EQ(vela::audio::findRecording(voice, "c"), std::nullopt);
  const auto a = vela::audio::loadPrompt(voice, "a");
  ASSERT_FALSE(a);
  EXPECT_EQ(a.error().fault, Fault::unreadable);
  EXPECT_EQ(vela::audio::loadPrompt(voice, "c").error().fault, Fault::missing);
}

TEST_F(RecordingTest, OutputIsWholeOrAbsentEvenWhenTheProcessIsKilled) {
  const fs::path out = dir_ / "out.wav";
  ASSERT_FALSE(vela::audio::writeOutputFile(out.string(), "complete"));
  std::string content;
  std::ifstream(out) >> content;
  EXPECT_EQ(content, "complete");
  EXPECT_TRUE(vela::audio::writeOutputFile((dir_ / "no" / "such" / "folder.wav").string(), "x"));

  // A child writes a large file; SIGTERM while the partial file exists.
  const fs::path big = dir_ / "big.wav";
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    const std::string bytes(256u << 20, 'x');
    vela::audio::writeOutputFile(big.string(), bytes);
    _exit(0);
  }
  const fs::path partial = big.string() + ".partial-" + std::to_string(child);
  const auto start = std::chrono::steady_clock::now();
  while (!fs::exists(partial) && std::chrono::steady_clock::now() - start < std::chrono::seconds(20))
    usleep(200);
  kill(child, SIGTERM);
  int status = 0;
  waitpid(child, &status, 0);
  if (WIFEXITED(status)) GTEST_SKIP() << "the write finished before the signal";
  EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
  EXPECT_FALSE(fs::exists(partial)) << "the partial file is removed";
  EXPECT_FALSE(fs::exists(big));
}

}  // namespace
