#include "grammar/helpers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <cstring>

namespace vela {
namespace {

constexpr const auto& kLower = detail::kLowerCp1251;

// A digit's value; any other byte reads as 0.
int digitAt(std::string_view s, std::size_t i) {
  char c = s[i];
  return (c >= '0' && c <= '9') ? c - '0' : 0;
}

}  // namespace

unsigned char lowerCp1251(unsigned char c) { return kLower[c]; }

int readInt(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && (text[i] == ' ' || (text[i] >= '\t' && text[i] <= '\r'))) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
  long long value = 0;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
    value = value * 10 + (text[i] - '0');
    if (value > INT_MAX) return negative ? INT_MIN : INT_MAX;
  }
  return static_cast<int>(negative ? -value : value);
}

namespace {

// The hundreds, tens, teen and units of the digits `t`; `value` is theirs read as a number.
void fillGroup(std::string_view t, int value, DigitGroup* group) {
  *group = DigitGroup{};
  group->value = value;
  const std::size_t n = t.size();
  if (n == 0) return;
  if (n == 1) {
    group->units = digitAt(t, 0);
    return;
  }
  const int lastTwo = digitAt(t, n - 2) * 10 + digitAt(t, n - 1);
  if (lastTwo >= 11 && lastTwo <= 19) {
    group->teen = lastTwo;
  } else {
    group->tens = digitAt(t, n - 2) * 10;
    group->units = digitAt(t, n - 1);
  }
  if (n >= 3) group->hundreds = digitAt(t, n - 3) * 100;
}

constexpr int kCuts[4] = {9, 6, 3, 0};

}  // namespace

void getDigitGroup(std::string_view number, DigitGroup* group, int cut) {
  *group = DigitGroup{};
  std::size_t drop = cut > 0 ? static_cast<std::size_t>(cut) : 0;
  if (number.size() <= drop) return;
  const std::string_view t = number.substr(0, number.size() - drop);
  fillGroup(t, readInt(t), group);
}

namespace {

// The parts of a group whose last digit is number[end - 1], all digits.
void fillFromDigits(std::string_view number, std::size_t end, DigitGroup* group) {
  const int units = number[end - 1] - '0';
  const int tens = end >= 2 ? number[end - 2] - '0' : 0;
  if (tens == 1 && units != 0) {
    group->teen = 10 + units;
  } else {
    group->tens = tens * 10;
    group->units = units;
  }
  group->hundreds = end >= 3 ? (number[end - 3] - '0') * 100 : 0;
}

}  // namespace

DigitGroup digitGroupOf(int value) {
  std::array<char, 16> text{};
  const auto written = std::to_chars(text.data(), text.data() + text.size(), value);
  DigitGroup group;
  getDigitGroup(std::string_view(text.data(), static_cast<std::size_t>(written.ptr - text.data())), &group,
                0);
  return group;
}

// Reads the digits once, keeping the value of every prefix a cut leaves; the
// value saturates at INT_MAX and is not read further, as readInt's is. Only
// the bytes read for the value and the last twelve (the groups' own digits)
// matter: a byte that is not a digit among them sends the text the general way.
std::array<DigitGroup, 4> getDigitGroups(std::string_view number) {
  std::array<DigitGroup, 4> groups{};
  const std::size_t n = number.size();
  const auto general = [&] {
    for (int k = 0; k < 4; ++k) getDigitGroup(number, &groups[k], kCuts[k]);
    return groups;
  };
  for (std::size_t i = n > 12 ? n - 12 : 0; i < n; ++i) {
    if (number[i] < '0' || number[i] > '9') return general();
  }
  long long value = 0;
  std::size_t read = 0;
  for (int i = 0; i < 4; ++i) {
    const auto cut = static_cast<std::size_t>(kCuts[i]);
    if (n <= cut) continue;
    for (; read < n - cut && value <= INT_MAX; ++read) {
      const auto digit = static_cast<unsigned>(number[read] - '0');
      if (digit > 9) return general();
      value = value * 10 + digit;
    }
    groups[i].value = value > INT_MAX ? INT_MAX : static_cast<int>(value);
    fillFromDigits(number, n - cut, &groups[i]);
  }
  return groups;
}

bool hasDigitAbove(std::string_view digits, std::size_t kept) {
  if (digits.size() <= kept) return false;
  const std::string_view above = digits.substr(0, digits.size() - kept);
  return std::any_of(above.begin(), above.end(), [](char c) { return c >= '1' && c <= '9'; });
}

bool speakNoneAmount(std::span<const NoneAmount> table, const std::string& intDigits, const std::string& unit,
                     std::string& out) {
  if (intDigits != "0") return false;
  for (const NoneAmount& row : table) {
    if (unit == row.unit) {
      out = row.phrase;
      return true;
    }
  }
  return false;
}

}  // namespace vela
