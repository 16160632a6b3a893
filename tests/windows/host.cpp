// A host that loads vela at run time, finds every export by its plain name and
// runs a table of requests through each of them (the Java native entry with a
// fake JNI table), writing one answer line per request. The same source builds
// on Linux (dlopen) and for Windows (LoadLibrary): scripts/windows.sh compares
// the Windows DLL's answers with the Linux build's.
//
//   host LIBRARY REQUESTS ANSWERS
//
// REQUESTS: one request a line, "entry<TAB>tag<TAB>text"; '#' starts a comment.
// entry: c (decodeBuffer), c-noout (decodeBuffer with a null out), jni and
// jni-t (the Java entry, transliterated off and on), ascii (DecodeBufferASCII,
// whose arguments are C++ objects, called as a host built with the same
// compiler would). In tag and text: \xHH is a byte, a field of just \N a null
// pointer (a null array for the Java entry, an empty string for
// DecodeBufferASCII), and \R<count>:<piece> the piece repeated. The library
// prints its own diagnostics on standard output.
#include <cstdio>
#include <fstream>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "support/fake_jvm.h"

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

const char* const kExports[] = {
    "decodeBuffer", "decodeReleaseBuffer", "DecodeBufferASCII",
    "Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded"};

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
  if (entry == "jni" || entry == "jni-t") {
    vela::testing::FakeJvm jvm;
    const std::string* result =
        jvm.call(reinterpret_cast<vela::testing::JavaEntry>(fn[3]), text.isNull ? nullptr : &text.bytes,
                 tag.isNull ? nullptr : &tag.bytes, entry == "jni-t");
    std::string line = result ? "len=" + std::to_string(result->size()) + " " + escaped(*result) : "null";
    return line + (jvm.held != 0 || jvm.broken ? " (JNI contract broken)" : "");
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
  void* fn[4] = {};
  for (int i = 0; i < 4 && lib != nullptr; ++i) {
    if ((fn[i] = findExport(lib, kExports[i])) == nullptr)
      std::fprintf(stderr, "host: no export %s\n", kExports[i]);
  }
  std::ifstream requests(argv[2], std::ios::binary);
  std::ofstream answers(argv[3], std::ios::binary);
  if (lib == nullptr || !requests || !answers) {
    std::fprintf(stderr, "host: cannot load %s or open the files\n", argv[1]);
    return 1;
  }
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
  return count > 0 && answers && fn[0] && fn[1] && fn[2] && fn[3] ? 0 : 1;
}
