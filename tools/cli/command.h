// The subcommands of `vela`. Each is one row of the table in
// tools/cli/commands.cpp and one file here that parses its options and does
// its work; adding a subcommand is a new file and one row.
#pragma once

#include <cstdio>
#include <span>
#include <string>
#include <string_view>

namespace vela::cli {

// A mistake on the command line. `message` names what was wrong, in a few
// words ("unknown option --bogus"); the tool prints it on one line with a
// pointer to --help and exits with 2.
struct UsageError {
  std::string message;
};

// Walks the arguments of one command, left to right.
class Arguments {
 public:
  // The arguments argv[first] .. argv[argc - 1].
  Arguments(int argc, char** argv, int first) : argc_(argc), argv_(argv), next_(first) {}

  // Moves to the next argument, skipping one "--" (after which every
  // argument is a text); false past the last.
  bool next();
  const std::string& current() const { return current_; }
  // True for "-x" and "--xyz" before any "--"; "-", "-5руб", "-,5kb" and
  // "-.5" are texts.
  bool isOption() const;
  // The value of the current option: the next argument. UsageError when none.
  std::string value();
  // Throws the UsageError for the current argument: an option the command
  // does not take, or a text where it takes none.
  [[noreturn]] void reject() const;

 private:
  int argc_;
  char** argv_;
  int next_;
  bool onlyTexts_ = false;
  std::string current_;
};

// The options every command that reads texts takes.
struct LanguageOptions {
  std::string tag = "ru";
  unsigned char mode = 0;  // 1: Russian with Latin-transliterated names
  bool raw = false;        // Windows-1251 bytes in and out, unconverted
};
// Takes the current argument when it is -l TAG, -t or --raw; false otherwise.
bool takeLanguageOption(Arguments& args, LanguageOptions& options);

struct Command {
  std::string_view name;  // the first argument that selects it; "" for speaking texts
  const char* synopsis;   // its usage line(s), each after "vela", ending in "\n"
  // Its part of --help, ending in "\n", from which help2man makes the man page:
  // a named command's lines go under "Commands:", "  NAME" with its description
  // from column 17 on, each of its options on a line of its own indented by
  // four, description also from column 17 (see prompts.cpp). Speaking's part is
  // a paragraph after the description of the tool.
  const char* help;
  // Parses the command's options (throwing UsageError), then does its work and
  // returns the exit status. `out` is the standard output for its results.
  int (*run)(Arguments& args, std::FILE* out);
};

// Every command, in the order --help shows them.
std::span<const Command* const> commands();

// The command named `name`, or null.
const Command* findCommand(std::string_view name);

// The whole of `vela --help`.
std::string helpText();

}  // namespace vela::cli
