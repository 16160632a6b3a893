// Helpers shared by the language grammars: digit groups, table-word matching
// and overflow-safe reading of numbers.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <utility>

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
void getDigitGroup(std::string_view number, DigitGroup* group, int cut);

// The group (cut 0) of `value` written in decimal, without a string.
DigitGroup digitGroupOf(int value);

// The groups of `number` at the cuts 9, 6, 3 and 0 (milliards, millions,
// thousands, units), each as getDigitGroup gives it, from one reading of a
// number of digits only.
std::array<DigitGroup, 4> getDigitGroups(std::string_view number);

namespace detail {

// Capital -> small pairs of Windows-1251 beyond A-Z and А-Я.
inline constexpr std::pair<unsigned char, unsigned char> kOtherLetterPairs[] = {
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

inline constexpr std::array<unsigned char, 256> kLowerCp1251 = makeLowerTable();

}  // namespace detail

// Lower-cases `token` with the fixed Windows-1251 letter mapping (A-Z, А-Я, Ё,
// and the other capital/small pairs of the code page) and compares it with the
// lower-case table word. Independent of the process locale. Inline: the unit
// lookups of the languages call it for every row of their tables.
inline bool matchesWord(std::string_view token, const char* word) {
  if (word == nullptr || token.size() >= 256) return false;
  // One walk over both: the first differing byte, or the end of the table
  // word, decides without measuring the word first.
  for (const char c : token) {
    const auto w = static_cast<unsigned char>(*word++);
    if (w == 0 || detail::kLowerCp1251[static_cast<unsigned char>(c)] != w) return false;
  }
  return *word == '\0';
}

// The last `Kept` answers of one look-up, kept per thread. An amount asks
// about its unit word several times (is it a unit, a currency, which row) and
// then about its minor unit's word, a clock time about three units; each
// question scans a unit table, and with this each word is scanned for once.
// The answer must depend only on `table` and the word. Words longer than
// kMaxWord bytes are looked up every time.
template <class Result, std::size_t Kept = 2>
class LastLookup {
 public:
  static constexpr std::size_t kMaxWord = 23;

  template <class Lookup>
  Result get(const void* table, std::string_view word, Lookup lookup) {
    if (word.size() > kMaxWord) return lookup();
    for (const Entry& entry : entries_) {
      if (entry.filled && entry.table == table && entry.holds(word)) return entry.result;
    }
    Entry& entry = entries_[oldest_];  // the entries are replaced in turn
    oldest_ = (oldest_ + 1) % Kept;
    entry.result = lookup();
    entry.filled = true;
    entry.table = table;
    entry.size = word.size();
    word.copy(entry.bytes.data(), entry.size);
    return entry.result;
  }

 private:
  struct Entry {
    bool filled = false;
    const void* table = nullptr;
    std::size_t size = 0;
    std::array<char, kMaxWord> bytes{};
    Result result{};
    // Compared in place: the words are short, a library call would cost more.
    bool holds(std::string_view word) const {
      if (word.size() != size) return false;
      for (std::size_t i = 0; i < size; ++i)
        if (bytes[i] != word[i]) return false;
      return true;
    }
  };
  std::array<Entry, Kept> entries_{};
  std::size_t oldest_ = 0;
};

// Lower-case of one Windows-1251 byte under that mapping.
unsigned char lowerCp1251(unsigned char c);

// atoi without undefined behaviour: leading spaces, an optional sign, then
// digits up to the first non-digit; saturates at INT_MAX / INT_MIN.
int readInt(std::string_view text);

// A zero count of a unit that one phrase says ("no messages"); the unit is
// compared as written.
struct NoneAmount {
  const char* unit;
  const char* phrase;
};

// Whether `digits` holds a digit other than 0 before its last `kept` ones: what
// a reading of only the last `kept` digits leaves unsaid (0: any such digit).
bool hasDigitAbove(std::string_view digits, std::size_t kept);

// The phrase of `unit` in place of `out` when the amount is "0"; false otherwise.
bool speakNoneAmount(std::span<const NoneAmount> table, const std::string& intDigits, const std::string& unit,
                     std::string& out);

}  // namespace vela
