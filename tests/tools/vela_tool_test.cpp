// The `vela` command-line tool, run as a user would run it.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

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
    {"-l en '  a.wav   b.wav '", "", "a.wav b.wav\n", 0, ""},
    {"-l en", "a.wav\r\n\nb.wav\n", "a.wav\n\nb.wav\n", 0, ""},
    {"-l xx a.wav", "", "a.wav\n", 1, "unknown language tag"},
    {"-l en '漢.wav' b.wav", "", "\nb.wav\n", 1, "Windows-1251"},
    {"--raw -l en \"$(printf '\\270.wav')\"", "", "\xB8.wav\n", 0, ""},
    // usage errors: one line naming the mistake, never a text spoken
    {"--bogus", "", "", 2, "vela: unknown option --bogus; see vela --help\n"},
    {"prompt -l ru", "", "", 2, "vela: unknown command \"prompt\"; see vela --help\n"},
    {"-l", "", "", 2, "-l needs a value"},
    // real readings, and the grammars' complaints kept off the prompt output
    {"-l ru 12.50руб", "", "двенадцать рублей пятьдесят копеек\n", 0, ""},
    {"-l ru -t -- 12.50rub -5", "", "dvenadcat rublei pyatdesyat kopeek\n-5\n", 0, ""},
    {"-l en 1.05usd", "", "one dollar and five cents\n", 0, ""},
    {"-l ru", "21руб\n7:05\n", "двадцать один рубль\nсемь часов пять минут\n", 0, ""},
    {"-l ru 25:00 1:00", "", "25:00\nодин час ноль минут\n", 0, "wrong time (hours) 25"},
    // a batch file saved with a byte-order mark; only the first line may carry it
    {"-l ru",
     "\xEF\xBB\xBF"
     "21руб\r\n5\n",
     "двадцать один рубль\nпять\n", 0, ""},
    {"-l en",
     "\xEF\xBB\xBF"
     "\n",
     "\n", 0, ""},
    // names and file names of the recordings check
    {"prompts -l ru 5", "", "", 2, "unexpected argument \"5\""},
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

TEST(VelaToolTest, HelpExplainsUsage) {
  const ToolResult r = runTool("--help");
  EXPECT_EQ(r.status, 0);
  for (const char* word : {"-l TAG", "-t", "--raw", "standard input", "example", "prompts", "--check", "say"})
    EXPECT_NE(r.out.find(word), std::string::npos) << word;
}

}  // namespace
