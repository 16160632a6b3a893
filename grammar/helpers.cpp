#include "grammar/helpers.h"

#include <array>
#include <climits>
#include <cstring>

namespace vela {
namespace {

// Capital -> small pairs of Windows-1251 beyond A-Z and А-Я.
constexpr std::pair<unsigned char, unsigned char> kOtherLetterPairs[] = {
    {0x80, 0x90}, {0x81, 0x83}, {0x8A, 0x9A}, {0x8C, 0x9C}, {0x8D, 0x9D},
    {0x8E, 0x9E}, {0x8F, 0x9F}, {0xA1, 0xA2}, {0xA3, 0xBC}, {0xA5, 0xB4},
    {0xA8, 0xB8}, {0xAA, 0xBA}, {0xAF, 0xBF}, {0xB2, 0xB3}, {0xBD, 0xBE},
};

constexpr std::array<unsigned char, 256> makeLowerTable() {
  std::array<unsigned char, 256> t{};
  for (int c = 0; c < 256; ++c) t[c] = static_cast<unsigned char>(c);
  for (int c = 'A'; c <= 'Z'; ++c) t[c] = static_cast<unsigned char>(c + 32);
  for (int c = 0xC0; c <= 0xDF; ++c) t[c] = static_cast<unsigned char>(c + 32);
  for (auto [upper, lower] : kOtherLetterPairs) t[upper] = lower;
  return t;
}

constexpr auto kLower = makeLowerTable();

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

void getDigitGroup(const std::string& number, DigitGroup* group, int cut) {
  *group = DigitGroup{};
  std::size_t drop = cut > 0 ? static_cast<std::size_t>(cut) : 0;
  if (number.size() <= drop) return;
  const std::string_view t = std::string_view(number).substr(0, number.size() - drop);
  group->value = readInt(t);
  const std::size_t n = t.size();
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

bool matchesWord(const std::string& token, const char* word) {
  if (word == nullptr || token.size() >= 256) return false;
  // One walk over both: the first differing byte, or the end of the table
  // word, decides without measuring the word first.
  for (const char c : token) {
    const auto w = static_cast<unsigned char>(*word++);
    if (w == 0 || kLower[static_cast<unsigned char>(c)] != w) return false;
  }
  return *word == '\0';
}

}  // namespace vela
