#include "analysis/rules.h"

#include <locale>
#include <stdexcept>

#include "grammar/cp1251.h"
#include "pipeline/text_decoder.h"

namespace vela {
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

constexpr const char* kDate = VELA_DAY "\\.([1-9]|[1][0-2]|[0][0-9])\\." VELA_YEAR;
constexpr const char* kMarkedDate = VELA_DAY "\\.([1-9]|[1][0-2]|[0][0-9])\\." VELA_YEAR "\\(I\\)";
constexpr const char* kDayMonth = VELA_DAY "\\.([1][0-2]|[0][0-9]|[1-9])";
constexpr const char* kMarkedDayMonth = VELA_DAY "\\.([1][0-2]|[0][0-9]|[1-9])\\(I\\)";

#undef VELA_DAY
#undef VELA_YEAR

}  // namespace

// Order is meaning: the first rule that takes the whole text speaks it.
const DecodeRule decodeRules[kDecodeRuleCount] = {
    // 1, 2: negative amount (integer part required / fraction required)
    {compile("[-]{1}([[:digit:]]+)[.|,]{0,1}([[:digit:]]*)([а-яА-Яa-zA-Z]+)"_cp),
     &TextDecoder::onNegativeAmount},
    {compile("[-]{1}([[:digit:]]*)[.|,]{1}([[:digit:]]+)([а-яА-Яa-zA-Z]+)"_cp),
     &TextDecoder::onNegativeAmount},
    // 3, 4: amount with a unit word (integer part required / fraction required)
    {compile("([[:digit:]]+)[.|,]{0,1}([[:digit:]]*)([а-яА-Яa-zA-Z]+)"_cp), &TextDecoder::onAmount},
    {compile("([[:digit:]]*)[.|,]{1}([[:digit:]]+)([а-яА-Яa-zA-Z]+)"_cp), &TextDecoder::onAmount},
    // 5-8: day.month.year and day.month, optionally marked "(I)"
    {compile(kDate), &TextDecoder::onDate},
    {compile(kMarkedDate), &TextDecoder::onMarkedDate},
    {compile(kDayMonth), &TextDecoder::onDate},
    {compile(kMarkedDayMonth), &TextDecoder::onMarkedDate},
    // 9: dash-separated numbers
    {compile("[[:digit:]]+(-[[:digit:]]+)+"), &TextDecoder::onNumber},
    // 10, 11: quoted digit string; the second row never fires, the first takes it
    {compile("\"([[:digit:]#*]+)\""), &TextDecoder::onDigitString},
    {compile("\"([[:digit:]#*]+)\""), &TextDecoder::onDialString},
    // 12: clock time with seconds
    {compile("([[:digit:]]{1,2}):([[:digit:]]{2}):([[:digit:]]{2})"), &TextDecoder::onClockTimeWithSeconds},
    // 13, 14: quoted span of time
    {compile("\"([[:digit:]]+):([[:digit:]]{2})\""), &TextDecoder::onDuration},
    {compile("\"([[:digit:]]+):([[:digit:]]{2}):([[:digit:]]{2})\""), &TextDecoder::onDurationWithSeconds},
    // 15: clock time
    {compile("([[:digit:]]{1,2}):([[:digit:]]{2})"), &TextDecoder::onClockTime},
    // 16, 17: bare number, number with a fraction
    {compile("([[:digit:]]+)"), &TextDecoder::onNumber},
    {compile("([[:digit:]]+)([.|,][[:digit:]]+)"), &TextDecoder::onNumber},
    // 18: one printable character
    {compile("([[:print:]])"), &TextDecoder::onCharacter},
};

namespace {

// A rule applies only when its leftmost match is the whole text, so only a
// match starting at the first byte can count: the search is anchored there
// (match_continuous) instead of trying, and discarding, every later start.
const auto kSearchFlags =
    boost::match_default | boost::match_not_dot_newline | boost::match_not_dot_null | boost::match_continuous;

// Whether the rule's leftmost match in `work` is the whole of it. A text the
// engine gives up on (a very long run of digits makes some patterns backtrack
// past its bounds) is not a token of that rule.
bool takesWholeText(const DecodeRule& rule, const std::string& work, boost::smatch& found) {
  try {
    if (!boost::regex_search(work, found, rule.pattern, kSearchFlags)) return false;
  } catch (const std::runtime_error&) {
    return false;
  }
  return found.length(0) == static_cast<boost::smatch::difference_type>(work.size());
}

// A handler's output never matches its own rule again in practice; the bound
// only keeps a pathological grammar from looping forever.
constexpr int kMaxPassesPerRule = 16;

}  // namespace

void runRules(TextDecoder& decoder) {
  std::string work = decoder.text;
  if (work.find(".wav") != std::string::npos) {
    decoder.output = work;
    return;
  }
  for (const DecodeRule& rule : decodeRules) {
    for (int pass = 0; pass < kMaxPassesPerRule; ++pass) {
      // Only a token that is the whole text counts; a leftmost match covering
      // part of it abandons the rule.
      boost::smatch found;
      if (!takesWholeText(rule, work, found)) break;
      decoder.match = found;
      decoder.output.clear();
      rule.handler(decoder);
      decoder.match = boost::smatch();
      work = found.prefix().str() + decoder.output + found.suffix().str();
      decoder.output.clear();
    }
  }
  decoder.output = work;
}

}  // namespace vela
