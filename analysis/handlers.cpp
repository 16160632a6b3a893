// Token handlers: take the groups of a rule's match apart and call the grammar.
#include <algorithm>

#include "analysis/rules.h"
#include "pipeline/text_decoder.h"

namespace vela {

void splitDigitGroups(const std::string& digits, DigitList& list) {
  if (digits.size() > 9) return;
  if (!std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; })) return;
  for (auto it = digits.rbegin(); it != digits.rend(); ++it) list.emplace_back(1, *it);
}

std::string TextDecoder::group(int k) const {
  if (k < 0 || static_cast<std::size_t>(k) >= match.size()) return {};
  return match[k].matched ? match[k].str() : std::string();
}

bool TextDecoder::onNegativeAmount() {
  DigitList intList;
  DigitList fracList;
  splitDigitGroups(group(1), intList);
  splitDigitGroups(group(2), fracList);
  grammar->speakAmount(intList, fracList, group(1), group(2), group(3), output);
  std::string minus;
  grammar->appendMinus(minus);
  output = minus + output;
  return true;
}

bool TextDecoder::onAmount() {
  DigitList intList;
  DigitList fracList;
  splitDigitGroups(group(1), intList);
  splitDigitGroups(group(2), fracList);
  if (grammar->speakSpecialAmount(group(1), group(3), output)) return true;
  grammar->speakAmount(intList, fracList, group(1), group(2), group(3), output);
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
  speakDateFromMatch("I");
  return true;
}

namespace {

// The whole token without its "x" characters (the matched texts hold none).
DigitList wholeTokenWithoutX(const boost::smatch& match) {
  std::string token = match[0].str();
  std::erase(token, 'x');
  return DigitList{token};
}

}  // namespace

bool TextDecoder::onNumber() {
  grammar->speakNumber(wholeTokenWithoutX(match), output);
  return true;
}

bool TextDecoder::onDigitString() {
  grammar->speakDigitString(wholeTokenWithoutX(match), output);
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
