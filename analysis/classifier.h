// The token classifier: decides in one left-to-right pass over a text which
// rules of the table take the whole of it, and where their groups are.
#pragma once

#include <cstdint>
#include <string_view>

namespace vela {

// The rules, in the order they are tried. The first rule that takes the whole
// text speaks it.
enum TokenRule : int {
  kNegativeAmount,        // -12,5rub   -(digits+)[.|,]?(digits*)(letters+)
  kNegativeFraction,      // -,5rub     -(digits*)[.|,](digits+)(letters+)
  kAmount,                // 12.50руб   (digits+)[.|,]?(digits*)(letters+)
  kFractionAmount,        // ,25kb      (digits*)[.|,](digits+)(letters+)
  kDate,                  // 1.05.2015  (day).(month).((19|20)(yy))
  kMarkedDate,            // 1.05.2015(I)
  kDayMonth,              // 1.05       (day).(month)
  kMarkedDayMonth,        // 1.05(I)
  kDashedNumber,          // 0-05-120   digits+(-digits+)+
  kDigitString,           // "12#*"     "([digits#*]+)"
  kDialString,            // the same texts; never reached, the rule above takes them
  kClockTimeWithSeconds,  // 7:05:09    (d{1,2}):(dd):(dd)
  kDuration,              // "125:30"   "(digits+):(dd)"
  kDurationWithSeconds,   // "1:02:03"  "(digits+):(dd):(dd)"
  kClockTime,             // 12:30      (d{1,2}):(dd)
  kNumber,                // 15         (digits+)
  kFractionNumber,        // 1,5        (digits+)([.|,]digits+)
  kCharacter,             // x          one byte 0x20-0x7E
  kTokenRuleCount
};

// Where the groups of a rule's match lie in the classified text. Group 0 is
// the whole text; a group the rule does not have, or that took no part in the
// match, is empty. The views point into the classified text.
struct TokenMatch {
  static constexpr int kGroups = 6;
  int rule = -1;
  std::string_view group[kGroups];
};

// The set of rules that take the whole of `text`, one bit per TokenRule.
std::uint32_t rulesTakingWholeText(std::string_view text);

// The first rule at or after `firstRule` that takes the whole of `text`, with
// its groups in `match`; -1 (and `match` cleared) when there is none.
int classifyToken(std::string_view text, int firstRule, TokenMatch& match);

}  // namespace vela
