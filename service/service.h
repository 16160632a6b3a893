// The HTTP service: its settings and the state its handlers share (voices,
// rendered-audio cache, prompt lists, counters). Nothing here knows HTTP
// framing; that is http_server's.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <shared_mutex>
#include <string>
#include <utility>
#include <vector>

#include "audio/render.h"
#include "service/audio_cache.h"
#include "service/fingerprints.h"
#include "service/metrics.h"
#include "service/prompt_list.h"

namespace vela::service {

// A voice for the requests whose `lang` is `tag` (with "-t" after it: Russian
// with Latin names); several folders for one tag are searched in order.
struct VoiceFolder {
  std::string tag;
  std::string folder;
};

struct Config {
  std::string address = "127.0.0.1";
  std::uint16_t port = 8080;  // 0: any free port (printed on start)
  std::vector<VoiceFolder> voices;
  unsigned threads = 0;                      // 0: one per core
  std::size_t maxConnections = 1024;         // more are answered 503 and closed
  std::size_t headerLimit = 64 * 1024;       // every text the library takes fits, percent-encoded
  std::size_t bodyLimit = 4096;              // GET and HEAD carry no body; a small one is read and ignored
  std::chrono::milliseconds timeout{10000};  // to read a whole request, or write a whole answer
  std::chrono::milliseconds idleTimeout{30000};  // between two requests on one connection
  std::size_t cacheBytes = 64u << 20;
  int maxAge = 86400;   // Cache-Control: max-age of audio answers
  std::string baseUrl;  // of recording URLs; empty: "http://" and the request's Host
};

// The longest text taken, in Windows-1251 bytes: the Java entry reads a text
// of 10,240 bytes or more as empty, so every entry refuses those.
inline constexpr std::size_t kMaxTextBytes = 10239;

class Service {
 public:
  Service(Config config, std::vector<std::string> routeNames);

  const Config& config() const { return config_; }
  Metrics& metrics() { return metrics_; }
  AudioCache& cache() { return cache_; }
  FingerprintMemo& fingerprints() { return fingerprints_; }

  // The voice for a request's tag and mode; null when none is configured.
  std::shared_ptr<const audio::Voice> voiceFor(const std::string& tag, bool latin) const;
  // The tags that have a voice ("ru", "ru-t", ...).
  std::vector<std::string> voiceTags() const;

  // Every prompt name the language can answer with, and the same with an
  // example text of each (slower); each worked out on its first request for
  // the language and kept.
  std::shared_ptr<const std::set<std::string>> promptNames(const std::string& tag, bool latin);
  std::shared_ptr<const PromptList> prompts(const std::string& tag, bool latin);

  // Forgets cached audio and prompt lists (SIGHUP): recordings are looked up
  // on every request anyway, so nothing stale is served between reloads.
  void reload();

  std::int64_t openConnections() const;
  void connectionOpened();
  void connectionClosed();

 private:
  Config config_;
  Metrics metrics_;
  AudioCache cache_;
  FingerprintMemo fingerprints_{4096};
  std::map<std::string, std::shared_ptr<const audio::Voice>> voices_;
  std::mutex promptsMutex_;
  std::map<std::pair<std::string, bool>, std::shared_ptr<const std::set<std::string>>> names_;
  std::mutex examplesMutex_;  // held for seconds: not the one the recordings route waits on
  std::map<std::pair<std::string, bool>, std::shared_ptr<const PromptList>> prompts_;
  std::atomic<std::int64_t> open_{0};
};

}  // namespace vela::service
