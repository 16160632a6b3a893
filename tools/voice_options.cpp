#include "tools/voice_options.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>

#include "grammar/factory.h"
#include "tools/encoding.h"

namespace vela::tools {
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
using Setter = std::function<bool(VoiceOptions&, const std::string&)>;
struct ValueOption {
  const char* name;
  Setter set;
};

const ValueOption kValueOptions[] = {
    {"-l",
     [](VoiceOptions& o, const std::string& v) {
       o.tag = v;
       return true;
     }},
    {"--voice",
     [](VoiceOptions& o, const std::string& v) {
       o.voices.push_back(v);
       return !v.empty();
     }},
    {"-o",
     [](VoiceOptions& o, const std::string& v) {
       o.outPath = v;
       return !v.empty();
     }},
    {"--pause",
     [](VoiceOptions& o, const std::string& v) {
       const auto ms = wholeNumber(v, 0, audio::kMaxPauseMs);
       o.pauseMs = static_cast<int>(ms.value_or(0));
       return ms.has_value();
     }},
    {"--rate",
     [](VoiceOptions& o, const std::string& v) {
       const auto hz = wholeNumber(v, audio::kMinRate, audio::kMaxRate);
       if (hz) o.rate = static_cast<int>(*hz), o.rates.push_back(static_cast<int>(*hz));
       return hz.has_value();
     }},
    {"--encoding",
     [](VoiceOptions& o, const std::string& v) {
       o.encoding = audio::parseEncoding(v);
       return o.encoding.has_value();
     }},
    {"--format",
     [](VoiceOptions& o, const std::string& v) {
       o.format = v;
       return !v.empty();
     }},
    {"--silence-db",
     [](VoiceOptions& o, const std::string& v) {
       o.silenceDb = realNumber(v, -120, 0).value_or(1);
       return o.silenceDb <= 0;
     }},
    {"--max-silence",
     [](VoiceOptions& o, const std::string& v) {
       o.maxSilenceMs = static_cast<int>(wholeNumber(v, 0, 60000).value_or(-1));
       return o.maxSilenceMs >= 0;
     }},
    {"--loudness-range",
     [](VoiceOptions& o, const std::string& v) {
       o.loudnessRange = realNumber(v, 0, 100).value_or(-1);
       return o.loudnessRange >= 0;
     }},
    {"--layout",
     [](VoiceOptions& o, const std::string& v) {
       o.layout = v;
       return v == "asterisk" || v == "freeswitch";
     }},
    {"--name",
     [](VoiceOptions& o, const std::string& v) {
       o.name = v;
       return !v.empty() && v.find('/') == std::string::npos;
     }},
    {"--sounds",
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
    {"-t", [](VoiceOptions& o) { o.mode = 1; }},
    {"--raw", [](VoiceOptions& o) { o.raw = true; }},
    {"--json", [](VoiceOptions& o) { o.json = true; }},
    {"--copy", [](VoiceOptions& o) { o.copy = true; }},
    {"--script", [](VoiceOptions& o) { o.script = true; }},
    {"--trim", [](VoiceOptions& o) { o.trimDb = kDefaultTrimDb; }},
};

// "-5rub", "-,5kb" and "-" are texts, not options.
bool isText(const std::string& arg) {
  if (arg.size() < 2 || arg[0] != '-') return true;
  const char c = arg[1];
  return (c >= '0' && c <= '9') || c == ',' || c == '.' || c == '|';
}

}  // namespace

bool knownTag(const std::string& tag) {
  for (std::string_view known : knownTags()) {
    if (known == tag) return true;
  }
  std::fprintf(stderr, "vela: unknown language tag \"%s\"\n", tag.c_str());
  return false;
}

std::string shownName(const VoiceOptions& options, const std::string& name) {
  return options.raw ? name : utf8FromCp1251(name);
}

std::optional<std::string> parseVoiceOptions(const std::vector<std::string>& args,
                                             const std::vector<std::string>& allowed, VoiceOptions& options) {
  const auto takes = [&](const std::string& name) {
    return std::find(allowed.begin(), allowed.end(), name) != allowed.end();
  };
  bool onlyPositional = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (onlyPositional || isText(arg)) {
      options.positional.push_back(arg);
      continue;
    }
    if (arg == "--") {
      onlyPositional = true;
      continue;
    }
    if (arg.rfind("--trim=", 0) == 0 && takes("--trim")) {
      options.trimDb = realNumber(arg.substr(7), -120, 0);
      if (!options.trimDb) return "bad value: " + arg;
      continue;
    }
    const auto flag = std::find_if(std::begin(kFlags), std::end(kFlags),
                                   [&](const FlagOption& f) { return arg == f.name; });
    if (flag != std::end(kFlags) && takes(arg)) {
      flag->set(options);
      continue;
    }
    const auto value = std::find_if(std::begin(kValueOptions), std::end(kValueOptions),
                                    [&](const ValueOption& v) { return arg == v.name; });
    if (value == std::end(kValueOptions) || !takes(arg)) return "unknown option: " + arg;
    if (i + 1 >= args.size()) return "missing value: " + arg;
    if (!value->set(options, args[++i])) return "bad value: " + arg + " " + args[i];
  }
  return std::nullopt;
}

}  // namespace vela::tools
