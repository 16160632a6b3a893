// vela say: the recordings of the texts' prompts, as one file a platform plays.
#include <exception>

#include "audio/output_file.h"
#include "audio/render.h"
#include "tools/encoding.h"
#include "tools/inventory.h"
#include "tools/voice_commands.h"
#include "tools/voice_options.h"

namespace vela::tools {
namespace {

int usage(const std::string& message) {
  std::fprintf(stderr, "vela say: %s\n%s", message.c_str(), kVoiceUsage);
  return 2;
}

// The output format: the file name's extension (or --format), then --rate and
// --encoding over it; WAV when neither says.
std::optional<audio::OutputFormat> outputFormat(const VoiceOptions& options) {
  audio::OutputFormat format;
  if (!options.format.empty()) {
    const auto named = audio::formatForFileName("x." + options.format, format);
    if (!named) return std::nullopt;
    format = *named;
  } else if (const auto implied = audio::formatForFileName(options.outPath, format)) {
    format = *implied;
  }
  if (options.rate) format.rate = *options.rate;
  if (options.encoding) format.encoding = *options.encoding;
  return format;
}

// The prompt names of all the texts, in order; an empty optional after a message.
std::optional<std::vector<std::string>> promptNames(const VoiceOptions& options) {
  std::vector<std::string> names;
  for (const std::string& text : options.positional) {
    const std::optional<std::string> request = options.raw ? text : convert(text, "WINDOWS-1251", "UTF-8");
    if (!request) {
      std::fprintf(stderr, "vela: cannot write \"%s\" in Windows-1251\n", text.c_str());
      return std::nullopt;
    }
    const auto spoken = speakNames(options.tag, options.mode, *request);
    if (!spoken || spoken->empty()) {
      std::fprintf(stderr, "vela: \"%s\" gives no prompt in \"%s\"\n", text.c_str(), options.tag.c_str());
      return std::nullopt;
    }
    names.insert(names.end(), spoken->begin(), spoken->end());
  }
  return names;
}

int say(const std::vector<std::string>& args, std::FILE* out) {
  VoiceOptions options;
  if (auto error = parseVoiceOptions(
          args,
          {"-l", "-t", "--raw", "--voice", "-o", "--pause", "--rate", "--encoding", "--format", "--trim"},
          options))
    return usage(*error);
  if (options.voices.empty() || options.outPath.empty() || options.positional.empty())
    return usage("needs --voice DIR, -o OUT and at least one TEXT");
  const std::optional<audio::OutputFormat> format = outputFormat(options);
  if (!format) return usage("unknown --format " + options.format + " (wav, raw, ulaw, alaw, sln, sln16)");
  if (!knownTag(options.tag)) return 1;
  const auto names = promptNames(options);
  if (!names) return 1;

  audio::RenderOptions render;
  render.format = *format;
  render.pauseMs = options.pauseMs;
  render.trimDb = options.trimDb;
  const audio::Rendered answer = audio::renderPrompts(audio::Voice{options.voices}, *names, render);
  for (const audio::Error& error : answer.errors) std::fprintf(stderr, "vela: %s\n", error.message.c_str());
  if (!answer.ok()) return 1;
  if (options.outPath == "-") {
    const bool written = std::fwrite(answer.bytes.data(), 1, answer.bytes.size(), out) == answer.bytes.size();
    if (!written || std::fflush(out) != 0) {
      std::fprintf(stderr, "vela: cannot write to standard output\n");
      return 1;
    }
    return 0;
  }
  if (auto error = audio::writeOutputFile(options.outPath, answer.bytes)) {
    std::fprintf(stderr, "vela: %s\n", error->message.c_str());
    return 1;
  }
  return 0;
}

}  // namespace

int sayCommand(const std::vector<std::string>& args, std::FILE* out) {
  try {
    return say(args, out);
  } catch (const std::exception& e) {  // out of memory, mostly: a clear message, not an abort
    std::fprintf(stderr, "vela say: %s\n", e.what());
    return 1;
  }
}

}  // namespace vela::tools
