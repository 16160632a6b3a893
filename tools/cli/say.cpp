// vela say: the recordings of the texts' prompts, one after another, in one
// file in the format a phone platform plays (audio/render.h does the work).
#include <exception>
#include <vector>

#include "audio/output_file.h"
#include "audio/render.h"
#include "tools/cli/text.h"
#include "tools/cli/voice_options.h"
#include "tools/inventory.h"

namespace vela::cli {
namespace {

// The output format: OUT's extension (or --format), then --rate and
// --encoding over it; a WAV file when neither says.
audio::OutputFormat outputFormat(const VoiceOptions& options) {
  audio::OutputFormat format;
  if (!options.format.empty()) {
    const auto named = audio::formatForFileName("x." + options.format, format);
    if (!named)
      throw UsageError{"--format takes wav, raw, ulaw, alaw, sln or sln16, not \"" + options.format + "\""};
    format = *named;
  } else if (const auto implied = audio::formatForFileName(options.outPath, format)) {
    format = *implied;
  }
  if (options.rate) format.rate = *options.rate;
  if (options.encoding) format.encoding = *options.encoding;
  return format;
}

// The prompt names of all the texts, in order; nullopt after a message.
std::optional<std::vector<std::string>> promptNames(const VoiceOptions& options) {
  std::vector<std::string> names;
  for (const std::string& text : options.positional) {
    const std::string where = "\"" + text + "\"";
    const std::optional<std::string> request = requestText(options.language, where, text);
    if (!request) return std::nullopt;
    const Reading reading(options.language, *request);
    reading.complain(options.language, where);
    if (reading.names()[0] == '\0') return std::nullopt;
    tools::splitNames(reading.names(), names);
  }
  return names;
}

int writeAnswer(const std::string& path, const std::string& bytes, std::FILE* out) {
  if (path == "-") {
    if (std::fwrite(bytes.data(), 1, bytes.size(), out) != bytes.size() || std::fflush(out) != 0) {
      std::fprintf(stderr, "vela: cannot write to standard output\n");
      return 1;
    }
    return 0;
  }
  if (auto error = audio::writeOutputFile(path, bytes)) {
    std::fprintf(stderr, "vela: %s\n", error->message.c_str());
    return 1;
  }
  return 0;
}

int say(Arguments& args, std::FILE* out) {
  VoiceOptions options;
  parseVoiceOptions(
      args, {"-l", "-t", "--raw", "--voice", "-o", "--pause", "--rate", "--encoding", "--format", "--trim"},
      options);
  if (options.voices.empty() || options.outPath.empty() || options.positional.empty())
    throw UsageError{"say needs --voice DIR, -o OUT and at least one TEXT"};
  audio::RenderOptions render;
  render.format = outputFormat(options);
  render.pauseMs = options.pauseMs;
  render.trimDb = options.trimDb;
  if (!checkTag(options.language)) return 1;
  const auto names = promptNames(options);
  if (!names) return 1;
  const audio::Rendered answer = audio::renderPrompts(audio::Voice{options.voices}, *names, render);
  for (const audio::Error& error : answer.errors) std::fprintf(stderr, "vela: %s\n", error.message.c_str());
  if (!answer.ok()) return 1;
  return writeAnswer(options.outPath, answer.bytes, out);
}

int runSay(Arguments& args, std::FILE* out) {
  try {
    return say(args, out);
  } catch (const std::bad_alloc&) {
    throw;                             // the tool's own message
  } catch (const std::exception& e) {  // a clear message and exit 1, never an abort
    std::fprintf(stderr, "vela say: %s\n", e.what());
    return 1;
  }
}

}  // namespace

extern const Command kSay = {
    "say",
    "say [-l TAG] [-t] --voice DIR... -o OUT [--rate HZ] [--encoding E] [--format F] [--trim[=DB]] [--pause "
    "MS] "
    "TEXT...\n",
    "  say            write the recordings of the TEXTs' prompts, one after another,\n"
    "                 to one file; written completely or not at all\n"
    "    --voice DIR  a folder of recordings, named as prompts --files shows, each\n"
    "                 NAME.wav, .flac, .sln16, .sln, .ulaw or .alaw (tried in this\n"
    "                 order); with several, the first folder that has one wins\n"
    "    -o OUT       the file to write; its extension gives the container: .wav,\n"
    "                 or headerless .ulaw .alaw .sln (8 kHz) .sln16 (16 kHz) .raw;\n"
    "                 \"-\" writes to standard output\n"
    "    --format F   wav, raw, ulaw, alaw, sln or sln16, whatever OUT's extension\n"
    "    --rate HZ    the output's sample rate (default: the first recording's);\n"
    "                 recordings of other rates and channel counts are converted\n"
    "    --encoding E pcm16 (default), ulaw or alaw; the output is mono\n"
    "    --trim[=DB]  cut what is quieter than DB dBFS (default -45) at both ends\n"
    "                 of each recording\n"
    "    --pause MS   milliseconds of silence between two recordings (default 150)\n",
    runSay,
};

}  // namespace vela::cli
