// Rendering: recordings of any rate, channels and encoding become one file in
// the format asked; trimming, pauses, errors and fingerprints. Which format
// each output option gives is tested through `vela say` (tests/tools).
#include "audio/render.h"

#include <fstream>

#include "audio/analysis.h"
#include "tests/audio/audio_test_support.h"

namespace {

using vela::testing::readBack;
using vela::testing::writeSound;
using vela::testing::writeTone;

class RenderTest : public vela::testing::ScratchTest {
 protected:
  vela::audio::Voice voice() const { return vela::audio::Voice{{dir_.string()}}; }

  // Renders with a pause of `pauseMs` and writes the bytes to out.bin; the rendered answer.
  vela::audio::Rendered render(const std::vector<std::string>& names, int pauseMs = 150,
                               vela::audio::RenderOptions options = {}) {
    options.pauseMs = pauseMs;
    vela::audio::Rendered answer = vela::audio::renderPrompts(voice(), names, options);
    std::ofstream(dir_ / "out.bin", std::ios::binary) << answer.bytes;
    return answer;
  }
};

// Half a second of float at 22050 Hz and of 24-bit stereo FLAC at 44100 Hz,
// with a 0.1 s pause, become 1.1 s of 8 kHz mono A-law.
TEST_F(RenderTest, RecordingsOfAnyFormatBecomeTheFormatAsked) {
  writeSound(dir_ / "a.wav", 22050, 1, 11025, SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  writeSound(dir_ / "b.flac", 44100, 2, 22050, SF_FORMAT_FLAC | SF_FORMAT_PCM_24);
  vela::audio::RenderOptions options;
  options.format = {8000, 1, vela::audio::Encoding::alaw, vela::audio::Container::wav};
  const vela::audio::Rendered answer = render({"a", "b"}, 100, options);
  ASSERT_TRUE(answer.ok()) << answer.errors[0].message;
  const auto back = readBack(dir_ / "out.bin");
  EXPECT_EQ(std::tuple(back.info.format, back.info.samplerate, back.info.channels),
            std::tuple(SF_FORMAT_WAV | SF_FORMAT_ALAW, 8000, 1));
  EXPECT_NEAR(static_cast<double>(back.info.frames), 8800, 4);
}

TEST_F(RenderTest, SameRateRecordingsAreCopiedSampleForSampleWithPauses) {
  writeTone(dir_ / "a.wav", 8000, 1, 800);
  writeTone(dir_ / "b.wav", 8000, 1, 1200);
  ASSERT_TRUE(render({"a", "b", "a"}, 100).ok());
  const auto back = readBack(dir_ / "out.bin");
  ASSERT_EQ(back.info.frames, 800 + 800 + 1200 + 800 + 800);
  for (const auto& [start, frames] : {std::pair{0L, 800L}, std::pair{1600L, 1200L}, std::pair{3600L, 800L}})
    for (long i = 0; i < frames; i += 37) ASSERT_EQ(back.samples[start + i], vela::testing::toneSample(i, 0));
  for (long i = 800; i < 1600; i += 11) ASSERT_EQ(back.samples[i], 0);
}

TEST_F(RenderTest, EveryBadRecordingIsNamedAndNothingIsRendered) {
  writeTone(dir_ / "a.wav", 8000, 1, 100);
  std::ofstream(dir_ / "bad.wav") << "text";
  const vela::audio::Rendered answer = render({"a", "gone", "bad", "a"});
  ASSERT_EQ(answer.errors.size(), 2u);
  EXPECT_EQ(std::tuple(answer.errors[0].fault, answer.errors[0].prompt, answer.errors[1].fault),
            std::tuple(vela::audio::Fault::missing, "gone", vela::audio::Fault::unreadable));
  EXPECT_TRUE(answer.bytes.empty());
  EXPECT_FALSE(render({}).ok());
}

TEST_F(RenderTest, FingerprintFollowsTheRecordingsAndTheOptions) {
  writeTone(dir_ / "a.wav", 8000, 1, 100);
  writeTone(dir_ / "b.wav", 8000, 1, 200);
  const auto print = [&](const std::vector<std::string>& names, int pause = 150) {
    vela::audio::RenderOptions options;
    options.pauseMs = pause;
    return vela::audio::fingerprintPrompts(voice(), names, options);
  };
  const std::string first = *print({"a", "b"});
  EXPECT_EQ(render({"a", "b"}).fingerprint, first);
  EXPECT_NE(*print({"b", "a"}), first);
  EXPECT_NE(*print({"a", "b"}, 100), first);
  writeTone(dir_ / "b.wav", 8000, 1, 201);
  EXPECT_NE(*print({"a", "b"}), first);
  EXPECT_FALSE(print({"a", "gone"}));
}

// 0.25 s of silence, 0.5 s of tone with four samples at full scale, 0.5 s of silence.
TEST_F(RenderTest, QuietEndsAreMeasuredAndTrimmedOnlyWhenAsked) {
  std::vector<short> samples(20000, 0);
  for (int i = 4000; i < 12000; ++i) samples[i] = vela::testing::toneSample(i, 0);
  for (int i : {5000, 6000, 7000}) samples[i] = 32767;
  samples[8000] = -32768;
  vela::testing::writeSamples(dir_ / "a.wav", 16000, 1, samples);
  writeSound(dir_ / "quiet.wav", 16000, 1, 400, SF_FORMAT_WAV | SF_FORMAT_PCM_16, true);
  const auto sound = vela::audio::readRecording((dir_ / "a.wav").string());
  ASSERT_TRUE(sound);
  const vela::audio::Measures m = vela::audio::measureRecording(*sound, -45);
  EXPECT_NEAR(m.leadingSilence, 0.25, 0.001);
  EXPECT_NEAR(m.trailingSilence, 0.5, 0.001);
  EXPECT_EQ(m.clippedSamples, 4);
  EXPECT_NEAR(m.loudness, -15.3, 1.5);  // a sine of amplitude 8000/32768 over 400 ms windows

  // Untrimmed, trimmed, and quiet throughout: kept whole.
  for (const auto& [trimDb, name, frames] :
       {std::tuple<std::optional<double>, const char*, long>{{}, "a", 20000},
        {-45.0, "a", 8000},
        {-45.0, "quiet", 400}}) {
    vela::audio::RenderOptions options;
    options.trimDb = trimDb;
    ASSERT_TRUE(render({name}, 150, options).ok());
    EXPECT_NEAR(static_cast<double>(readBack(dir_ / "out.bin").info.frames), frames, 2) << name;
  }
}

}  // namespace
