// Rendered answers kept in memory, bounded in bytes: the least recently used
// go first. Keys carry the voice's fingerprint of the recordings used, so a
// recording changed on disk gives a new key and the old entry just ages out.
#pragma once

#include <cstddef>
#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>

namespace vela::service {

struct CachedAudio {
  std::string body;
  std::string contentType;
  std::string etag;  // quoted, as sent
};

class AudioCache {
 public:
  explicit AudioCache(std::size_t capacityBytes) : capacity_(capacityBytes) {}

  // The entry under `key` (now the most recent), or null.
  std::shared_ptr<const CachedAudio> find(const std::string& key);
  // Keeps `audio` under `key`, dropping the oldest entries until the bytes
  // held fit the capacity. An answer larger than the whole capacity is not kept.
  void insert(const std::string& key, std::shared_ptr<const CachedAudio> audio);
  void clear();

  std::size_t bytes() const;
  std::size_t entries() const;

 private:
  using Order = std::list<std::string>;  // most recent first
  struct Entry {
    std::shared_ptr<const CachedAudio> audio;
    Order::iterator position;
    std::size_t size = 0;
  };
  static std::size_t sizeOf(const std::string& key, const CachedAudio& audio);

  const std::size_t capacity_;
  mutable std::mutex mutex_;
  Order order_;
  std::unordered_map<std::string, Entry> entries_;
  std::size_t bytes_ = 0;
};

}  // namespace vela::service
