// The one recording check: bad files of every kind get their own error, fast,
// and an output file is written whole or not at all, even when killed.
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <chrono>
#include <fstream>

#include "audio/output_file.h"
#include "audio/render.h"
#include "tests/audio/audio_test_support.h"

namespace {

namespace fs = std::filesystem;
using vela::audio::Fault;

void put(std::string& out, unsigned value, int bytes) {
  for (int i = 0; i < bytes; ++i) out += static_cast<char>((value >> (8 * i)) & 0xFF);
}

// A 16-bit mono WAV header that declares `rate` and `dataBytes`, and the data.
std::string wavBytes(unsigned rate, unsigned dataBytes, unsigned presentBytes) {
  std::string w = "RIFF";
  put(w, 36 + dataBytes, 4);
  w += "WAVEfmt ";
  for (unsigned v : {16u, 1u | (1u << 16), rate, rate * 2, 2u | (16u << 16)}) put(w, v, 4);
  w += "data";
  put(w, dataBytes, 4);
  for (unsigned i = 0; i < presentBytes; ++i) w += static_cast<char>(i * 7);
  return w;
}

void writeBytes(const fs::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

class RecordingTest : public vela::testing::ScratchTest {};

TEST_F(RecordingTest, BadFilesGetTheirOwnErrorQuickly) {
  struct Row {
    const char* file;
    void (*make)(const fs::path&);
    Fault fault;
    const char* says;
  };
  const Row rows[] = {
      {"fifo.wav", [](const fs::path& p) { mkfifo(p.c_str(), 0600); }, Fault::notAFile, "a FIFO"},
      {"folder.wav", [](const fs::path& p) { fs::create_directory(p); }, Fault::notAFile, "a directory"},
      {"loop.wav", [](const fs::path& p) { fs::create_symlink(p.filename(), p); }, Fault::notAFile, "loop"},
      {"dangling.wav", [](const fs::path& p) { fs::create_symlink("nowhere.wav", p); }, Fault::missing,
       "no such file"},
      {"empty.wav", [](const fs::path& p) { writeBytes(p, ""); }, Fault::empty, "empty"},
      {"text.wav", [](const fs::path& p) { writeBytes(p, "hello, I am not a recording\n"); },
       Fault::unreadable, "not audio"},
      {"cut.wav", [](const fs::path& p) { writeBytes(p, wavBytes(8000, 2000, 56)); }, Fault::truncated,
       "ends after 56 of the 2000 bytes"},
      {"rate.wav", [](const fs::path& p) { writeBytes(p, wavBytes(2000000000, 200, 200)); },
       Fault::outOfBounds, "2000000000 Hz"},
      {"noframes.wav", [](const fs::path& p) { writeBytes(p, wavBytes(8000, 0, 0)); }, Fault::empty,
       "no sound"},
      {"odd.sln", [](const fs::path& p) { writeBytes(p, "abc"); }, Fault::truncated, "inside a sample"},
  };
  for (const Row& row : rows) {
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
  struct Row {
    const char* file;
    std::string bytes;
    int rate;
    long frames;
  };
  const Row rows[] = {
      {"a.sln", std::string(800, '\1'), 8000, 400},
      {"a.sln16", std::string(800, '\1'), 16000, 400},
      {"a.ulaw", std::string(800, '\x55'), 8000, 800},
      {"a.alaw", std::string(800, '\x55'), 8000, 800},
  };
  for (const Row& row : rows) {
    writeBytes(dir_ / row.file, row.bytes);
    const auto sound = vela::audio::readRecording((dir_ / row.file).string());
    ASSERT_TRUE(sound) << sound.error().message;
    EXPECT_EQ(sound->info.rate, row.rate) << row.file;
    EXPECT_EQ(sound->info.frames, row.frames) << row.file;
    EXPECT_EQ(sound->info.channels, 1);
  }
}

TEST_F(RecordingTest, TheFirstFolderWithAFileWinsAndExtensionsKeepTheirOrder) {
  fs::create_directories(dir_ / "real");
  fs::create_directories(dir_ / "demo");
  writeBytes(dir_ / "real" / "a.sln", "xx");
  writeBytes(dir_ / "real" / "a.wav", "not audio");  // found first, and reported rather than skipped
  writeBytes(dir_ / "demo" / "a.wav", "x");
  writeBytes(dir_ / "demo" / "b.ulaw", "x");
  writeBytes(dir_ / "demo" / "b.flac", "x");
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
  std::ifstream in(out);
  std::string content;
  in >> content;
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
