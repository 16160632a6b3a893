// vela: speaks texts from the command line, one line of prompt names per text;
// lists the prompts a language needs; plays an answer from recordings. The
// subcommands are the table in tools/cli/commands.cpp.
#include "vela/vela.h"

#include <cstdio>
#include <new>
#include <string>
#include <string_view>

#include "tools/cli/command.h"

namespace {

using vela::cli::Command;

// A first argument of two or more ASCII letters (and dashes) names a command:
// a mistyped one is an error, never a text to speak. A text like that is
// spoken after "--" or an option.
bool looksLikeCommand(std::string_view arg) {
  if (arg.size() < 2) return false;
  for (const char c : arg) {
    if (!((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-')) return false;
  }
  return arg[0] != '-';
}

// The first of -h, --help and --version before "--", or "".
std::string_view askedFor(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view arg = argv[i];
    if (arg == "--") break;
    if (arg == "-h" || arg == "--help" || arg == "--version") return arg;
  }
  return "";
}

// The command that argv selects, and the index of its first argument.
const Command& selectCommand(int argc, char** argv, int& first) {
  first = 1;
  if (argc > 1) {
    if (const Command* command = vela::cli::findCommand(argv[1]); command != nullptr && argv[1][0] != '\0') {
      first = 2;
      return *command;
    }
    if (looksLikeCommand(argv[1])) {
      throw vela::cli::UsageError{"unknown command \"" + std::string(argv[1]) + "\""};
    }
  }
  return *vela::cli::findCommand("");
}

int run(int argc, char** argv) {
  const std::string_view asked = askedFor(argc, argv);
  if (asked == "--version") {
    std::printf("vela %s\n", vela_version());
    return 0;
  }
  if (!asked.empty()) {
    std::fputs(vela::cli::helpText().c_str(), stdout);
    return 0;
  }
  int first = 1;
  const Command& command = selectCommand(argc, argv, first);
  vela::cli::Arguments args(argc, argv, first);
  return command.run(args, stdout);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const vela::cli::UsageError& error) {
    std::fprintf(stderr, "vela: %s; see vela --help\n", error.message.c_str());
    return 2;
  } catch (const std::bad_alloc&) {
    std::fprintf(stderr, "vela: out of memory\n");
    return 1;
  }
}
