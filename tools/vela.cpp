// vela: speaks texts from the command line, one line of prompt names per text.
#include <iconv.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "grammar/factory.h"
#include "pipeline/text_decoder.h"

namespace {

constexpr const char* kUsage =
    "usage: vela [-l TAG] [-t] [--raw] [TEXT...]\n"
    "\n"
    "Prints, for each TEXT, one line: the names of the prompts that speak it,\n"
    "separated by single spaces. With no TEXT, reads one text per line from\n"
    "standard input and answers one line each.\n"
    "\n"
    "  -l TAG   language tag (default ru): ru, en, uk, ro, kk, ka, hy, ar, ...\n"
    "           exact and case-sensitive, as the library takes it\n"
    "  -t       Russian with Latin-transliterated prompt names (mode 1)\n"
    "  --raw    texts and names are Windows-1251 bytes, passed through as they\n"
    "           are (default: UTF-8, converted to and from Windows-1251)\n"
    "  -h, --help  this text\n"
    "\n"
    "A text that produces no prompt comes back as it is. Diagnostics of the\n"
    "grammars go to standard error. Exit status: 0 when every text was taken;\n"
    "1 when a text cannot be written in Windows-1251 (its line is left empty)\n"
    "or the tag is unknown (the texts are then spoken in English); 2 on a usage\n"
    "error.\n"
    "\n"
    "examples:\n"
    "  vela -l ru 12.50руб        двенадцать рублей пятьдесят копеек\n"
    "  vela -l en 1.05usd         one dollar and five cents\n"
    "  printf '21руб\\n7:05\\n' | vela -l ru\n";

struct Options {
  std::string tag = "ru";
  unsigned char mode = 0;
  bool raw = false;
  std::vector<std::string> texts;
};

// Converts between encodings with iconv; nullopt when a character has no
// counterpart in the target encoding or the input is malformed.
std::optional<std::string> convert(const std::string& text, const char* to, const char* from) {
  iconv_t cd = iconv_open(to, from);
  if (cd == reinterpret_cast<iconv_t>(-1))
    return std::nullopt;  // NOLINT(performance-no-int-to-ptr): iconv's error value
  std::string in = text;
  std::string out(text.size() * 4 + 4, '\0');
  char* inPtr = in.data();
  char* outPtr = out.data();
  std::size_t inLeft = in.size();
  std::size_t outLeft = out.size();
  const std::size_t rc = iconv(cd, &inPtr, &inLeft, &outPtr, &outLeft);
  iconv_close(cd);
  if (rc == static_cast<std::size_t>(-1) || rc > 0) return std::nullopt;  // rc > 0: lossy conversion
  out.resize(out.size() - outLeft);
  return out;
}

// The names separated by single spaces, without spaces at either end.
std::string joinNames(const std::string& names) {
  std::string line;
  std::size_t pos = 0;
  while (pos < names.size()) {
    std::size_t space = names.find(' ', pos);
    if (space == std::string::npos) space = names.size();
    if (space > pos) {
      if (!line.empty()) line += ' ';
      line.append(names, pos, space - pos);
    }
    pos = space + 1;
  }
  return line;
}

class Speaker {
 public:
  Speaker(const Options& options, std::FILE* promptOut) : options_(options), out_(promptOut) {}

  // Speaks one text and prints its line; false when the text could not be taken.
  bool speak(const std::string& text) {
    std::optional<std::string> request = options_.raw ? text : convert(text, "WINDOWS-1251", "UTF-8");
    if (!request) {
      std::fprintf(stderr, "vela: cannot write \"%s\" in Windows-1251\n", text.c_str());
      std::fputc('\n', out_);
      return false;
    }
    char* buffer = nullptr;
    if (vela::decodeText(options_.tag.c_str(), request->c_str(), &buffer, options_.mode) != 0) {
      std::fprintf(stderr, "vela: out of memory\n");
      std::fputc('\n', out_);
      return false;
    }
    std::string names = joinNames(buffer);
    std::free(buffer);
    if (!options_.raw) names = convert(names, "UTF-8", "WINDOWS-1251").value_or(names);
    std::fprintf(out_, "%s\n", names.c_str());
    std::fflush(out_);
    return true;
  }

 private:
  const Options& options_;
  std::FILE* out_;
};

// "-5rub", "-,5kb" and "-" are texts, not options.
bool isText(const std::string& arg) {
  if (arg.size() < 2 || arg[0] != '-') return true;
  const char c = arg[1];
  return (c >= '0' && c <= '9') || c == ',' || c == '.' || c == '|';
}

// Parses the command line; exits on --help or a usage error.
Options parseOptions(int argc, char** argv) {
  Options options;
  bool onlyTexts = false;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (onlyTexts || isText(arg)) {
      options.texts.push_back(arg);
    } else if (arg == "--") {
      onlyTexts = true;
    } else if (arg == "-h" || arg == "--help") {
      std::fputs(kUsage, stdout);
      std::exit(0);
    } else if (arg == "-t") {
      options.mode = 1;
    } else if (arg == "--raw") {
      options.raw = true;
    } else if (arg == "-l" && i + 1 < argc) {
      options.tag = argv[++i];
    } else {
      std::fprintf(stderr, "vela: unknown option or missing value: %s\n\n%s", arg.c_str(), kUsage);
      std::exit(2);
    }
  }
  return options;
}

}  // namespace

int main(int argc, char** argv) {
  const Options options = parseOptions(argc, argv);

  // The grammars print their complaints on standard output: point that at
  // standard error and keep the real standard output for the prompt names.
  std::FILE* promptOut = fdopen(dup(STDOUT_FILENO), "w");
  if (promptOut == nullptr || dup2(STDERR_FILENO, STDOUT_FILENO) < 0) {
    std::perror("vela");
    return 2;
  }

  int status = 0;
  std::string tagError;
  vela::grammarFor(options.tag, options.mode, tagError);
  if (!tagError.empty()) {
    std::fprintf(stderr, "vela: unknown language tag \"%s\"; speaking English\n", options.tag.c_str());
    status = 1;
  }

  Speaker speaker(options, promptOut);
  if (!options.texts.empty()) {
    for (const std::string& text : options.texts) {
      if (!speaker.speak(text)) status = 1;
    }
  } else {
    char* line = nullptr;
    std::size_t capacity = 0;
    ssize_t length;
    while ((length = getline(&line, &capacity, stdin)) >= 0) {
      std::string text(line, static_cast<std::size_t>(length));
      while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
      if (!speaker.speak(text)) status = 1;
    }
    std::free(line);
  }
  std::fclose(promptOut);
  return status;
}
