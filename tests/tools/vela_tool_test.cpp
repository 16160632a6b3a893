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
  return {std::istreambuf_iterator<char>(in), {}};
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
    std::ofstream(dir_ / "in", std::ios::binary) << input;
    const std::string d = dir_.string();
    const int raw = std::system(
        ("timeout 20 " VELA_TOOL_PATH " " + args + " <" + d + "/in >" + d + "/out 2>" + d + "/err").c_str());
    Result r{slurp(dir_ / "out"), slurp(dir_ / "err"), WIFEXITED(raw) ? WEXITSTATUS(raw) : -1};
    for (const char* file : {"in", "out", "err"}) fs::remove(dir_ / file);
    return r;
  }

  std::string voice(const std::string& prompt = "") const {
    return (prompt.empty() ? dir_ / "voice" : dir_ / "voice" / (prompt + ".wav")).string();
  }
  std::string output(const char* name = "x.wav") const { return (dir_ / name).string(); }
};

TEST_F(ToolTest, ReadsAndComplains) {
  // arguments, standard input; standard output, exit status, standard error
  const std::tuple<const char*, const char*, std::string, int, std::string> rows[] = {
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
      {"-l ru", "\uFEFF21руб\r\n5\n", "двадцать один рубль\nпять\n", 0, ""},
      // usage errors: one line naming the mistake, never a text spoken
      {"--bogus", "", "", 2, "vela: unknown option --bogus; see vela --help\n"},
      {"-l", "", "", 2, "vela: -l needs a value; see vela --help\n"},
      {"prompts -l ru 5", "", "", 2, "vela: unexpected argument \"5\"; see vela --help\n"},
      {"say -l ru 5", "", "", 2,
       "vela: say needs --voice DIR, -o OUT and at least one TEXT; see vela --help\n"},
      {"prompts -l ru --check /nonexistent/dir", "", "", 2, "vela: /nonexistent/dir is not a directory\n"},
  };
  for (const auto& [args, input, out, status, err] : rows) {
    const Result r = run(args, input);
    EXPECT_EQ(std::tie(r.out, r.status, r.err), std::tie(out, status, err)) << args;
  }
}

// vela(1) is made from --help at build time: it names every option and command
// that --help names, and has examples.
TEST_F(ToolTest, ManPageCoversHelp) {
  std::string page = slurp(VELA_TOOL_PATH ".1");
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
  const std::pair<std::string, std::string> rows[] = {
      // Windows-1251 name, UTF-8 file; a Cyrillic с inside a Latin word stays Cyrillic
      {"\xF0\xF3\xE1\xEB\xFC", "рубль.wav"},
      {"\xF1\x65nt", "сent.wav"},
      {"a.b", "a.b.wav"},
      {".x/5%?*:\"<>|\\", "%2Ex%2F5%25%3F%2A%3A%22%3C%3E%7C%5C.wav"},
      {"\x98\x01", "%98%01.wav"},
  };
  for (const auto& [name, file] : rows) {
    EXPECT_EQ(vela::tools::recordingFileName(name), file);
    EXPECT_EQ(vela::audio::promptNameOfStem(file.substr(0, file.size() - 4)), name);
  }
  for (const char* notOurs : {"%2", "%zz", "a%2e", "%41", ".x"})
    EXPECT_EQ(vela::audio::promptNameOfStem(notOurs), std::nullopt) << notOurs;
}

// The export trees themselves are tested with the targets (tests/audio/platforms_test.cpp).
TEST_F(ToolTest, SayAndExportWriteWhatTheyAreAskedFor) {
  fs::create_directories(voice());  // 21руб is двадцать один рубль; один an outlier, converted
  for (const char* prompt : {"двадцать", "рубль"}) vela::testing::writeTone(voice(prompt), 16000, 1, 8000);
  vela::testing::writeTone(voice("один"), 44100, 2, 22050);
  // output, options, format and rate; format 0: headerless, and its size in bytes
  const std::tuple<const char*, const char*, int, int> rows[] = {
      {"x.wav", "--rate 8000 --encoding ulaw", SF_FORMAT_WAV | SF_FORMAT_ULAW, 8000},
      {"x.wav", "", SF_FORMAT_WAV | SF_FORMAT_PCM_16, 16000},
      {"x.ulaw", "", 0, 12000 + 2 * 1200},
      {"x.sln16", "--pause 0", 0, 2 * 24000},
      {"x.out", "--format alaw --rate 16000", 0, 24000 + 2 * 2400},
  };
  const std::string say = "say -l ru --voice " + voice() + " ";
  for (const auto& [out, options, format, rate] : rows) {
    ASSERT_EQ(run(say + options + " -o " + output(out) + " 21руб").status, 0) << options;
    const SF_INFO info = vela::testing::readBack(output(out)).info;
    if (format == 0)
      EXPECT_NEAR(static_cast<double>(fs::file_size(output(out))), rate, 8) << options;
    else
      EXPECT_EQ(std::tuple(info.format, info.samplerate, info.channels), std::tuple(format, rate, 1));
  }
  const Result piped = run(say + "-o - 21руб");  // the bytes of the second row, on standard output
  EXPECT_EQ(piped.err, "");
  EXPECT_TRUE(piped.out == slurp(output())) << piped.out.size() << " bytes piped";

  const std::string dest = output("dest"), exportRu = "voice export -l ru --voice " + voice();
  // prompts left to record: status 1
  EXPECT_EQ(run(exportRu + " --layout asterisk --encoding ulaw " + dest).status, 1);
  EXPECT_NEAR(static_cast<double>(fs::file_size(dest + "/sounds/ru/vela/один.ulaw")), 4000, 4);
  EXPECT_EQ(run(exportRu + " --layout freeswitch --rate 8000 --rate 32000 --name anna " + dest).status, 1);
  EXPECT_EQ(vela::testing::readBack(dest + "/ru/ru/anna/vela/32000/один.wav").info.samplerate, 32000);
  EXPECT_EQ(vela::testing::readBack(dest + "/ru/ru/anna/vela/8000/двадцать.wav").info.samplerate, 8000);
  // Asterisk has no 16 kHz mu-law files
  EXPECT_EQ(run(exportRu + " --layout asterisk --encoding ulaw --rate 16000 " + dest).status, 2);
}

