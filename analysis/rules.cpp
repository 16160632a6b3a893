#include "analysis/rules.h"

#include "pipeline/text_decoder.h"

namespace vela {

// Order is meaning: the first rule that takes the whole text speaks it.
constexpr DecodeRule decodeRules[kDecodeRuleCount] = {
    {kNegativeAmount, &TextDecoder::onNegativeAmount},
    {kNegativeFraction, &TextDecoder::onNegativeAmount},
    {kAmount, &TextDecoder::onAmount},
    {kFractionAmount, &TextDecoder::onAmount},
    {kDate, &TextDecoder::onDate},
    {kMarkedDate, &TextDecoder::onMarkedDate},
    {kDayMonth, &TextDecoder::onDate},
    {kMarkedDayMonth, &TextDecoder::onMarkedDate},
    {kDashedNumber, &TextDecoder::onNumber},
    {kDigitString, &TextDecoder::onDigitString},
    {kDialString, &TextDecoder::onDialString},  // never fires: the row above takes its texts
    {kClockTimeWithSeconds, &TextDecoder::onClockTimeWithSeconds},
    {kDuration, &TextDecoder::onDuration},
    {kDurationWithSeconds, &TextDecoder::onDurationWithSeconds},
    {kClockTime, &TextDecoder::onClockTime},
    {kNumber, &TextDecoder::onNumber},
    {kFractionNumber, &TextDecoder::onNumber},
    {kCharacter, &TextDecoder::onCharacter},
};

static_assert([] {
  for (int i = 0; i < kDecodeRuleCount; ++i) {
    if (decodeRules[i].token != i) return false;
  }
  return true;
}());

namespace {

// A handler's output never takes its own rule again in practice; the bound
// only keeps a pathological grammar from looping forever.
constexpr int kMaxPassesPerRule = 16;

}  // namespace

void runRules(TextDecoder& decoder) {
  std::string& work = decoder.work;
  work.assign(decoder.text);
  if (work.find(".wav") != std::string::npos) {
    decoder.output.swap(work);
    return;
  }
  // Rules that do not take the current text are skipped in one step; a rule
  // that does is tried again on its own output, then the later rules are.
  for (int rule = classifyToken(work, 0, decoder.match); rule >= 0;
       rule = classifyToken(work, rule + 1, decoder.match)) {
    for (int pass = 0; pass < kMaxPassesPerRule; ++pass) {
      if (pass > 0 && classifyToken(work, rule, decoder.match) != rule) break;
      decoder.output.clear();
      (decoder.*decodeRules[rule].handler)();
      decoder.match = TokenMatch{};  // its views point into the text being replaced
      work.swap(decoder.output);
    }
  }
  decoder.output.swap(work);
}

}  // namespace vela
