#include "languages/romanian/roman_number.h"

#include "grammar/helpers.h"
#include "languages/romanian/roman_words.h"

namespace vela::romanian {
namespace {

int digitAt(char c) { return c >= '0' && c <= '9' ? c - '0' : 0; }

const char* unitsWord(int value, int gender) { return kUnitsAndTeens[value][gender == 0 ? 0 : 1]; }

}  // namespace

void appendGroup(std::string_view digits, int gender, std::string& out) {
  const std::size_t n = digits.size();
  if (n >= 4 || n == 0) return;
  if (digits == "0") {
    out += kZeroGroup;
    return;
  }
  if (n == 3 && digitAt(digits[0]) != 0) out += kHundreds[digitAt(digits[0])];
  if (n >= 2) {
    const int lastTwo = digitAt(digits[n - 2]) * 10 + digitAt(digits[n - 1]);
    if (lastTwo == 0) return;
    out += ' ';
    if (lastTwo < 20) {
      out += unitsWord(lastTwo, gender);
      return;
    }
    out += kTens[lastTwo / 10];
    // The second character of the text, which is the tens digit of a three-digit group.
    if (digits[1] != '0') out += kConjunction;
  }
  const int units = digitAt(digits[n - 1]);
  if (units == 0) return;
  out += ' ';
  out += unitsWord(units, gender);
}

void appendNumber(std::string_view digits, int gender, int ordinal, std::string& out) {
  if (readInt(digits) == 1) {
    if (ordinal == 1) return void(out += kFirst);
    if (gender == 0) return void(out += kOneFeminine);
    if (gender == 1) return void(out += kOneMasculine);
  }
  const std::size_t n = digits.size();
  if (n <= 3) return appendGroup(digits, gender, out);
  // Longer texts have no millions and no thousands: only the last three digits are read.
  std::string_view millions;
  std::string_view thousands;
  if (n <= 9) {
    millions = n > 6 ? digits.substr(0, n - 6) : std::string_view();
    thousands = n > 6 ? digits.substr(n - 6, 3) : digits.substr(0, n - 3);
  }
  if (const int m = readInt(millions); m == 1) {
    out += kOneMillion;
  } else if (m != 0) {
    out += ' ';
    appendGroup(millions, 0, out);
    out += kMillions;
  }
  // "o mie" has no space of its own: after "un milion" the two run together.
  if (const int t = readInt(thousands); t == 1) {
    out += kOneThousand;
  } else if (t != 0) {
    out += ' ';
    appendGroup(thousands, 0, out);
    out += kThousands;
  }
  out += ' ';
  appendGroup(digits.substr(n - 3), gender, out);
}

std::string sayGroup(std::string_view digits, int gender) {
  std::string out;
  appendGroup(digits, gender, out);
  return out;
}

std::string sayNumber(std::string_view digits, int gender, int ordinal) {
  std::string out;
  appendNumber(digits, gender, ordinal, out);
  return out;
}

}  // namespace vela::romanian
