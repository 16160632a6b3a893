// Recordings made for the audio tests: tones and silences written by
// libsndfile into a scratch folder that the fixture removes.
#pragma once

#include <gtest/gtest.h>
#include <sndfile.h>
#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

namespace vela::testing {

// A scratch folder per test.
class ScratchTest : public ::testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::remove_all(dir_);
    std::filesystem::create_directories(dir_);
  }
  void TearDown() override { std::filesystem::remove_all(dir_); }

  std::filesystem::path dir_ = std::filesystem::path(::testing::TempDir()) /
                               ("vela_" + std::to_string(getpid()) + "_" +
                                ::testing::UnitTest::GetInstance()->current_test_info()->name());
};

// Sample i of channel c of the test tone, as a 16-bit value.
inline short toneSample(long i, int c) {
  return static_cast<short>(8000 * std::sin(0.05 * static_cast<double>(i)) + 100 * c + 1);
}

// Writes 16-bit samples (interleaved) with libsndfile.
inline void writeSamples(const std::filesystem::path& path, int rate, int channels,
                         const std::vector<short>& samples, int format = SF_FORMAT_WAV | SF_FORMAT_PCM_16) {
  SF_INFO info{0, rate, channels, format, 0, 0};
  SNDFILE* f = sf_open(path.c_str(), SFM_WRITE, &info);
  ASSERT_NE(f, nullptr) << path << ": " << sf_strerror(nullptr);
  sf_writef_short(f, samples.data(), static_cast<sf_count_t>(samples.size()) / channels);
  sf_close(f);
}

// `frames` frames of the tone, or of silence.
inline void writeSound(const std::filesystem::path& path, int rate, int channels, long frames, int format,
                       bool silent = false) {
  std::vector<short> samples;
  for (long i = 0; i < frames; ++i)
    for (int c = 0; c < channels; ++c) samples.push_back(silent ? 0 : toneSample(i, c));
  writeSamples(path, rate, channels, samples, format);
}

inline void writeTone(const std::filesystem::path& path, int rate, int channels, long frames) {
  writeSound(path, rate, channels, frames, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
}

// What libsndfile reads back from a file: the header's facts and the samples.
struct ReadBack {
  SF_INFO info{};
  std::vector<short> samples;
};
inline ReadBack readBack(const std::filesystem::path& path) {
  ReadBack back;
  SNDFILE* f = sf_open(path.c_str(), SFM_READ, &back.info);
  if (f == nullptr) return back;
  back.samples.resize(static_cast<std::size_t>(back.info.frames * back.info.channels));
  sf_readf_short(f, back.samples.data(), back.info.frames);
  sf_close(f);
  return back;
}

}  // namespace vela::testing
