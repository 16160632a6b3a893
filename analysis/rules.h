// The token classifier: an ordered table of expressions, each with the handler
// that speaks a token of its kind, and the runner that applies them.
#pragma once

#include <boost/function.hpp>
#include <boost/regex.hpp>
#include <string>

#include "grammar/igrammar.h"

namespace vela {

class TextDecoder;

struct DecodeRule {
  boost::regex pattern;                         // matched against the whole text
  boost::function<bool(TextDecoder&)> handler;  // one of TextDecoder's on... handlers
};

inline constexpr int kDecodeRuleCount = 18;

// Built once when the library is loaded; only read afterwards.
extern const DecodeRule decodeRules[kDecodeRuleCount];

// Speaks decoder.text: a text containing ".wav" passes through; otherwise the
// first rule whose leftmost match is the whole text replaces it with its
// handler's prompt names. A text no rule covers is left as it is. The result is
// left in decoder.output.
void runRules(TextDecoder& decoder);

// Appends the digits of `digits` to `list`, least significant first, one per
// string; appends nothing for an empty string, one of more than nine bytes, or
// one holding a non-digit.
void splitDigitGroups(const std::string& digits, DigitList& list);

}  // namespace vela
