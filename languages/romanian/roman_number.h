// The Romanian number core: a group of up to three digits and a whole number
// of up to nine digits, in one of two genders.
#pragma once

#include <string>
#include <string_view>

namespace vela::romanian {

// The reading of at most three digits: "25" is " douazeci si cinci", "0" is
// "zero ", "000" and a text of four or more characters say nothing. Gender 0
// reads the feminine forms ("doua"), any other value the masculine ones
// ("doi"). " si" follows a tens word whenever the second character of the text
// is not "0", so "120" keeps a dangling " si" ("o suta douazeci si").
std::string sayGroup(std::string_view digits, int gender);

// The reading of a number with "milioane" and "mii". The number one alone is
// " intai" with ordinal 1, otherwise " unu" for gender 0 and " un" for gender
// 1; any other gender reads it from the masculine column (" unu"). A text of
// ten or more characters reads only its last three digits. A byte that is not
// a digit counts as 0; no table is read out of range.
std::string sayNumber(std::string_view digits, int gender, int ordinal);

// The same readings appended to `out`, without a string of their own.
void appendGroup(std::string_view digits, int gender, std::string& out);
void appendNumber(std::string_view digits, int gender, int ordinal, std::string& out);

}  // namespace vela::romanian
