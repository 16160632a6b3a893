// The voice commands of the `vela` tool: they parse options and print; the
// work is done by the audio module (audio/render.h).
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace vela::tools {

// Each takes the words after the command's name and returns the exit status:
// 0 done, 1 something to fix (named on standard error), 2 a usage error.
// `out` is the real standard output (the grammars' complaints go to standard error).

// vela say [-l TAG] [-t] [--raw] --voice DIR... -o OUT [--rate HZ] [--encoding E]
//          [--format F] [--trim[=DB]] [--pause MS] TEXT...
int sayCommand(const std::vector<std::string>& args, std::FILE* out);

// vela voice check|export|import ...
int voiceCommand(const std::vector<std::string>& args, std::FILE* out);

// vela prompts --check DIR (the voice check's alias) and vela prompts --script.
int promptsCheckCommand(const std::vector<std::string>& args, std::FILE* out);
int promptsScriptCommand(const std::vector<std::string>& args, std::FILE* out);

// The usage of these commands, for the tool's --help.
extern const char* const kVoiceUsage;

}  // namespace vela::tools
