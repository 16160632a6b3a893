#include "languages/romanian/roman_number.h"

#include "grammar/helpers.h"
#include "languages/romanian/roman_words.h"

namespace vela::romanian {
namespace {

int digitAt(char c) { return c >= '0' && c <= '9' ? c - '0' : 0; }

const char* unitsWord(int value, int gender) { return kUnitsAndTeens[value][gender == 0 ? 0 : 1]; }

}  // namespace

std::string sayGroup(std::string_view digits, int gender) {
  const std::size_t n = digits.size();
  if (n >= 4 || n == 0) return {};
  if (digits == "0") return kZeroGroup;
  std::string out;
  if (n == 3) out += digitAt(digits[0]) != 0 ? kHundreds[digitAt(digits[0])] : "";
  if (n >= 2) {
    const int lastTwo = digitAt(digits[n - 2]) * 10 + digitAt(digits[n - 1]);
    if (lastTwo == 0) return out;
    out += ' ';
    if (lastTwo < 20) return out + unitsWord(lastTwo, gender);
    out += kTens[lastTwo / 10];
    // The second character of the text, which is the tens digit of a three-digit group.
    if (digits[1] != '0') out += kConjunction;
  }
  const int units = digitAt(digits[n - 1]);
  if (units == 0) return out;
  out += ' ';
  return out + unitsWord(units, gender);
}

std::string sayNumber(std::string_view digits, int gender, int ordinal) {
  if (readInt(digits) == 1) {
    if (ordinal == 1) return kFirst;
    if (gender == 0) return kOneFeminine;
    if (gender == 1) return kOneMasculine;
  }
  const std::size_t n = digits.size();
  if (n <= 3) return sayGroup(digits, gender);
  // Longer texts have no millions and no thousands: only the last three digits are read.
  std::string_view millions;
  std::string_view thousands;
  if (n <= 9) {
    millions = n > 6 ? digits.substr(0, n - 6) : std::string_view();
    thousands = n > 6 ? digits.substr(n - 6, 3) : digits.substr(0, n - 3);
  }
  std::string out;
  if (const int m = readInt(millions); m == 1) {
    out = kOneMillion;
  } else if (m != 0) {
    out += ' ' + sayGroup(millions, 0) + kMillions;
  }
  // "o mie" has no space of its own: after "un milion" the two run together.
  if (const int t = readInt(thousands); t == 1) {
    out += kOneThousand;
  } else if (t != 0) {
    out += ' ' + sayGroup(thousands, 0) + kThousands;
  }
  return out + ' ' + sayGroup(digits.substr(n - 3), gender);
}

}  // namespace vela::romanian
