// vela prompts: every prompt name a language can answer with; --check finds
// the ones a folder of recordings lacks.
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <vector>

#include "tools/cli/text.h"
#include "tools/encoding.h"
#include "tools/inventory.h"

namespace vela::cli {
namespace {

struct PromptsOptions {
  LanguageOptions language;
  std::string checkDir;    // --check
  bool withFiles = false;  // --files
};

PromptsOptions parsePrompts(Arguments& args) {
  PromptsOptions options;
  while (args.next()) {
    if (takeLanguageOption(args, options.language)) continue;
    if (args.current() == "--files" && args.isOption()) {
      options.withFiles = true;
    } else if (args.current() == "--check" && args.isOption()) {
      options.checkDir = args.value();
    } else {
      args.reject();
    }
  }
  return options;
}

bool isDirectory(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool isReadableFile(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode) && access(path.c_str(), R_OK) == 0;
}

int runPrompts(Arguments& args, std::FILE* out) {
  const PromptsOptions options = parsePrompts(args);
  if (!options.checkDir.empty() && !isDirectory(options.checkDir)) {
    std::fprintf(stderr, "vela: %s is not a directory\n", options.checkDir.c_str());
    return 2;
  }
  int status = checkTag(options.language) ? 0 : 1;
  std::vector<std::string> lines;
  std::size_t total = 0;
  for (const std::string& name : tools::promptInventory(options.language.tag, options.language.mode)) {
    ++total;
    const std::string file = tools::recordingFileName(name);
    if (!options.checkDir.empty() && isReadableFile(options.checkDir + "/" + file)) continue;
    lines.push_back(shownName(options.language, name) + (options.withFiles ? "\t" + file : ""));
  }
  std::sort(lines.begin(), lines.end());
  for (const std::string& line : lines) std::fprintf(out, "%s\n", line.c_str());
  std::fflush(out);
  if (!options.checkDir.empty()) {
    std::fprintf(stderr, "vela: %zu of %zu recordings missing in %s\n", lines.size(), total,
                 options.checkDir.c_str());
    if (!lines.empty()) status = 1;
  }
  return status;
}

}  // namespace

extern const Command kPrompts = {
    "prompts",
    "prompts [-l TAG] [-t] [--raw] [--files] [--check DIR]\n",
    "  prompts        print every prompt name the language can answer with, one a\n"
    "                 line, sorted by byte\n"
    "    --files      add a tab and the recording's file name, NAME.wav, to each\n"
    "                 line: NAME is the prompt name in UTF-8, with the bytes\n"
    "                 / \\ : * ? \" < > | %, control bytes and a leading dot written\n"
    "                 as %XX (hexadecimal of the Windows-1251 byte)\n"
    "    --check DIR  print only the prompts without a recording DIR/NAME.wav;\n"
    "                 exit with 1 when any is missing\n",
    runPrompts,
};

}  // namespace vela::cli
