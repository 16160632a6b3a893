// The service's routes as a table (path, method, handler, what it answers),
// and the one function that turns a request into an answer. Requests and
// answers here are plain values: the tests call `respond` without a socket.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "service/query.h"
#include "service/service.h"

namespace vela::service {

struct Request {
  std::string_view method;  // "GET", "HEAD", ...
  std::string_view target;  // as sent: path and query
  std::string_view ifNoneMatch;
  std::string_view host;
};

struct Response {
  int status = 200;
  std::string contentType = "application/json";
  std::string body;
  std::vector<std::pair<std::string, std::string>> headers;  // ETag, Cache-Control, Allow, ...
};

// The names routes are counted under in /metrics, in table order.
std::vector<std::string> routeNames();

// Answers one request. `route` is set to the index of the route that took it
// (routeNames().size() when none did). A HEAD is answered as the GET would be:
// the caller sends the headers only.
Response respond(Service& service, const Request& request, std::size_t& route);

// A JSON error answer: {"error": message}.
Response errorResponse(int status, std::string_view message);

}  // namespace vela::service
