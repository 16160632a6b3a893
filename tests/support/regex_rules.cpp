#include "support/regex_rules.h"

#include <boost/regex.hpp>
#include <locale>
#include <stdexcept>

#include "analysis/rules.h"
#include "grammar/cp1251.h"
#include "pipeline/text_decoder.h"

namespace vela::testing {
namespace {

// Character classes are those of the C locale whatever locale the host has set:
// a lone byte 0x80-0xFF is not [[:print:]]. Ranges compare byte values, so
// а-я is E0-FF and А-Я is C0-DF (ё and Ё are outside both).
boost::regex compile(const char* pattern) {
  boost::regex re;
  re.imbue(std::locale::classic());
  re.assign(pattern, boost::regex::perl);
  return re;
}

#define VELA_DAY "([1-9]|[0][1-9]|[1][0-9]|[2][0-9]|[3][0-1])"
#define VELA_YEAR "(([1][9]|[2][0])([0-9][0-9]))"

const boost::regex kRules[kRegexRuleCount] = {
    compile("[-]{1}([[:digit:]]+)[.|,]{0,1}([[:digit:]]*)([а-яА-Яa-zA-Z]+)"_cp),
    compile("[-]{1}([[:digit:]]*)[.|,]{1}([[:digit:]]+)([а-яА-Яa-zA-Z]+)"_cp),
    compile("([[:digit:]]+)[.|,]{0,1}([[:digit:]]*)([а-яА-Яa-zA-Z]+)"_cp),
    compile("([[:digit:]]*)[.|,]{1}([[:digit:]]+)([а-яА-Яa-zA-Z]+)"_cp),
    compile(VELA_DAY "\\.([1-9]|[1][0-2]|[0][0-9])\\." VELA_YEAR),
    compile(VELA_DAY "\\.([1-9]|[1][0-2]|[0][0-9])\\." VELA_YEAR "\\(I\\)"),
    compile(VELA_DAY "\\.([1][0-2]|[0][0-9]|[1-9])"),
    compile(VELA_DAY "\\.([1][0-2]|[0][0-9]|[1-9])\\(I\\)"),
    compile("[[:digit:]]+(-[[:digit:]]+)+"),
    compile("\"([[:digit:]#*]+)\""),
    compile("\"([[:digit:]#*]+)\""),
    compile("([[:digit:]]{1,2}):([[:digit:]]{2}):([[:digit:]]{2})"),
    compile("\"([[:digit:]]+):([[:digit:]]{2})\""),
    compile("\"([[:digit:]]+):([[:digit:]]{2}):([[:digit:]]{2})\""),
    compile("([[:digit:]]{1,2}):([[:digit:]]{2})"),
    compile("([[:digit:]]+)"),
    compile("([[:digit:]]+)([.|,][[:digit:]]+)"),
    compile("([[:print:]])"),
};

#undef VELA_DAY
#undef VELA_YEAR

// Only a leftmost match that starts at the first byte can be the whole text,
// and when a match starts there it is the leftmost one: so the search is
// anchored at the first byte (match_continuous) and gives the same verdict
// without trying, and discarding, every later start.
const auto kSearchFlags =
    boost::match_default | boost::match_not_dot_newline | boost::match_not_dot_null | boost::match_continuous;

// The leftmost match of the rule in `text`, if it is the whole text.
bool searchWhole(int rule, const std::string& text, boost::smatch& found, bool& gaveUp) {
  try {
    if (!boost::regex_search(text, found, kRules[rule], kSearchFlags)) return false;
  } catch (const std::runtime_error&) {
    gaveUp = true;
    return false;
  }
  return found.length(0) == static_cast<boost::smatch::difference_type>(text.size());
}

std::string_view view(const boost::ssub_match& group) {
  if (!group.matched) return {};
  return {&*group.first, static_cast<std::size_t>(group.second - group.first)};
}

}  // namespace

RegexVerdict regexRule(int rule, const std::string& text) {
  RegexVerdict verdict;
  boost::smatch found;
  verdict.wholeText = searchWhole(rule, text, found, verdict.gaveUp);
  if (!verdict.wholeText) return verdict;
  for (std::size_t k = 0; k < 6 && k < found.size(); ++k) verdict.groups[k] = std::string(view(found[k]));
  return verdict;
}

std::string runRulesByRegex(IGrammar& grammar, const std::string& text, bool* gaveUp) {
  TextDecoder decoder(grammar, text);
  std::string work = decoder.text;
  if (work.find(".wav") != std::string::npos) return work;
  bool stopped = false;
  for (int rule = 0; rule < kRegexRuleCount; ++rule) {
    for (int pass = 0; pass < 16; ++pass) {
      boost::smatch found;
      if (!searchWhole(rule, work, found, stopped)) break;
      decoder.match = TokenMatch{};
      decoder.match.rule = rule;
      for (std::size_t k = 0; k < 6 && k < found.size(); ++k) decoder.match.group[k] = view(found[k]);
      decoder.output.clear();
      const auto handler = decodeRules[rule].handler;
      (decoder.*handler)();
      decoder.match = TokenMatch{};
      work = found.prefix().str() + decoder.output + found.suffix().str();
    }
  }
  if (gaveUp != nullptr) *gaveUp = stopped;
  return work;
}

}  // namespace vela::testing
