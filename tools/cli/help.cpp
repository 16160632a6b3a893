// `vela --help`, laid out the way help2man reads it (the man page is made from
// it): the usage lines, what the tool does, the options, one paragraph per
// command, the tags, the exit status and examples.
#include "tools/cli/command.h"

namespace vela::cli {
namespace {

constexpr const char* kAbout =
    "Turns short texts (numbers, amounts with a unit or currency word, dates,\n"
    "clock times, quoted spans, keypad strings, single characters) into the\n"
    "names of the pre-recorded prompts that speak them.\n";

constexpr const char* kOptions =
    "Options:\n"
    "  -l TAG         language tag (default ru), exact and case-sensitive; see Tags\n"
    "  -t             Russian with Latin-transliterated prompt names (mode 1)\n"
    "  --raw          texts and names are Windows-1251 bytes, passed through as they\n"
    "                 are (default: UTF-8, converted to and from Windows-1251)\n"
    "  -h, --help     print this help and exit\n"
    "  --version      print the library's version and exit\n";

// One row per grammar: its tags, then its language.
constexpr const char* kTags =
    "Tags:\n"
    "  ru rus RUSSIAN                         Russian (with -t: Latin names)\n"
    "  uk ukr UKRAINIAN UKRANIAN UKRAINIEN UKRAINE\n"
    "                                         Ukrainian\n"
    "  en eng ENGLISH                         English; also every unknown tag\n"
    "  ro rom rum ROMANIAN mo mol MOLDOVA     Romanian\n"
    "  kk kaz KAZAH KAZAKH KAZAKHSTAN         Kazakh\n"
    "  uz uzb UZBEK OUSZBEK UZBEKISTAN        Uzbek\n"
    "  tg tgk TADJIK TAJIK TAJIKISTAN         Tajik\n"
    "  ka geo GEORGIA GEORGIAN                Georgian\n"
    "  hy ARMJAN                              Armenian\n"
    "  ar ARAB                                Arabic\n";

constexpr const char* kEnd =
    "Exit status:\n"
    "  0   every text was spoken whole (or passed through as file names)\n"
    "  1   a text was partly spoken or not at all, could not be written in\n"
    "      Windows-1251, or the tag is unknown (the texts are then spoken in\n"
    "      English); prompts --check: a recording is missing; say: a recording\n"
    "      is missing or does not fit\n"
    "  2   a usage error, named on one line of standard error\n"
    "\n"
    "Examples:\n"
    "  vela -l ru 12.50руб\n"
    "      prints: двенадцать рублей пятьдесят копеек\n"
    "  vela -l en 1.05usd\n"
    "      prints: one dollar and five cents\n"
    "  printf '21руб\\n7:05\\n' | vela -l ru\n"
    "      one answer line per input line\n"
    "  vela prompts -l ru --check voice/ru\n"
    "      the recordings voice/ru still lacks\n"
    "  vela say -l ru --voice voice/ru -o x.wav 12.50руб\n"
    "      the answer's recordings, one after another, in x.wav\n";

void appendUsage(std::string& text) {
  const char* lead = "Usage: vela ";
  for (const Command* command : commands()) {
    // A command's usage may run over several lines; each starts with "vela".
    std::string_view synopsis = command->synopsis;
    while (!synopsis.empty()) {
      const std::size_t end = synopsis.find('\n') + 1;
      text.append(lead).append(synopsis.substr(0, end));
      synopsis.remove_prefix(end);
      lead = "  or:  vela ";
    }
  }
  text.append(lead).append("--help | --version\n");
}

}  // namespace

std::string helpText() {
  std::string text;
  appendUsage(text);
  text.append(kAbout).append("\n").append(findCommand("")->help);
  text.append("\n").append(kOptions).append("\nCommands:\n");
  for (const Command* command : commands()) {
    if (!command->name.empty()) text.append(command->help);
  }
  return text.append("\n").append(kTags).append("\n").append(kEnd);
}

}  // namespace vela::cli
