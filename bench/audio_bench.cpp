// Rendering an answer from recordings in the page cache: four prompts into
// one 8 kHz mu-law WAV file in memory, as `vela say` and the HTTP service do.
#include <benchmark/benchmark.h>
#include <sndfile.h>
#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include "audio/render.h"

namespace {

// Four recordings of `seconds` each at `rate`, made once per process.
std::string voiceFolder(int rate) {
  const std::string folder = "/tmp/vela-audio-bench-" + std::to_string(getpid()) + "-" + std::to_string(rate);
  if (std::filesystem::exists(folder)) return folder;
  std::filesystem::create_directories(folder);
  for (const char* name : {"a", "b", "c", "d"}) {
    SF_INFO info{};
    info.samplerate = rate;
    info.channels = 1;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    SNDFILE* f = sf_open((folder + "/" + name + ".wav").c_str(), SFM_WRITE, &info);
    std::vector<short> samples(static_cast<std::size_t>(rate) / 2);  // half a second: a word
    for (std::size_t i = 0; i < samples.size(); ++i)
      samples[i] = static_cast<short>(8000 * std::sin(0.07 * i));
    sf_writef_short(f, samples.data(), static_cast<sf_count_t>(samples.size()));
    sf_close(f);
  }
  return folder;
}

void renderFour(benchmark::State& state, int recordingRate) {
  const vela::audio::Voice voice{{voiceFolder(recordingRate)}};
  vela::audio::RenderOptions options;
  options.format.rate = 8000;
  options.format.encoding = vela::audio::Encoding::ulaw;
  const std::vector<std::string> names = {"a", "b", "c", "d"};
  for (auto _ : state) {
    const vela::audio::Rendered answer = vela::audio::renderPrompts(voice, names, options);
    if (!answer.ok()) state.SkipWithError(answer.errors[0].message.c_str());
    benchmark::DoNotOptimize(answer.bytes.data());
  }
}

void BM_RenderFourPrompts8kUlaw(benchmark::State& state) { renderFour(state, 8000); }
void BM_RenderFourPrompts16kTo8kUlaw(benchmark::State& state) { renderFour(state, 16000); }
void BM_FingerprintFourPrompts(benchmark::State& state) {
  const vela::audio::Voice voice{{voiceFolder(8000)}};
  for (auto _ : state)
    benchmark::DoNotOptimize(vela::audio::fingerprintPrompts(voice, {"a", "b", "c", "d"}, {}));
}

BENCHMARK(BM_RenderFourPrompts8kUlaw)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_RenderFourPrompts16kTo8kUlaw)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_FingerprintFourPrompts)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
