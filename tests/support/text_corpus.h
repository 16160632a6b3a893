// Random request texts: tokens of every rule's shape (amounts, dates, clock
// times, spans, keypad strings, numbers, single bytes) and near-misses of
// them, random bytes and long digit runs. Reproducible from the seed.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace vela::testing {

// Bytes that shape tokens, and bytes at the edges of the classes.
extern const std::string kTokenAlphabet;

class TextCorpus {
 public:
  // `unitWords`: words an amount may end in, besides random letters;
  // `noisePercent`: the share of texts that are broken tokens, random bytes or
  // long digit runs rather than well-formed tokens.
  TextCorpus(std::uint64_t seed, std::vector<std::string> unitWords, int noisePercent);

  std::string next();

 private:
  std::size_t below(std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng_); }
  bool chance(int percent) { return below(100) < static_cast<std::size_t>(percent); }
  char any(const std::string& bytes) { return bytes[below(bytes.size())]; }
  std::string digits(std::size_t lo, std::size_t hi);
  std::string letters();
  std::string dayOrMonth();
  std::string shape();
  std::string mutate(std::string s);
  std::string bytes(std::size_t length, const std::string& from);
  std::string longDigits();

  std::mt19937_64 rng_;
  std::vector<std::string> unitWords_;
  int noisePercent_;
};

}  // namespace vela::testing
