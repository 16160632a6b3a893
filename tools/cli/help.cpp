// `vela --help`: the usage lines and paragraphs of every command, between the
// options they share and the exit status.
#include "tools/cli/command.h"

namespace vela::cli {
namespace {

constexpr const char* kOptions =
    "  -l TAG   language tag (default ru): ru, en, uk, ro, kk, ka, hy, ar, ...\n"
    "           exact and case-sensitive, as the library takes it\n"
    "  -t       Russian with Latin-transliterated prompt names (mode 1)\n"
    "  --raw    texts and names are Windows-1251 bytes, passed through as they\n"
    "           are (default: UTF-8, converted to and from Windows-1251)\n"
    "  -h, --help  this text\n";

constexpr const char* kEnd =
    "Diagnostics of the grammars go to standard error. Exit status: 0 when every\n"
    "text was taken; 1 when a text cannot be written in Windows-1251 (its line is\n"
    "left empty), the tag is unknown (the texts are then spoken in English), a\n"
    "recording is missing or does not fit; 2 on a usage error.\n"
    "\n"
    "examples:\n"
    "  vela -l ru 12.50руб        двенадцать рублей пятьдесят копеек\n"
    "  vela -l en 1.05usd         one dollar and five cents\n"
    "  printf '21руб\\n7:05\\n' | vela -l ru\n"
    "  vela prompts -l ru --check voice/ru\n"
    "  vela say -l ru --voice voice/ru -o x.wav 12.50руб\n";

}  // namespace

std::string helpText() {
  std::string text;
  const char* lead = "usage: vela ";
  for (const Command* command : commands()) {
    // A command's usage may run over several lines; each starts with "vela".
    std::string_view synopsis = command->synopsis;
    while (!synopsis.empty()) {
      const std::size_t end = synopsis.find('\n') + 1;
      text.append(lead).append(synopsis.substr(0, end));
      synopsis.remove_prefix(end);
      lead = "       vela ";
    }
  }
  bool first = true;
  for (const Command* command : commands()) {
    text.append("\n").append(command->help);
    if (first) text.append("\n").append(kOptions);
    first = false;
  }
  return text.append("\n").append(kEnd);
}

}  // namespace vela::cli
