// Options of the voice commands (say, voice check|export|import, prompts
// --check|--script): one parser, each command naming the options it takes.
#pragma once

#include <cstdio>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "audio/platforms.h"
#include "audio/render.h"
#include "tools/cli/command.h"

namespace vela::cli {

struct VoiceOptions {
  LanguageOptions language;
  std::vector<std::string> voices;  // --voice, in order
  std::string outPath;              // -o
  int pauseMs = 150;                // --pause
  std::optional<int> rate;          // --rate (say: the last one)
  std::vector<int> rates;           // --rate, every one given (export)
  std::optional<audio::Encoding> encoding;
  std::string format;            // --format
  std::optional<double> trimDb;  // --trim[=DB]
  bool json = false;             // --json
  double silenceDb = -45;        // --silence-db
  int maxSilenceMs = 300;        // --max-silence
  double loudnessRange = 4;      // --loudness-range (LU from the median)
  std::string layout;            // --layout
  std::string name = "vela";     // --name (FreeSWITCH voice)
  std::string sounds;            // --sounds
  bool copy = false;             // --copy
  std::vector<std::string> positional;
};

// The trim threshold when --trim is given without a value.
inline constexpr double kDefaultTrimDb = -45;

// Reads the rest of `args`, taking only the options in `allowed` ("-l",
// "--voice", ...); throws UsageError otherwise or for a bad value.
void parseVoiceOptions(Arguments& args, std::initializer_list<std::string_view> allowed,
                       VoiceOptions& options);

// The work of each voice command; each returns the exit status (0 done, 1
// something to fix, named on standard error or in its table).
int runVoiceCheck(const VoiceOptions& options, std::FILE* out);
int runVoiceExport(const VoiceOptions& options, std::FILE* out);
int runVoiceImport(const VoiceOptions& options, std::FILE* out);
int runPromptScript(const VoiceOptions& options, std::FILE* out);

}  // namespace vela::cli
