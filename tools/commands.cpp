#include "tools/commands.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "grammar/factory.h"
#include "pipeline/text_decoder.h"
#include "tools/encoding.h"
#include "tools/inventory.h"

namespace vela::tools {
namespace {

// The names separated by single spaces, without spaces at either end.
std::string joinNames(const std::string& names) {
  std::vector<std::string> pieces;
  splitNames(names, pieces);
  std::string line;
  for (const std::string& piece : pieces) line += (line.empty() ? "" : " ") + piece;
  return line;
}

// The text as the library takes it; nullopt (after a message) when it cannot
// be written in Windows-1251.
std::optional<std::string> requestText(const Options& options, const std::string& text) {
  std::optional<std::string> request = options.raw ? text : convert(text, "WINDOWS-1251", "UTF-8");
  if (!request) std::fprintf(stderr, "vela: cannot write \"%s\" in Windows-1251\n", text.c_str());
  return request;
}

std::string shown(const Options& options, const std::string& name) {
  return options.raw ? name : utf8FromCp1251(name);
}

// Speaks one text and prints its line; false when the text could not be taken.
bool speakOne(const Options& options, std::FILE* out, const std::string& text) {
  const std::optional<std::string> request = requestText(options, text);
  if (!request) {
    std::fputc('\n', out);
    return false;
  }
  char* buffer = nullptr;
  if (decodeText(options.tag.c_str(), request->c_str(), &buffer, options.mode) != 0) {
    std::fprintf(stderr, "vela: out of memory\n");
    std::fputc('\n', out);
    return false;
  }
  std::string names = joinNames(buffer);
  std::free(buffer);
  if (!options.raw) names = convert(names, "UTF-8", "WINDOWS-1251").value_or(names);
  std::fprintf(out, "%s\n", names.c_str());
  std::fflush(out);
  return true;
}

bool isDirectory(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool isReadableFile(const std::string& path) {
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode) && access(path.c_str(), R_OK) == 0;
}

}  // namespace

bool checkTag(const Options& options) {
  std::string tagError;
  grammarFor(options.tag, options.mode, tagError);
  if (tagError.empty()) return true;
  std::fprintf(stderr, "vela: unknown language tag \"%s\"; speaking English\n", options.tag.c_str());
  return false;
}

int speakTexts(const Options& options, std::FILE* promptOut) {
  int status = checkTag(options) ? 0 : 1;
  if (!options.texts.empty()) {
    for (const std::string& text : options.texts) {
      if (!speakOne(options, promptOut, text)) status = 1;
    }
    return status;
  }
  char* line = nullptr;
  std::size_t capacity = 0;
  ssize_t length;
  bool first = true;
  while ((length = getline(&line, &capacity, stdin)) >= 0) {
    std::string text(line, static_cast<std::size_t>(length));
    // Files saved by Windows editors begin with a byte-order mark.
    if (first && !options.raw) skipByteOrderMark(text);
    first = false;
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
    if (!speakOne(options, promptOut, text)) status = 1;
  }
  std::free(line);
  return status;
}

int listPrompts(const Options& options, std::FILE* promptOut) {
  if (!options.checkDir.empty() && !isDirectory(options.checkDir)) {
    std::fprintf(stderr, "vela: %s is not a directory\n", options.checkDir.c_str());
    return 2;
  }
  int status = checkTag(options) ? 0 : 1;
  std::vector<std::string> lines;
  std::size_t total = 0;
  for (const std::string& name : promptInventory(options.tag, options.mode)) {
    ++total;
    const std::string file = recordingFileName(name);
    if (!options.checkDir.empty() && isReadableFile(options.checkDir + "/" + file)) continue;
    lines.push_back(shown(options, name) + (options.withFiles ? "\t" + file : ""));
  }
  std::sort(lines.begin(), lines.end());
  for (const std::string& line : lines) std::fprintf(promptOut, "%s\n", line.c_str());
  std::fflush(promptOut);
  if (!options.checkDir.empty()) {
    std::fprintf(stderr, "vela: %zu of %zu recordings missing in %s\n", lines.size(), total,
                 options.checkDir.c_str());
    if (!lines.empty()) status = 1;
  }
  return status;
}

}  // namespace vela::tools
