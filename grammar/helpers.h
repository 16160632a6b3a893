// Helpers shared by the language grammars: digit groups, table-word matching
// and overflow-safe reading of numbers.
#pragma once

#include <string>
#include <string_view>

namespace vela {

// One three-digit group of a number, above a cut of trailing digits.
struct DigitGroup {
  int value = 0;     // the whole number above the cut (1234567 cut at 3: 1234)
  int hundreds = 0;  // hundreds digit * 100, 0 for a group of fewer than three digits
  int tens = 0;      // tens digit * 10; 0 when the last two digits are 11..19
  int teen = 0;      // the last two digits when they are 11..19, otherwise 0
  int units = 0;     // the last digit; 0 when the last two digits are 11..19
};

// Fills *group from `number` with its last `cut` digits dropped (cut = 9, 6, 3, 0
// for milliards, millions, thousands, units). 10 is not a teen: tens 10, units 0.
//
// Safe on any input: the whole string is read (no 31-byte limit), so only the
// last twelve digits of a long number land in the four groups; `value` saturates
// at INT_MAX instead of overflowing; a byte that is not a digit ("1,5") counts
// as the digit 0 in hundreds/tens/units, so no table is ever indexed by it.
void getDigitGroup(const std::string& number, DigitGroup* group, int cut);

// Lower-cases `token` with the fixed Windows-1251 letter mapping (A-Z, А-Я, Ё,
// and the other capital/small pairs of the code page) and compares it with the
// lower-case table word. Independent of the process locale.
bool matchesWord(const std::string& token, const char* word);

// Lower-case of one Windows-1251 byte under that mapping.
unsigned char lowerCp1251(unsigned char c);

// atoi without undefined behaviour: leading spaces, an optional sign, then
// digits up to the first non-digit; saturates at INT_MAX / INT_MIN.
int readInt(std::string_view text);

}  // namespace vela
