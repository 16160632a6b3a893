// The rules as regular expressions: the executable definition that the
// one-pass classifier must agree with, byte for byte.
#pragma once

#include <string>

#include "grammar/igrammar.h"

namespace vela::testing {

inline constexpr int kRegexRuleCount = 18;

// What the expression of one rule makes of a text.
struct RegexVerdict {
  bool wholeText = false;  // the leftmost match is the whole text
  bool gaveUp = false;     // the engine stopped (too much backtracking): counted as no match
  std::string groups[6];   // groups 0-5 of that match; "" for a group that took no part
};

// Rule `rule` (0-17, table order) against `text`: leftmost search, whole-text test.
RegexVerdict regexRule(int rule, const std::string& text);

// The rule runner as it stood on the regular expressions: the same loop,
// with each rule's groups taken from its expression's match. Returns the final
// text; sets *gaveUp when the engine gave up on any rule along the way.
std::string runRulesByRegex(IGrammar& grammar, const std::string& text, bool* gaveUp = nullptr);

}  // namespace vela::testing
