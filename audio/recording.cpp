// Reading recordings: the one place that decides whether a file is a
// recording we can play.
#include <sndfile.h>
#include <sys/stat.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "audio/memory_io.h"
#include "audio/render.h"

namespace vela::audio {
namespace {

// Headerless telephony files, known by their extension.
struct Headerless {
  std::string_view extension;
  int format;
  int rate;
};
const Headerless kHeaderless[] = {
    {".sln16", SF_FORMAT_RAW | SF_FORMAT_PCM_16 | SF_ENDIAN_LITTLE, 16000},
    {".sln", SF_FORMAT_RAW | SF_FORMAT_PCM_16 | SF_ENDIAN_LITTLE, 8000},
    {".ulaw", SF_FORMAT_RAW | SF_FORMAT_ULAW, 8000},
    {".alaw", SF_FORMAT_RAW | SF_FORMAT_ALAW, 8000},
};

const Headerless* headerlessKind(std::string_view path) {
  for (const Headerless& h : kHeaderless) {
    if (path.size() > h.extension.size() && path.substr(path.size() - h.extension.size()) == h.extension)
      return &h;
  }
  return nullptr;
}

Error fail(Fault fault, const std::string& path, const std::string& what) {
  return Error{fault, "", path, path + ": " + what};
}

// libsndfile reads a data chunk that runs past the end of the file as far as
// it goes and notes "data : DECLARED (should be PRESENT)" in its log; that is
// a recording cut short. Streaming writers leave 0 or 0xFFFFFFFF there.
std::optional<std::string> cutShort(SNDFILE* file) {
  char log[8192] = {};
  sf_command(file, SFC_GET_LOG_INFO, log, sizeof log);
  for (const char* p = log; (p = std::strstr(p, "(should be ")) != nullptr; ++p) {
    const char* line = p;
    while (line > log && line[-1] != '\n') --line;
    while (*line == ' ') ++line;
    if (std::strncmp(line, "data", 4) != 0 && std::strncmp(line, "SSND", 4) != 0) continue;
    const char* colon = std::strchr(line, ':');
    if (colon == nullptr || colon > p) continue;
    const unsigned long long declared = std::strtoull(colon + 1, nullptr, 10);
    const unsigned long long present = std::strtoull(p + 11, nullptr, 10);
    if (declared > present && declared != 0xFFFFFFFFull) {
      return "the data ends after " + std::to_string(present) + " of the " + std::to_string(declared) +
             " bytes its header declares";
    }
  }
  return std::nullopt;
}

std::optional<std::string> outOfBounds(const SF_INFO& info) {
  if (info.samplerate < kMinRate || info.samplerate > kMaxRate)
    return "a sample rate of " + std::to_string(info.samplerate) + " Hz";
  if (info.channels < 1 || info.channels > kMaxChannels) return std::to_string(info.channels) + " channels";
  if (info.frames > static_cast<sf_count_t>(info.samplerate) * kMaxRecordingSeconds)
    return "longer than " + std::to_string(kMaxRecordingSeconds) + " s";
  if (info.frames * info.channels > kMaxRecordingSamples)
    return std::to_string(info.frames * info.channels) + " samples";
  return std::nullopt;
}

// Decodes every frame; non-finite float samples become silence. Read in
// blocks, so a header that lies about the length sizes nothing.
Checked<Sound> decode(SNDFILE* file, const SF_INFO& info, const std::string& path) {
  Sound sound;
  sound.info = RecordingInfo{path, info.samplerate, info.channels, info.frames, info.format};
  const auto channels = static_cast<std::size_t>(info.channels);
  constexpr sf_count_t kBlock = 1 << 16;
  sf_count_t done = 0;
  while (done < info.frames) {
    const sf_count_t want = std::min(kBlock, info.frames - done);
    sound.samples.resize(static_cast<std::size_t>(done + want) * channels);
    const sf_count_t got =
        sf_readf_float(file, sound.samples.data() + static_cast<std::size_t>(done) * channels, want);
    done += std::max<sf_count_t>(got, 0);
    if (got < want) break;
  }
  if (done != info.frames) {
    return fail(Fault::truncated, path,
                "the data ends at frame " + std::to_string(done) + " of " + std::to_string(info.frames));
  }
  for (float& s : sound.samples) {
    if (!std::isfinite(s)) s = 0.0f;
  }
  return sound;
}

}  // namespace

std::string_view faultName(Fault fault) {
  switch (fault) {
    case Fault::missing:
      return "missing";
    case Fault::notAFile:
      return "not-a-file";
    case Fault::unreadable:
      return "unreadable";
    case Fault::empty:
      return "empty";
    case Fault::truncated:
      return "truncated";
    case Fault::outOfBounds:
      return "out-of-bounds";
    case Fault::tooLong:
      return "too-long";
    case Fault::cannotWrite:
      return "cannot-write";
  }
  return "unknown";
}

std::string encodingName(int format) {
  switch (format & SF_FORMAT_SUBMASK) {
    case SF_FORMAT_PCM_S8:
    case SF_FORMAT_PCM_U8:
      return "PCM 8-bit";
    case SF_FORMAT_PCM_16:
      return "PCM 16-bit";
    case SF_FORMAT_PCM_24:
      return "PCM 24-bit";
    case SF_FORMAT_PCM_32:
      return "PCM 32-bit";
    case SF_FORMAT_FLOAT:
      return "float";
    case SF_FORMAT_DOUBLE:
      return "double";
    case SF_FORMAT_ULAW:
      return "mu-law";
    case SF_FORMAT_ALAW:
      return "A-law";
    default:
      break;
  }
  SF_FORMAT_INFO info{};
  info.format = format & SF_FORMAT_SUBMASK;
  if (sf_command(nullptr, SFC_GET_FORMAT_INFO, &info, sizeof info) == 0 && info.name != nullptr)
    return info.name;
  return "encoding " + std::to_string(format & SF_FORMAT_SUBMASK);
}

Checked<Sound> readRecording(const std::string& path) {
  Checked<std::string> bytes = readRecordingBytes(path);
  if (!bytes) return bytes.error();
  return decodeRecording(path, *bytes);
}

Checked<Sound> decodeRecording(const std::string& path, std::string& bytes) {
  SF_INFO info{};
  if (const Headerless* raw = headerlessKind(path)) {
    info.format = raw->format;
    info.samplerate = raw->rate;
    info.channels = 1;
    if ((raw->format & SF_FORMAT_SUBMASK) == SF_FORMAT_PCM_16 && bytes.size() % 2 != 0)
      return fail(Fault::truncated, path, "the data ends inside a sample");
  }
  MemoryFile memory{&bytes, 0};
  SoundFile file(sf_open_virtual(&memoryIo(), SFM_READ, &info, &memory));
  if (!file) return fail(Fault::unreadable, path, std::string("not audio: ") + sf_strerror(nullptr));
  if (auto bound = outOfBounds(info)) return fail(Fault::outOfBounds, path, "out of bounds: " + *bound);
  if (info.frames <= 0) return fail(Fault::empty, path, "holds no sound");
  if (auto cut = cutShort(file.get())) return fail(Fault::truncated, path, *cut);
  return decode(file.get(), info, path);
}

std::optional<std::string> findRecording(const Voice& voice, std::string_view name) {
  const std::string stem = promptFileStem(name);
  for (const std::string& folder : voice.folders) {
    for (std::string_view extension : kRecordingExtensions) {
      std::string path = folder;
      path += '/';
      path += stem;
      path += extension;
      struct stat st {};
      // lstat: a dangling link or a link loop is there, and is reported as such.
      if (lstat(path.c_str(), &st) == 0) return path;
    }
  }
  return std::nullopt;
}

Checked<Sound> loadPrompt(const Voice& voice, std::string_view name) {
  const std::optional<std::string> path = findRecording(voice, name);
  if (!path) {
    std::string where;
    for (const std::string& folder : voice.folders) where += (where.empty() ? "" : ", ") + folder;
    Error error{Fault::missing, promptFileStem(name), "", ""};
    error.message = "no recording of \"" + error.prompt + "\" in " + where;
    return error;
  }
  Checked<Sound> sound = readRecording(*path);
  if (!sound) {
    Error error = sound.error();
    error.prompt = promptFileStem(name);
    return error;
  }
  return sound;
}

}  // namespace vela::audio
