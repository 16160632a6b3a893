// The routes without a socket: what each request is answered, status and body.
#include "service/routes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <boost/json.hpp>
#include <cstdio>
#include <string>

namespace vela::service {
namespace {

// Every byte but letters and digits as %XX.
std::string urlEncoded(const std::string& text) {
  std::string out;
  for (const char c : text) {
    char hex[4];
    std::snprintf(hex, sizeof hex, "%%%02X", static_cast<unsigned char>(c));
    out += std::isalnum(static_cast<unsigned char>(c)) != 0 ? std::string(1, c) : std::string(hex);
  }
  return out;
}

Response ask(Service& service, const std::string& target, const char* method = "GET") {
  std::size_t route = 0;
  return respond(service, Request{method, target, "", "127.0.0.1:8080"}, route);
}

Service& noVoice() {
  static Service service(Config{}, routeNames());
  return service;
}

// One row per way a request can go: the answer's status and a piece of its body.
TEST(ServiceRoutesTest, AnswersEachKindOfRequest) {
  const std::string longText(kMaxTextBytes, '7');
  struct Case {
    const char* method;
    std::string target;
    int status;
    const char* body;  // a piece the body must hold
  };
  const Case kCases[] = {
      // Readings: names, status and the unknown-tag flag as JSON in UTF-8.
      {"GET", "/v1/read?lang=ru&text=21%D1%80%D1%83%D0%B1", 200,
       R"("names":["двадцать","один","рубль"],"status":"spoken")"},
      {"GET", "/v1/read?lang=ru&text=-5xyz", 200, R"("names":["минус"],"status":"partly_spoken")"},
      {"GET", "/v1/read?lang=ru&text=xyz", 200, R"("names":[],"status":"not_spoken")"},
      {"GET", "/v1/read?lang=xx&text=1&fallback=en", 200,
       R"("names":["one"],"status":"spoken","diagnostics":[],"unknown_tag":true)"},
      {"GET", "/v1/read?lang=ru&text=" + longText, 200, R"("status":"partly_spoken")"},  // the longest taken
      // Refusals, each with a message that says what to change.
      {"GET", "/v1/read?lang=xx&text=1", 400, "unknown language tag \\\"xx\\\""},
      {"GET", "/v1/read?lang=xx&text=1&fallback=de", 400, "fallback can only be en"},
      {"GET", "/v1/read?text=1", 400, "lang parameter is required"},
      {"GET", "/v1/read?lang=ru", 400, "text parameter is required"},
      {"GET", "/v1/read?lang=ru&text=1&latin=yes", 400, "latin must be"},
      {"GET", "/v1/read?lang=ru&text=" + longText + "7", 400, "limit is 10239"},
      {"GET", "/v1/read?lang=ru&text=%E4%B8%AD", 400, "U+4E2D is not in Windows-1251"},
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
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.method) + " " + c.target.substr(0, 80));
    const Response response = ask(noVoice(), c.target, c.method);
    EXPECT_EQ(response.status, c.status);
    EXPECT_NE(response.body.find(c.body), std::string::npos) << response.body;
  }
}

// The prompt lists follow the tag and the mode (Latin names are another
// list), and every prompt's example text, read back, says that prompt.
TEST(ServiceRoutesTest, ListsPromptsWithExamplesThatSayThem) {
  // Russian's Latin list is another list of the same tag (its Cyrillic one takes a minute under ASan).
  for (const char* query : {"lang=ru&latin=1", "lang=en"}) {
    SCOPED_TRACE(query);
    const Response response = ask(noVoice(), std::string("/v1/prompts?") + query);
    ASSERT_EQ(response.status, 200);
    const boost::json::object answer = boost::json::parse(response.body).as_object();
    std::size_t withExample = 0;
    for (const auto& value : answer.at("prompts").as_array()) {
      const auto& prompt = value.as_object();
      const auto* example = prompt.if_contains("example");
      if (example == nullptr) continue;
      ++withExample;
      const std::string target =
          std::string("/v1/read?") + query + "&text=" + urlEncoded(example->as_string().c_str());
      const auto reading = boost::json::parse(ask(noVoice(), target).body).as_object();
      EXPECT_EQ(reading.at("status"), "spoken") << example->as_string();
      const auto& names = reading.at("names").as_array();
      EXPECT_NE(std::find(names.begin(), names.end(), prompt.at("name")), names.end())
          << example->as_string();
    }
    EXPECT_GT(withExample * 10, answer.at("prompts").as_array().size() * 9);  // nearly every prompt has one
  }
}

}  // namespace
}  // namespace vela::service
