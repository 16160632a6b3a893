// A host that loads vela at run time, finds every export by its plain name and
// runs a table of requests through the C and C++ ones (the Java entries are
// found, not called: they need a JVM), writing one answer line per request. The same source builds
// on Linux (dlopen) and for Windows (LoadLibrary): scripts/windows.sh compares
// the Windows DLL's answers with the Linux build's.
//
//   host LIBRARY REQUESTS ANSWERS
//
// REQUESTS: one request a line, "entry<TAB>tag<TAB>text"; '#' starts a comment.
// entry: c (decodeBuffer), c-noout (decodeBuffer with a null out), read,
// read-latin and read-strict (vela_read with no option, VELA_LATIN,
// VELA_STRICT_TAG), ascii (DecodeBufferASCII, whose arguments are C++ objects,
// called as a host built with the same compiler would). In tag and text: \xHH
// is a byte, a field of just \N a null pointer (an empty string for
// DecodeBufferASCII), and \R<count>:<piece> the piece repeated. The library
// prints its own diagnostics on standard output.
#include <cstdio>
#include <fstream>
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

using DecodeBufferFn = int (*)(const char*, const char*, char**);
using ReleaseFn = void (*)(void*);
using AsciiFn = bool (*)(const std::string&, const std::string&, std::vector<std::string>&, std::ostream&);
using ReadFn = int (*)(const char*, const char*, unsigned, vela_reading*);
using ReadingFreeFn = void (*)(vela_reading*);
using VersionFn = const char* (*)();

const char* const kExports[] = {
    "decodeBuffer",
    "decodeReleaseBuffer",
    "DecodeBufferASCII",
    "vela_read",
    "vela_reading_free",
    "vela_version",
    "Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded",
    "Java_com_talvik_ostra_macrosynthesis_vela_Vela_read0",
    "Java_com_talvik_ostra_macrosynthesis_vela_Vela_version0"};
constexpr int kExportCount = sizeof kExports / sizeof kExports[0];

struct Field {
  bool isNull = false;
  std::string bytes;
};

Field parseField(const std::string& p) {
  Field f;
  if (p == "\\N") {
    f.isNull = true;
  } else if (p.rfind("\\R", 0) == 0 && p.find(':') != std::string::npos) {
    for (long i = std::stol(p.substr(2)); i > 0; --i) f.bytes += p.substr(p.find(':') + 1);
  } else {
    for (std::size_t i = 0; i < p.size(); ++i) {
      const bool hex = p.compare(i, 2, "\\x") == 0 && i + 3 < p.size();
      f.bytes += hex ? static_cast<char>(std::stoi(p.substr(i + 2, 2), nullptr, 16)) : p[i];
      if (hex) i += 3;
    }
  }
  return f;
}

// Bytes that would break a line or read ambiguously as \xHH.
std::string escaped(const std::string& bytes) {
  std::string out;
  for (unsigned char c : bytes) {
    char hex[8];
    std::snprintf(hex, sizeof hex, "\\x%02X", c);
    out += c < 0x20 || c == 0x7f || c == '\\' ? std::string(hex) : std::string(1, static_cast<char>(c));
  }
  return out;
}

std::string answer(void* const* fn, const std::string& entry, const Field& tag, const Field& text) {
  const char* tagArg = tag.isNull ? nullptr : tag.bytes.c_str();
  const char* textArg = text.isNull ? nullptr : text.bytes.c_str();
  if (entry == "c" || entry == "c-noout") {
    char* out = nullptr;
    const int rc = reinterpret_cast<DecodeBufferFn>(fn[0])(tagArg, textArg, entry == "c" ? &out : nullptr);
    std::string line = "rc=" + std::to_string(rc) + (out != nullptr ? " " + escaped(out) : "");
    reinterpret_cast<ReleaseFn>(fn[1])(out);
    return line;
  }
  if (entry == "ascii") {
    // A name already in the list shows that the export appends and never clears.
    std::vector<std::string> files{"(before)"};
    std::ostringstream log;
    const bool ok = reinterpret_cast<AsciiFn>(fn[2])(tag.bytes, text.bytes, files, log);
    std::string line = ok ? "ok=1 " : "ok=0 ";
    for (const std::string& file : files) line += "[" + file + "]";
    return escaped(line + " log=" + log.str());
  }
  const unsigned options = entry == "read" ? 0 : entry == "read-latin" ? VELA_LATIN : VELA_STRICT_TAG;
  if (entry == "read" || entry == "read-latin" || entry == "read-strict") {
    vela_reading r;
    const int rc = reinterpret_cast<ReadFn>(fn[3])(tagArg, textArg, options, &r);
    std::string line = "rc=" + std::to_string(rc);
    if (rc == 0)
      line += " status=" + std::to_string(r.status) + " unknown=" + std::to_string(r.unknown_tag) +
              " names=" + escaped(r.names) + " diagnostics=" + escaped(r.diagnostics);
    reinterpret_cast<ReadingFreeFn>(fn[4])(&r);
    return line;
  }
  return "unknown entry";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: host LIBRARY REQUESTS ANSWERS\n");
    return 2;
  }
  void* lib = openLibrary(argv[1]);
  void* fn[kExportCount] = {};
  bool found = lib != nullptr;
  for (int i = 0; i < kExportCount && lib != nullptr; ++i) {
    if ((fn[i] = findExport(lib, kExports[i])) == nullptr) {
      std::fprintf(stderr, "host: no export %s\n", kExports[i]);
      found = false;
    }
  }
  std::ifstream requests(argv[2], std::ios::binary);
  std::ofstream answers(argv[3], std::ios::binary);
  if (lib == nullptr || !requests || !answers) {
    std::fprintf(stderr, "host: cannot load %s or open the files\n", argv[1]);
    return 1;
  }
  if (found) std::fprintf(stderr, "host: vela %s\n", reinterpret_cast<VersionFn>(fn[5])());
  int count = 0;
  for (std::string line; std::getline(requests, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const std::size_t tab1 = line.find('\t'), tab2 = line.find('\t', tab1 + 1);
    if (line.empty() || line[0] == '#' || tab2 == std::string::npos) continue;
    const std::string entry = line.substr(0, tab1);
    const Field tag = parseField(line.substr(tab1 + 1, tab2 - tab1 - 1)),
                text = parseField(line.substr(tab2 + 1));
    answers << entry << '\t' << answer(fn, entry, tag, text) << '\n';
    ++count;
  }
  std::fflush(stdout);
  answers.close();
  return count > 0 && answers && found ? 0 : 1;
}
