// The one C++ piece of the test host: calls DecodeBufferASCII, whose arguments
// are standard-library objects, as a host built with the same compiler would,
// and writes what it got as one answer: "ok=1 [name][name]... log=..." .
#include <cstddef>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

namespace {
using AsciiFn = bool (*)(const std::string&, const std::string&, std::vector<std::string>&, std::ostream&);
}

extern "C" void velaHostPut(const char* bytes, std::size_t length);

extern "C" void velaHostCallAscii(void* function, const char* tag, std::size_t tagLength, const char* text,
                                  std::size_t textLength) {
  const auto decode = reinterpret_cast<AsciiFn>(function);
  // A name already in the list shows that the export appends and never clears.
  std::vector<std::string> files{"(before)"};
  std::ostringstream log;
  const bool ok = decode(std::string(tag, tagLength), std::string(text, textLength), files, log);
  std::string line = ok ? "ok=1 " : "ok=0 ";
  for (const std::string& file : files) line += "[" + file + "]";
  line += " log=" + log.str();
  velaHostPut(line.data(), line.size());
}
