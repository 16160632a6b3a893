// Recordings: the file names of prompts, the recordings check, and `vela say`
// over a voice of generated tones.
#include <gtest/gtest.h>
#include <sndfile.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "tools/encoding.h"

namespace fs = std::filesystem;

namespace {

TEST(RecordingFileNameTest, Table) {
  struct Row {
    const char* name;  // Windows-1251
    const char* file;  // UTF-8
  };
  const Row rows[] = {
      {"\xF0\xF3\xE1\xEB\xFC", "рубль.wav"},
      {"\xF1"
       "ent",
       "сent.wav"},  // a Cyrillic с inside a Latin word stays Cyrillic
      {"one", "one.wav"},
      {"a/b", "a%2Fb.wav"},
      {"50%", "50%25.wav"},
      {".hidden", "%2Ehidden.wav"},
      {"a.b", "a.b.wav"},
      {"q?*:\"<>|\\", "q%3F%2A%3A%22%3C%3E%7C%5C.wav"},
      {"\x98\x01", "%98%01.wav"},
  };
  for (const Row& row : rows) EXPECT_EQ(vela::tools::recordingFileName(row.name), row.file) << row.file;
}

// A scratch directory per test, removed afterwards.
class VoiceTest : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ = fs::path(::testing::TempDir()) / ("vela_voice_" + std::to_string(getpid()) + "_" +
                                             ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(dir_);
    fs::create_directories(dir_ / "voice");
  }
  void TearDown() override { fs::remove_all(dir_); }

  // A sine tone of `frames` frames; sample i of channel c is tone(i, c).
  static short tone(sf_count_t i, int c) {
    return static_cast<short>(1000 * std::sin(0.05 * i) + 100 * c + 1);
  }
  void writeTone(const std::string& file, int rate, int channels, sf_count_t frames) {
    SF_INFO info{};
    info.samplerate = rate;
    info.channels = channels;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    SNDFILE* f = sf_open((dir_ / "voice" / file).c_str(), SFM_WRITE, &info);
    ASSERT_NE(f, nullptr) << sf_strerror(nullptr);
    std::vector<short> samples;
    for (sf_count_t i = 0; i < frames; ++i) {
      for (int c = 0; c < channels; ++c) samples.push_back(tone(i, c));
    }
    sf_writef_short(f, samples.data(), frames);
    sf_close(f);
  }

  // Runs the tool; standard output and error together in `out`.
  int run(const std::string& args, std::string* out = nullptr) {
    const fs::path log = dir_ / "log";
    const int raw =
        std::system((std::string(VELA_TOOL_PATH) + " " + args + " >" + log.string() + " 2>&1").c_str());
    std::ifstream in(log);
    std::stringstream s;
    s << in.rdbuf();
    if (out != nullptr) *out = s.str();
    return WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  }

  std::string voice() const { return (dir_ / "voice").string(); }
  std::string output() const { return (dir_ / "x.wav").string(); }

  fs::path dir_;
};

// 21руб is двадцать один рубль.
TEST_F(VoiceTest, SayJoinsRecordingsWithPauses) {
  writeTone("двадцать.wav", 8000, 2, 800);
  writeTone("один.wav", 8000, 2, 1200);
  writeTone("рубль.wav", 8000, 2, 1600);
  std::string log;
  ASSERT_EQ(run("say -l ru --voice " + voice() + " -o " + output() + " --pause 100 21руб", &log), 0) << log;

  SF_INFO info{};
  SNDFILE* f = sf_open(output().c_str(), SFM_READ, &info);
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(info.samplerate, 8000);
  EXPECT_EQ(info.channels, 2);
  EXPECT_EQ(info.format, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  EXPECT_EQ(info.frames, 800 + 800 + 1200 + 800 + 1600);  // 100 ms at 8000 Hz between two prompts
  std::vector<short> samples(static_cast<std::size_t>(info.frames * 2));
  sf_readf_short(f, samples.data(), info.frames);
  sf_close(f);
  // Each recording starts where the sums say, sample for sample; silence between.
  struct Piece {
    sf_count_t start, frames;
  };
  for (const Piece& p : {Piece{0, 800}, Piece{1600, 1200}, Piece{3600, 1600}}) {
    for (sf_count_t i = 0; i < p.frames; i += 97) {
      for (int c = 0; c < 2; ++c)
        ASSERT_EQ(samples[static_cast<std::size_t>((p.start + i) * 2 + c)], tone(i, c));
    }
  }
  for (sf_count_t i = 800; i < 1600; ++i) ASSERT_EQ(samples[static_cast<std::size_t>(i * 2)], 0);
}

TEST_F(VoiceTest, SayRefusesMissingOrMismatchedRecordingsAndLeavesNoOutput) {
  struct Row {
    const char* mismatched;  // written at 16000 Hz instead of 8000, or ""
    const char* missing;     // not written, or ""
    const char* message;
  };
  const Row rows[] = {
      {"", "рубль.wav", "рубль.wav"},
      {"один.wav", "", "один.wav has 16000 Hz"},
  };
  for (const Row& row : rows) {
    fs::remove_all(voice());
    fs::create_directories(voice());
    for (const char* file : {"двадцать.wav", "один.wav", "рубль.wav"}) {
      if (std::string(file) == row.missing) continue;
      writeTone(file, std::string(file) == row.mismatched ? 16000 : 8000, 1, 100);
    }
    std::ofstream(output()) << "before";
    std::string log;
    EXPECT_EQ(run("say -l ru --voice " + voice() + " -o " + output() + " 21руб", &log), 1) << row.message;
    EXPECT_NE(log.find(row.message), std::string::npos) << log;
    std::ifstream kept(output());
    std::string content;
    kept >> content;
    EXPECT_EQ(content, "before") << "the old output must stay as it was";
    EXPECT_EQ(std::distance(fs::directory_iterator(dir_), fs::directory_iterator()), 3)
        << "no partial file left";
  }
}

TEST_F(VoiceTest, CheckListsTheRecordingsNotThere) {
  // Each line of --files: the name, a tab, its recording's file name.
  std::string listing;
  ASSERT_EQ(run("prompts -l uk --files", &listing), 0);
  std::istringstream lines(listing);
  std::vector<std::string> names;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t tab = line.find('\t');
    ASSERT_NE(tab, std::string::npos) << line;
    names.push_back(line.substr(0, tab));
    std::ofstream(fs::path(voice()) / line.substr(tab + 1)) << "";
  }
  ASSERT_GT(names.size(), 50u);
  std::string log;
  EXPECT_EQ(run("prompts -l uk --check " + voice(), &log), 0) << log;
  EXPECT_NE(log.find("0 of " + std::to_string(names.size()) + " recordings missing"), std::string::npos)
      << log;

  fs::remove(fs::path(voice()) / (names[7] + ".wav"));
  EXPECT_EQ(run("prompts -l uk --check " + voice(), &log), 1);
  EXPECT_EQ(log.substr(0, log.find('\n')), names[7]);
}

}  // namespace
