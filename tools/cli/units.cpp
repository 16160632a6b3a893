// vela units: the unit and currency words a language reads after a number,
// taken from its grammar's own tables, and what each reads as.
#include <algorithm>
#include <map>
#include <vector>

#include "grammar/factory.h"
#include "tools/cli/text.h"

namespace vela::cli {
namespace {

LanguageOptions parseUnits(Arguments& args) {
  LanguageOptions options;
  while (args.next()) {
    if (!takeLanguageOption(args, options)) args.reject();
  }
  return options;
}

// What a word reads as, found by asking the grammar for a few amounts with it.
struct UnitReading {
  std::string one;      // "1" and the word
  std::string minor;    // what "1.01" adds to `one` (a currency's minor unit), or ""
  std::string zero;     // "0" and the word: the zero phrase
  std::string example;  // the text of the example
  std::string spoken;   // its reading
  bool operator<(const UnitReading& other) const {
    return std::tie(one, minor, zero) < std::tie(other.one, other.minor, other.zero);
  }
};

// The prompt names of a text fully spoken, separated by single spaces; ""
// when not all of it is spoken.
std::string readingOf(const LanguageOptions& options, const std::string& text) {
  const Reading reading(options, text);
  return reading.status() == VELA_SPOKEN ? reading.names() : "";
}

// The reading of `key` after a number, or nullopt when the grammar reads the
// key like a word it does not know.
std::optional<UnitReading> readUnit(const LanguageOptions& options, const std::string& key) {
  UnitReading unit;
  unit.one = readingOf(options, "1" + key);
  if (unit.one.empty()) return std::nullopt;
  unit.zero = readingOf(options, "0" + key);
  const std::string withMinor = readingOf(options, "1.01" + key);
  if (withMinor.size() > unit.one.size() + 1 && withMinor.starts_with(unit.one + " ")) {
    unit.minor = withMinor.substr(unit.one.size() + 1);
  }
  unit.example = (unit.minor.empty() ? "5" : "12.50") + key;
  unit.spoken = readingOf(options, unit.example);
  return unit;
}

// Characters, for lining up columns: code points of UTF-8 text, and bytes
// under --raw (one a character in Windows-1251).
std::size_t widthOf(const std::string& text, bool raw) {
  if (raw) return text.size();
  return static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

void printTable(std::FILE* out, const std::vector<std::vector<std::string>>& rows, bool raw) {
  std::vector<std::size_t> widths;
  for (const auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], widthOf(row[i], raw));
  }
  for (const auto& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      line += row[i];
      if (i + 1 < row.size()) line.append(widths[i] - widthOf(row[i], raw) + 2, ' ');
    }
    std::fprintf(out, "%s\n", line.c_str());
  }
}

int runUnits(Arguments& args, std::FILE* out) {
  const LanguageOptions options = parseUnits(args);
  const int status = checkTag(options) ? 0 : 1;
  std::vector<std::string> keys;
  listUnitKeys(options.tag, options.mode, keys);
  // Words that read alike share a line, in the order of their first word.
  std::map<UnitReading, std::vector<std::string>> words;
  std::vector<UnitReading> order;
  for (const std::string& key : keys) {
    const std::optional<UnitReading> unit = readUnit(options, key);
    if (!unit) continue;
    auto& spellings = words[*unit];
    if (spellings.empty()) order.push_back(*unit);
    if (std::find(spellings.begin(), spellings.end(), key) == spellings.end()) spellings.push_back(key);
  }
  std::vector<std::vector<std::string>> rows = {
      {"words", "1 reads as", "1.01 adds", "0 reads as", "example"}};
  for (const UnitReading& unit : order) {
    std::string list;
    for (const std::string& key : words[unit]) list += (list.empty() ? "" : " ") + shownName(options, key);
    const auto show = [&](const std::string& names) {
      return names.empty() ? "-" : shownName(options, names);
    };
    rows.push_back({list, show(unit.one), show(unit.minor), show(unit.zero),
                    shownName(options, unit.example) + " = " + show(unit.spoken)});
  }
  printTable(out, rows, options.raw);
  std::fflush(out);
  return status;
}

}  // namespace

extern const Command kUnits = {
    "units",
    "units [-l TAG] [-t] [--raw]\n",
    "  units          list the unit and currency words the language reads after a\n"
    "                 number, as its tables hold them; words read alike share a\n"
    "                 line, with what 1 of them reads as, what 1.01 adds (a\n"
    "                 currency's minor unit), the zero phrase and an example\n",
    runUnits,
};

}  // namespace vela::cli
