// The one-pass classifier against the rules' regular expressions: the same
// rules take the same texts, with the same groups, and a request gets the same
// final answer, on every short text, on generated token shapes with
// near-misses and on random bytes.
//
// VELA_DIFFERENTIAL_TEXTS sets how many generated texts to try (default 100000);
// VELA_DIFFERENTIAL_SEED the generator's seed.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "analysis/classifier.h"
#include "analysis/rules.h"
#include "grammar/cp1251.h"
#include "grammar/factory.h"
#include "grammar/grammar_base.h"
#include "pipeline/text_decoder.h"
#include "support/recording_grammar.h"
#include "support/regex_rules.h"
#include "support/text_corpus.h"
#include "tools/inventory.h"

namespace vela {
namespace {

// The text quoted, its bytes outside printable ASCII escaped.
std::string escaped(const std::string& text) { return ::testing::PrintToString(text); }

// Every grammar class, so the final answers are compared in each language.
std::vector<IGrammar*> allGrammars() {
  std::string error;
  std::vector<IGrammar*> grammars;
  for (const char* tag : {"en", "ru", "ro", "uk", "uz", "tg", "kk", "ka", "hy", "ar"}) {
    grammars.push_back(&grammarFor(tag, 0, error));
  }
  grammars.push_back(&grammarFor("ru", 1, error));
  return grammars;
}

struct Tally {
  std::size_t texts = 0, answers = 0, gaveUp = 0;
  std::vector<std::string> failures;
  void fail(const std::string& what) {
    if (failures.size() < 20) failures.push_back(what);
  }
};

// Rule by rule: whole-text verdict and groups. A rule the engine gave up on is
// not compared (the classifier still answers).
void compareRules(const std::string& text, Tally& tally) {
  const std::uint32_t rules = rulesTakingWholeText(text);
  for (int rule = 0; rule < testing::kRegexRuleCount; ++rule) {
    const testing::RegexVerdict expected = testing::regexRule(rule, text);
    if (expected.gaveUp) {
      ++tally.gaveUp;
      continue;
    }
    const bool taken = ((rules >> rule) & 1u) != 0;
    if (taken != expected.wholeText) {
      tally.fail("rule " + std::to_string(rule + 1) + (taken ? " taken" : " not taken") + ": " +
                 escaped(text));
      continue;
    }
    if (!taken) continue;
    TokenMatch match;
    if (classifyToken(text, rule, match) != rule) tally.fail("classifyToken skips a rule: " + escaped(text));
    for (int k = 0; k < TokenMatch::kGroups; ++k) {
      if (match.group[k] != expected.groups[k]) {
        tally.fail("rule " + std::to_string(rule + 1) + " group " + std::to_string(k) + " " +
                   escaped(std::string(match.group[k])) + " instead of " + escaped(expected.groups[k]) +
                   ": " + escaped(text));
      }
    }
  }
}

void compareAnswer(IGrammar& grammar, const std::string& text, Tally& tally) {
  bool gaveUp = false;
  const std::string expected = testing::runRulesByRegex(grammar, text, &gaveUp);
  TextDecoder decoder(grammar, text);
  runRules(decoder);
  ++tally.answers;
  if (!gaveUp && decoder.output != expected) {
    tally.fail("answer " + escaped(decoder.output) + " instead of " + escaped(expected) + ": " +
               escaped(text));
  }
}

void check(const std::string& text, IGrammar& grammar, Tally& tally) {
  ++tally.texts;
  compareRules(text, tally);
  compareAnswer(grammar, text, tally);
  testing::RecordingGrammar recording;
  compareAnswer(recording, text, tally);
}

std::size_t fromEnvironment(const char* name, std::size_t fallback) {
  const char* value = std::getenv(name);
  return value != nullptr ? std::strtoull(value, nullptr, 10) : fallback;
}

void report(const Tally& tally) {
  for (const std::string& failure : tally.failures) ADD_FAILURE() << failure;
}

// Every single byte, and every pair of bytes from the token alphabet.
TEST(ClassifierDifferentialTest, ShortTexts) {
  Tally tally;
  const std::vector<IGrammar*> grammars = allGrammars();
  {
    const tools::QuietGrammars quiet;  // the grammars complain about bad input
    for (int c = 0; c < 256; ++c)
      check(std::string(1, static_cast<char>(c)), *grammars[c % grammars.size()], tally);
    for (char a : testing::kTokenAlphabet) {
      for (char b : testing::kTokenAlphabet)
        check(std::string{a, b}, *grammars[tally.texts % grammars.size()], tally);
    }
  }
  report(tally);
}

TEST(ClassifierDifferentialTest, GeneratedCorpus) {
  const std::size_t count = fromEnvironment("VELA_DIFFERENTIAL_TEXTS", 100000);
  const std::uint64_t seed = fromEnvironment("VELA_DIFFERENTIAL_SEED", 12);
  Tally tally;
  testing::TextCorpus corpus(seed, {}, 100);
  const std::vector<IGrammar*> grammars = allGrammars();
  const auto start = std::chrono::steady_clock::now();
  {
    const tools::QuietGrammars quiet;  // the grammars complain about bad input
    for (std::size_t i = 0; i < count; ++i) check(corpus.next(), *grammars[i % grammars.size()], tally);
  }
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  std::fprintf(stderr, "differential: %zu texts, %zu answers compared, %zu rule searches given up, %.1f s\n",
               tally.texts, tally.answers, tally.gaveUp, took.count());
  report(tally);
}

// A grammar whose readings are tokens again: a number reads as "7", which the
// number rule takes again, up to its bound of passes; then a character reads
// as "x", which the character rule takes again likewise.
class EchoGrammar final : public GrammarBase<EchoGrammar> {
 public:
  void speakNumber(const DigitList&, std::string& out) override {
    ++numbers;
    out += "7";
  }
  void speakCharacter(const std::string&, std::string& out) override {
    ++characters;
    out += "x";
  }
  int numbers = 0, characters = 0;
};

TEST(ClassifierDifferentialTest, ReadingsAreTriedByTheSameAndLaterRules) {
  for (const char* text : {"15", "0-5", "1,5", "a"}) {
    EchoGrammar byRegex, byClassifier;
    const std::string expected = testing::runRulesByRegex(byRegex, text);
    TextDecoder decoder(byClassifier, text);
    runRules(decoder);
    EXPECT_EQ(decoder.output, expected) << text;
    EXPECT_EQ(byClassifier.numbers, byRegex.numbers) << text;
    EXPECT_EQ(byClassifier.characters, byRegex.characters) << text;
    EXPECT_EQ(byClassifier.characters, 16) << text;
  }
}

}  // namespace
}  // namespace vela
