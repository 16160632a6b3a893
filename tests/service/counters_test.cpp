// The audio cache's bound and the metrics' exposition.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "service/audio_cache.h"
#include "service/audio_routes.h"
#include "service/metrics.h"

namespace vela::service {
namespace {

std::shared_ptr<const CachedAudio> audioOf(std::size_t bytes) {
  return std::make_shared<const CachedAudio>(CachedAudio{std::string(bytes, 'x'), "", ""});
}

// Each row inserts keys of 100-byte answers (+1 byte of key) into a 350-byte
// cache, touching some on the way, and says which survive.
TEST(ServiceCacheTest, KeepsTheMostRecentWithinItsBytes) {
  struct Case {
    const char* steps;      // "a": insert a, "A": find a
    const char* survivors;  // keys found at the end
  };
  const Case kCases[] = {
      {"abc", "abc"},      // 303 bytes fit
      {"abcd", "bcd"},     // the fourth pushes out the oldest
      {"abcAd", "acd"},    // a look-up makes an entry recent
      {"abcbbbd", "bcd"},  // inserting a key again replaces it, no double count
  };
  for (const Case& c : kCases) {
    AudioCache cache(350);
    for (const char* step = c.steps; *step != '\0'; ++step) {
      const std::string key(1, static_cast<char>(std::tolower(*step)));
      (std::isupper(*step) != 0) ? void(cache.find(key)) : cache.insert(key, audioOf(100));
    }
    std::string found;
    for (const char key : std::string("abcd"))
      if (cache.find(std::string(1, key)) != nullptr) found += key;
    EXPECT_EQ(found, c.survivors) << c.steps;
    EXPECT_LE(cache.bytes(), 350u);
  }
}

TEST(ServiceCacheTest, NeverKeepsAnAnswerLargerThanItself) {
  AudioCache cache(350);
  cache.insert("a", audioOf(100));
  cache.insert("big", audioOf(400));
  EXPECT_EQ(cache.find("big"), nullptr);
  EXPECT_NE(cache.find("a"), nullptr);  // and nothing was evicted for it
}

TEST(ServiceMetricsTest, CountsByRouteAndStatusWithCumulativeBuckets) {
  Metrics metrics({"/v1/read"});
  metrics.countRequest(0, 200, 0.0002);
  metrics.countRequest(0, 200, 0.003);
  metrics.countRequest(0, 418, 0.0);
  metrics.countRequest(7, 404, 0.0);  // out of range: counted as no route
  metrics.countCache(true);
  const std::string text = metrics.render(1234, 2, 5);
  for (const char* line : {
           "vela_http_requests_total{route=\"/v1/read\",status=\"200\"} 2\n",
           "vela_http_requests_total{route=\"/v1/read\",status=\"4xx\"} 1\n",
           "vela_http_requests_total{route=\"none\",status=\"404\"} 1\n",
           "vela_http_request_duration_seconds_bucket{route=\"/v1/read\",le=\"0.0001\"} 1\n",
           "vela_http_request_duration_seconds_bucket{route=\"/v1/read\",le=\"0.00025\"} 2\n",
           "vela_http_request_duration_seconds_bucket{route=\"/v1/read\",le=\"+Inf\"} 3\n",
           "vela_audio_cache_requests_total{result=\"hit\"} 1\n",
           "vela_audio_cache_bytes 1234\n",
           "vela_http_connections_open 5\n",
       })
    EXPECT_NE(text.find(line), std::string::npos) << line;
}

// If-None-Match: a list, weak tags compared weakly, and "*".
TEST(ServiceEtagTest, MatchesIfNoneMatchLists) {
  for (const char* header : {R"("abc")", R"("x", "abc")", R"(W/"abc")", "*"})
    EXPECT_TRUE(etagMatches(header, R"("abc")")) << header;
  for (const char* header : {R"("abcd")", "abc", "", R"("x",,"y")"})
    EXPECT_FALSE(etagMatches(header, R"("abc")")) << header;
}

}  // namespace
}  // namespace vela::service
