// The voice commands' entry points: options parsed here, the work done in
// the command's own file and in the audio module.
#include "tools/voice_commands.h"

#include <exception>

#include "tools/voice_options.h"

namespace vela::tools {

int runVoiceCheck(const VoiceOptions& options, std::FILE* out);
int runVoiceExport(const VoiceOptions& options, std::FILE* out);
int runVoiceImport(const VoiceOptions& options, std::FILE* out);
int runPromptScript(const VoiceOptions& options, std::FILE* out);

const char* const kVoiceUsage =
    "usage: vela say [-l TAG] [-t] [--raw] --voice DIR [--voice DIR...] -o OUT\n"
    "                [--rate HZ] [--encoding pcm16|ulaw|alaw] [--format F] [--trim[=DB]] [--pause MS] "
    "TEXT...\n"
    "       vela voice check -l TAG [-t] [--json] [--max-silence MS] [--silence-db DB]\n"
    "                [--loudness-range LU] DIR...\n"
    "       vela voice export -l TAG [-t] --voice DIR... --layout asterisk|freeswitch\n"
    "                [--rate HZ]... [--encoding E] [--format wav|sln] [--name VOICE] [--trim[=DB]] DEST\n"
    "       vela voice import asterisk -l ru|en [--sounds DIR] [--copy] DEST\n"
    "       vela prompts -l TAG [-t] --check DIR       (vela voice check with one folder)\n"
    "       vela prompts -l TAG [-t] --script [--format tsv|html]\n"
    "\n"
    "say: the recordings of the TEXTs' prompts one after another, MS milliseconds\n"
    "(default 150) apart, in one file. A recording is NAME.wav, .flac, .sln16,\n"
    ".sln, .ulaw or .alaw, tried in this order in each --voice folder in turn;\n"
    "the first file found is used. Output: mono, at --rate (default: the first\n"
    "recording's), resampled with libsoxr; the container and encoding from OUT's\n"
    "extension (.wav; headerless .ulaw .alaw .sln .sln16 .raw) or --format, then\n"
    "--rate and --encoding. -o - writes to standard output. --trim cuts what is\n"
    "quieter than DB dBFS (default -45) at both ends of each recording. OUT is\n"
    "written completely or not at all.\n"
    "\n"
    "voice check: every prompt's recording: missing, not a recording (not a regular\n"
    "file, not audio, empty, cut short, out of bounds), a format unlike most of\n"
    "the set, silence longer than MS (300) at an end, clipped samples, loudness\n"
    "(the loudest 400 ms, EBU R128) more than LU (4) from the set's median. Exit 1\n"
    "when something needs fixing.\n"
    "\n"
    "voice export: every prompt where the platform looks: Asterisk DEST/sounds/TAG/vela/\n"
    "(.wav 8 kHz, .wav16, .sln, .sln16, .ulaw, .alaw); FreeSWITCH\n"
    "DEST/TAG/REGION/VOICE/vela/RATE/NAME.wav for each --rate (default 8000 and 16000).\n"
    "\n"
    "voice import asterisk: links (or with --copy copies) Debian's recorded Asterisk\n"
    "prompts that say a prompt exactly into DEST, and lists the prompts still to record.\n"
    "\n"
    "prompts --script: every prompt with up to two texts that say it and their whole\n"
    "answers, the context a voice talent reads it in.\n";

namespace {

int usage(const std::string& command, const std::string& message) {
  std::fprintf(stderr, "vela %s: %s\n%s", command.c_str(), message.c_str(), kVoiceUsage);
  return 2;
}

// Parses and runs one of the commands; exceptions end in a message, not an abort.
int run(const std::string& command, const std::vector<std::string>& args,
        const std::vector<std::string>& allowed, int (*body)(const VoiceOptions&, std::FILE*),
        std::FILE* out) {
  try {
    VoiceOptions options;
    if (auto error = parseVoiceOptions(args, allowed, options)) return usage(command, *error);
    return body(options, out);
  } catch (const std::exception& e) {
    std::fprintf(stderr, "vela %s: %s\n", command.c_str(), e.what());
    return 1;
  }
}

const std::vector<std::string> kCheckOptions = {
    "-l", "-t", "--raw", "--json", "--max-silence", "--silence-db", "--loudness-range"};

int checkBody(const VoiceOptions& options, std::FILE* out) {
  if (options.positional.empty()) return usage("voice check", "needs at least one DIR");
  return runVoiceCheck(options, out);
}

}  // namespace

int voiceCommand(const std::vector<std::string>& args, std::FILE* out) {
  const std::string sub = args.empty() ? "" : args[0];
  const std::vector<std::string> rest(args.begin() + (args.empty() ? 0 : 1), args.end());
  if (sub == "check") return run("voice check", rest, kCheckOptions, checkBody, out);
  if (sub == "export")
    return run(
        "voice export", rest,
        {"-l", "-t", "--raw", "--voice", "--layout", "--rate", "--encoding", "--format", "--name", "--trim"},
        runVoiceExport, out);
  if (sub == "import")
    return run("voice import", rest, {"-l", "--raw", "--sounds", "--copy"}, runVoiceImport, out);
  return usage("voice", "check, export or import?");
}

int promptsCheckCommand(const std::vector<std::string>& args, std::FILE* out) {
  // --check DIR is the voice check of one folder.
  std::vector<std::string> rewritten;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] == "--check") continue;
    rewritten.push_back(args[i]);
  }
  return run("prompts --check", rewritten, kCheckOptions, checkBody, out);
}

int promptsScriptCommand(const std::vector<std::string>& args, std::FILE* out) {
  return run("prompts --script", args, {"-l", "-t", "--raw", "--script", "--format"}, runPromptScript, out);
}

}  // namespace vela::tools
