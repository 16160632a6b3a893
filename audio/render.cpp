// Answers rendered from recordings: converted to one rate and channel count,
// trimmed if asked, joined with pauses, written by libsndfile into memory.
#include "audio/render.h"

#include <soxr.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "audio/analysis.h"
#include "audio/memory_io.h"

namespace vela::audio {
namespace {

// What each output extension fixes; 0 and nullopt leave the caller's choice.
struct ExtensionRow {
  std::string_view extension;
  Container container;
  std::optional<Encoding> encoding;
  int rate;
};
const ExtensionRow kExtensions[] = {
    {".wav", Container::wav, std::nullopt, 0},          {".ulaw", Container::raw, Encoding::ulaw, 8000},
    {".alaw", Container::raw, Encoding::alaw, 8000},    {".sln", Container::raw, Encoding::pcm16, 8000},
    {".sln16", Container::raw, Encoding::pcm16, 16000}, {".raw", Container::raw, std::nullopt, 0},
};

int libsndfileFormat(const OutputFormat& format) {
  const int major = format.container == Container::wav ? SF_FORMAT_WAV : SF_FORMAT_RAW;
  switch (format.encoding) {
    case Encoding::ulaw:
      return major | SF_FORMAT_ULAW;
    case Encoding::alaw:
      return major | SF_FORMAT_ALAW;
    case Encoding::pcm16:
      break;
  }
  return major | SF_FORMAT_PCM_16 | (format.container == Container::raw ? SF_ENDIAN_LITTLE : 0);
}

// The recording's frames with `channels` channels: kept when they match, a
// mono recording copied to each, anything else mixed down (the mean).
std::vector<float> withChannels(const Sound& sound, int channels) {
  const int from = sound.info.channels;
  if (from == channels) return sound.samples;
  const std::size_t frames = sound.samples.size() / static_cast<std::size_t>(from);
  std::vector<float> out(frames * static_cast<std::size_t>(channels));
  for (std::size_t f = 0; f < frames; ++f) {
    float sum = 0;
    for (int c = 0; c < from; ++c)
      sum += sound.samples[f * static_cast<std::size_t>(from) + static_cast<std::size_t>(c)];
    const float mono = sum / static_cast<float>(from);
    for (int c = 0; c < channels; ++c)
      out[f * static_cast<std::size_t>(channels) + static_cast<std::size_t>(c)] = mono;
  }
  return out;
}

// A recording quieter than the threshold throughout is kept whole: trimming
// never turns a prompt into nothing.
void trim(std::vector<float>& samples, int channels, double db) {
  const auto c = static_cast<std::size_t>(channels);
  const auto lead = static_cast<std::size_t>(leadingSilentFrames(samples, channels, db));
  if (lead * c == samples.size()) return;
  const auto tail = static_cast<std::size_t>(trailingSilentFrames(samples, channels, db));
  samples.erase(samples.end() - static_cast<std::ptrdiff_t>(tail * c), samples.end());
  samples.erase(samples.begin(), samples.begin() + static_cast<std::ptrdiff_t>(lead * c));
}

Checked<std::vector<float>> resample(const std::vector<float>& in, int channels, int from, int to) {
  if (from == to || in.empty()) return in;
  const std::size_t frames = in.size() / static_cast<std::size_t>(channels);
  const auto outFrames = static_cast<std::size_t>(std::ceil(static_cast<double>(frames) * to / from)) + 1;
  std::vector<float> out(outFrames * static_cast<std::size_t>(channels));
  const soxr_io_spec_t io = soxr_io_spec(SOXR_FLOAT32_I, SOXR_FLOAT32_I);
  const soxr_quality_spec_t quality = soxr_quality_spec(SOXR_HQ, 0);
  std::size_t done = 0;
  const soxr_error_t error = soxr_oneshot(from, to, static_cast<unsigned>(channels), in.data(), frames,
                                          nullptr, out.data(), outFrames, &done, &io, &quality, nullptr);
  if (error != nullptr) return Error{Fault::unreadable, "", "", std::string("cannot resample: ") + error};
  out.resize(done * static_cast<std::size_t>(channels));
  return out;
}

// The recordings converted to the output's rate and channels, trimmed if
// asked, and kept within full scale: resampling may overshoot it, and
// libsndfile's mu-law and A-law encoders index a table with the sample.
Checked<std::vector<float>> convert(const Sound& sound, const RenderOptions& options, int rate) {
  std::vector<float> samples = withChannels(sound, options.format.channels);
  if (options.trimDb) trim(samples, options.format.channels, *options.trimDb);
  Checked<std::vector<float>> converted = resample(samples, options.format.channels, sound.info.rate, rate);
  if (converted) {
    for (float& s : *converted) s = std::clamp(s, -1.0f, 1.0f);
  }
  return converted;
}

// 64-bit FNV-1a: fingerprints for caches, not for security.
class Fingerprint {
 public:
  void add(std::string_view bytes) {
    for (char c : bytes) hash_ = (hash_ ^ static_cast<unsigned char>(c)) * 0x100000001b3ULL;
    hash_ = (hash_ ^ 0xFF) * 0x100000001b3ULL;  // a separator: "ab","c" differs from "a","bc"
  }
  std::string hex() const {
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(hash_));
    return text;
  }

