// The `vela` command-line tool, run as a user would run it.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>

#include "vela/vela.h"

namespace {

struct ToolResult {
  std::string out;
  std::string err;
  int status = -1;
};

std::string readFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  return s.str();
}

// Runs `vela ARGS` with `input` on standard input.
ToolResult runTool(const std::string& args, const std::string& input = "") {
  // Unique per process and call: tests run in parallel.
  static int calls = 0;
  const std::string base =
      ::testing::TempDir() + "vela_tool_" + std::to_string(getpid()) + "_" + std::to_string(++calls);
  const std::string inPath = base + ".in", outPath = base + ".out", errPath = base + ".err";
  std::ofstream(inPath, std::ios::binary) << input;
  const std::string cmd =
      std::string(VELA_TOOL_PATH) + " " + args + " <" + inPath + " >" + outPath + " 2>" + errPath;
  const int raw = std::system(cmd.c_str());
  ToolResult result{readFile(outPath), readFile(errPath), WIFEXITED(raw) ? WEXITSTATUS(raw) : -1};
  for (const auto& path : {inPath, outPath, errPath}) std::remove(path.c_str());
  return result;
}

struct ToolCase {
  const char* args;
  const char* input;
  const char* out;
  int status;
  // Standard error: all of it when this ends in a newline ("" when it must
  // stay empty), else a part of it.
  const char* err;
};

const ToolCase kCases[] = {
    // file names pass through; a batch answers line by line, a blank line blank
    {"-l en '  a.wav   b.wav '", "", "a.wav b.wav\n", 0, ""},
    {"-l en", "a.wav\r\n\nb.wav\n", "a.wav\n\nb.wav\n", 0, ""},
    {"--raw -l en \"$(printf '\\270.wav')\"", "", "\xB8.wav\n", 0, ""},
    // readings
    {"-l ru 12.50руб", "", "двенадцать рублей пятьдесят копеек\n", 0, ""},
    {"-l ru -t 12.50rub", "", "dvenadcat rublei pyatdesyat kopeek\n", 0, ""},
    {"-l en 1.05usd", "", "one dollar and five cents\n", 0, ""},
    {"-l ru", "21руб\n7:05\n", "двадцать один рубль\nсемь часов пять минут\n", 0, ""},
    // a text not wholly spoken: its line holds what was, its complaint goes to
    // standard error after its line number or the text, and the exit status is 1
    {"-l ru", "1:00\n25:00\n", "один час ноль минут\n\n", 1, "vela: line 2: wrong time (hours) 25\n"},
    {"-l ru -- -5xyz", "", "минус\n", 1, "vela: \"-5xyz\": only partly spoken\n"},
    {"-l ru", "\n-5\n", "\n\n", 1, "vela: line 2: nothing in it can be spoken\n"},
    // texts the library cannot take, and an unknown tag
    {"-l xx a.wav", "", "a.wav\n", 1, "vela: unknown language tag \"xx\"; speaking English\n"},
    {"-l en '漢.wav' b.wav", "", "\nb.wav\n", 1, "vela: \"漢.wav\": Windows-1251 has no \"漢\"\n"},
    {"-l ru", "21\xF0\xF3\xE1\n", "\n", 1, "vela: line 1: not UTF-8 (for Windows-1251 bytes, use --raw)\n"},
    // a batch file saved with a byte-order mark; only the first line may carry it
    {"-l ru",
     "\xEF\xBB\xBF"
     "21руб\r\n5\n",
     "двадцать один рубль\nпять\n", 0, ""},
    // usage errors: one line naming the mistake, never a text spoken
    {"--bogus", "", "", 2, "vela: unknown option --bogus; see vela --help\n"},
    {"prompt -l ru", "", "", 2, "vela: unknown command \"prompt\"; see vela --help\n"},
    {"-l", "", "", 2, "vela: -l needs a value; see vela --help\n"},
    {"prompts -l ru 5", "", "", 2, "vela: unexpected argument \"5\"; see vela --help\n"},
    {"say -l ru 5", "", "", 2, "--voice DIR"},
    {"prompts -l ru --check /nonexistent/dir", "", "", 2, "not a directory"},
};

TEST(VelaToolTest, Table) {
  for (const auto& c : kCases) {
    const ToolResult r = runTool(c.args, c.input);
    EXPECT_EQ(r.out, c.out) << c.args;
    EXPECT_EQ(r.status, c.status) << c.args;
    const std::string_view err = c.err;
    if (err.empty() || err.ends_with('\n')) {
      EXPECT_EQ(r.err, err) << c.args;
    } else {
      EXPECT_NE(r.err.find(err), std::string::npos) << c.args << ": " << r.err;
    }
  }
}

TEST(VelaToolTest, VersionIsTheLibrarys) {
  const ToolResult r = runTool("--version");
  EXPECT_EQ(r.out, std::string("vela ") + vela_version() + "\n");
  EXPECT_EQ(r.status, 0);
}

// vela(1) is made from --help at build time: every option and command that
// --help names must be in it, and so must the examples.
TEST(VelaToolTest, ManPageCoversHelp) {
  std::string page = readFile(std::string(VELA_TOOL_PATH) + ".1");
  ASSERT_FALSE(page.empty()) << "no man page beside the tool";
  for (std::size_t at; (at = page.find("\\-")) != std::string::npos;) page.erase(at, 1);
  const std::string help = runTool("--help").out;
  const std::regex named(R"((?:^|[\s\[|,])(--?[a-z][a-z-]*)|\n  or:  vela ([a-z]+))");
  int names = 0;
  for (std::sregex_iterator it(help.begin(), help.end(), named), end; it != end; ++it, ++names) {
    const std::string name = (*it)[1].matched ? (*it)[1].str() : (*it)[2].str();
    EXPECT_NE(page.find(name), std::string::npos) << name;
  }
  EXPECT_GT(names, 10);
  EXPECT_NE(page.find(".SH EXAMPLES"), std::string::npos);
}

// The words a language reads after a number come from its tables, each with
// what it reads as; words read alike share a line.
TEST(VelaToolTest, UnitsListsTheWordsALanguageReads) {
  const ToolResult uk = runTool("units -l uk");
  EXPECT_EQ(uk.status, 0);
  EXPECT_NE(uk.out.find("\ngr uah  "), std::string::npos) << uk.out;
  EXPECT_NE(uk.out.find("12.50gr = dvanadtsjat gryven pjatdesjat kopijok\n"), std::string::npos) << uk.out;
  EXPECT_EQ(uk.out.find("грн"), std::string::npos);
  const ToolResult uz = runTool("units -l uz");
  EXPECT_NE(uz.out.find("\nab "), std::string::npos) << uz.out;
  EXPECT_NE(uz.out.find("  abonent yoq  "), std::string::npos) << uz.out;  // the zero phrase
}

}  // namespace
