// A host that loads vela at run time, finds every export by its plain name and
// runs a table of requests through the C and C++ ones (the Java entries are
// found, not called: they need a JVM), writing one answer per request. The
// same source builds on Linux (dlopen) and for Windows (LoadLibrary):
// scripts/windows.sh compares the Windows DLL's answers with the Linux build's.
//
//   host LIBRARY REQUESTS ANSWERS
//
// REQUESTS: one request a line, "entry<TAB>tag<TAB>text"; other lines are
// skipped. entry: c (decodeBuffer), c-noout (decodeBuffer with a null out),
// read, read-latin and read-strict (vela_read with no option, VELA_LATIN,
// VELA_STRICT_TAG), ascii (DecodeBufferASCII, whose arguments are C++ objects,
// called as a host built with the same compiler would). In tag and text: \xHH
// is a byte, a field of just \N a null pointer (an empty string for
// DecodeBufferASCII), and \R<count>:<piece> the piece repeated. ANSWERS holds
// the bytes as they come. The library prints its own diagnostics on standard
// output.
#include <cstdio>
#include <fstream>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "vela/vela.h"

#if defined(_WIN32)
#include <windows.h>
void* openLibrary(const char* path) { return LoadLibraryA(path); }
void* findExport(void* lib, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(lib), name));
}
#else
#include <dlfcn.h>
void* openLibrary(const char* path) { return dlopen(path, RTLD_NOW | RTLD_LOCAL); }
void* findExport(void* lib, const char* name) { return dlsym(lib, name); }
#endif

namespace {

// The export found at fn[i], as a function of type F.
template <class F>
F* as(void* const* fn, int i) {
  return reinterpret_cast<F*>(fn[i]);
}
using Field = std::optional<std::string>;  // nullopt: a null pointer

// clang-format off
#define JAVA_ENTRY(name) "Java_com_talvik_ostra_macrosynthesis_vela_" name
const char* const kExports[] = {"decodeBuffer", "decodeReleaseBuffer", "DecodeBufferASCII", "vela_read",
    "vela_reading_free", "vela_version", JAVA_ENTRY("VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded"),
    JAVA_ENTRY("Vela_read0"), JAVA_ENTRY("Vela_version0")};
// clang-format on

Field parseField(const std::string& p) {
  if (p == "\\N") return std::nullopt;
  std::string bytes;
  if (p.rfind("\\R", 0) == 0) {
    for (long i = std::stol(p.substr(2)); i > 0; --i) bytes += p.substr(p.find(':') + 1);
    return bytes;
  }
  for (std::size_t i = 0; i < p.size(); ++i) {
    const bool hex = p.compare(i, 2, "\\x") == 0 && i + 3 < p.size();
    bytes += hex ? static_cast<char>(std::stoi(p.substr(i + 2, 2), nullptr, 16)) : p[i];
    if (hex) i += 3;
  }
  return bytes;
}

std::string answer(void* const* fn, const std::string& entry, const Field& tag, const Field& text) {
  const char* tagArg = tag ? tag->c_str() : nullptr;
  const char* textArg = text ? text->c_str() : nullptr;
  if (entry == "ascii") {
    // A name already in the list shows that the export appends and never clears.
    std::vector<std::string> files{"(before)"};
    std::ostringstream log;
    const bool ok =
        as<bool(const std::string&, const std::string&, std::vector<std::string>&, std::ostream&)>(fn, 2)(
            tag.value_or(""), text.value_or(""), files, log);
    std::string line = ok ? "ok=1 " : "ok=0 ";
    for (const std::string& file : files) line += "[" + file + "]";
    return line + " log=" + log.str();
  }
  if (entry.rfind("read", 0) == 0) {
    vela_reading r;
    const unsigned options = entry == "read" ? 0 : entry == "read-latin" ? VELA_LATIN : VELA_STRICT_TAG;
    const int rc =
        as<int(const char*, const char*, unsigned, vela_reading*)>(fn, 3)(tagArg, textArg, options, &r);
    std::string line = "rc=" + std::to_string(rc);
    if (rc == 0)
      line += " status=" + std::to_string(r.status) + " unknown=" + std::to_string(r.unknown_tag) +
              " names=" + r.names + " diagnostics=" + r.diagnostics;
    as<void(vela_reading*)>(fn, 4)(&r);
    return line;
  }
  char* out = nullptr;  // c, or c-noout
  const int rc =
      as<int(const char*, const char*, char**)>(fn, 0)(tagArg, textArg, entry == "c" ? &out : nullptr);
  std::string line = "rc=" + std::to_string(rc) + (out != nullptr ? " " + std::string(out) : "");
  as<void(void*)>(fn, 1)(out);
  return line;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  void* lib = openLibrary(argv[1]);
  std::ifstream requests(argv[2], std::ios::binary);
  std::ofstream answers(argv[3], std::ios::binary);
  if (lib == nullptr || !requests || !answers) {
    std::fprintf(stderr, "host: cannot load %s or open the files\n", argv[1]);
    return 1;
  }
  void* fn[std::size(kExports)] = {};
  for (std::size_t i = 0; i < std::size(kExports); ++i) {
    if ((fn[i] = findExport(lib, kExports[i])) == nullptr) {
      std::fprintf(stderr, "host: no export %s\n", kExports[i]);
      return 1;
    }
  }
  std::fprintf(stderr, "host: vela %s\n", as<const char*()>(fn, 5)());
  int count = 0;
  for (std::string line; std::getline(requests, line);) {
    const std::size_t tab1 = line.find('\t'), tab2 = line.find('\t', tab1 + 1);
    if (tab2 == std::string::npos) continue;
    const std::string entry = line.substr(0, tab1);
    answers << entry << '\t'
            << answer(fn, entry, parseField(line.substr(tab1 + 1, tab2 - tab1 - 1)),
                      parseField(line.substr(tab2 + 1)))
            << '\n';
    ++count;
  }
  std::fflush(stdout);
  answers.close();
  return count > 0 && answers ? 0 : 1;
}
