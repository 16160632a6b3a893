// Inside the audio module: files read whole, and libsndfile over bytes in memory.
#pragma once

#include <sndfile.h>

#include <memory>
#include <string>

#include "audio/render.h"

namespace vela::audio {

// The bytes of a recording file: opened without blocking and only when it is
// a regular file, not empty and at most kMaxFileBytes long.
inline constexpr long long kMaxFileBytes = 256LL << 20;
Checked<std::string> readRecordingBytes(const std::string& path);

// readRecording's second half: decodes the bytes of the file at `path`.
Checked<Sound> decodeRecording(const std::string& path, std::string& bytes);

// libsndfile reading or writing `bytes` (which must outlive the file).
struct MemoryFile {
  std::string* bytes = nullptr;
  sf_count_t position = 0;
};
SF_VIRTUAL_IO& memoryIo();

struct CloseSoundFile {
  void operator()(SNDFILE* file) const { sf_close(file); }
};
using SoundFile = std::unique_ptr<SNDFILE, CloseSoundFile>;

}  // namespace vela::audio
