// vela [-l TAG] [-t] [--raw] [TEXT...]: one line of prompt names per text.
#include <cstdlib>
#include <vector>

#include "tools/cli/text.h"
#include "tools/encoding.h"

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

// Speaks one text and prints its line (empty when nothing is spoken); its
// complaints go to standard error, after `where`. True when the whole text
// was spoken.
bool speakOne(const LanguageOptions& options, std::FILE* out, const std::string& where,
              const std::string& text) {
  const std::optional<std::string> request = requestText(options, where, text);
  if (!request) {
    std::fputc('\n', out);
    return false;
  }
  // A blank line of a batch has nothing to speak, and nothing left unsaid.
  if (request->find_first_not_of(" \t") == std::string::npos) {
    std::fputc('\n', out);
    return true;
  }
  const Reading reading(options, *request);
  std::fprintf(out, "%s\n", shownName(options, reading.names()).c_str());
  std::fflush(out);
  reading.complain(options, where);
  return reading.complete();
}

// One text per line of standard input.
bool speakLines(const LanguageOptions& options, std::FILE* out) {
  bool complete = true;
  char* line = nullptr;
  std::size_t capacity = 0;
  ssize_t length;
  for (int number = 1; (length = getline(&line, &capacity, stdin)) >= 0; ++number) {
    std::string text(line, static_cast<std::size_t>(length));
    // Files saved by Windows editors begin with a byte-order mark.
    if (number == 1 && !options.raw) tools::skipByteOrderMark(text);
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
    if (!speakOne(options, out, "line " + std::to_string(number), text)) complete = false;
  }
  std::free(line);
  return complete;
}

int runSpeak(Arguments& args, std::FILE* out) {
  const SpeakOptions options = parseSpeak(args);
  bool complete = checkTag(options.language);
  if (options.texts.empty()) return speakLines(options.language, out) && complete ? 0 : 1;
  for (const std::string& text : options.texts) {
    if (!speakOne(options.language, out, "\"" + text + "\"", text)) complete = false;
  }
  return complete ? 0 : 1;
}

}  // namespace

extern const Command kSpeak = {
    "",
    "[-l TAG] [-t] [--raw] [TEXT...]\n",
    "For each TEXT, prints one line: the names of the prompts that speak it,\n"
    "separated by single spaces, or an empty line when nothing in it can be\n"
    "spoken. With no TEXT, reads one text per line from standard input (a UTF-8\n"
    "byte-order mark at its start is skipped) and answers one line each.\n"
    "Complaints about a text go to standard error as \"vela: WHERE: ...\", WHERE\n"
    "being the text in quotes or its line number. A TEXT that starts with \"-\"\n"
    "and a letter, or a first TEXT of letters only, goes after \"--\".\n",
    runSpeak,
};

}  // namespace vela::cli
