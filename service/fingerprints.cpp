#include "service/fingerprints.h"

namespace vela::service {
namespace {

// Everything the fingerprint depends on besides the files' contents.
std::string keyOf(const audio::Voice& voice, const std::vector<std::string>& names,
                  const std::vector<std::string>& paths, const audio::RenderOptions& options) {
  std::string key;
  for (const std::string& folder : voice.folders) key += folder + '\0';
  key += '\1';
  for (std::size_t i = 0; i < names.size(); ++i) key += names[i] + '\0' + paths[i] + '\0';
  const audio::OutputFormat& f = options.format;
  key += std::to_string(f.rate) + ',' + std::to_string(f.channels) + ',' +
         std::to_string(static_cast<int>(f.encoding)) + ',' + std::to_string(static_cast<int>(f.container)) +
         ',' + std::to_string(options.pauseMs) + ',' +
         (options.trimDb ? std::to_string(*options.trimDb) : "-");
  return key;
}

bool sameTime(const timespec& a, const timespec& b) { return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec; }

}  // namespace

bool FingerprintMemo::Stamp::operator==(const Stamp& other) const {
  return device == other.device && inode == other.inode && size == other.size &&
         sameTime(modified, other.modified) && sameTime(changed, other.changed);
}

bool FingerprintMemo::stampAll(const std::vector<std::string>& paths, std::vector<Stamp>& stamps) {
  for (const std::string& path : paths) {
    struct stat st {};
    if (stat(path.c_str(), &st) != 0) return false;
    stamps.push_back({st.st_dev, st.st_ino, st.st_size, st.st_mtim, st.st_ctim});
  }
  return true;
}

audio::Checked<std::string> FingerprintMemo::fingerprint(const audio::Voice& voice,
                                                         const std::vector<std::string>& names,
                                                         const std::vector<std::string>& paths,
                                                         const audio::RenderOptions& options) {
  std::vector<Stamp> stamps;
  if (paths.size() != names.size() || !stampAll(paths, stamps))
    return audio::fingerprintPrompts(voice, names, options);  // let the module say what is wrong
  const std::string key = keyOf(voice, names, paths, options);
  {
    std::lock_guard lock(mutex_);
    if (const auto it = entries_.find(key); it != entries_.end() && it->second.stamps == stamps)
      return it->second.fingerprint;
  }
  auto fingerprint = audio::fingerprintPrompts(voice, names, options);
  if (fingerprint) {
    std::lock_guard lock(mutex_);
    if (entries_.size() >= maxEntries_) entries_.clear();
    entries_[key] = Entry{std::move(stamps), *fingerprint};
  }
  return fingerprint;
}

}  // namespace vela::service