// A bad recording: say fails quickly, naming the file, leaving the old output
// as it was and nothing else behind; the check reports each by its kind.
TEST_F(ToolTest, BadRecordingsAreRefusedByEveryCommand) {
  const struct {
    const char *text, *prompt, *kind;  // a number read as one prompt, whose recording is made bad
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
  for (const auto& row : rows) row.make(voice(row.prompt));
  std::ofstream(output()) << "before";
  for (const auto& row : rows) {
    const Result r = run("say -l ru --voice " + voice() + " -o " + output() + " " + row.text);
    EXPECT_EQ(r.status, 1) << row.kind;  // never a hang, even on a FIFO
    EXPECT_NE(r.both().find(std::string(row.prompt) + ".wav"), std::string::npos) << r.both();
    EXPECT_EQ(slurp(output()), "before");
    EXPECT_EQ(std::distance(fs::directory_iterator(dir_), fs::directory_iterator()), 2) << "no partial file";
  }
  const Result check = run("voice check -l ru --json " + voice());
  EXPECT_EQ(check.status, 1);
  for (const auto& row : rows) {
    const std::string entry = "\"prompt\": \"" + std::string(row.prompt) + "\", \"file\": \"" +
                              voice(row.prompt) + "\", \"kind\": \"" + row.kind + "\"";
    EXPECT_NE(check.both().find(entry), std::string::npos) << entry << " in " << check.both();
  }
}

TEST_F(ToolTest, CheckNamesWhatNeedsFixing) {
  std::istringstream lines(run("prompts -l uk --files").out);
  std::vector<std::string> files;
  const fs::path dir = voice();
  fs::create_directories(dir);
  for (std::string line; std::getline(lines, line);) {
    files.push_back(line.substr(line.find('\t') + 1));
    vela::testing::writeTone(dir / files.back(), 8000, 1, 4000);
  }
  ASSERT_GT(files.size(), 50u);
  EXPECT_EQ(run("voice check -l uk " + voice()).status, 0);
  EXPECT_EQ(run("prompts -l uk --check " + voice()).status, 0);  // the old spelling
  fs::remove(dir / files[3]);
  vela::testing::writeTone(dir / files[4], 44100, 2, 22050);  // louder, too
  // silent: silence at an end, and no loudness
  vela::testing::writeSound(dir / files[5], 8000, 1, 4000, SF_FORMAT_WAV | SF_FORMAT_PCM_16, true);
  const Result r = run("voice check -l uk " + voice());
  EXPECT_EQ(r.status, 1);
  for (const std::string& expected : std::vector<std::string>{
           "missing: 1", "format: 1", "silence: 1", "loudness: 2", "44100 Hz, 2 channels", files[3]})
    EXPECT_NE(r.both().find(expected), std::string::npos) << expected << " in " << r.both();
}

// The multi-voice say and the conversion are tested in tests/audio.
TEST_F(ToolTest, ImportTakesAsterisksPrompts) {
  if (!fs::exists("/usr/share/asterisk/sounds/ru/digits/20.wav"))
    GTEST_SKIP() << "no asterisk-core-sounds-ru-wav";
  const Result imported = run("voice import asterisk -l ru " + output("real"));
  ASSERT_EQ(imported.status, 0) << imported.err;
  EXPECT_NE(imported.both().find("60 of 230 prompts"), std::string::npos) << imported.both();
  EXPECT_NE(imported.both().find("\nрубль\n"), std::string::npos);  // рубль is still to record
  EXPECT_NE(run("voice check -l ru --json " + output("real")).out.find("\"recordings\": 60,"),
            std::string::npos);
}

TEST_F(ToolTest, ScriptExamplesSayTheirPrompt) {
  std::istringstream lines(run("prompts -l en --script").out);
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(line, "prompt\tfile\texample\twhole answer");
  const std::regex cells("([^\t]+)\t[^\t]+\t([^\t]+)\t([^\t]+)");
  int checked = 0;
  for (std::smatch m; std::getline(lines, line); ++checked) {
    ASSERT_TRUE(std::regex_match(line, m, cells)) << line;
    EXPECT_NE((" " + m.str(3) + " ").find(" " + m.str(1) + " "), std::string::npos) << line;
    // the example, spoken, gives the answer shown
    if (checked % 20 == 0) EXPECT_EQ(run("-l en -- '" + m.str(2) + "'").both(), m.str(3) + "\n") << line;
  }
  EXPECT_GT(checked, 118);  // every English prompt, most with two examples
}

}  // namespace
