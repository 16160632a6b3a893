// The voice commands of the tool: say, voice check|export|import and the
// recording script, run as a user runs them.
#include <sys/stat.h>
#include <sys/wait.h>

#include <chrono>
#include <fstream>
#include <sstream>

#include "audio/render.h"
#include "tests/audio/audio_test_support.h"
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
  for (const Row& row : rows) {
    EXPECT_EQ(vela::tools::recordingFileName(row.name), row.file) << row.file;
    const std::string stem = std::string(row.file).substr(0, std::string(row.file).size() - 4);
    EXPECT_EQ(vela::audio::promptNameOfStem(stem), row.name) << "back from " << row.file;
  }
  for (const char* notOurs : {"%2", "%zz", "a%2e", "%41", ".x"})
    EXPECT_EQ(vela::audio::promptNameOfStem(notOurs), std::nullopt) << notOurs;
}

class VoiceToolTest : public vela::testing::ScratchTest {
 protected:
  void SetUp() override {
    ScratchTest::SetUp();
    fs::create_directories(voice());
  }

  // Runs the tool, standard output and error together in `out`; the exit status.
  int run(const std::string& args, std::string* out = nullptr) {
    const fs::path log = dir_ / "log";
    const std::string command =
        "timeout 20 " + std::string(VELA_TOOL_PATH) + " " + args + " >" + log.string() + " 2>&1";
    const int raw = std::system(command.c_str());
    std::ifstream in(log);
    std::stringstream s;
    s << in.rdbuf();
    if (out != nullptr) *out = s.str();
    fs::remove(log);
    return WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  }

  std::string voice() const { return (dir_ / "voice").string(); }
  std::string output(const char* name = "x.wav") const { return (dir_ / name).string(); }
  // 21руб is двадцать один рубль.
  void writeVoice(int rate = 16000) {
    for (const char* file : {"двадцать.wav", "один.wav", "рубль.wav"})
      vela::testing::writeTone(fs::path(voice()) / file, rate, 1, rate / 2);
  }
};

TEST_F(VoiceToolTest, SayWritesWhatAPlatformPlays) {
  writeVoice();
  vela::testing::writeTone(fs::path(voice()) / "один.wav", 44100, 2, 22050);  // an outlier is converted
  struct Row {
    const char* out;
    const char* options;
    int rate;
    int format;  // 0: headerless
    long bytes;  // headerless: its size
  };
  const Row rows[] = {
      {"x.wav", "--rate 8000 --encoding ulaw", 8000, SF_FORMAT_WAV | SF_FORMAT_ULAW, 0},
      {"x.wav", "", 16000, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 0},
      {"x.ulaw", "", 8000, 0, 12000 + 2 * 1200},
      {"x.sln16", "--pause 0", 16000, 0, 2 * 24000},
      {"x.out", "--format alaw --rate 16000", 16000, 0, 24000 + 2 * 2400},
  };
  for (const Row& row : rows) {
    std::string log;
    ASSERT_EQ(
        run("say -l ru --voice " + voice() + " " + row.options + " -o " + output(row.out) + " 21руб", &log),
        0)
        << row.out << " " << row.options << ": " << log;
    if (row.format == 0) {
      EXPECT_NEAR(static_cast<double>(fs::file_size(output(row.out))), row.bytes, 8)
          << row.out << " " << row.options;
      continue;
    }
    const auto back = vela::testing::readBack(output(row.out));
    EXPECT_EQ(back.info.format, row.format) << row.options;
    EXPECT_EQ(back.info.samplerate, row.rate) << row.options;
    EXPECT_EQ(back.info.channels, 1) << row.options;
  }
  // To standard output: the same bytes (nothing on standard error).
  std::string piped;
  ASSERT_EQ(run("say -l ru --voice " + voice() + " -o - 21руб", &piped), 0);
  ASSERT_EQ(run("say -l ru --voice " + voice() + " -o " + output() + " 21руб"), 0);
  std::ifstream file(output(), std::ios::binary);
  std::stringstream written;
  written << file.rdbuf();
  EXPECT_TRUE(piped == written.str())
      << piped.size() << " bytes on standard output, " << written.str().size() << " in the file";
}

