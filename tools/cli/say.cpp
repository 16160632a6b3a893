// vela say: the recordings of the texts' prompts, one after another, in one
// WAV file.
#include <cstdlib>
#include <vector>

#include "tools/cli/text.h"
#include "tools/inventory.h"
#include "tools/render.h"

namespace vela::cli {
namespace {

struct SayOptions {
  LanguageOptions language;
  std::string voiceDir;  // --voice
  std::string outPath;   // -o
  int pauseMs = 150;     // --pause
  std::vector<std::string> texts;
};

int readPause(const std::string& value) {
  char* end = nullptr;
  const long ms = std::strtol(value.c_str(), &end, 10);
  if (value.empty() || *end != '\0' || ms < 0 || ms > 60000) {
    throw UsageError{"--pause takes milliseconds from 0 to 60000, not \"" + value + "\""};
  }
  return static_cast<int>(ms);
}

SayOptions parseSay(Arguments& args) {
  SayOptions options;
  while (args.next()) {
    if (takeLanguageOption(args, options.language)) continue;
    const std::string& arg = args.current();
    if (!args.isOption()) {
      options.texts.push_back(arg);
    } else if (arg == "--voice") {
      options.voiceDir = args.value();
    } else if (arg == "-o") {
      options.outPath = args.value();
    } else if (arg == "--pause") {
      options.pauseMs = readPause(args.value());
    } else {
      args.reject();
    }
  }
  if (options.voiceDir.empty() || options.outPath.empty() || options.texts.empty()) {
    throw UsageError{"say needs --voice DIR, -o OUT.wav and at least one TEXT"};
  }
  return options;
}

int runSay(Arguments& args, std::FILE*) {
  const SayOptions options = parseSay(args);
  const LanguageOptions& language = options.language;
  if (!checkTag(language)) return 1;
  std::vector<std::string> names;
  for (const std::string& text : options.texts) {
    const std::string where = "\"" + text + "\"";
    const std::optional<std::string> request = requestText(language, where, text);
    if (!request) return 1;
    const Reading reading(language, *request);
    reading.complain(language, where);
    if (reading.names()[0] == '\0') return 1;
    tools::splitNames(reading.names(), names);
  }
  if (auto error = tools::renderPrompts(names, options.voiceDir, options.outPath, options.pauseMs)) {
    std::fprintf(stderr, "vela: %s\n", error->c_str());
    return 1;
  }
  return 0;
}

}  // namespace

extern const Command kSay = {
    "say",
    "say [-l TAG] [-t] --voice DIR -o OUT.wav [--pause MS] TEXT...\n",
    "  say            write the recordings of the TEXTs' prompts, one after another,\n"
    "                 to one WAV file; all must share sample rate and channel count\n"
    "    --voice DIR  the folder of recordings, named as prompts --files shows\n"
    "    -o OUT.wav   the file to write\n"
    "    --pause MS   milliseconds of silence between two recordings (default 150)\n",
    runSay,
};

}  // namespace vela::cli
