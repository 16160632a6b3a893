#include "service/service.h"

namespace vela::service {

Service::Service(Config config, std::vector<std::string> routeNames)
    : config_(std::move(config)), metrics_(std::move(routeNames)), cache_(config_.cacheBytes) {
  std::map<std::string, audio::Voice> voices;
  for (const VoiceFolder& voice : config_.voices) voices[voice.tag].folders.push_back(voice.folder);
  for (auto& [tag, voice] : voices) voices_[tag] = std::make_shared<const audio::Voice>(std::move(voice));
}

std::shared_ptr<const audio::Voice> Service::voiceFor(const std::string& tag, bool latin) const {
  const auto it = voices_.find(latin ? tag + "-t" : tag);
  return it == voices_.end() ? nullptr : it->second;
}

std::vector<std::string> Service::voiceTags() const {
  std::vector<std::string> tags;
  for (const auto& [tag, voice] : voices_) tags.push_back(tag);
  return tags;
}

std::shared_ptr<const std::set<std::string>> Service::promptNames(const std::string& tag, bool latin) {
  std::lock_guard lock(promptsMutex_);
  auto& names = names_[{tag, latin}];
  if (names == nullptr)
    names = std::make_shared<const std::set<std::string>>(service::promptNames(tag, latin));
  return names;
}

std::shared_ptr<const PromptList> Service::prompts(const std::string& tag, bool latin) {
  const auto names = promptNames(tag, latin);
  std::lock_guard lock(examplesMutex_);
  auto& list = prompts_[{tag, latin}];
  if (list == nullptr) list = std::make_shared<const PromptList>(makePromptList(tag, latin, *names));
  return list;
}

void Service::reload() {
  cache_.clear();
  {
    std::lock_guard lock(promptsMutex_);
    names_.clear();
  }
  std::lock_guard lock(examplesMutex_);
  prompts_.clear();
}

std::int64_t Service::openConnections() const { return open_.load(std::memory_order_relaxed); }
void Service::connectionOpened() { open_.fetch_add(1, std::memory_order_relaxed); }
void Service::connectionClosed() { open_.fetch_sub(1, std::memory_order_relaxed); }

}  // namespace vela::service
