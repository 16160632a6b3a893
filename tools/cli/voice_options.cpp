#include "tools/cli/voice_options.h"

#include <algorithm>
#include <cstdlib>

namespace vela::cli {
namespace {

std::optional<long> wholeNumber(const std::string& value, long low, long high) {
  char* end = nullptr;
  const long n = std::strtol(value.c_str(), &end, 10);
  if (value.empty() || *end != '\0' || n < low || n > high) return std::nullopt;
  return n;
}

std::optional<double> realNumber(const std::string& value, double low, double high) {
  char* end = nullptr;
  const double x = std::strtod(value.c_str(), &end);
  if (value.empty() || *end != '\0' || !(x >= low && x <= high)) return std::nullopt;
  return x;
}

// An option that takes a value: false when the value is bad.
struct ValueOption {
  const char* name;
  const char* takes;  // for the message
  bool (*set)(VoiceOptions&, const std::string&);
};

const ValueOption kValueOptions[] = {
    {"--voice", "a folder",
     [](VoiceOptions& o, const std::string& v) {
       o.voices.push_back(v);
       return !v.empty();
     }},
    {"-o", "a file",
     [](VoiceOptions& o, const std::string& v) {
       o.outPath = v;
       return !v.empty();
     }},
    {"--pause", "milliseconds from 0 to 60000",
     [](VoiceOptions& o, const std::string& v) {
       const auto ms = wholeNumber(v, 0, audio::kMaxPauseMs);
       o.pauseMs = static_cast<int>(ms.value_or(0));
       return ms.has_value();
     }},
    {"--rate", "a sample rate from 1000 to 384000 Hz",
     [](VoiceOptions& o, const std::string& v) {
       const auto hz = wholeNumber(v, audio::kMinRate, audio::kMaxRate);
       if (hz) o.rate = static_cast<int>(*hz), o.rates.push_back(static_cast<int>(*hz));
       return hz.has_value();
     }},
    {"--encoding", "pcm16, ulaw or alaw",
     [](VoiceOptions& o, const std::string& v) {
       o.encoding = audio::parseEncoding(v);
       return o.encoding.has_value();
     }},
    {"--format", "a format",
     [](VoiceOptions& o, const std::string& v) {
       o.format = v;
       return !v.empty();
     }},
    {"--silence-db", "a level from -120 to 0 dBFS",
     [](VoiceOptions& o, const std::string& v) {
       o.silenceDb = realNumber(v, -120, 0).value_or(1);
       return o.silenceDb <= 0;
     }},
    {"--max-silence", "milliseconds",
     [](VoiceOptions& o, const std::string& v) {
       o.maxSilenceMs = static_cast<int>(wholeNumber(v, 0, 60000).value_or(-1));
       return o.maxSilenceMs >= 0;
     }},
    {"--loudness-range", "loudness units",
     [](VoiceOptions& o, const std::string& v) {
       o.loudnessRange = realNumber(v, 0, 100).value_or(-1);
       return o.loudnessRange >= 0;
     }},
    {"--layout", "asterisk or freeswitch",
     [](VoiceOptions& o, const std::string& v) {
       o.layout = v;
       return v == "asterisk" || v == "freeswitch";
     }},
    {"--name", "a folder name",
     [](VoiceOptions& o, const std::string& v) {
       o.name = v;
       return !v.empty() && v.find('/') == std::string::npos;
     }},
    {"--sounds", "a folder",
     [](VoiceOptions& o, const std::string& v) {
       o.sounds = v;
       return !v.empty();
     }},
};

struct FlagOption {
  const char* name;
  void (*set)(VoiceOptions&);
};
const FlagOption kFlags[] = {
    {"--json", [](VoiceOptions& o) { o.json = true; }},
    {"--copy", [](VoiceOptions& o) { o.copy = true; }},
    {"--trim", [](VoiceOptions& o) { o.trimDb = kDefaultTrimDb; }},
};

}  // namespace

void parseVoiceOptions(Arguments& args, std::initializer_list<std::string_view> allowed,
                       VoiceOptions& options) {
  const auto takes = [&](std::string_view name) {
    return std::find(allowed.begin(), allowed.end(), name) != allowed.end();
  };
  while (args.next()) {
    const std::string arg = args.current();
    if (!args.isOption()) {
      options.positional.push_back(arg);
      continue;
    }
    if (takes(arg) && takeLanguageOption(args, options.language)) continue;
    if (arg.rfind("--trim=", 0) == 0 && takes("--trim")) {
      options.trimDb = realNumber(arg.substr(7), -120, 0);
      if (!options.trimDb)
        throw UsageError{"--trim takes a level from -120 to 0 dBFS, not \"" + arg.substr(7) + "\""};
      continue;
    }
    const auto flag = std::find_if(std::begin(kFlags), std::end(kFlags),
                                   [&](const FlagOption& f) { return arg == f.name; });
    if (flag != std::end(kFlags) && takes(arg)) {
      flag->set(options);
      continue;
    }
    const auto option = std::find_if(std::begin(kValueOptions), std::end(kValueOptions),
                                     [&](const ValueOption& v) { return arg == v.name; });
    if (option == std::end(kValueOptions) || !takes(arg)) args.reject();
    const std::string value = args.value();
    if (!option->set(options, value))
      throw UsageError{arg + " takes " + option->takes + ", not \"" + value + "\""};
  }
}

}  // namespace vela::cli
