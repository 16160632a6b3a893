#include "audio/analysis.h"

#include <ebur128.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace vela::audio {
namespace {

bool frameSilent(const float* frame, int channels, float level) {
  for (int c = 0; c < channels; ++c) {
    if (std::fabs(frame[c]) >= level) return false;
  }
  return true;
}

float levelOf(double db) { return static_cast<float>(std::pow(10.0, db / 20.0)); }

struct DestroyMeter {
  void operator()(ebur128_state* state) const { ebur128_destroy(&state); }
};

// The loudest momentary (400 ms) loudness, measured every 100 ms; a recording
// shorter than 400 ms is measured whole, padded with silence.
double maxMomentaryLoudness(const Sound& sound) {
  const int channels = sound.info.channels;
  std::unique_ptr<ebur128_state, DestroyMeter> meter(ebur128_init(
      static_cast<unsigned>(channels), static_cast<unsigned long>(sound.info.rate), EBUR128_MODE_M));
  if (!meter) return -std::numeric_limits<double>::infinity();
  const auto step = static_cast<std::size_t>(sound.info.rate / 10);
  const std::size_t frames = sound.samples.size() / static_cast<std::size_t>(channels);
  double loudest = -std::numeric_limits<double>::infinity();
  std::vector<float> pad(static_cast<std::size_t>(channels) * step * 4, 0.0f);
  for (std::size_t at = 0; at < std::max(frames, 4 * step); at += step) {
    if (at < frames) {
      const std::size_t n = std::min(step, frames - at);
      ebur128_add_frames_float(meter.get(), sound.samples.data() + at * static_cast<std::size_t>(channels),
                               n);
    } else {
      ebur128_add_frames_float(meter.get(), pad.data(), step);
    }
    double momentary = 0;
    if (at + step >= 4 * step && ebur128_loudness_momentary(meter.get(), &momentary) == EBUR128_SUCCESS)
      loudest = std::max(loudest, momentary);
  }
  return loudest;
}

}  // namespace

std::int64_t leadingSilentFrames(const std::vector<float>& samples, int channels, double thresholdDb) {
  const float level = levelOf(thresholdDb);
  const std::size_t frames = samples.size() / static_cast<std::size_t>(channels);
  std::size_t i = 0;
  while (i < frames && frameSilent(&samples[i * static_cast<std::size_t>(channels)], channels, level)) ++i;
  return static_cast<std::int64_t>(i);
}

std::int64_t trailingSilentFrames(const std::vector<float>& samples, int channels, double thresholdDb) {
  const float level = levelOf(thresholdDb);
  const std::size_t frames = samples.size() / static_cast<std::size_t>(channels);
  std::size_t i = 0;
  while (i < frames &&
         frameSilent(&samples[(frames - 1 - i) * static_cast<std::size_t>(channels)], channels, level))
    ++i;
  return static_cast<std::int64_t>(i);
}

Measures measureRecording(const Sound& sound, double silenceDb) {
  Measures m;
  const double rate = sound.info.rate;
  const int channels = sound.info.channels;
  const std::int64_t lead = leadingSilentFrames(sound.samples, channels, silenceDb);
  m.leadingSilence = static_cast<double>(lead) / rate;
  m.trailingSilence =
      lead == sound.info.frames
          ? 0.0
          : static_cast<double>(trailingSilentFrames(sound.samples, channels, silenceDb)) / rate;
  // Full scale of a 16-bit file is 32767/32768; anything within half a step of it counts.
  constexpr float kClip = 32766.5f / 32768.0f;
  m.clippedSamples = std::count_if(sound.samples.begin(), sound.samples.end(),
                                   [](float s) { return std::fabs(s) >= kClip; });
  m.loudness = maxMomentaryLoudness(sound);
  return m;
}

}  // namespace vela::audio
