// vela voice check|export|import: a voice's recordings checked, exported where
// phone platforms look for them, or imported from Debian's Asterisk prompts.
#include <exception>

#include "tools/cli/voice_options.h"

namespace vela::cli {
namespace {

struct Subcommand {
  std::string_view name;
  std::initializer_list<std::string_view> options;
  int (*run)(const VoiceOptions&, std::FILE*);
};

int check(const VoiceOptions& options, std::FILE* out) {
  if (options.positional.empty()) throw UsageError{"voice check needs at least one DIR"};
  return runVoiceCheck(options, out);
}

const Subcommand kSubcommands[] = {
    {"check", {"-l", "-t", "--raw", "--json", "--max-silence", "--silence-db", "--loudness-range"}, check},
    {"export",
     {"-l", "-t", "--raw", "--voice", "--layout", "--rate", "--encoding", "--format", "--name", "--trim"},
     runVoiceExport},
    {"import", {"-l", "--raw", "--sounds", "--copy"}, runVoiceImport},
};

int runVoice(Arguments& args, std::FILE* out) {
  if (!args.next()) throw UsageError{"voice needs check, export or import"};
  for (const Subcommand& sub : kSubcommands) {
    if (args.current() != sub.name) continue;
    VoiceOptions options;
    parseVoiceOptions(args, sub.options, options);
    try {
      return sub.run(options, out);
    } catch (const std::bad_alloc&) {
      throw;
    } catch (const std::exception& e) {  // a file system error, say: a message and exit 1
      std::fprintf(stderr, "vela voice %s: %s\n", std::string(sub.name).c_str(), e.what());
      return 1;
    }
  }
  throw UsageError{"voice takes check, export or import, not \"" + args.current() + "\""};
}

}  // namespace

extern const Command kVoice = {
    "voice",
    "voice check -l TAG [-t] [--json] [--max-silence MS] [--silence-db DB] [--loudness-range LU] DIR...\n"
    "voice export -l TAG [-t] --voice DIR... --layout asterisk|freeswitch [--rate HZ]... [--encoding E] "
    "[--format wav|sln] [--name VOICE] [--trim[=DB]] DEST\n"
    "voice import asterisk -l ru|en [--sounds DIR] [--copy] DEST\n",
    "  voice check    every prompt's recording in the DIRs (first folder first):\n"
    "                 missing; not a recording (not a regular file, not audio, empty,\n"
    "                 cut short, out of bounds); a format unlike most of the set;\n"
    "                 silence longer than MS (300) below DB dBFS (-45) at an end;\n"
    "                 clipped samples; loudness (the loudest 400 ms, EBU R128) more\n"
    "                 than LU (4) from the set's median. A table, or --json; a line\n"
    "                 per kind; exit 1 when something needs fixing\n"
    "  voice export   every prompt where the platform looks for it: Asterisk\n"
    "                 DEST/sounds/TAG/vela/NAME.wav (8 kHz), .wav16, .sln, .sln16,\n"
    "                 .ulaw, .alaw; FreeSWITCH DEST/TAG/REGION/VOICE/vela/RATE/NAME.wav\n"
    "                 for each --rate (default 8000 and 16000)\n"
    "  voice import   link (--copy: copy) Debian's recorded Asterisk prompts that say\n"
    "                 a prompt exactly (audio/data/asterisk-core-sounds.tsv) into DEST;\n"
    "                 print the coverage and the prompts still to record\n",
    runVoice,
};

}  // namespace vela::cli
