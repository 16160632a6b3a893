// The rule table: each token kind of the classifier with the handler that
// speaks it, and the runner that applies them to a request's text.
#pragma once

#include <string>

#include "analysis/classifier.h"
#include "grammar/igrammar.h"

namespace vela {

class TextDecoder;

struct DecodeRule {
  TokenRule token;                 // which whole-text shape the classifier must find
  bool (TextDecoder::*handler)();  // one of TextDecoder's on... handlers
};

inline constexpr int kDecodeRuleCount = kTokenRuleCount;

// Constant data: nothing is built when the library is loaded.
extern const DecodeRule decodeRules[kDecodeRuleCount];

// Speaks decoder.text: a text containing ".wav" passes through; otherwise the
// first rule that takes the whole text replaces it with its handler's prompt
// names, and the later rules are tried on that result. A text no rule covers
// is left as it is. The result is left in decoder.output. Returns the first
// rule that took the text, or -1 when none did (".wav" included).
int runRules(TextDecoder& decoder);

// Appends the digits of `digits` to `list`, least significant first, one per
// string; appends nothing for an empty string, one of more than nine bytes, or
// one holding a non-digit.
void splitDigitGroups(const std::string& digits, DigitList& list);

}  // namespace vela