// Each bad recording: say and the check give the same kind of error, say
// quickly, leaving the old output as it was and nothing else behind. One
// prompt per kind of fault, so that one check sees them all.
TEST_F(VoiceToolTest, BadRecordingsAreRefusedAlikeByEveryCommand) {
  struct Row {
    const char* text;    // a number read as one prompt
    const char* prompt;  // its recording is made bad
    const char* kind;
    void (*make)(const fs::path&);
  };
  const Row rows[] = {
      {"1", "один", "not-a-file", [](const fs::path& p) { mkfifo(p.c_str(), 0600); }},
      {"2", "два", "not-a-file", [](const fs::path& p) { fs::create_directory(p); }},
      {"3", "три", "not-a-file", [](const fs::path& p) { fs::create_symlink(p.filename(), p); }},
      {"4", "четыре", "empty", [](const fs::path& p) { std::ofstream{p}; }},
      {"5", "пять", "unreadable", [](const fs::path& p) { std::ofstream(p) << "a text file named .wav\n"; }},
      {"6", "шесть", "truncated",
       [](const fs::path& p) {
         vela::testing::writeTone(p, 8000, 1, 4000);
         fs::resize_file(p, 100);
       }},
      {"7", "семь", "out-of-bounds",
       [](const fs::path& p) {  // the header's rate field says 2,000,000,000 Hz
         vela::testing::writeTone(p, 8000, 1, 4000);
         std::fstream f(p, std::ios::in | std::ios::out | std::ios::binary);
         f.seekp(24);
         const unsigned char rate[4] = {0x00, 0x94, 0x35, 0x77};
         f.write(reinterpret_cast<const char*>(rate), 4);
       }},
  };
  for (const Row& row : rows) row.make(fs::path(voice()) / (std::string(row.prompt) + ".wav"));
  std::ofstream(output()) << "before";
  for (const Row& row : rows) {
    std::string log;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(run("say -l ru --voice " + voice() + " -o " + output() + " " + row.text, &log), 1) << row.kind;
    // The library answers within a second (recording_test.cpp); a whole process
    // under the sanitizers on a busy machine gets more, but never hangs.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << row.kind;
    EXPECT_NE(log.find(std::string(row.prompt) + ".wav"), std::string::npos) << log;
    std::ifstream kept(output());
    std::string content;
    kept >> content;
    EXPECT_EQ(content, "before") << row.kind;
    EXPECT_EQ(std::distance(fs::directory_iterator(dir_), fs::directory_iterator()), 2) << "no partial file";
  }
  std::string log;
  EXPECT_EQ(run("voice check -l ru --json " + voice(), &log), 1);
  for (const Row& row : rows) {
    const std::string file = (fs::path(voice()) / (std::string(row.prompt) + ".wav")).string();
    EXPECT_NE(log.find("\"prompt\": \"" + std::string(row.prompt) + "\", \"file\": \"" + file +
                       "\", \"kind\": \"" + row.kind + "\""),
              std::string::npos)
        << row.kind << " in " << log;
  }
}

TEST_F(VoiceToolTest, CheckNamesWhatNeedsFixing) {
  std::string listing;
  ASSERT_EQ(run("prompts -l uk --files", &listing), 0);
  std::istringstream lines(listing);
  std::vector<std::string> files;
  for (std::string line; std::getline(lines, line);) files.push_back(line.substr(line.find('\t') + 1));
  ASSERT_GT(files.size(), 50u);
  for (const std::string& file : files) vela::testing::writeTone(fs::path(voice()) / file, 8000, 1, 4000);
  std::string log;
  EXPECT_EQ(run("voice check -l uk " + voice(), &log), 0) << log;
  EXPECT_EQ(run("prompts -l uk --check " + voice(), &log), 0) << "the old spelling still works: " << log;

  fs::remove(fs::path(voice()) / files[3]);
  vela::testing::writeTone(fs::path(voice()) / files[4], 44100, 2, 22050);
  // Silent throughout: silence at an end, and no loudness. The stereo outlier is louder too.
  vela::testing::writeSound(fs::path(voice()) / files[5], 8000, 1, 4000, SF_FORMAT_WAV | SF_FORMAT_PCM_16,
                            true);
  EXPECT_EQ(run("voice check -l uk " + voice(), &log), 1);
  for (const std::string& expected : std::vector<std::string>{
           "missing: 1", "format: 1", "silence: 1", "loudness: 2", "44100 Hz, 2 channels", files[3]})
    EXPECT_NE(log.find(expected), std::string::npos) << expected << " in " << log;
}

