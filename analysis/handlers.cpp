// Token handlers: take the groups of a rule's match apart and call the grammar.
#include <algorithm>

#include "analysis/rules.h"
#include "grammar/complaints.h"
#include "grammar/helpers.h"
#include "pipeline/text_decoder.h"

namespace vela {

void splitDigitGroups(const std::string& digits, DigitList& list) {
  if (digits.size() > 9) return;
  if (!std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; })) return;
  for (auto it = digits.rbegin(); it != digits.rend(); ++it) list.emplace_back(1, *it);
}

const std::string& TextDecoder::group(int k) {
  static const std::string kNoGroup;
  if (k < 0 || k >= TokenMatch::kGroups) return kNoGroup;
  return groups_[k].assign(match.group[k]);
}

// Each group is copied out of the match once; the handlers keep references.
bool TextDecoder::onNegativeAmount() {
  const std::string& digits = group(1);
  const std::string& fraction = group(2);
  intList_.clear();
  fracList_.clear();
  splitDigitGroups(digits, intList_);
  splitDigitGroups(fraction, fracList_);
  // An unknown unit (-1) or a fraction the unit does not take (-2) leaves
  // part of the text unsaid, and the sign then stands without its amount.
  if (grammar->speakAmount(intList_, fracList_, digits, fraction, group(3), output) < 0) leaveUnsaid();
  minus_.clear();
  grammar->appendMinus(minus_);
  output.insert(0, minus_);
  return true;
}

bool TextDecoder::onAmount() {
  const std::string& digits = group(1);
  const std::string& fraction = group(2);
  const std::string& unit = group(3);
  intList_.clear();
  fracList_.clear();
  splitDigitGroups(digits, intList_);
  splitDigitGroups(fraction, fracList_);
  if (grammar->speakSpecialAmount(digits, unit, output)) {
    if (hasDigitAbove(fraction, 0)) leaveUnsaid();  // the phrase of a zero count ignores its fraction
    return true;
  }
  if (grammar->speakAmount(intList_, fracList_, digits, fraction, unit, output) < 0) leaveUnsaid();
  return true;
}

void TextDecoder::speakDateFromMatch(const std::string& century) {
  grammar->speakDate(group(1), group(2), group(3), century, group(5), output);
}

bool TextDecoder::onDate() {
  speakDateFromMatch(group(4));
  return true;
}

bool TextDecoder::onMarkedDate() {
  static const std::string kMarked = "I";  // stands for the century of a date marked "(I)"
  speakDateFromMatch(kMarked);
  return true;
}

// The whole token without its "x" characters (the matched texts hold none),
// as a one-element list.
void TextDecoder::speakWholeToken(void (IGrammar::*speak)(const DigitList&, std::string&)) {
  tokenList_.resize(1);
  std::string& token = tokenList_[0];
  token.assign(match.group[0]);
  std::erase(token, 'x');
  (grammar->*speak)(tokenList_, output);
}

bool TextDecoder::onNumber() {
  speakWholeToken(&IGrammar::speakNumber);
  return true;
}

bool TextDecoder::onDigitString() {
  speakWholeToken(&IGrammar::speakDigitString);
  return true;
}
bool TextDecoder::onDialString() {
  grammar->speakDialString(group(1), output);
  return true;
}

bool TextDecoder::onCharacter() {
  grammar->speakCharacter(group(1), output);
  return true;
}

bool TextDecoder::onClockTime() {
  grammar->speakClockTime(group(1), group(2), output);
  return true;
}

bool TextDecoder::onClockTimeWithSeconds() {
  grammar->speakClockTimeWithSeconds(group(1), group(2), group(3), output);
  return true;
}

bool TextDecoder::onDuration() {
  grammar->speakDuration(group(1), group(2), output);
  return true;
}

bool TextDecoder::onDurationWithSeconds() {
  grammar->speakDurationWithSeconds(group(1), group(2), group(3), output);
  return true;
}

}  // namespace vela
