#include "support/text_corpus.h"

#include <algorithm>
#include <utility>

namespace vela::testing {

const std::string kTokenAlphabet = std::string("0123456789.,|-:\"#*()I xabzAZ") +
                                   std::string("\xC0\xDF\xE0\xFF\xB8\xA8\x7F\x80\x1F\x7E\x00\x09", 12);
namespace {

const std::string kAllBytes = [] {
  std::string all(256, '\0');
  for (int c = 0; c < 256; ++c) all[c] = static_cast<char>(c);
  return all;
}();

}  // namespace

TextCorpus::TextCorpus(std::uint64_t seed, std::vector<std::string> unitWords, int noisePercent)
    : rng_(seed), unitWords_(std::move(unitWords)), noisePercent_(noisePercent) {}

std::string TextCorpus::next() {
  if (!chance(noisePercent_)) return shape();
  // Long texts are few: regular expressions backtrack over them in quadratic time.
  if (below(32) == 0) return longDigits();
  switch (below(8)) {
    case 0:
      return bytes(below(24), kAllBytes);
    case 1:
      return bytes(below(12), kTokenAlphabet);
    default:
      return mutate(shape());
  }
}

std::string TextCorpus::digits(std::size_t lo, std::size_t hi) {
  std::string s(lo + below(hi - lo + 1), '0');
  for (char& c : s) c = static_cast<char>('0' + below(10));
  return s;
}

// A unit word (mostly, when there are any; a quarter in capitals) or random letters.
std::string TextCorpus::letters() {
  static const std::string kLetters = "abzAZ" + std::string("\xC0\xC5\xDF\xE0\xF0\xF3\xE1\xFF");
  if (unitWords_.empty() || chance(25)) return bytes(1 + below(4), kLetters);
  std::string s = unitWords_[below(unitWords_.size())];
  if (chance(25)) {
    for (char& c : s) {
      const auto b = static_cast<unsigned char>(c);
      if ((b >= 'a' && b <= 'z') || b >= 0xE0) c = static_cast<char>(b - 0x20);
    }
  }
  return s;
}

// A day or month: mostly one or two digits near the valid range.
std::string TextCorpus::dayOrMonth() { return chance(80) ? std::to_string(below(40)) : digits(1, 3); }

std::string TextCorpus::shape() {
  const auto separator = [&] { return std::string(1, any(".,|")); };
  const auto year = [&] {
    return (chance(80) ? std::string(chance(50) ? "19" : "20") : digits(2, 2)) + digits(2, 2);
  };
  const auto marked = [&] { return chance(40) ? "(I)" : ""; };
  switch (below(10)) {
    case 0:
      return "-" + digits(0, 12) + (chance(50) ? separator() : "") + digits(0, 3) + letters();
    case 1:
      return digits(0, 12) + (chance(50) ? separator() : "") + digits(0, 3) + letters();
    case 2:
      return dayOrMonth() + "." + dayOrMonth() + "." + year() + marked();
    case 3:
      return (chance(10) ? std::string("0") : "") + dayOrMonth() + "." + dayOrMonth() + marked();
    case 4: {
      std::string s = digits(1, 6);
      for (std::size_t i = below(4); i > 0; --i) s += "-" + digits(1, 4);
      return s;
    }
    case 5:
      return "\"" + bytes(below(8), "0123456789#*") + "\"";
    case 6: {
      std::string t = digits(1, 3) + ":" + digits(1, 3) + (chance(50) ? ":" + digits(1, 3) : "");
      return chance(50) ? "\"" + t + "\"" : t;
    }
    case 7:
      return digits(1, 20) + (chance(50) ? separator() + digits(1, 4) : "");
    case 8:
      return bytes(1, kAllBytes);
    default:
      return digits(1, 2) + "." + digits(1, 2);
  }
}

// Near-misses: up to three bytes added, removed, swapped or replaced.
std::string TextCorpus::mutate(std::string s) {
  for (std::size_t n = below(4); n > 0; --n) {
    const std::size_t at = below(s.size() + 1);
    switch (below(4)) {
      case 0:
        s.insert(at, 1, any(kTokenAlphabet));
        break;
      case 1:
        if (at < s.size()) s.erase(at, 1);
        break;
      case 2:
        if (at + 1 < s.size()) std::swap(s[at], s[at + 1]);
        break;
      default:
        if (at < s.size()) s[at] = any(kTokenAlphabet);
        break;
    }
  }
  return s;
}

std::string TextCorpus::bytes(std::size_t length, const std::string& from) {
  std::string s(length, '\0');
  for (char& c : s) c = any(from);
  return s;
}

// Up to 512 bytes: a digit run of 2 to 500 bytes (as many of each order of
// magnitude), sometimes with a token's tail.
std::string TextCorpus::longDigits() {
  static const char* const kTails[] = {"", "rub", ".5", ",5kb", "-1", ":00", "\"", "x"};
  const std::size_t length = std::min<std::size_t>(500, std::size_t{2} << below(9));
  std::string s = (chance(20) ? "-" : "") + digits(length / 2, length);
  return s + kTails[below(std::size(kTails))];
}

}  // namespace vela::testing
