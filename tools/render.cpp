#include "tools/render.h"

#include <sndfile.h>
#include <unistd.h>

#include <cstdio>
#include <memory>

#include "tools/encoding.h"

namespace vela::tools {
namespace {

struct CloseSoundFile {
  void operator()(SNDFILE* file) const { sf_close(file); }
};
using SoundFile = std::unique_ptr<SNDFILE, CloseSoundFile>;

struct Recording {
  std::string path;
  SoundFile file;
  SF_INFO info{};
};

std::string describe(const SF_INFO& info) {
  return std::to_string(info.samplerate) + " Hz, " + std::to_string(info.channels) + " channel(s)";
}

// Opens every recording and checks that they agree; the message on failure.
std::optional<std::string> openAll(const std::vector<std::string>& names, const std::string& voiceDir,
                                   std::vector<Recording>& recordings) {
  for (const std::string& name : names) {
    Recording r;
    r.path = voiceDir + "/" + recordingFileName(name);
    r.file.reset(sf_open(r.path.c_str(), SFM_READ, &r.info));
    if (!r.file) {
      return "no recording of \"" + utf8FromCp1251(name) + "\": " + r.path + ": " + sf_strerror(nullptr);
    }
    if (!recordings.empty() && (r.info.samplerate != recordings[0].info.samplerate ||
                                r.info.channels != recordings[0].info.channels)) {
      return r.path + " has " + describe(r.info) + ", but " + recordings[0].path + " has " +
             describe(recordings[0].info);
    }
    recordings.push_back(std::move(r));
  }
  return std::nullopt;
}

// The WAV format of the output: the first recording's sample format where a
// WAV file can hold it, otherwise 16-bit PCM.
SF_INFO outputFormat(const SF_INFO& first) {
  SF_INFO info{};
  info.samplerate = first.samplerate;
  info.channels = first.channels;
  info.format = SF_FORMAT_WAV | (first.format & SF_FORMAT_SUBMASK);
  if (!sf_format_check(&info)) info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  return info;
}

// Integer frames are copied without scaling, so 8- to 32-bit PCM is kept exactly.
bool copyFrames(SNDFILE* from, int channels, SNDFILE* to) {
  std::vector<int> buffer(4096 * static_cast<std::size_t>(channels));
  sf_count_t got;
  while ((got = sf_readf_int(from, buffer.data(), 4096)) > 0) {
    if (sf_writef_int(to, buffer.data(), got) != got) return false;
  }
  return got == 0;
}

bool writeSilence(SNDFILE* to, int channels, sf_count_t frames) {
  const std::vector<int> zeros(static_cast<std::size_t>(frames * channels), 0);
  return frames == 0 || sf_writef_int(to, zeros.data(), frames) == frames;
}

std::optional<std::string> writeAll(std::vector<Recording>& recordings, const std::string& path,
                                    int pauseMs) {
  SF_INFO info = outputFormat(recordings[0].info);
  SoundFile out(sf_open(path.c_str(), SFM_WRITE, &info));
  if (!out) return "cannot write " + path + ": " + sf_strerror(nullptr);
  const sf_count_t pause = static_cast<sf_count_t>(info.samplerate) * pauseMs / 1000;
  for (std::size_t i = 0; i < recordings.size(); ++i) {
    if (i > 0 && !writeSilence(out.get(), info.channels, pause)) return "cannot write " + path;
    if (!copyFrames(recordings[i].file.get(), info.channels, out.get()))
      return "cannot copy " + recordings[i].path + " to " + path;
  }
  if (sf_close(out.release()) != 0) return "cannot write " + path;
  return std::nullopt;
}

}  // namespace

std::optional<std::string> renderPrompts(const std::vector<std::string>& names, const std::string& voiceDir,
                                         const std::string& outPath, int pauseMs) {
  if (names.empty()) return std::string("no prompt to play");
  std::vector<Recording> recordings;
  if (auto error = openAll(names, voiceDir, recordings)) return error;
  // Written beside the target and renamed over it only when complete.
  const std::string partial = outPath + ".partial-" + std::to_string(getpid());
  if (auto error = writeAll(recordings, partial, pauseMs)) {
    std::remove(partial.c_str());
    return error;
  }
  if (std::rename(partial.c_str(), outPath.c_str()) != 0) {
    std::remove(partial.c_str());
    return "cannot write " + outPath;
  }
  return std::nullopt;
}

}  // namespace vela::tools
