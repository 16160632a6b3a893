// vela [-l TAG] [-t] [--raw] [TEXT...]: one line of prompt names per text.
#include <cstdlib>
#include <vector>

#include "pipeline/text_decoder.h"
#include "tools/cli/text.h"
#include "tools/encoding.h"
#include "tools/inventory.h"

namespace vela::cli {
namespace {

struct SpeakOptions {
  LanguageOptions language;
  std::vector<std::string> texts;
};

SpeakOptions parseSpeak(Arguments& args) {
  SpeakOptions options;
  while (args.next()) {
    if (takeLanguageOption(args, options.language)) continue;
    if (args.isOption()) args.reject();
    options.texts.push_back(args.current());
  }
  return options;
}

// The names separated by single spaces, without spaces at either end.
std::string joinNames(const std::string& names) {
  std::vector<std::string> pieces;
  tools::splitNames(names, pieces);
  std::string line;
  for (const std::string& piece : pieces) line += (line.empty() ? "" : " ") + piece;
  return line;
}

// Speaks one text and prints its line; false when the text could not be taken.
bool speakOne(const LanguageOptions& options, std::FILE* out, const std::string& text) {
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
  if (!options.raw) names = tools::convert(names, "UTF-8", "WINDOWS-1251").value_or(names);
  std::fprintf(out, "%s\n", names.c_str());
  std::fflush(out);
  return true;
}

// One text per line of standard input.
int speakLines(const LanguageOptions& options, std::FILE* out) {
  int status = 0;
  char* line = nullptr;
  std::size_t capacity = 0;
  ssize_t length;
  bool first = true;
  while ((length = getline(&line, &capacity, stdin)) >= 0) {
    std::string text(line, static_cast<std::size_t>(length));
    // Files saved by Windows editors begin with a byte-order mark.
    if (first && !options.raw) tools::skipByteOrderMark(text);
    first = false;
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
    if (!speakOne(options, out, text)) status = 1;
  }
  std::free(line);
  return status;
}

int runSpeak(Arguments& args, std::FILE* out) {
  const SpeakOptions options = parseSpeak(args);
  int status = checkTag(options.language) ? 0 : 1;
  if (options.texts.empty()) return speakLines(options.language, out) != 0 ? 1 : status;
  for (const std::string& text : options.texts) {
    if (!speakOne(options.language, out, text)) status = 1;
  }
  return status;
}

}  // namespace

extern const Command kSpeak = {
    "",
    "[-l TAG] [-t] [--raw] [TEXT...]\n",
    "For each TEXT, prints one line: the names of the prompts that speak it,\n"
    "separated by single spaces. With no TEXT, reads one text per line from\n"
    "standard input (a UTF-8 byte-order mark at its start is skipped) and\n"
    "answers one line each. A text that produces no prompt comes back as it is.\n"
    "Diagnostics go to standard error. A TEXT that starts with \"-\" and a letter,\n"
    "or a first TEXT of letters only, goes after \"--\".\n",
    runSpeak,
};

}  // namespace vela::cli
