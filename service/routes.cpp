#include "service/routes.h"

#include <vela/vela.h>

#include <boost/json.hpp>
#include <iterator>

#include "service/audio_routes.h"
#include "service/playground.h"
#include "service/reading.h"

namespace vela::service {
namespace {

namespace json = boost::json;

using Handler = Response (*)(Service&, const Target&, const Request&);

enum class Match { exact, prefix };

struct Route {
  const char* method;  // HEAD is answered wherever GET is
  const char* path;
  Match match;
  Handler handler;
};

// The languages the playground offers: one tag per grammar (the library takes
// other spellings too), and whether it has Latin names.
struct Language {
  const char* tag;
  const char* name;
  bool latin;
};
const Language kLanguages[] = {
    // tag   name          Latin names (latin=1)
    {"ru", "Russian", true},   {"uk", "Ukrainian", false}, {"en", "English", false},
    {"ro", "Romanian", false}, {"ar", "Arabic", false},    {"kk", "Kazakh", false},
    {"uz", "Uzbek", false},    {"tg", "Tajik", false},     {"ka", "Georgian", false},
    {"hy", "Armenian", false},
};

Response jsonResponse(int status, const json::value& value) {
  Response response;
  response.status = status;
  response.body = json::serialize(value);
  response.body += '\n';
  return response;
}

json::array utf8Array(const std::vector<std::string>& items) {
  json::array array;
  for (const std::string& item : items) array.emplace_back(toUtf8(item));
  return array;
}

// GET /: the playground page.
Response handlePlayground(Service&, const Target&, const Request&) {
  Response response;
  response.contentType = "text/html; charset=utf-8";
  response.body = playgroundPage();
  response.headers.emplace_back("Cache-Control", "no-cache");
  return response;
}

// GET /v1/read?lang=&text=[&latin=1][&fallback=en]: names, status, complaints.
Response handleRead(Service&, const Target& target, const Request&) {
  auto request = parseReadingRequest(target);
  if (auto* error = std::get_if<Response>(&request)) return std::move(*error);
  const auto& ask = std::get<ReadingRequest>(request);
  auto answer = readText(ask);
  if (auto* error = std::get_if<Response>(&answer)) return std::move(*error);
  const auto& reading = std::get<Reading>(answer);
  return jsonResponse(200, json::object{{"lang", toUtf8(ask.tag)},
                                        {"latin", ask.latin},
                                        {"text", toUtf8(ask.text)},
                                        {"names", utf8Array(reading.names)},
                                        {"status", statusName(reading.status)},
                                        {"diagnostics", utf8Array(reading.diagnostics)},
                                        {"unknown_tag", reading.unknownTag}});
}

// GET /v1/languages: the tags, their names, and which have a voice.
Response handleLanguages(Service& service, const Target&, const Request&) {
  json::array languages;
  for (const Language& language : kLanguages) {
    json::object entry{{"tag", language.tag},
                       {"name", language.name},
                       {"latin", language.latin},
                       {"voice", service.voiceFor(language.tag, false) != nullptr}};
    if (language.latin) entry["latin_voice"] = service.voiceFor(language.tag, true) != nullptr;
    languages.push_back(std::move(entry));
  }
  json::array voices;
  for (const std::string& tag : service.voiceTags()) voices.emplace_back(tag);
  return jsonResponse(200, json::object{{"languages", std::move(languages)}, {"voices", std::move(voices)}});
}

// GET /v1/prompts?lang=[&latin=1]: every prompt, an example text that says
// it, and its recording's state.
Response handlePrompts(Service& service, const Target& target, const Request&) {
  const std::string* lang = target.find("lang");
  if (lang == nullptr || lang->empty()) return errorResponse(400, "the lang parameter is required");
  const std::string* latinValue = target.find("latin");
  const bool latin = latinValue != nullptr && *latinValue == "1";
  const Converted tag = toCp1251(*lang);
  if (!tag.error.empty()) return errorResponse(400, "lang: " + tag.error);
  vela_reading probe{};
  if (vela_read(tag.bytes.c_str(), "", VELA_STRICT_TAG, &probe) == -3)
    return errorResponse(400, "unknown language tag \"" + *lang + "\"");
  vela_reading_free(&probe);

  const auto voice = service.voiceFor(*lang, latin);
  const auto names = service.prompts(tag.bytes, latin);
  json::array prompts;
  std::size_t recorded = 0;
  for (const auto& [name, example] : *names) {
    json::object entry{{"name", toUtf8(name)}, {"file", audio::promptFileStem(name) + ".wav"}};
    if (!example.empty()) entry["example"] = toUtf8(example);
    if (voice != nullptr) {
      const std::string state = recordingState(*voice, name, entry);
      recorded += state == "present" ? 1 : 0;
      entry["recording"] = state;
    }
    prompts.push_back(std::move(entry));
  }
  json::object answer{{"lang", *lang},
                      {"latin", latin},
                      {"voice", voice != nullptr},
                      {"count", names->size()},
                      {"prompts", std::move(prompts)}};
  if (voice != nullptr) answer["recorded"] = recorded;
  return jsonResponse(200, answer);
}

// GET /healthz: up, and which library.
Response handleHealth(Service&, const Target&, const Request&) {
  Response response = jsonResponse(200, json::object{{"status", "ok"}, {"version", vela_version()}});
  response.headers.emplace_back("Cache-Control", "no-store");
  return response;
}

// GET /metrics: Prometheus text format.
Response handleMetrics(Service& service, const Target&, const Request&) {
  Response response;
  response.contentType = "text/plain; version=0.0.4; charset=utf-8";
  response.body =
      service.metrics().render(service.cache().bytes(), service.cache().entries(), service.openConnections());
  response.headers.emplace_back("Cache-Control", "no-store");
  return response;
}

const Route kRoutes[] = {
    // method path                match          handler             answers
    {"GET", "/", Match::exact, handlePlayground},     // the playground page (HTML)
    {"GET", "/v1/read", Match::exact, handleRead},    // JSON: names, status, diagnostics; 400
    {"GET", "/v1/audio", Match::exact, handleAudio},  // audio; ETag, 304, Cache-Control; 400 404 422
    {"GET", "/v1/audio.", Match::prefix,
     handleAudio},  // the same, the container from the extension (.wav, .ulaw, ...)
    {"GET", "/v1/files", Match::exact, handleFiles},             // Playback list or JSON URLs; 400 404 422
    {"GET", "/v1/recordings/", Match::prefix, handleRecording},  // one prompt's audio; 404
    {"GET", "/v1/languages", Match::exact, handleLanguages},     // JSON
    {"GET", "/v1/prompts", Match::exact, handlePrompts},         // JSON, with recordings' state; 400
    {"GET", "/healthz", Match::exact, handleHealth},             // JSON
    {"GET", "/metrics", Match::exact, handleMetrics},            // Prometheus text
};

constexpr std::size_t kRouteCount = std::size(kRoutes);

std::size_t findRoute(std::string_view path) {
  for (std::size_t i = 0; i < kRouteCount; ++i) {
    const std::string_view routePath = kRoutes[i].path;
    if (kRoutes[i].match == Match::exact ? path == routePath : path.starts_with(routePath)) return i;
  }
  return kRouteCount;
}

}  // namespace

std::vector<std::string> routeNames() {
  std::vector<std::string> names;
  for (const Route& route : kRoutes) names.emplace_back(route.path);
  return names;
}

Response errorResponse(int status, std::string_view message) {
  Response response = jsonResponse(status, json::object{{"error", message}});
  response.headers.emplace_back("Cache-Control", "no-store");
  return response;
}

Response respond(Service& service, const Request& request, std::size_t& route) {
  const std::string_view target = request.target;
  route = kRouteCount;
  if (!target.starts_with('/')) return errorResponse(400, "the request target must start with \"/\"");
  route = findRoute(target.substr(0, target.find('?')));
  if (route == kRouteCount) return errorResponse(404, "no such route");
  const Route& found = kRoutes[route];
  if (request.method != found.method &&
      !(request.method == "HEAD" && std::string_view(found.method) == "GET")) {
    Response response = errorResponse(405, "only GET and HEAD");
    response.headers.emplace_back("Allow", "GET, HEAD");
    return response;
  }
  Target parsed;
  if (const auto error = parseTarget(target, parsed)) return errorResponse(400, *error);
  return found.handler(service, parsed, request);
}

}  // namespace vela::service
