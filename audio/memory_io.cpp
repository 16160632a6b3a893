#include "audio/memory_io.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace vela::audio {
namespace {

MemoryFile& of(void* data) { return *static_cast<MemoryFile*>(data); }

sf_count_t length(void* data) { return static_cast<sf_count_t>(of(data).bytes->size()); }

sf_count_t seek(sf_count_t offset, int whence, void* data) {
  MemoryFile& f = of(data);
  sf_count_t base = 0;
  if (whence == SEEK_CUR) base = f.position;
  if (whence == SEEK_END) base = length(data);
  if (base + offset < 0) return -1;
  f.position = base + offset;
  return f.position;
}

sf_count_t read(void* out, sf_count_t count, void* data) {
  MemoryFile& f = of(data);
  const sf_count_t left = std::max<sf_count_t>(0, length(data) - f.position);
  const sf_count_t n = std::min(count, left);
  if (n > 0) std::memcpy(out, f.bytes->data() + f.position, static_cast<std::size_t>(n));
  f.position += n;
  return n;
}

sf_count_t write(const void* in, sf_count_t count, void* data) {
  MemoryFile& f = of(data);
  const auto end = static_cast<std::size_t>(f.position + count);
  if (end > f.bytes->size()) f.bytes->resize(end);
  std::memcpy(f.bytes->data() + f.position, in, static_cast<std::size_t>(count));
  f.position += count;
  return count;
}

sf_count_t tell(void* data) { return of(data).position; }

Error fail(Fault fault, const std::string& path, const std::string& what) {
  return Error{fault, "", path, path + ": " + what};
}

const char* kindOfFile(mode_t mode) {
  if (S_ISDIR(mode)) return "a directory";
  if (S_ISFIFO(mode)) return "a FIFO";
  if (S_ISSOCK(mode)) return "a socket";
  if (S_ISCHR(mode) || S_ISBLK(mode)) return "a device";
  return "not a regular file";
}

struct FileDescriptor {
  int fd = -1;
  ~FileDescriptor() {
    if (fd >= 0) close(fd);
  }
};

}  // namespace

SF_VIRTUAL_IO& memoryIo() {
  static SF_VIRTUAL_IO io{length, seek, read, write, tell};
  return io;
}

Checked<std::string> readRecordingBytes(const std::string& path) {
  FileDescriptor file;
  // O_NONBLOCK: opening a FIFO for reading would otherwise wait for a writer.
  file.fd = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (file.fd < 0) {
    const int e = errno;
    if (e == ENOENT) return fail(Fault::missing, path, "no such file");
    if (e == ELOOP) return fail(Fault::notAFile, path, "not a recording: a loop of symbolic links");
    return fail(Fault::unreadable, path, std::string("cannot open: ") + std::strerror(e));
  }
  struct stat st {};
  if (fstat(file.fd, &st) != 0) return fail(Fault::unreadable, path, std::strerror(errno));
  if (!S_ISREG(st.st_mode))
    return fail(Fault::notAFile, path, std::string("not a recording: ") + kindOfFile(st.st_mode));
  if (st.st_size == 0) return fail(Fault::empty, path, "an empty file");
  if (st.st_size > kMaxFileBytes) return fail(Fault::outOfBounds, path, "larger than 256 MB");
  std::string bytes(static_cast<std::size_t>(st.st_size), '\0');
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t n = ::read(file.fd, bytes.data() + done, bytes.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return fail(Fault::unreadable, path, std::string("cannot read: ") + std::strerror(errno));
    if (n == 0) break;  // shrank while read: what is there is judged
    done += static_cast<std::size_t>(n);
  }
  bytes.resize(done);
  if (bytes.empty()) return fail(Fault::empty, path, "an empty file");
  return bytes;
}

}  // namespace vela::audio
