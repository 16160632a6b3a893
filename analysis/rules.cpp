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

int runRules(TextDecoder& decoder) {
  std::string& work = decoder.work;
  const std::string& text = decoder.text;
  // One scan of the text finds the first rule that takes it whole. After a
  // handler, one scan of its output finds whether the same rule takes that
  // again, or else the first later rule that does; rules in between are
  // skipped in the same step. The first handler reads its groups in the text.
  int rule = text.find(".wav") != std::string::npos ? -1 : classifyToken(text, 0, decoder.match);
  if (rule < 0) {
    decoder.output.assign(text);
    return -1;
  }
  const int first = rule;
  int passes = 0;
  for (;;) {
    decoder.output.clear();
    // A local: GCC's bounds sanitizer misreads an index inside a member-pointer call.
    const auto handler = decodeRules[rule].handler;
    (decoder.*handler)();
    ++passes;
    int next = classifyToken(decoder.output, rule, decoder.match);
    if (next == rule && passes == kMaxPassesPerRule)
      next = classifyToken(decoder.output, rule + 1, decoder.match);
    if (next < 0) return first;  // the reading stays in output
    if (next != rule) passes = 0;
    // The next handler writes output, so its text moves to work; a short text
    // moves its bytes, so its groups are found again there.
    work.swap(decoder.output);
    rule = classifyToken(work, next, decoder.match);
  }
}

}  // namespace vela