 private:
  std::uint64_t hash_ = 0xcbf29ce484222325ULL;
};

void addOptions(Fingerprint& print, const RenderOptions& options) {
  char text[128];
  std::snprintf(text, sizeof text, "%d %d %d %d %d %g", options.format.rate, options.format.channels,
                static_cast<int>(options.format.encoding), static_cast<int>(options.format.container),
                options.pauseMs, options.trimDb ? *options.trimDb : 1.0);
  print.add(text);
}

std::string baseName(const std::string& path) { return path.substr(path.find_last_of('/') + 1); }

// Finds and reads a prompt's file; the error names the prompt.
Checked<std::string> promptBytes(const Voice& voice, const std::string& name, std::string& path) {
  const std::optional<std::string> found = findRecording(voice, name);
  if (!found) return loadPrompt(voice, name).error();  // the missing error, worded in one place
  path = *found;
  Checked<std::string> bytes = readRecordingBytes(path);
  if (!bytes) {
    Error error = bytes.error();
    error.prompt = promptFileStem(name);
    return error;
  }
  return bytes;
}

// Writes the converted recordings with pauses into `out`.
std::optional<Error> writeAnswer(const std::vector<std::vector<float>>& pieces, const OutputFormat& format,
                                 int pauseMs, std::string& out) {
  SF_INFO info{};
  info.samplerate = format.rate;
  info.channels = format.channels;
  info.format = libsndfileFormat(format);
  MemoryFile memory{&out, 0};
  SoundFile file(sf_open_virtual(&memoryIo(), SFM_WRITE, &info, &memory));
  if (!file) return Error{Fault::cannotWrite, "", "", std::string("cannot encode: ") + sf_strerror(nullptr)};
  sf_command(file.get(), SFC_SET_CLIPPING, nullptr, SF_TRUE);  // resampling may overshoot full scale
  const auto pauseFrames = static_cast<sf_count_t>(format.rate) * pauseMs / 1000;
  const std::vector<float> silence(4096 * static_cast<std::size_t>(format.channels), 0.0f);
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    for (sf_count_t left = i > 0 ? pauseFrames : 0; left > 0; left -= 4096) {
      sf_writef_float(file.get(), silence.data(), std::min<sf_count_t>(left, 4096));
    }
    const auto frames = static_cast<sf_count_t>(pieces[i].size() / static_cast<std::size_t>(format.channels));
    if (sf_writef_float(file.get(), pieces[i].data(), frames) != frames)
      return Error{Fault::cannotWrite, "", "", std::string("cannot encode: ") + sf_strerror(file.get())};
  }
  if (sf_close(file.release()) != 0) return Error{Fault::cannotWrite, "", "", "cannot encode the answer"};
  return std::nullopt;
}

}  // namespace

std::optional<Encoding> parseEncoding(std::string_view word) {
  if (word == "pcm16" || word == "pcm" || word == "slin") return Encoding::pcm16;
  if (word == "ulaw" || word == "mulaw" || word == "pcmu") return Encoding::ulaw;
  if (word == "alaw" || word == "pcma") return Encoding::alaw;
  return std::nullopt;
}

