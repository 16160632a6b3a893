#include "audio/output_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

namespace vela::audio {
namespace {

// The temporary file a signal must remove; empty when there is none. Only
// async-signal-safe calls touch it inside the handler.
char gPartial[4096];
volatile std::sig_atomic_t gHavePartial = 0;
constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};

extern "C" void removePartialAndDie(int signal) {
  if (gHavePartial) unlink(gPartial);
  std::signal(signal, SIG_DFL);
  raise(signal);
}

// While one lives, the named file is removed if the process is told to stop.
class PartialFile {
 public:
  explicit PartialFile(const std::string& path) {
    std::snprintf(gPartial, sizeof gPartial, "%s", path.c_str());
    gHavePartial = 1;
    struct sigaction action {};
    action.sa_handler = removePartialAndDie;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < std::size(kSignals); ++i) sigaction(kSignals[i], &action, &saved_[i]);
  }
  ~PartialFile() {
    for (std::size_t i = 0; i < std::size(kSignals); ++i) sigaction(kSignals[i], &saved_[i], nullptr);
    gHavePartial = 0;
  }
  PartialFile(const PartialFile&) = delete;
  PartialFile& operator=(const PartialFile&) = delete;

 private:
  struct sigaction saved_[std::size(kSignals)]{};
};

bool writeAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t n = write(fd, bytes.data(), bytes.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

Error cannotWrite(const std::string& path, int error) {
  return Error{Fault::cannotWrite, "", path, "cannot write " + path + ": " + std::strerror(error)};
}

}  // namespace

std::optional<Error> writeOutputFile(const std::string& path, std::string_view bytes) {
  if (path == "-") {
    if (!writeAll(STDOUT_FILENO, bytes)) return cannotWrite("standard output", errno);
    return std::nullopt;
  }
  const std::string partial = path + ".partial-" + std::to_string(getpid());
  const PartialFile guard(partial);
  const int fd = open(partial.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (fd < 0) return cannotWrite(path, errno);
  const bool written = writeAll(fd, bytes);
  const int writeError = errno;
  if (close(fd) != 0 || !written) {
    const int error = written ? errno : writeError;
    unlink(partial.c_str());
    return cannotWrite(path, error);
  }
  if (std::rename(partial.c_str(), path.c_str()) != 0) {
    const int error = errno;
    unlink(partial.c_str());
    return cannotWrite(path, error);
  }
  return std::nullopt;
}

}  // namespace vela::audio
