// `vela serve`: reads the command line into the service's settings and runs
// the HTTP service (service/).
#include "tools/serve_command.h"

#include <cstdio>
#include <cstdlib>
#include <string>

#include "service/http_server.h"

namespace vela::tools {
namespace {

constexpr const char* kServeUsage =
    "usage: vela serve [--listen ADDR:PORT] [--voice TAG=DIR]... [options]\n"
    "\n"
    "Serves readings and audio over HTTP, and a playground page at /.\n"
    "\n"
    "  --listen ADDR:PORT     where to listen (default 127.0.0.1:8080; [::1]:8080;\n"
    "                         port 0 takes a free port, printed on start)\n"
    "  --voice TAG=DIR        recordings of the prompts of TAG (as requests name it;\n"
    "                         TAG-t for Russian with Latin names); repeat a TAG to\n"
    "                         search several folders in order\n"
    "  --threads N            worker threads (default: one per core)\n"
    "  --max-connections N    connections open at once; more get 503 (default 1024)\n"
    "  --timeout SECONDS      to receive a whole request or send an answer (default 10)\n"
    "  --idle-timeout SECONDS between two requests on a connection (default 30)\n"
    "  --cache-mb N           rendered audio kept in memory (default 64)\n"
    "  --max-age SECONDS      Cache-Control max-age of audio answers (default 86400)\n"
    "  --base-url URL         start of recording URLs in /v1/files?layout=urls\n"
    "                         (default: http:// and the request's Host)\n"
    "\n"
    "Routes: / (playground), /v1/read, /v1/audio, /v1/files, /v1/recordings/,\n"
    "/v1/languages, /v1/prompts, /healthz, /metrics. SIGTERM finishes the requests\n"
    "in flight and exits 0; SIGHUP drops cached audio and prompt lists.\n";

[[noreturn]] void serveUsageError(const std::string& what) {
  std::fprintf(stderr, "vela serve: %s\n\n%s", what.c_str(), kServeUsage);
  std::exit(2);
}

long long number(const std::string& option, const std::string& value, long long low, long long high) {
  char* end = nullptr;
  const long long n = std::strtoll(value.c_str(), &end, 10);
  if (value.empty() || *end != '\0' || n < low || n > high)
    serveUsageError("bad value for " + option + ": " + value);
  return n;
}

std::chrono::milliseconds seconds(const std::string& option, const std::string& value) {
  char* end = nullptr;
  const double s = std::strtod(value.c_str(), &end);
  if (value.empty() || *end != '\0' || !(s > 0) || s > 86400)
    serveUsageError("bad value for " + option + ": " + value);
  return std::chrono::milliseconds(static_cast<long long>(s * 1000));
}

// "127.0.0.1:8080", "[::1]:8080", ":8080" (all addresses).
void parseListen(const std::string& value, service::Config& config) {
  const std::size_t colon = value.rfind(':');
  if (colon == std::string::npos) serveUsageError("--listen needs ADDR:PORT: " + value);
  std::string address = value.substr(0, colon);
  if (address.size() >= 2 && address.front() == '[' && address.back() == ']')
    address = address.substr(1, address.size() - 2);
  config.address = address.empty() ? "0.0.0.0" : address;
  config.port = static_cast<std::uint16_t>(number("--listen", value.substr(colon + 1), 0, 65535));
}

void parseVoice(const std::string& value, service::Config& config) {
  const std::size_t eq = value.find('=');
  if (eq == std::string::npos || eq == 0 || eq + 1 == value.size())
    serveUsageError("--voice needs TAG=DIR: " + value);
  config.voices.push_back({value.substr(0, eq), value.substr(eq + 1)});
}

}  // namespace

int serveCommand(int argc, char** argv) {
  service::Config config;
  for (int i = 0; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "-h" || arg == "--help") {
      std::fputs(kServeUsage, stdout);
      return 0;
    }
    if (i + 1 >= argc) serveUsageError("unknown option or missing value: " + arg);
    const std::string value = argv[++i];
    if (arg == "--listen") {
      parseListen(value, config);
    } else if (arg == "--voice") {
      parseVoice(value, config);
    } else if (arg == "--threads") {
      config.threads = static_cast<unsigned>(number(arg, value, 1, 256));
    } else if (arg == "--max-connections") {
      config.maxConnections = static_cast<std::size_t>(number(arg, value, 1, 1000000));
    } else if (arg == "--timeout") {
      config.timeout = seconds(arg, value);
    } else if (arg == "--idle-timeout") {
      config.idleTimeout = seconds(arg, value);
    } else if (arg == "--cache-mb") {
      config.cacheBytes = static_cast<std::size_t>(number(arg, value, 0, 65536)) << 20;
    } else if (arg == "--max-age") {
      config.maxAge = static_cast<int>(number(arg, value, 0, 31536000));
    } else if (arg == "--base-url") {
      config.baseUrl = value;
      while (!config.baseUrl.empty() && config.baseUrl.back() == '/') config.baseUrl.pop_back();
    } else {
      serveUsageError("unknown option: " + arg);
    }
  }
  return service::serve(config);
}

}  // namespace vela::tools
