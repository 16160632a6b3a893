// The service without a socket: what each request is answered, status and body,
// from the parsing of its target to the handler's answer; the audio cache's
// bound, the metrics' exposition and the ETag match.
#include <gtest/gtest.h>

#include <algorithm>
#include <boost/json.hpp>
#include <cstdio>
#include <memory>
#include <string>

#include "service/audio_cache.h"
#include "service/audio_routes.h"
#include "service/metrics.h"
#include "service/routes.h"

namespace vela::service {
namespace {

Response ask(const std::string& target, const char* method = "GET") {
  static Service service(Config{}, routeNames());
  std::size_t route = 0;
  return respond(service, Request{method, target, "", "127.0.0.1:8080"}, route);
}

// One row per way a request can go: the answer's status and a piece of its body.
TEST(ServiceRoutesTest, AnswersEachKindOfRequest) {
  const std::string longText(kMaxTextBytes, '7');
  // method, target, the answer's status and a piece its body must hold
  const std::tuple<const char*, std::string, int, const char*> kCases[] = {
      // Readings: names, status and the unknown-tag flag as JSON in UTF-8.
      {"GET", "/v1/read?lang=ru&text=21%D1%80%D1%83%D0%B1", 200,
       R"("names":["двадцать","один","рубль"],"status":"spoken")"},
      {"GET", "/v1/read?lang=ru&text=-5xyz", 200, R"("names":["минус"],"status":"partly_spoken")"},
      {"GET", "/v1/read?lang=ru&text=xyz", 200, R"("names":[],"status":"not_spoken")"},
      {"GET", "/v1/read?lang=xx&text=1&fallback=en", 200,
       R"("names":["one"],"status":"spoken","diagnostics":[],"unknown_tag":true)"},
      {"GET", "/v1/read?lang=ru&text=" + longText, 200, R"("status":"partly_spoken")"},  // the longest taken
      // The query: "+" is a space, %2B a plus; the first of two counts; ";" separates
      // too and empty pairs are skipped; the path is matched as sent, not decoded.
      {"GET", "/v1/read?lang=en&text=a+b%2Bc", 200, R"("text":"a b+c")"},
      {"GET", "/v1/read?lang=en&text=1&text=2", 200, R"("text":"1")"},
      {"GET", "/v1/read?;lang=en&&text=7;", 200, R"("text":"7")"},
      {"GET", "/v1/read?lang=en&text=", 200, R"("text":"")"},
      {"GET", "/v1/re%61d?lang=en&text=1", 404, "no such route"},
      // Refusals, each with a message that says what to change.
      {"GET", "/v1/read?lang=en&text=%", 400, "percent-encoding"},
      {"GET", "/v1/read?lang=en&te%xt=1", 400, "percent-encoding"},
      {"GET", "/v1/read?lang=en&text=a%00b", 400, "NUL"},
      {"GET", "http://example.com/v1/read", 400, "start with"},
      {"GET", "/v1/read?lang=ru&text=ab%D1", 400, "invalid UTF-8 at byte 2"},
      {"GET", "/v1/read?lang=ru&text=a%F0%9F%98%80", 400, "U+1F600 is not in Windows-1251"},
      {"GET", "/v1/read?lang=xx&text=1", 400, "unknown language tag \\\"xx\\\""},
      {"GET", "/v1/read?lang=xx&text=1&fallback=de", 400, "fallback can only be en"},
      {"GET", "/v1/read?text=1", 400, "lang parameter is required"},
      {"GET", "/v1/read?lang=ru", 400, "text parameter is required"},
      {"GET", "/v1/read?lang=ru&text=1&latin=yes", 400, "latin must be"},
      {"GET", "/v1/read?lang=ru&text=" + longText + "7", 400, "limit is 10239"},
      {"POST", "/v1/read?lang=ru&text=1", 405, "only GET and HEAD"},
      {"GET", "/v1/readx", 404, "no such route"},
      // Audio is refused before any voice is looked at when the text is not fully spoken.
      {"GET", "/v1/audio?lang=ru&text=-5xyz", 422,
       R"("error":"the text is not fully spoken","status":"partly_spoken")"},
      {"GET", "/v1/audio?lang=ru&text=21", 404, R"(no voice for \"ru\")"},
      {"GET", "/v1/audio?lang=ru&latin=1&text=21", 404, R"(no voice for \"ru-t\")"},
      {"GET", "/v1/audio?lang=ru&text=21&rate=12345", 400, "rate must be one of"},
      {"GET", "/v1/audio?lang=ru&text=21&encoding=mp3", 400, "encoding must be"},
      {"GET", "/v1/files?lang=ru&text=21&layout=mp3", 400, "layout must be"},
      {"GET", "/v1/files?lang=ru&text=xyz&layout=asterisk", 422, "not fully spoken"},
      {"GET", "/v1/recordings/ru/odin.wav", 404, "no voice"},
      // The lists.
      {"GET", "/v1/languages", 200, R"({"tag":"ru","name":"Russian","latin":true,"voice":false)"},
      {"GET", "/v1/prompts?lang=xx", 400, "unknown language tag"},
      {"GET", "/healthz", 200, R"("status":"ok")"},
  };
  for (const auto& [method, target, status, body] : kCases) {
    const Response response = ask(target, method);
    EXPECT_EQ(response.status, status) << target.substr(0, 80);
    EXPECT_NE(response.body.find(body), std::string::npos) << target.substr(0, 80) << ": " << response.body;
  }
}

// The prompt lists follow the tag and the mode (Russian's Latin names are
// another list; its Cyrillic one takes a minute under ASan), and nearly every
// prompt has an example text that, read back, says that prompt.
TEST(ServiceRoutesTest, ListsPromptsWithExamplesThatSayThem) {
  for (const std::string query : {"lang=ru&latin=1", "lang=en"}) {
    const Response response = ask("/v1/prompts?" + query);
    const auto prompts = boost::json::parse(response.body).at("prompts").as_array();
    std::size_t withExample = 0;
    for (const auto& prompt : prompts) {
      const auto* example = prompt.as_object().if_contains("example");
      if (example == nullptr) continue;
      ++withExample;
      std::string target = "/v1/read?" + query + "&text=";
      for (const unsigned char c : std::string(example->as_string())) {  // every byte as %XX
        char hex[4];
        std::snprintf(hex, sizeof hex, "%%%02X", c);
        target += hex;
      }
      const auto reading = boost::json::parse(ask(target).body);
      const auto& names = reading.at("names").as_array();
      EXPECT_EQ(reading.at("status"), "spoken") << example->as_string();
      EXPECT_NE(std::find(names.begin(), names.end(), prompt.at("name")), names.end())
          << example->as_string();
    }
    EXPECT_GT(withExample * 10, prompts.size() * 9) << query;
  }
}

// Each row inserts keys into a 350-byte cache, touching some on the way, and
// says which survive. "a".."d" hold 100-byte answers (+1 byte of key), "z" 400.
TEST(ServiceCacheTest, KeepsTheMostRecentWithinItsBytes) {
  // steps ("a": insert a, "A": find a), and the keys found at the end
  for (const auto& [steps, survivors] : {std::pair{"abc", "abc"},      // 303 bytes fit
                                         std::pair{"abcd", "bcd"},     // the fourth pushes out the oldest
                                         std::pair{"abcAd", "acd"},    // a look-up makes an entry recent
                                         std::pair{"abcbbbd", "bcd"},  // inserting a key again replaces it
                                         std::pair{"abcz", "abc"}}) {  // too large: not kept, nothing evicted
    AudioCache cache(350);
    for (const char* step = steps; *step != '\0'; ++step) {
      const std::string key(1, static_cast<char>(std::tolower(*step)));
      if (std::isupper(*step) != 0)
        cache.find(key);
      else
        cache.insert(key, std::make_shared<const CachedAudio>(
                              CachedAudio{std::string(key == "z" ? 400 : 100, 'x'), "", ""}));
    }
    std::string found;
    for (const char key : std::string("abcdz"))
      if (cache.find(std::string(1, key)) != nullptr) found += key;
    EXPECT_EQ(found, survivors) << steps;
    EXPECT_LE(cache.bytes(), 350u);
  }
}

TEST(ServiceMetricsTest, CountsByRouteAndStatusWithCumulativeBuckets) {
  Metrics metrics({"/v1/read"});
  metrics.countRequest(0, 200, 0.0002);
  metrics.countRequest(0, 200, 0.003);
  metrics.countRequest(0, 418, 0.0);
  metrics.countRequest(7, 404, 0.0);  // out of range: counted as no route
  const std::string text = metrics.render(1234, 2, 5);
  for (const char* line : {
           "vela_http_requests_total{route=\"/v1/read\",status=\"200\"} 2\n",
           "vela_http_requests_total{route=\"/v1/read\",status=\"4xx\"} 1\n",
           "vela_http_requests_total{route=\"none\",status=\"404\"} 1\n",
           "vela_http_request_duration_seconds_bucket{route=\"/v1/read\",le=\"0.0001\"} 1\n",
           "vela_http_request_duration_seconds_bucket{route=\"/v1/read\",le=\"0.00025\"} 2\n",
           "vela_http_request_duration_seconds_bucket{route=\"/v1/read\",le=\"+Inf\"} 3\n",
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
