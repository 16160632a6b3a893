// vela: speaks texts from the command line, one line of prompt names per text;
// lists the prompts a language needs; plays an answer from recordings.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "tools/commands.h"
#include "tools/serve_command.h"

namespace {

constexpr const char* kUsage =
    "usage: vela [-l TAG] [-t] [--raw] [TEXT...]\n"
    "       vela prompts [-l TAG] [-t] [--raw] [--files] [--check DIR]\n"
    "       vela say [-l TAG] [-t] --voice DIR -o OUT.wav [--pause MS] TEXT...\n"
    "\n"
    "Prints, for each TEXT, one line: the names of the prompts that speak it,\n"
    "separated by single spaces. With no TEXT, reads one text per line from\n"
    "standard input (a UTF-8 byte-order mark at its start is skipped) and\n"
    "answers one line each.\n"
    "\n"
    "  -l TAG   language tag (default ru): ru, en, uk, ro, kk, ka, hy, ar, ...\n"
    "           exact and case-sensitive, as the library takes it\n"
    "  -t       Russian with Latin-transliterated prompt names (mode 1)\n"
    "  --raw    texts and names are Windows-1251 bytes, passed through as they\n"
    "           are (default: UTF-8, converted to and from Windows-1251)\n"
    "  -h, --help  this text\n"
    "\n"
    "prompts: prints every prompt name the language can answer with, one a line,\n"
    "sorted by byte. With --check DIR, prints only those without a recording\n"
    "DIR/NAME.wav and exits with 1 when any is missing. NAME is the prompt name\n"
    "in UTF-8, with the bytes / \\ : * ? \" < > | %, control bytes and a leading\n"
    "dot written as %XX (hexadecimal of the Windows-1251 byte). --files adds a\n"
    "tab and that file name to each line.\n"
    "\n"
    "say: writes the recordings of the TEXTs' prompts, one after another, to\n"
    "OUT.wav, with MS milliseconds of silence between two (default 150). All\n"
    "recordings must share sample rate and channel count.\n"
    "\n"
    "A text that produces no prompt comes back as it is. Diagnostics of the\n"
    "grammars go to standard error. Exit status: 0 when every text was taken;\n"
    "1 when a text cannot be written in Windows-1251 (its line is left empty),\n"
    "the tag is unknown (the texts are then spoken in English), a recording is\n"
    "missing or does not fit; 2 on a usage error.\n"
    "\n"
    "examples:\n"
    "  vela -l ru 12.50руб        двенадцать рублей пятьдесят копеек\n"
    "  vela -l en 1.05usd         one dollar and five cents\n"
    "  printf '21руб\\n7:05\\n' | vela -l ru\n"
    "  vela prompts -l ru --check voice/ru\n"
    "  vela say -l ru --voice voice/ru -o x.wav 12.50руб\n";

[[noreturn]] void usageError(const std::string& arg) {
  std::fprintf(stderr, "vela: unknown option or missing value: %s\n\n%s", arg.c_str(), kUsage);
  std::exit(2);
}

// "-5rub", "-,5kb" and "-" are texts, not options.
bool isText(const std::string& arg) {
  if (arg.size() < 2 || arg[0] != '-') return true;
  const char c = arg[1];
  return (c >= '0' && c <= '9') || c == ',' || c == '.' || c == '|';
}

// Takes the value of the option at argv[i]; a usage error when there is none.
std::string valueOf(int argc, char** argv, int& i) {
  if (i + 1 >= argc) usageError(argv[i]);
  return argv[++i];
}

int readPause(const std::string& value) {
  char* end = nullptr;
  const long ms = std::strtol(value.c_str(), &end, 10);
  if (value.empty() || *end != '\0' || ms < 0 || ms > 60000) usageError("--pause " + value);
  return static_cast<int>(ms);
}

// Parses the command line; exits on --help or a usage error.
vela::tools::Options parseOptions(int argc, char** argv) {
  vela::tools::Options options;
  int first = 1;
  if (argc > 1 && (std::string(argv[1]) == "prompts" || std::string(argv[1]) == "say")) {
    options.command = argv[1];
    first = 2;
  }
  bool onlyTexts = false;
  for (int i = first; i < argc; ++i) {
    const std::string arg = argv[i];
    if (onlyTexts || isText(arg)) {
      options.texts.push_back(arg);
    } else if (arg == "--") {
      onlyTexts = true;
    } else if (arg == "-h" || arg == "--help") {
      std::fputs(kUsage, stdout);
      std::exit(0);
    } else if (arg == "-t") {
      options.mode = 1;
    } else if (arg == "--raw") {
      options.raw = true;
    } else if (arg == "-l") {
      options.tag = valueOf(argc, argv, i);
    } else if (arg == "--files" && options.command == "prompts") {
      options.withFiles = true;
    } else if (arg == "--check" && options.command == "prompts") {
      options.checkDir = valueOf(argc, argv, i);
    } else if (arg == "--voice" && options.command == "say") {
      options.voiceDir = valueOf(argc, argv, i);
    } else if (arg == "-o" && options.command == "say") {
      options.outPath = valueOf(argc, argv, i);
    } else if (arg == "--pause" && options.command == "say") {
      options.pauseMs = readPause(valueOf(argc, argv, i));
    } else {
      usageError(arg);
    }
  }
  if (options.command == "prompts" && !options.texts.empty()) usageError(options.texts.front());
  return options;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1 && std::string(argv[1]) == "serve") return vela::tools::serveCommand(argc - 2, argv + 2);
  const vela::tools::Options options = parseOptions(argc, argv);

  // The grammars print their complaints on standard output: point that at
  // standard error and keep the real standard output for the prompt names.
  std::FILE* promptOut = fdopen(dup(STDOUT_FILENO), "w");
  if (promptOut == nullptr || dup2(STDERR_FILENO, STDOUT_FILENO) < 0) {
    std::perror("vela");
    return 2;
  }
  int status;
  if (options.command == "prompts") {
    status = vela::tools::listPrompts(options, promptOut);
  } else if (options.command == "say") {
    status = vela::tools::sayTexts(options);
  } else {
    status = vela::tools::speakTexts(options, promptOut);
  }
  std::fclose(promptOut);
  return status;
}
