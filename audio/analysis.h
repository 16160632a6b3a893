// Measures of one recording, for trimming and for the voice check.
#pragma once

#include <cstdint>
#include <vector>

#include "audio/render.h"

namespace vela::audio {

// Frames at the start (or end) of interleaved `samples` in which every channel
// is quieter than `thresholdDb` (dBFS); all frames when the whole is.
std::int64_t leadingSilentFrames(const std::vector<float>& samples, int channels, double thresholdDb);
std::int64_t trailingSilentFrames(const std::vector<float>& samples, int channels, double thresholdDb);

struct Measures {
  double leadingSilence = 0;        // seconds
  double trailingSilence = 0;       // seconds
  std::int64_t clippedSamples = 0;  // at full scale (within half a 16-bit step)
  double loudness = 0;              // LUFS: the loudest 400 ms (EBU R128 momentary); -inf for silence
};

// `silenceDb` is the level below which the ends count as silence.
Measures measureRecording(const Sound& sound, double silenceDb);

}  // namespace vela::audio
