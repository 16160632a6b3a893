// Rendering: recordings of any rate, channels and encoding become one file in
// the format asked; trimming, pauses, errors and fingerprints.
#include "audio/render.h"

#include <fstream>

#include "audio/analysis.h"
#include "tests/audio/audio_test_support.h"

namespace {

namespace fs = std::filesystem;
using vela::audio::Container;
using vela::audio::Encoding;
using vela::testing::readBack;
using vela::testing::writeSound;

class RenderTest : public vela::testing::ScratchTest {
 protected:
  vela::audio::Voice voice() const { return vela::audio::Voice{{dir_.string()}}; }

  // Renders and writes the bytes to out.bin; the rendered answer.
  vela::audio::Rendered render(const std::vector<std::string>& names,
                               const vela::audio::RenderOptions& options) {
    vela::audio::Rendered answer = vela::audio::renderPrompts(voice(), names, options);
    std::ofstream(dir_ / "out.bin", std::ios::binary) << answer.bytes;
    return answer;
  }
};

// Two recordings of half a second each (any rate, channels, sample format),
// rendered with a 0.1 s pause into the format asked.
TEST_F(RenderTest, RecordingsOfAnyFormatBecomeTheFormatAsked) {
  struct Recording {
    int rate, channels, format;
  };
  struct Row {
    Recording a, b;  // a.wav, b.flac
    vela::audio::OutputFormat format;
    int sfFormat;  // what libsndfile reads back (0: headerless)
    int rate;
  };
  const int wav16 = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  const Row rows[] = {
      {{16000, 1, wav16},
       {44100, 2, SF_FORMAT_FLAC | SF_FORMAT_PCM_16},
       {8000, 1, Encoding::ulaw, Container::wav},
       SF_FORMAT_WAV | SF_FORMAT_ULAW,
       8000},
      {{22050, 1, SF_FORMAT_WAV | SF_FORMAT_FLOAT},
       {48000, 1, SF_FORMAT_FLAC | SF_FORMAT_PCM_16},
       {16000, 1, Encoding::alaw, Container::raw},
       0,
       16000},
      {{11025, 2, SF_FORMAT_WAV | SF_FORMAT_PCM_24},
       {8000, 1, SF_FORMAT_FLAC | SF_FORMAT_PCM_16},
       {0, 1, Encoding::pcm16, Container::wav},
       wav16,
       11025},  // rate 0 keeps the first recording's
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.rate);
    writeSound(dir_ / "a.wav", row.a.rate, row.a.channels, row.a.rate / 2, row.a.format);
    writeSound(dir_ / "b.flac", row.b.rate, row.b.channels, row.b.rate / 2, row.b.format);
    vela::audio::RenderOptions options;
    options.format = row.format;
    options.pauseMs = 100;
    const vela::audio::Rendered answer = render({"a", "b"}, options);
    ASSERT_TRUE(answer.ok()) << answer.errors[0].message;
    EXPECT_EQ(answer.format.rate, row.rate);
    const double expected = row.rate + row.rate / 10;
    if (row.sfFormat == 0) {  // one byte a sample
      EXPECT_NEAR(static_cast<double>(answer.bytes.size()), expected, 4);
      continue;
    }
    const auto back = readBack(dir_ / "out.bin");
    EXPECT_EQ(back.info.format, row.sfFormat);
    EXPECT_EQ(back.info.samplerate, row.rate);
    EXPECT_EQ(back.info.channels, 1);
    EXPECT_NEAR(static_cast<double>(back.info.frames), expected, 4);
  }
}

TEST_F(RenderTest, SameRateRecordingsAreCopiedSampleForSampleWithPauses) {
  vela::testing::writeTone(dir_ / "a.wav", 8000, 1, 800);
  vela::testing::writeTone(dir_ / "b.wav", 8000, 1, 1200);
  vela::audio::RenderOptions options;
  options.pauseMs = 100;
  ASSERT_TRUE(render({"a", "b", "a"}, options).ok());
  const auto back = readBack(dir_ / "out.bin");
  ASSERT_EQ(back.info.frames, 800 + 800 + 1200 + 800 + 800);
  for (const auto& [start, frames] : {std::pair{0L, 800L}, std::pair{1600L, 1200L}, std::pair{3600L, 800L}})
    for (long i = 0; i < frames; i += 37) ASSERT_EQ(back.samples[start + i], vela::testing::toneSample(i, 0));
  for (long i = 800; i < 1600; i += 11) ASSERT_EQ(back.samples[i], 0);
}

TEST_F(RenderTest, EveryBadRecordingIsNamedAndNothingIsRendered) {
  vela::testing::writeTone(dir_ / "a.wav", 8000, 1, 100);
  std::ofstream(dir_ / "bad.wav") << "text";
  const vela::audio::Rendered answer = render({"a", "gone", "bad", "a"}, {});
  ASSERT_EQ(answer.errors.size(), 2u);
  EXPECT_EQ(answer.errors[0].fault, vela::audio::Fault::missing);
  EXPECT_EQ(answer.errors[0].prompt, "gone");
  EXPECT_EQ(answer.errors[1].fault, vela::audio::Fault::unreadable);
  EXPECT_TRUE(answer.bytes.empty());
  EXPECT_FALSE(render({}, {}).ok());
}

TEST_F(RenderTest, FingerprintFollowsTheRecordingsAndTheOptions) {
  vela::testing::writeTone(dir_ / "a.wav", 8000, 1, 100);
  vela::testing::writeTone(dir_ / "b.wav", 8000, 1, 200);
  const auto print = [&](const std::vector<std::string>& names, int pause) {
    vela::audio::RenderOptions options;
    options.pauseMs = pause;
    return vela::audio::fingerprintPrompts(voice(), names, options).operator*();
  };
  const std::string first = print({"a", "b"}, 150);
  vela::audio::RenderOptions options;
  EXPECT_EQ(vela::audio::renderPrompts(voice(), {"a", "b"}, options).fingerprint, first);
  EXPECT_NE(print({"b", "a"}, 150), first);
  EXPECT_NE(print({"a", "b"}, 100), first);
  vela::testing::writeTone(dir_ / "b.wav", 8000, 1, 201);
  EXPECT_NE(print({"a", "b"}, 150), first);
  EXPECT_FALSE(vela::audio::fingerprintPrompts(voice(), {"a", "gone"}, options));
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
  // A sine of amplitude 8000/32768 is about -15 LUFS over its 400 ms windows.
  EXPECT_NEAR(m.loudness, -15.3, 1.5);

  struct Row {
    std::optional<double> trimDb;
    const char* name;
    long frames;
  };
  for (const Row& row : {Row{std::nullopt, "a", 20000}, Row{-45.0, "a", 8000}, Row{-45.0, "quiet", 400}}) {
    vela::audio::RenderOptions options;
    options.trimDb = row.trimDb;
    ASSERT_TRUE(render({row.name}, options).ok());
    EXPECT_NEAR(static_cast<double>(readBack(dir_ / "out.bin").info.frames), row.frames, 2) << row.name;
  }
}

}  // namespace
