// Voice platforms: where Asterisk and FreeSWITCH look for prompts, and which
// of Debian's Asterisk recordings say a prompt of ours.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "audio/render.h"

namespace vela::audio {

enum class Layout { asterisk, freeswitch };

// One folder of an exported set: every prompt is written there as
// promptFileStem(name) + extension, in `format`.
struct ExportTarget {
  std::string folder;
  std::string extension;
  OutputFormat format;
};

struct ExportRequest {
  Layout layout = Layout::asterisk;
  std::string destination;
  std::string language;            // "ru", "en", ...
  std::string region;              // FreeSWITCH; empty: the language's usual one
  std::string voiceName = "vela";  // FreeSWITCH's <voice> folder
  std::vector<int> rates;          // empty: 8000 (Asterisk), 8000 and 16000 (FreeSWITCH)
  Encoding encoding = Encoding::pcm16;
  bool headerless = false;  // Asterisk .sln/.sln16 instead of .wav/.wav16
};

// Asterisk: DEST/sounds/LANG/vela/NAME.wav (8 kHz), .wav16 (16 kHz), .sln,
// .sln16, .ulaw or .alaw (8 kHz). FreeSWITCH: DEST/LANG/REGION/VOICE/vela/RATE/NAME.wav
// for each rate. An error for a combination the platform does not read.
Checked<std::vector<ExportTarget>> exportTargets(const ExportRequest& request);

// A row of the map from our prompts to Debian's Asterisk core sounds.
struct AsteriskSound {
  std::string language;    // "ru", "en"
  std::string prompt;      // UTF-8
  std::string sound;       // relative to the language's sounds folder, no extension
  std::string transcript;  // what the package says the recording says
};

// The rows of audio/data/asterisk-core-sounds.tsv for `language`, in order.
std::vector<AsteriskSound> asteriskSounds(std::string_view language);

}  // namespace vela::audio
