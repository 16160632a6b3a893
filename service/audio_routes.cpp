#include "service/audio_routes.h"

#include <vela/vela.h>

#include <algorithm>
#include <boost/json.hpp>
#include <charconv>
#include <filesystem>

#include "service/reading.h"

namespace vela::service {
namespace {

namespace json = boost::json;

// Rates an answer may be asked in: those phone platforms and browsers play.
constexpr int kRates[] = {8000, 11025, 16000, 22050, 24000, 32000, 44100, 48000};
constexpr int kMaxPauseMs = 2000;

Response jsonError(int status, json::object body) {
  Response response;
  response.status = status;
  response.body = json::serialize(body) + "\n";
  response.headers.emplace_back("Cache-Control", "no-store");
  return response;
}

std::optional<int> integer(const std::string& text) {
  int value = 0;
  const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (ec != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

// rate, encoding, format and pause; an error message for a bad one.
std::optional<std::string> parseRenderOptions(const Target& target, audio::RenderOptions& options) {
  options.format.rate = 8000;
  if (const std::string* rate = target.find("rate")) {
    const std::optional<int> value = integer(*rate);
    if (!value || std::find(std::begin(kRates), std::end(kRates), *value) == std::end(kRates))
      return "rate must be one of 8000, 11025, 16000, 22050, 24000, 32000, 44100, 48000";
    options.format.rate = *value;
  }
  if (const std::string* encoding = target.find("encoding")) {
    const auto value = audio::parseEncoding(*encoding);
    if (!value) return "encoding must be pcm16, ulaw or alaw";
    options.format.encoding = *value;
  }
  if (const std::string* format = target.find("format")) {
    if (*format != "wav" && *format != "raw") return "format must be wav or raw";
    options.format.container = *format == "wav" ? audio::Container::wav : audio::Container::raw;
  }
  if (const std::string* pause = target.find("pause")) {
    const std::optional<int> value = integer(*pause);
    if (!value || *value < 0 || *value > kMaxPauseMs) return "pause must be 0 to 2000 milliseconds";
    options.pauseMs = *value;
  }
  return std::nullopt;
}

json::array utf8Array(const std::vector<std::string>& items) {
  json::array array;
  for (const std::string& item : items) array.emplace_back(toUtf8(item));
  return array;
}

// 422 for a reading that is not fully spoken: nothing partial is ever played.
Response notSpoken(const Reading& reading) {
  return jsonError(422, {{"error", "the text is not fully spoken"},
                         {"status", statusName(reading.status)},
                         {"names", utf8Array(reading.names)},
                         {"diagnostics", utf8Array(reading.diagnostics)}});
}

// The file of each prompt of `names`, or a 404 naming every prompt the voice
// has no recording of.
std::variant<std::vector<std::string>, Response> findRecordings(const audio::Voice& voice,
                                                                const std::vector<std::string>& names) {
  std::vector<std::string> paths;
  json::array missing;
  for (const std::string& name : names) {
    if (auto path = audio::findRecording(voice, name)) {
      paths.push_back(std::move(*path));
    } else {
      missing.emplace_back(toUtf8(name));
    }
  }
  if (missing.empty()) return paths;
  return jsonError(
      404, {{"error", "the voice has no recording of some prompts"}, {"missing", std::move(missing)}});
}

Response renderFailure(const std::vector<audio::Error>& errors) {
  json::array problems;
  for (const audio::Error& error : errors)
    problems.push_back(json::object{
        {"prompt", error.prompt}, {"fault", audio::faultName(error.fault)}, {"message", error.message}});
  const bool missing = std::all_of(errors.begin(), errors.end(),
                                   [](const audio::Error& e) { return e.fault == audio::Fault::missing; });
  return jsonError(missing ? 404 : 500,
                   {{"error", "some recordings cannot be played"}, {"problems", problems}});
}

Response fromCache(const CachedAudio& audio, int maxAge) {
  Response response;
  response.contentType = audio.contentType;
  response.body = audio.body;
  response.headers.emplace_back("ETag", audio.etag);
  response.headers.emplace_back("Cache-Control", "public, max-age=" + std::to_string(maxAge));
  return response;
}

// The answer for prompts known to be spoken: 304, a cached rendering, or a new one.
Response renderAnswer(Service& service, const audio::Voice& voice, const std::vector<std::string>& names,
                      const audio::RenderOptions& options, const Request& request) {
  auto paths = findRecordings(voice, names);
  if (auto* missing = std::get_if<Response>(&paths)) return std::move(*missing);
  const auto fingerprint =
      service.fingerprints().fingerprint(voice, names, std::get<std::vector<std::string>>(paths), options);
  if (!fingerprint) return renderFailure({fingerprint.error()});
  const std::string etag = "\"" + *fingerprint + "\"";
  const int maxAge = service.config().maxAge;
  if (etagMatches(request.ifNoneMatch, etag)) {
    Response response;
    response.status = 304;
    response.contentType.clear();
    response.headers.emplace_back("ETag", etag);
    response.headers.emplace_back("Cache-Control", "public, max-age=" + std::to_string(maxAge));
    return response;
  }
  if (auto cached = service.cache().find(*fingerprint)) {
    service.metrics().countCache(true);
    return fromCache(*cached, maxAge);
  }
  service.metrics().countCache(false);
  audio::Rendered rendered = audio::renderPrompts(voice, names, options);
  if (!rendered.ok()) return renderFailure(rendered.errors);
  auto entry = std::make_shared<CachedAudio>(
      CachedAudio{std::move(rendered.bytes), std::string(audio::contentType(rendered.format)), etag});
  service.cache().insert(*fingerprint, entry);
  return fromCache(*entry, maxAge);
}

// A fully spoken reading of the query, with its voice; or the error answer.
struct Spoken {
  ReadingRequest request;
  Reading reading;
};
std::variant<Spoken, Response> spokenReading(const Target& target) {
  auto request = parseReadingRequest(target);
  if (auto* error = std::get_if<Response>(&request)) return std::move(*error);
  auto answer = readText(std::get<ReadingRequest>(request));
  if (auto* error = std::get_if<Response>(&answer)) return std::move(*error);
  Reading& reading = std::get<Reading>(answer);
  if (reading.status != VELA_SPOKEN) return notSpoken(reading);
  return Spoken{std::move(std::get<ReadingRequest>(request)), std::move(reading)};
}

Response noVoice(const std::string& key) {
  return errorResponse(404,
                       "no voice for \"" + toUtf8(key) + "\" (vela serve --voice " + toUtf8(key) + "=DIR)");
}

// Every byte but the unreserved ones as %XX: a file stem as one path segment.
std::string percentEncode(std::string_view text) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string out;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (std::isalnum(byte) != 0 && byte < 0x80) {
      out += c;
    } else if (c == '-' || c == '_' || c == '.' || c == '~') {
      out += c;
    } else {
      out += '%';
      out += kHex[byte >> 4];
      out += kHex[byte & 15];
    }
  }
  return out;
}

// The extension and query of a recording URL that gives back `format`.
std::string recordingSuffix(const audio::OutputFormat& format, bool latin) {
  std::string suffix;
  if (format.container == audio::Container::wav) {
    suffix = ".wav";
  } else {
    suffix = format.encoding == audio::Encoding::ulaw   ? ".ulaw"
             : format.encoding == audio::Encoding::alaw ? ".alaw"
                                                        : ".raw";
  }
  const char* encoding = format.encoding == audio::Encoding::ulaw   ? "ulaw"
                         : format.encoding == audio::Encoding::alaw ? "alaw"
                                                                    : "pcm16";
  suffix += "?rate=" + std::to_string(format.rate) + "&encoding=" + encoding;
  if (latin) suffix += "&latin=1";
  return suffix;
}

// Only what a host name or address may hold, so a Host header cannot inject.
bool plainHost(std::string_view host) {
  return !host.empty() && host.size() < 256 && std::all_of(host.begin(), host.end(), [](char c) {
    return (std::isalnum(static_cast<unsigned char>(c)) != 0 && static_cast<unsigned char>(c) < 0x80) ||
           c == '.' || c == '-' || c == ':' || c == '[' || c == ']';
  });
}

}  // namespace

bool etagMatches(std::string_view header, std::string_view etag) {
  while (!header.empty()) {
    const std::size_t comma = header.find(',');
    std::string_view item = header.substr(0, comma);
    while (!item.empty() && (item.front() == ' ' || item.front() == '\t')) item.remove_prefix(1);
    while (!item.empty() && (item.back() == ' ' || item.back() == '\t')) item.remove_suffix(1);
    if (item.starts_with("W/")) item.remove_prefix(2);  // If-None-Match compares weakly
    if (item == "*" || item == etag) return true;
    if (comma == std::string_view::npos) break;
    header.remove_prefix(comma + 1);
  }
  return false;
}

std::string recordingState(const audio::Voice& voice, const std::string& name, json::object& entry) {
  const std::optional<std::string> path = audio::findRecording(voice, name);
  if (!path) return "missing";
  entry["file"] = std::filesystem::path(*path).filename().string();
  const auto sound = audio::readRecording(*path);
  return sound ? "present" : std::string(audio::faultName(sound.error().fault));
}

Response handleAudio(Service& service, const Target& target, const Request& request) {
  audio::RenderOptions options;
  if (auto error = parseRenderOptions(target, options)) return errorResponse(400, *error);
  // /v1/audio.ulaw and the like: for players that go by the URL's extension.
  if (const std::size_t dot = target.path.find('.'); dot != std::string::npos) {
    const auto format = audio::formatForFileName("audio" + target.path.substr(dot), options.format);
    if (!format) return errorResponse(404, "no such audio type: " + target.path.substr(dot));
    options.format = *format;
  }
  auto spoken = spokenReading(target);
  if (auto* error = std::get_if<Response>(&spoken)) return std::move(*error);
  const auto& [ask, reading] = std::get<Spoken>(spoken);
  const auto voice = service.voiceFor(ask.tag, ask.latin);
  if (voice == nullptr) return noVoice(voiceKey(ask));
  return renderAnswer(service, *voice, reading.names, options, request);
}

Response handleFiles(Service& service, const Target& target, const Request& request) {
  const std::string* layout = target.find("layout");
  if (layout == nullptr || (*layout != "asterisk" && *layout != "urls"))
    return errorResponse(400, "layout must be asterisk or urls");
  audio::RenderOptions options;
  if (auto error = parseRenderOptions(target, options)) return errorResponse(400, *error);
  auto spoken = spokenReading(target);
  if (auto* error = std::get_if<Response>(&spoken)) return std::move(*error);
  const auto& [ask, reading] = std::get<Spoken>(spoken);
  if (*layout == "asterisk") {  // Playback(vela/NAME&vela/NAME) from the exported sounds folder
    Response response;
    response.contentType = "text/plain; charset=utf-8";
    for (const std::string& name : reading.names)
      response.body += (response.body.empty() ? "vela/" : "&vela/") + audio::promptFileStem(name);
    response.body += '\n';
    return response;
  }
  const auto voice = service.voiceFor(ask.tag, ask.latin);
  if (voice == nullptr) return noVoice(voiceKey(ask));
  if (auto paths = findRecordings(*voice, reading.names); std::holds_alternative<Response>(paths))
    return std::get<Response>(std::move(paths));
  std::string base = service.config().baseUrl;
  if (base.empty()) {
    if (!plainHost(request.host)) return errorResponse(400, "a Host header is needed to build URLs");
    base = "http://" + std::string(request.host);
  }
  json::array urls;
  const std::string suffix = recordingSuffix(options.format, ask.latin);
  for (const std::string& name : reading.names)
    urls.emplace_back(base + "/v1/recordings/" + percentEncode(ask.tag) + "/" +
                      percentEncode(audio::promptFileStem(name)) + suffix);
  Response response;
  response.body = json::serialize(urls) + "\n";
  return response;
}

Response handleRecording(Service& service, const Target& target, const Request& request) {
  constexpr std::string_view kPrefix = "/v1/recordings/";
  const std::string_view rest = std::string_view(target.path).substr(kPrefix.size());
  const std::size_t slash = rest.find('/');
  if (slash == std::string_view::npos || rest.find('/', slash + 1) != std::string_view::npos)
    return errorResponse(404, "no such recording (/v1/recordings/LANG/FILE)");
  const auto lang = percentDecode(rest.substr(0, slash));
  const auto file = percentDecode(rest.substr(slash + 1));
  if (!lang || !file) return errorResponse(400, "bad percent-encoding in the path");
  const std::size_t dot = file->rfind('.');
  if (lang->empty() || dot == std::string::npos || dot == 0) return errorResponse(404, "no such recording");
  const std::string stem = file->substr(0, dot);
  const std::optional<std::string> name = audio::promptNameOfStem(stem);
  audio::RenderOptions options;
  if (auto error = parseRenderOptions(target, options)) return errorResponse(400, *error);
  const auto format = audio::formatForFileName(*file, options.format);
  if (!name || !format || audio::promptFileStem(*name) != stem)
    return errorResponse(404, "no such recording");
  options.format = *format;
  const std::string* latinValue = target.find("latin");
  const bool latin = latinValue != nullptr && *latinValue == "1";
  const Converted tag = toCp1251(*lang);
  if (!tag.error.empty()) return errorResponse(404, "no such language");
  const auto voice = service.voiceFor(tag.bytes, latin);
  if (voice == nullptr) return noVoice(latin ? tag.bytes + "-t" : tag.bytes);
  // Only a prompt the language can answer with is ever looked up.
  if (service.promptNames(tag.bytes, latin)->count(*name) == 0)
    return errorResponse(404, "\"" + toUtf8(*name) + "\" is not a prompt of " + *lang);
  return renderAnswer(service, *voice, {*name}, options, request);
}

}  // namespace vela::service
