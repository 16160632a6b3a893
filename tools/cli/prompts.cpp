// vela prompts: every prompt name a language can answer with; --check finds
// the ones a folder of recordings lacks.
#include <algorithm>
#include <vector>

#include "tools/cli/text.h"
#include "tools/cli/voice_options.h"
#include "tools/encoding.h"
#include "tools/inventory.h"

namespace vela::cli {
namespace {

struct PromptsOptions {
  LanguageOptions language;
  std::string checkDir;    // --check: the voice check of one folder
  bool withFiles = false;  // --files
  bool script = false;     // --script (voice_options.h)
  std::string format;      // --format, of the script
};

PromptsOptions parsePrompts(Arguments& args) {
  PromptsOptions options;
  while (args.next()) {
    if (takeLanguageOption(args, options.language)) continue;
    if (args.current() == "--files" && args.isOption()) {
      options.withFiles = true;
    } else if (args.current() == "--check" && args.isOption()) {
      options.checkDir = args.value();
    } else if (args.current() == "--script" && args.isOption()) {
      options.script = true;
    } else if (args.current() == "--format" && args.isOption()) {
      options.format = args.value();
    } else {
      args.reject();
    }
  }
  return options;
}

// --check and --script are voice commands (tools/cli/voice_options.h).
std::optional<int> runVoicePart(const PromptsOptions& options, std::FILE* out) {
  if (options.checkDir.empty() && !options.script) return std::nullopt;
  VoiceOptions voice;
  voice.language = options.language;
  voice.format = options.format;
  if (options.script) return runPromptScript(voice, out);
  voice.positional.push_back(options.checkDir);
  return runVoiceCheck(voice, out);
}

int runPrompts(Arguments& args, std::FILE* out) {
  const PromptsOptions options = parsePrompts(args);
  if (const std::optional<int> status = runVoicePart(options, out)) return *status;
  int status = checkTag(options.language) ? 0 : 1;
  std::vector<std::string> lines;
  for (const std::string& name : tools::promptInventory(options.language.tag, options.language.mode)) {
    const std::string file = tools::recordingFileName(name);
    lines.push_back(shownName(options.language, name) + (options.withFiles ? "\t" + file : ""));
  }
  std::sort(lines.begin(), lines.end());
  for (const std::string& line : lines) std::fprintf(out, "%s\n", line.c_str());
  std::fflush(out);
  return status;
}

}  // namespace

extern const Command kPrompts = {
    "prompts",
    "prompts [-l TAG] [-t] [--raw] [--files] [--check DIR] [--script [--format tsv|html]]\n",
    "  prompts        print every prompt name the language can answer with, one a\n"
    "                 line, sorted by byte\n"
    "    --files      add a tab and the recording's file name, NAME.wav, to each\n"
    "                 line: NAME is the prompt name in UTF-8, with the bytes\n"
    "                 / \\ : * ? \" < > | %, control bytes and a leading dot written\n"
    "                 as %XX (hexadecimal of the Windows-1251 byte)\n"
    "    --check DIR  vela voice check -l TAG DIR: what needs fixing in DIR's\n"
    "                 recordings; exit with 1 when anything does\n"
    "    --script     every prompt with up to two texts that say it and their\n"
    "                 whole answers, for the voice talent (--format tsv or html)\n",
    runPrompts,
};

}  // namespace vela::cli
