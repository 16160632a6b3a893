// Options of the voice commands (say, voice check|export|import, prompts
// --check|--script): one parser, each command naming the options it takes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "audio/platforms.h"
#include "audio/render.h"

namespace vela::tools {

struct VoiceOptions {
  std::string tag = "ru";
  unsigned char mode = 0;
  bool raw = false;                 // texts and names as Windows-1251 bytes
  std::vector<std::string> voices;  // --voice, in order
  std::string outPath;              // -o
  int pauseMs = 150;                // --pause
  std::optional<int> rate;          // --rate (say)
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
  bool script = false;           // prompts --script
  std::vector<std::string> positional;
};

// The trim threshold when --trim is given without a value.
inline constexpr double kDefaultTrimDb = -45;

// Parses `args` (the words after the command's name) allowing only the
// options in `allowed` ("-l", "--voice", ...). On a usage error returns the
// message to print; exit status 2 follows.
std::optional<std::string> parseVoiceOptions(const std::vector<std::string>& args,
                                             const std::vector<std::string>& allowed, VoiceOptions& options);

// True when the library knows `tag`; otherwise false after a message.
bool knownTag(const std::string& tag);

// A prompt name (Windows-1251) as the user sees it: UTF-8, or the bytes with --raw.
std::string shownName(const VoiceOptions& options, const std::string& name);

}  // namespace vela::tools
