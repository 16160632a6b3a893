// A C++ host: the list entry and the C entry through the installed package.
#include <vela/vela.h>

#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

int main() {
  std::vector<std::string> files{"kept"};
  std::ostringstream log;
  // Tag and text are lower-cased; the names come back split at spaces.
  const bool ok = DecodeBufferASCII("EN", "  A.WAV   B ", files, log);
  if (!ok || files != std::vector<std::string>{"kept", "a.wav", "b"} || !log.str().empty()) {
    std::printf("FAILED: DecodeBufferASCII %d, %zu names, log \"%s\"\n", ok, files.size(), log.str().c_str());
    return 1;
  }
  std::ostringstream unknown;
  if (DecodeBufferASCII("xx", "7", files, unknown) || unknown.str() != " language tag incorrect") {
    std::printf("FAILED: unknown tag, log \"%s\"\n", unknown.str().c_str());
    return 1;
  }
  char* out = nullptr;
  if (decodeBuffer("en", "x  y.wav", &out) != 0 || std::string(out) != "x  y.wav") {
    std::printf("FAILED: decodeBuffer \"%s\"\n", out ? out : "(null)");
    return 1;
  }
  decodeReleaseBuffer(out);
  std::printf("cmake consumer ok\n");
  return 0;
}
