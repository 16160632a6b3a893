// Fingerprints of answers, remembered. The audio module's fingerprint reads
// every byte of the recordings an answer uses; a request that finds the same
// files unchanged since (size, inode, modification and change times) reuses
// the one worked out before, so a warm /v1/audio costs a few stat calls.
#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

#include "audio/render.h"

namespace vela::service {

class FingerprintMemo {
 public:
  explicit FingerprintMemo(std::size_t maxEntries) : maxEntries_(maxEntries) {}

  // The fingerprint of rendering `names` from `voice`, whose recordings are
  // the files `paths` (as audio::findRecording found them, in order).
  audio::Checked<std::string> fingerprint(const audio::Voice& voice, const std::vector<std::string>& names,
                                          const std::vector<std::string>& paths,
                                          const audio::RenderOptions& options);

 private:
  struct Stamp {
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    timespec modified{};
    timespec changed{};
    bool operator==(const Stamp& other) const;
  };
  struct Entry {
    std::vector<Stamp> stamps;
    std::string fingerprint;
  };
  static bool stampAll(const std::vector<std::string>& paths, std::vector<Stamp>& stamps);

  const std::size_t maxEntries_;
  std::mutex mutex_;
  std::unordered_map<std::string, Entry> entries_;
};

}  // namespace vela::service
