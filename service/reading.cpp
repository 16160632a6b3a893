#include "service/reading.h"

#include <vela/vela.h>

#include <boost/json.hpp>

namespace vela::service {
namespace {

// "1"/"true" and "0"/"false" (or absent); nullopt for anything else.
std::optional<bool> flag(const Target& target, std::string_view key) {
  const std::string* value = target.find(key);
  if (value == nullptr || *value == "0" || *value == "false") return false;
  if (*value == "1" || *value == "true" || value->empty()) return true;
  return std::nullopt;
}

void splitInto(const char* text, char separator, std::vector<std::string>& into) {
  std::string_view rest(text == nullptr ? "" : text);
  while (!rest.empty()) {
    const std::size_t end = rest.find(separator);
    if (end != 0) into.emplace_back(rest.substr(0, end));
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + 1);
  }
}

}  // namespace

std::variant<ReadingRequest, Response> parseReadingRequest(const Target& target) {
  ReadingRequest request;
  const std::string* lang = target.find("lang");
  const std::string* text = target.find("text");
  if (lang == nullptr || lang->empty()) return errorResponse(400, "the lang parameter is required");
  if (text == nullptr) return errorResponse(400, "the text parameter is required");
  const std::optional<bool> latin = flag(target, "latin");
  if (!latin) return errorResponse(400, "latin must be 1 or 0");
  request.latin = *latin;
  if (const std::string* fallback = target.find("fallback")) {
    if (*fallback != "en") return errorResponse(400, "fallback can only be en");
    request.fallback = true;
  }
  Converted tag = toCp1251(*lang);
  if (!tag.error.empty()) return errorResponse(400, "lang: " + tag.error);
  Converted converted = toCp1251(*text);
  if (!converted.error.empty()) return errorResponse(400, "text: " + converted.error);
  if (converted.bytes.size() > kMaxTextBytes)
    return errorResponse(400, "the text is " + std::to_string(converted.bytes.size()) +
                                  " bytes in Windows-1251; the limit is " + std::to_string(kMaxTextBytes));
  request.tag = std::move(tag.bytes);
  request.text = std::move(converted.bytes);
  return request;
}

std::variant<Reading, Response> readText(const ReadingRequest& request) {
  unsigned options = request.latin ? VELA_LATIN : 0u;
  if (!request.fallback) options |= VELA_STRICT_TAG;
  vela_reading answer{};
  const int rc = vela_read(request.tag.c_str(), request.text.c_str(), options, &answer);
  if (rc == -3) {
    Response response = errorResponse(
        400, "unknown language tag \"" + toUtf8(request.tag) + "\" (fallback=en reads it in English)");
    return response;
  }
  if (rc != 0) return errorResponse(503, "out of memory");
  Reading reading;
  splitInto(answer.names, ' ', reading.names);
  splitInto(answer.diagnostics, '\n', reading.diagnostics);
  reading.status = answer.status;
  reading.unknownTag = answer.unknown_tag != 0;
  vela_reading_free(&answer);
  return reading;
}

std::string_view statusName(int status) {
  switch (status) {
    case VELA_SPOKEN:
      return "spoken";
    case VELA_PARTLY_SPOKEN:
      return "partly_spoken";
    case VELA_NOT_SPOKEN:
      return "not_spoken";
    case VELA_FILE_NAMES:
      return "file_names";
    default:
      return "unknown";
  }
}

std::string voiceKey(const ReadingRequest& request) {
  return request.latin ? request.tag + "-t" : request.tag;
}

}  // namespace vela::service
