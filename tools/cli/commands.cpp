// The table of subcommands. A new subcommand: its file in tools/cli/ defines
// `extern const Command kName`; declare it here and add its row.
#include "tools/cli/command.h"

namespace vela::cli {

extern const Command kSpeak;    // speak.cpp
extern const Command kPrompts;  // prompts.cpp
extern const Command kSay;      // say.cpp
extern const Command kUnits;    // units.cpp
extern const Command kVoice;    // voice.cpp
extern const Command kServe;    // serve.cpp

namespace {

constexpr const Command* kCommands[] = {
    &kSpeak, &kPrompts, &kSay, &kUnits, &kVoice, &kServe,
};

}  // namespace

std::span<const Command* const> commands() { return kCommands; }

const Command* findCommand(std::string_view name) {
  for (const Command* command : kCommands) {
    if (command->name == name) return command;
  }
  return nullptr;
}

}  // namespace vela::cli
