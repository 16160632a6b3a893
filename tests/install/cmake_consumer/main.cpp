// A C++ host of the installed package: the list entry, which only C++ can call.
#include <vela/vela.h>

#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

int main() {
  std::vector<std::string> files{"kept"};
  std::ostringstream log;
  // Tag and text are lower-cased; the names come back split at spaces, after the old ones.
  const bool ok = DecodeBufferASCII("EN", "  A.WAV   B ", files, log) &&
                  files == std::vector<std::string>{"kept", "a.wav", "b"} && log.str().empty();
  std::printf("cmake consumer %s\n", ok ? "ok" : "FAILED");
  return ok ? 0 : 1;
}
