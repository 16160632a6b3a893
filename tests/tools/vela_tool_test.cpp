// The `vela` command-line tool, run as a user runs it: readings, usage errors,
// the man page, and the voice commands (say, voice check|export|import, the
// recording script). What the audio code does with recordings is tested in
// tests/audio; here, what the commands make of it.
#include <sys/stat.h>
#include <sys/wait.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <tuple>

#include "audio/render.h"
#include "tests/audio/audio_test_support.h"
#include "tools/encoding.h"

namespace fs = std::filesystem;

namespace {

std::string slurp(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  return s.str();
}

class ToolTest : public vela::testing::ScratchTest {
 protected:
  struct Result {
    std::string out, err;
    int status;
    std::string both() const { return out + err; }
  };

  // Runs `vela ARGS` with `input` on standard input.
  Result run(const std::string& args, const std::string& input = "") {
    const fs::path in = dir_ / "in", out = dir_ / "out", err = dir_ / "err";
    std::ofstream(in, std::ios::binary) << input;
    const std::string command = "timeout 20 " VELA_TOOL_PATH " " + args + " <" + in.string() + " >" +
                                out.string() + " 2>" + err.string();
    const int raw = std::system(command.c_str());
    Result r{slurp(out), slurp(err), WIFEXITED(raw) ? WEXITSTATUS(raw) : -1};
    for (const fs::path& p : {in, out, err}) fs::remove(p);
    return r;
  }