std::optional<OutputFormat> formatForFileName(std::string_view fileName, OutputFormat base) {
  const std::size_t dot = fileName.find_last_of("./");
  if (dot == std::string_view::npos || fileName[dot] != '.') return std::nullopt;
  const std::string_view extension = fileName.substr(dot);
  for (const ExtensionRow& row : kExtensions) {
    if (row.extension != extension) continue;
    base.container = row.container;
    if (row.encoding) base.encoding = *row.encoding;
    if (row.rate != 0) base.rate = row.rate;
    return base;
  }
  return std::nullopt;
}

std::string_view contentType(const OutputFormat& format) {
  if (format.container == Container::wav) return "audio/wav";
  if (format.encoding == Encoding::ulaw) return "audio/basic";
  if (format.encoding == Encoding::alaw) return "audio/x-alaw-basic";
  return "application/octet-stream";
}

Checked<std::string> fingerprintPrompts(const Voice& voice, const std::vector<std::string>& names,
                                        const RenderOptions& options) {
  Fingerprint print;
  addOptions(print, options);
  for (const std::string& name : names) {
    std::string path;
    Checked<std::string> bytes = promptBytes(voice, name, path);
    if (!bytes) return bytes.error();
    print.add(baseName(path));
    print.add(*bytes);
  }
  return print.hex();
}

Rendered renderPrompts(const Voice& voice, const std::vector<std::string>& names,
                       const RenderOptions& options) {
  Rendered answer;
  answer.format = options.format;
  if (names.empty()) {
    answer.errors.push_back(Error{Fault::missing, "", "", "no prompt to play"});
    return answer;
  }
  Fingerprint print;
  addOptions(print, options);
  std::vector<Sound> sounds;
  for (const std::string& name : names) {
    std::string path;
    Checked<std::string> bytes = promptBytes(voice, name, path);
    Checked<Sound> sound = bytes ? decodeRecording(path, *bytes) : Checked<Sound>(bytes.error());
    if (!sound) {
      Error error = sound.error();
      error.prompt = promptFileStem(name);
      answer.errors.push_back(std::move(error));
      continue;
    }
    print.add(baseName(path));
    print.add(*bytes);
    sounds.push_back(std::move(*sound));
  }
  if (!answer.ok()) return answer;
  if (answer.format.rate == 0) answer.format.rate = sounds.front().info.rate;
  const int rate = answer.format.rate;
  if (rate < kMinRate || rate > kMaxRate || answer.format.channels < 1 ||
      answer.format.channels > kMaxChannels || options.pauseMs < 0 || options.pauseMs > kMaxPauseMs) {
    answer.errors.push_back(
        Error{Fault::outOfBounds, "", "", "output rate, channels or pause out of bounds"});
    return answer;
  }
  // Lengths are known before anything is converted: a long answer is refused first.
  double seconds = static_cast<double>(options.pauseMs) * static_cast<double>(sounds.size() - 1) / 1000.0;
  for (const Sound& s : sounds) seconds += static_cast<double>(s.info.frames) / s.info.rate;
  if (seconds > kMaxAnswerSeconds ||
      seconds * rate * answer.format.channels > static_cast<double>(kMaxRecordingSamples)) {
    answer.errors.push_back(
        Error{Fault::tooLong, "", "",
              "the answer would last longer than " + std::to_string(kMaxAnswerSeconds) + " s"});
    return answer;
  }
  std::vector<std::vector<float>> pieces;
  for (const Sound& s : sounds) {
    Checked<std::vector<float>> piece = convert(s, options, rate);
    if (!piece) {
      Error error = piece.error();
      error.path = s.info.path;
      error.message = s.info.path + ": " + error.message;
      answer.errors.push_back(std::move(error));
      return answer;
    }
    pieces.push_back(std::move(*piece));
  }
  if (auto error = writeAnswer(pieces, answer.format, options.pauseMs, answer.bytes)) {
    answer.bytes.clear();
    answer.errors.push_back(std::move(*error));
    return answer;
  }
  answer.fingerprint = print.hex();
  return answer;
}

}  // namespace vela::audio
