// vela serve: readings and audio over HTTP, and a playground page. This file
// only reads the options; the service is service/.
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "service/http_server.h"
#include "tools/cli/command.h"

namespace vela::cli {
namespace {

long long number(const std::string& option, const std::string& value, long long low, long long high) {
  char* end = nullptr;
  const long long n = std::strtoll(value.c_str(), &end, 10);
  if (value.empty() || *end != '\0' || n < low || n > high) {
    throw UsageError{option + " takes a number from " + std::to_string(low) + " to " + std::to_string(high) +
                     ", not \"" + value + "\""};
  }
  return n;
}

std::chrono::milliseconds seconds(const std::string& option, const std::string& value) {
  char* end = nullptr;
  const double s = std::strtod(value.c_str(), &end);
  if (value.empty() || *end != '\0' || !(s >= 0.001) || s > 86400) {
    throw UsageError{option + " takes seconds (0.001 to 86400), not \"" + value + "\""};
  }
  return std::chrono::milliseconds(static_cast<long long>(s * 1000));
}

// "127.0.0.1:8080", "[::1]:8080", ":8080" (every address).
void readListen(const std::string& value, service::Config& config) {
  const std::size_t colon = value.rfind(':');
  if (colon == std::string::npos) throw UsageError{"--listen takes ADDR:PORT, not \"" + value + "\""};
  std::string address = value.substr(0, colon);
  if (address.size() >= 2 && address.front() == '[' && address.back() == ']') {
    address = address.substr(1, address.size() - 2);
  }
  config.address = address.empty() ? "0.0.0.0" : address;
  config.port = static_cast<std::uint16_t>(number("--listen", value.substr(colon + 1), 0, 65535));
}

void readVoice(const std::string& value, service::Config& config) {
  const std::size_t eq = value.find('=');
  if (eq == std::string::npos || eq == 0 || eq + 1 == value.size()) {
    throw UsageError{"--voice takes TAG=DIR, not \"" + value + "\""};
  }
  config.voices.push_back({value.substr(0, eq), value.substr(eq + 1)});
}

service::Config parseServe(Arguments& args) {
  service::Config config;
  while (args.next()) {
    const std::string arg = args.current();
    if (!args.isOption()) args.reject();
    if (arg == "--listen") {
      readListen(args.value(), config);
    } else if (arg == "--voice") {
      readVoice(args.value(), config);
    } else if (arg == "--threads") {
      config.threads = static_cast<unsigned>(number(arg, args.value(), 1, 256));
    } else if (arg == "--max-connections") {
      config.maxConnections = static_cast<std::size_t>(number(arg, args.value(), 1, 1000000));
    } else if (arg == "--timeout") {
      config.timeout = seconds(arg, args.value());
    } else if (arg == "--idle-timeout") {
      config.idleTimeout = seconds(arg, args.value());
    } else if (arg == "--cache-mb") {
      config.cacheBytes = static_cast<std::size_t>(number(arg, args.value(), 0, 65536)) << 20;
    } else if (arg == "--max-age") {
      config.maxAge = static_cast<int>(number(arg, args.value(), 0, 31536000));
    } else if (arg == "--base-url") {
      config.baseUrl = args.value();
      while (!config.baseUrl.empty() && config.baseUrl.back() == '/') config.baseUrl.pop_back();
    } else {
      args.reject();
    }
  }
  return config;
}

int runServe(Arguments& args, std::FILE*) { return service::serve(parseServe(args)); }

}  // namespace

extern const Command kServe = {
    "serve",
    "serve [--listen ADDR:PORT] [--voice TAG=DIR]... [SERVE OPTIONS]\n",
    "  serve          serve readings and audio over HTTP, and a playground page at /;\n"
    "                 SIGTERM finishes the requests in flight and exits 0, SIGHUP drops\n"
    "                 cached audio and prompt lists\n"
    "    --listen ADDR:PORT  where to listen (default 127.0.0.1:8080; [::1]:8080;\n"
    "                 port 0: a free port, printed on standard error)\n"
    "    --voice TAG=DIR  recordings for requests whose lang is TAG (TAG-t: Russian\n"
    "                 with Latin names); repeat a TAG to search folders in order\n"
    "    --threads N  workers (default: one per core)\n"
    "    --max-connections N  open at once; more are answered 503 (default 1024)\n"
    "    --timeout S  seconds to receive a request or send an answer (default 10)\n"
    "    --idle-timeout S  seconds between two requests on a connection (default 30)\n"
    "    --cache-mb N  rendered audio kept in memory (default 64)\n"
    "    --max-age S  Cache-Control max-age of audio answers (default 86400)\n"
    "    --base-url URL  start of recording URLs (default: http:// and the Host)\n",
    runServe,
};

}  // namespace vela::cli