// The trees themselves are tested with the targets (tests/audio/platforms_test.cpp).
TEST_F(VoiceToolTest, ExportWritesEachPlatformsTree) {
  for (const char* file : {"двадцать.wav", "один.wav"})
    vela::testing::writeTone(fs::path(voice()) / file, 16000, 1, 8000);
  struct Row {
    const char* options;
    const char* file;  // under DEST
    long bytes;        // 0: a WAV file, checked for its rate
    int rate;
  };
  const Row rows[] = {
      {"--layout asterisk --encoding ulaw", "sounds/ru/vela/один.ulaw", 4000, 8000},
      {"--layout freeswitch --rate 8000 --rate 32000 --name anna", "ru/ru/anna/vela/32000/один.wav", 0,
       32000},
      {"--layout freeswitch --rate 8000 --rate 32000 --name anna", "ru/ru/anna/vela/8000/двадцать.wav", 0,
       8000},
  };
  std::string done;
  for (const Row& row : rows) {
    std::string log;
    if (done != row.options) {
      fs::remove_all(dir_ / "dest");
      EXPECT_EQ(
          run("voice export -l ru --voice " + voice() + " " + row.options + " " + (dir_ / "dest").string(),
              &log),
          1)
          << "the prompts without a recording are named: " << log;
      done = row.options;
    }
    const fs::path file = dir_ / "dest" / row.file;
    ASSERT_TRUE(fs::exists(file)) << row.options << ": " << log;
    if (row.bytes != 0) {
      EXPECT_NEAR(static_cast<double>(fs::file_size(file)), row.bytes, 4) << row.options;
    } else {
      EXPECT_EQ(vela::testing::readBack(file).info.samplerate, row.rate) << row.options;
    }
  }
  EXPECT_EQ(run("voice export -l ru --voice " + voice() + " --layout asterisk --encoding ulaw --rate 16000 " +
                (dir_ / "dest").string()),
            2)
      << "Asterisk has no 16 kHz mu-law files";
}

TEST_F(VoiceToolTest, ImportedAsteriskPromptsSpeakBeforeADemoVoice) {
  const fs::path sounds = "/usr/share/asterisk/sounds/ru/digits/20.wav";
  if (!fs::exists(sounds)) GTEST_SKIP() << "asterisk-core-sounds-ru-wav is not installed (scripts/setup.sh)";
  const std::string real = (dir_ / "real").string();
  std::string log;
  ASSERT_EQ(run("voice import asterisk -l ru " + real, &log), 0) << log;
  EXPECT_NE(log.find("60 of 230 prompts"), std::string::npos) << log;
  EXPECT_NE(log.find("\nрубль\n"), std::string::npos) << "рубль is still to record: " << log;
  run("voice check -l ru --json " + real, &log);
  EXPECT_NE(log.find("\"recordings\": 60,"), std::string::npos) << log;

  writeVoice(16000);
  ASSERT_EQ(
      run("say -l ru --voice " + real + " --voice " + voice() + " --pause 0 -o " + output() + " 21руб", &log),
      0)
      << log;
  // Asterisk's 20 and 1 at 8 kHz, then the demo's рубль (half a second) converted to their rate.
  const long recorded = vela::testing::readBack(sounds).info.frames +
                        vela::testing::readBack("/usr/share/asterisk/sounds/ru/digits/1.wav").info.frames;
  const auto back = vela::testing::readBack(output());
  EXPECT_EQ(back.info.samplerate, 8000);
  EXPECT_NEAR(static_cast<double>(back.info.frames), recorded + 4000, 4);
}

TEST_F(VoiceToolTest, ScriptExamplesSayTheirPrompt) {
  std::string script;
  ASSERT_EQ(run("prompts -l en --script", &script), 0) << script;
  std::istringstream lines(script);
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(line, "prompt\tfile\texample\twhole answer");
  int checked = 0;
  for (; std::getline(lines, line); ++checked) {
    std::vector<std::string> cells;
    std::istringstream row(line);
    for (std::string cell; std::getline(row, cell, '\t');) cells.push_back(cell);
    ASSERT_EQ(cells.size(), 4u) << line;
    EXPECT_NE((" " + cells[3] + " ").find(" " + cells[0] + " "), std::string::npos) << line;
    if (checked % 20 == 0) {  // the example, spoken, gives the answer shown
      std::string spoken;
      run("-l en -- '" + cells[2] + "'", &spoken);
      EXPECT_EQ(spoken, cells[3] + "\n") << line;
    }
  }
  EXPECT_GT(checked, 118) << "every English prompt, most with two examples";
}

}  // namespace
