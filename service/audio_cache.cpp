#include "service/audio_cache.h"

namespace vela::service {

std::size_t AudioCache::sizeOf(const std::string& key, const CachedAudio& audio) {
  return key.size() + audio.body.size() + audio.contentType.size() + audio.etag.size();
}

std::shared_ptr<const CachedAudio> AudioCache::find(const std::string& key) {
  std::lock_guard lock(mutex_);
  const auto it = entries_.find(key);
  if (it == entries_.end()) return nullptr;
  order_.splice(order_.begin(), order_, it->second.position);
  return it->second.audio;
}

void AudioCache::insert(const std::string& key, std::shared_ptr<const CachedAudio> audio) {
  const std::size_t size = sizeOf(key, *audio);
  if (size > capacity_) return;
  std::lock_guard lock(mutex_);
  if (const auto it = entries_.find(key); it != entries_.end()) {
    bytes_ -= it->second.size;
    order_.erase(it->second.position);
    entries_.erase(it);
  }
  while (!order_.empty() && bytes_ + size > capacity_) {
    const auto oldest = entries_.find(order_.back());
    bytes_ -= oldest->second.size;
    entries_.erase(oldest);
    order_.pop_back();
  }
  order_.push_front(key);
  entries_.emplace(key, Entry{std::move(audio), order_.begin(), size});
  bytes_ += size;
}

void AudioCache::clear() {
  std::lock_guard lock(mutex_);
  entries_.clear();
  order_.clear();
  bytes_ = 0;
}

std::size_t AudioCache::bytes() const {
  std::lock_guard lock(mutex_);
  return bytes_;
}

std::size_t AudioCache::entries() const {
  std::lock_guard lock(mutex_);
  return entries_.size();
}

}  // namespace vela::service
