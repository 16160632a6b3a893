// The prompt inventory is complete: whatever a request answers with, in any
// language and either Russian mode, is in the inventory of its grammar.
#include "tools/inventory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "grammar/cp1251.h"
#include "pipeline/text_decoder.h"
#include "support/source_words.h"
#include "support/text_corpus.h"
#include "tools/encoding.h"

namespace {

using vela::operator""_cp;

constexpr int kTexts = 5000;

// What is wrong with the answers to a random corpus in (tag, mode): names
// missing from the inventory, texts not given back, names that are no names.
std::vector<std::string> completenessProblems(const char* tag, unsigned char mode, const std::string& absent,
                                              unsigned seed) {
  const std::set<std::string> inventory = vela::tools::promptInventory(tag, mode);
  std::vector<std::string> problems;
  const vela::tools::QuietGrammars quiet;  // also hides gtest's output: report afterwards
  vela::testing::TextCorpus corpus(seed, vela::testing::sourceWords(), 20);
  int spoken = 0;
  for (int i = 0; i < kTexts; ++i) {
    const std::string text = corpus.next();
    const auto names = vela::tools::speakNames(tag, mode, text);
    if (!names) {
      // No rule took it: the library must then give the text itself back.
      char* answer = nullptr;
      if (vela::decodeText(tag, text.c_str(), &answer, mode) != 0) return {"out of memory"};
      std::string trimmed = text;
      vela::trimInput(trimmed);
      if (answer != text && answer != trimmed) problems.push_back("\"" + text + "\" answered " + answer);
      std::free(answer);
      continue;
    }
    ++spoken;
    for (const std::string& name : *names) {
      if (inventory.count(name) == 0) {
        problems.push_back("\"" + vela::tools::utf8FromCp1251(text) + "\" says \"" +
                           vela::tools::utf8FromCp1251(name) + "\", not in the inventory");
      }
    }
  }
  if (inventory.count(absent) != 0) problems.push_back("holds " + vela::tools::utf8FromCp1251(absent));
  if (spoken < kTexts / 2) problems.push_back("the corpus should be mostly tokens");
  for (const std::string& name : inventory) {
    if (name.empty() || name.find_first_of(" \"") != std::string::npos ||
        name.find(".wav") != std::string::npos)
      problems.push_back("\"" + vela::tools::utf8FromCp1251(name) + "\" is not a prompt name");
  }
  return problems;
}

// One grammar class per row (the factory test owns the other tags), and a
// name its inventory must not hold: the other Russian mode's, and the keypad
// reading of a dial string, which no request reaches.
TEST(PromptInventoryTest, HoldsEveryNameOfEveryAnswerInEveryLanguage) {
  const struct {
    const char* tag;
    unsigned char mode;
    std::string absent;
  } grammars[] = {
      {"ru", 0, "rublei"}, {"ru", 1, "рублей"_cp}, {"uk", 0, ""}, {"en", 0, "sharp"},
      {"ro", 0, ""},       {"ar", 0, ""},          {"kk", 0, ""}, {"uz", 0, ""},
      {"tg", 0, ""},       {"ka", 0, ""},          {"hy", 0, ""},
  };
  unsigned seed = 13;
  for (const auto& g : grammars) {
    const std::vector<std::string> problems = completenessProblems(g.tag, g.mode, g.absent, ++seed);
    for (std::size_t i = 0; i < problems.size() && i < 10; ++i)
      ADD_FAILURE() << g.tag << " mode " << int(g.mode) << ": " << problems[i];
  }
}

}  // namespace