  std::string voice() const { return (dir_ / "voice").string(); }
  std::string output(const char* name = "x.wav") const { return (dir_ / name).string(); }
  // 21руб is двадцать один рубль.
  void writeVoice(int rate = 16000) {
    fs::create_directories(voice());
    for (const char* file : {"двадцать.wav", "один.wav", "рубль.wav"})
      vela::testing::writeTone(fs::path(voice()) / file, rate, 1, rate / 2);
  }
};

TEST_F(ToolTest, ReadsAndComplains) {
  const struct {
    const char* args;
    const char* input;
    const char* out;
    int status;
    const char* err;
  } rows[] = {
      // file names pass through; a batch answers line by line, a blank line blank
      {"-l en '  a.wav   b.wav '", "", "a.wav b.wav\n", 0, ""},
      {"-l en", "a.wav\r\n\nb.wav\n", "a.wav\n\nb.wav\n", 0, ""},
      {"--raw -l en \"$(printf '\\270.wav')\"", "", "\xB8.wav\n", 0, ""},
      {"-l ru -t", "12.50rub\n", "dvenadcat rublei pyatdesyat kopeek\n", 0, ""},
      // a text not wholly spoken: its line holds what was, its complaint goes to
      // standard error after its line number or the text, and the exit status is 1
      {"-l ru", "1:00\n25:00\n", "один час ноль минут\n\n", 1, "vela: line 2: wrong time (hours) 25\n"},
      {"-l ru -- -5xyz", "", "минус\n", 1, "vela: \"-5xyz\": only partly spoken\n"},
      {"-l ru", "\n-5\n", "\n\n", 1, "vela: line 2: nothing in it can be spoken\n"},
      {"-l xx a.wav", "", "a.wav\n", 1, "vela: unknown language tag \"xx\"; speaking English\n"},
      {"-l en '漢.wav' b.wav", "", "\nb.wav\n", 1, "vela: \"漢.wav\": Windows-1251 has no \"漢\"\n"},
      {"-l ru", "21\xF0\xF3\xE1\n", "\n", 1, "vela: line 1: not UTF-8 (for Windows-1251 bytes, use --raw)\n"},
      // a byte-order mark is taken off the first line only
      {"-l ru",
       "\xEF\xBB\xBF"
       "21руб\r\n5\n",
       "двадцать один рубль\nпять\n", 0, ""},
      // usage errors: one line naming the mistake, never a text spoken
      {"--bogus", "", "", 2, "vela: unknown option --bogus; see vela --help\n"},
      {"-l", "", "", 2, "vela: -l needs a value; see vela --help\n"},
      {"prompts -l ru 5", "", "", 2, "vela: unexpected argument \"5\"; see vela --help\n"},
      {"say -l ru 5", "", "", 2,
       "vela: say needs --voice DIR, -o OUT and at least one TEXT; see vela --help\n"},
      {"prompts -l ru --check /nonexistent/dir", "", "", 2, "vela: /nonexistent/dir is not a directory\n"},
  };
  for (const auto& row : rows) {
    const Result r = run(row.args, row.input);
    EXPECT_EQ(r.out, row.out) << row.args;
    EXPECT_EQ(r.status, row.status) << row.args;
    EXPECT_EQ(r.err, row.err) << row.args;
  }
}

// vela(1) is made from --help at build time: it names every option and command
// that --help names, and has examples.
TEST_F(ToolTest, ManPageCoversHelp) {
  std::string page = slurp(VELA_TOOL_PATH ".1");
  ASSERT_FALSE(page.empty()) << "no man page beside the tool";
  for (std::size_t at; (at = page.find("\\-")) != std::string::npos;) page.erase(at, 1);
  const std::string help = run("--help").out;
  const std::regex named(R"((?:^|[\s\[|,])(--?[a-z][a-z-]*)|\n  or:  vela ([a-z]+))");
  int names = 0;
  for (std::sregex_iterator it(help.begin(), help.end(), named), end; it != end; ++it, ++names)
    EXPECT_NE(page.find((*it)[1].matched ? (*it)[1].str() : (*it)[2].str()), std::string::npos) << it->str();
  EXPECT_GT(names, 10);
  EXPECT_NE(page.find(".SH EXAMPLES"), std::string::npos);
}

TEST(RecordingFileNameTest, RoundTripsAndRefusesOtherStems) {
  const struct {
    const char* name;  // Windows-1251
    const char* file;  // UTF-8
  } rows[] = {
      {"\xF0\xF3\xE1\xEB\xFC", "рубль.wav"},
      {"\xF1"
       "ent",
       "сent.wav"},  // a Cyrillic с inside a Latin word stays Cyrillic
      {"a.b", "a.b.wav"},
      {".x/5%?*:\"<>|\\", "%2Ex%2F5%25%3F%2A%3A%22%3C%3E%7C%5C.wav"},
      {"\x98\x01", "%98%01.wav"},
  };
  for (const auto& row : rows) {
    const std::string file = row.file;
    EXPECT_EQ(vela::tools::recordingFileName(row.name), file);
    EXPECT_EQ(vela::audio::promptNameOfStem(file.substr(0, file.size() - 4)), row.name) << file;
  }
  for (const char* notOurs : {"%2", "%zz", "a%2e", "%41", ".x"})
    EXPECT_EQ(vela::audio::promptNameOfStem(notOurs), std::nullopt) << notOurs;
}

TEST_F(ToolTest, SayWritesWhatItIsAskedFor) {
  writeVoice();
  vela::testing::writeTone(fs::path(voice()) / "один.wav", 44100, 2, 22050);  // an outlier is converted
  const struct {
    const char* out;
    const char* options;
    int rate;
    int format;  // 0: headerless
    long bytes;  // headerless: its size
  } rows[] = {
      {"x.wav", "--rate 8000 --encoding ulaw", 8000, SF_FORMAT_WAV | SF_FORMAT_ULAW, 0},
      {"x.wav", "", 16000, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 0},
      {"x.ulaw", "", 8000, 0, 12000 + 2 * 1200},
      {"x.sln16", "--pause 0", 16000, 0, 2 * 24000},
      {"x.out", "--format alaw --rate 16000", 16000, 0, 24000 + 2 * 2400},
  };
  const std::string say = "say -l ru --voice " + voice() + " ";
  for (const auto& row : rows) {
    const Result r = run(say + row.options + " -o " + output(row.out) + " 21руб");
    ASSERT_EQ(r.status, 0) << row.out << " " << row.options << ": " << r.err;
    if (row.format == 0) {
      EXPECT_NEAR(static_cast<double>(fs::file_size(output(row.out))), row.bytes, 8) << row.options;
      continue;
    }
    const auto back = vela::testing::readBack(output(row.out));
    EXPECT_EQ(std::tuple(back.info.format, back.info.samplerate, back.info.channels),
              std::tuple(row.format, row.rate, 1))
        << row.options;
  }
  const Result piped = run(say + "-o - 21руб");  // the same bytes on standard output
  ASSERT_EQ(run(say + "-o " + output() + " 21руб").status, 0);
  EXPECT_TRUE(piped.out == slurp(output())) << piped.out.size() << " bytes piped: " << piped.err;
  EXPECT_EQ(piped.err, "");
}

// A bad recording: say fails quickly, naming the file, leaving the old output
// as it was and nothing else behind; the check reports each by its kind.
TEST_F(ToolTest, BadRecordingsAreRefusedByEveryCommand) {
  const struct {
    const char* text;    // a number read as one prompt
    const char* prompt;  // its recording is made bad
    const char* kind;
    void (*make)(const fs::path&);
  } rows[] = {
      {"1", "один", "not-a-file", [](const fs::path& p) { mkfifo(p.c_str(), 0600); }},
      {"4", "четыре", "empty", [](const fs::path& p) { std::ofstream{p}; }},
      {"6", "шесть", "truncated",
       [](const fs::path& p) {
         vela::testing::writeTone(p, 8000, 1, 4000);
         fs::resize_file(p, 100);
       }},
  };
  fs::create_directories(voice());
  for (const auto& row : rows) row.make(fs::path(voice()) / (std::string(row.prompt) + ".wav"));
  std::ofstream(output()) << "before";
  for (const auto& row : rows) {
    const Result r = run("say -l ru --voice " + voice() + " -o " + output() + " " + row.text);
    EXPECT_EQ(r.status, 1) << row.kind << ": " << r.both();  // never a hang, even on a FIFO
    EXPECT_NE(r.both().find(std::string(row.prompt) + ".wav"), std::string::npos) << r.both();
    EXPECT_EQ(slurp(output()), "before") << row.kind;
    EXPECT_EQ(std::distance(fs::directory_iterator(dir_), fs::directory_iterator()), 2) << "no partial file";
  }
  const Result check = run("voice check -l ru --json " + voice());
  EXPECT_EQ(check.status, 1);
  for (const auto& row : rows) {
    const std::string file = (fs::path(voice()) / (std::string(row.prompt) + ".wav")).string();
    EXPECT_NE(check.both().find("\"prompt\": \"" + std::string(row.prompt) + "\", \"file\": \"" + file +
                                "\", \"kind\": \"" + row.kind + "\""),
              std::string::npos)
        << row.kind << " in " << check.both();
  }
}

TEST_F(ToolTest, CheckNamesWhatNeedsFixing) {
  std::istringstream lines(run("prompts -l uk --files").out);
  std::vector<std::string> files;
  for (std::string line; std::getline(lines, line);) files.push_back(line.substr(line.find('\t') + 1));
  ASSERT_GT(files.size(), 50u);
  fs::create_directories(voice());
  for (const std::string& file : files) vela::testing::writeTone(fs::path(voice()) / file, 8000, 1, 4000);
  EXPECT_EQ(run("voice check -l uk " + voice()).status, 0);
  EXPECT_EQ(run("prompts -l uk --check " + voice()).status, 0) << "the old spelling";

  fs::remove(fs::path(voice()) / files[3]);
  vela::testing::writeTone(fs::path(voice()) / files[4], 44100, 2, 22050);  // louder, too
  vela::testing::writeSound(fs::path(voice()) / files[5], 8000, 1, 4000, SF_FORMAT_WAV | SF_FORMAT_PCM_16,
                            true);  // silent: silence at an end, and no loudness
  const Result r = run("voice check -l uk " + voice());
  EXPECT_EQ(r.status, 1);
  for (const std::string& expected :
       {std::string("missing: 1"), std::string("format: 1"), std::string("silence: 1"),
        std::string("loudness: 2"), std::string("44100 Hz, 2 channels"), files[3]})
    EXPECT_NE(r.both().find(expected), std::string::npos) << expected << " in " << r.both();
}

// The trees themselves are tested with the targets (tests/audio/platforms_test.cpp).
TEST_F(ToolTest, ExportTakesEachPlatformsOptions) {
  writeVoice();
  const std::string dest = (dir_ / "dest").string(), exportRu = "voice export -l ru --voice " + voice();
  EXPECT_EQ(run(exportRu + " --layout asterisk --encoding ulaw " + dest).status, 1)
      << "prompts left to record";
  EXPECT_NEAR(static_cast<double>(fs::file_size(dest + "/sounds/ru/vela/один.ulaw")), 4000, 4);
  EXPECT_EQ(run(exportRu + " --layout freeswitch --rate 8000 --rate 32000 --name anna " + dest).status, 1);
  EXPECT_EQ(vela::testing::readBack(dest + "/ru/ru/anna/vela/32000/один.wav").info.samplerate, 32000);
  EXPECT_EQ(vela::testing::readBack(dest + "/ru/ru/anna/vela/8000/двадцать.wav").info.samplerate, 8000);
  EXPECT_EQ(run(exportRu + " --layout asterisk --encoding ulaw --rate 16000 " + dest).status, 2)
      << "Asterisk has no 16 kHz mu-law files";
}

// The multi-voice say and the conversion are tested in tests/audio.
TEST_F(ToolTest, ImportTakesAsterisksPrompts) {
  const std::string digits = "/usr/share/asterisk/sounds/ru/digits/";
  if (!fs::exists(digits + "20.wav")) GTEST_SKIP() << "asterisk-core-sounds-ru-wav is not installed";
  const std::string real = (dir_ / "real").string();
  const Result imported = run("voice import asterisk -l ru " + real);
  ASSERT_EQ(imported.status, 0) << imported.err;
  EXPECT_NE(imported.both().find("60 of 230 prompts"), std::string::npos) << imported.both();
  EXPECT_NE(imported.both().find("\nрубль\n"), std::string::npos) << "рубль is still to record";
  EXPECT_NE(run("voice check -l ru --json " + real).both().find("\"recordings\": 60,"), std::string::npos);
}

TEST_F(ToolTest, ScriptExamplesSayTheirPrompt) {
  std::istringstream lines(run("prompts -l en --script").out);
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
    if (checked % 20 == 0)  // the example, spoken, gives the answer shown
      EXPECT_EQ(run("-l en -- '" + cells[2] + "'").both(), cells[3] + "\n") << line;
  }
  EXPECT_GT(checked, 118) << "every English prompt, most with two examples";
}

}  // namespace
