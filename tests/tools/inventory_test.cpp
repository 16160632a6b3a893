// The prompt inventory and the unit words it starts from. The unit words of a
// grammar are its class's own list: each listed word is one the grammar reads,
// and no other word gives a reading the listed ones do not. The inventory
// takes them with the spellings that read apart, and holds every name of
// every answer in every language and either Russian mode.
#include "tools/inventory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "grammar/cp1251.h"
#include "grammar/factory.h"
#include "grammar/grammar_base.h"
#include "grammar/helpers.h"
#include "grammar/unit_keys.h"
#include "support/source_words.h"
#include "support/text_corpus.h"
#include "tools/encoding.h"

namespace {

using vela::operator""_cp;
using Grammar = boost::shared_ptr<vela::IGrammar>;
using vela::DigitList;
using vela::tools::utf8FromCp1251;

// One grammar class per row (the factory test owns the other tags), and a
// name its inventory must not hold: the other Russian mode's, and the keypad
// reading of a dial string, which no request reaches.
const struct {
  const char* tag;
  unsigned char mode;
  std::string absent;
} kGrammars[] = {
    {"ru", 0, "rublei"}, {"ru", 1, "рублей"_cp}, {"uk", 0, ""}, {"en", 0, "sharp"},
    {"ro", 0, ""},       {"ar", 0, ""},          {"kk", 0, ""}, {"uz", 0, ""},
    {"tg", 0, ""},       {"ka", 0, ""},          {"hy", 0, ""},
};

// Two units, a third key read like the second, and one spelling of the second
// (only that exact one) read differently.
class TinyGrammar final : public vela::GrammarBase<TinyGrammar> {
 public:
  virtual bool isUnit(const std::string& u) { return word(u) != nullptr; }
  virtual bool isCurrency(const std::string& u) { return vela::matchesWord(u, "zxqa"); }
  virtual void speakMoney(const DigitList&, const DigitList&, const std::string& digits, const std::string&,
                          const std::string& u, std::string& out) {
    out += "n" + digits + " " + word(u);
  }
  virtual void speakCount(const DigitList&, const std::string& digits, const std::string& u,
                          std::string& out) {
    out += "n" + digits + " " + (u == "ZXQB" ? "shout" : word(u));
  }
  virtual bool allowsFraction(const std::string&) { return false; }
  virtual void speakMinorUnits(const DigitList&, const DigitList&, const std::string&, const std::string&,
                               const std::string&, std::string&) {}
  virtual void speakDecimal(const DigitList&, const DigitList&, const std::string&, const std::string&,
                            const std::string&, std::string&) {}

 private:
  static const char* word(const std::string& u) {
    if (vela::matchesWord(u, "zxqa")) return "tinydollar";
    return vela::matchesWord(u, "zxqb") || vela::matchesWord(u, "zxqc") ? "tinypiece" : nullptr;
  }
};

TEST(UnitWordsTest, ListedWordsAreKeptOncePerReadingWithTheSpellingsThatReadApart) {
  const std::vector<std::string> listed{"zxqa", "zxqb", "zxqc", "nothere"};
  const Grammar grammar(new TinyGrammar);
  std::vector<std::string> found = vela::tools::findUnitWords(grammar, listed);
  std::sort(found.begin(), found.end());
  EXPECT_EQ(found, (std::vector<std::string>{"ZXQB", "zxqa", "zxqb"}));
  const auto inventory = vela::tools::promptInventory(grammar, listed);
  for (const char* name : {"tinydollar", "tinypiece", "shout", "n21", "minus"})
    EXPECT_EQ(inventory.count(name), 1u) << name;
}

// Every listed key made of letters (the "N/A" rows no text can hold are left
// aside) is a unit that reads apart from a word no table holds; and the words
// of the language sources and every one-letter word, in any capitalisation,
// add no reading to those of the listed keys.
TEST(UnitWordsTest, TheListedKeysAreTheWordsTheGrammarReads) {
  std::vector<std::string> candidates = vela::testing::sourceWords();
  for (int c = 0; c < 256; ++c)
    if (vela::testing::isUnitLetter(c)) candidates.emplace_back(1, static_cast<char>(c));
  for (const auto& g : kGrammars) {
    std::string error;
    const Grammar grammar(&vela::grammarFor(g.tag, g.mode, error), [](vela::IGrammar*) {});
    std::vector<std::string> listed, unread;
    vela::listUnitKeys(g.tag, g.mode, listed);
    int readable = 0;
    {
      const vela::tools::QuietGrammars quiet;  // hides gtest's output too: report afterwards
      for (const std::string& key : listed) {
        if (!std::ranges::all_of(key, vela::testing::isUnitLetter)) continue;
        ++readable;
        std::string out;
        if (grammar->speakAmount({"1"}, {}, "1", "", key, out) == -1 ||
            vela::tools::findUnitWords(grammar, {key}).empty())
          unread.push_back(utf8FromCp1251(key));
      }
    }
    EXPECT_EQ(unread, std::vector<std::string>{}) << g.tag << " " << int(g.mode);
    EXPECT_GE(readable, 5) << g.tag;
    const std::size_t readings = vela::tools::findUnitWords(grammar, listed).size();
    listed.insert(listed.end(), candidates.begin(), candidates.end());  // no outside word reads apart
    EXPECT_EQ(vela::tools::findUnitWords(grammar, listed).size(), readings) << g.tag << " " << int(g.mode);
  }
}

// Every name of the answers to a random corpus is in the inventory, which
// holds only prompt names, and not the row's absent one.
TEST(PromptInventoryTest, HoldsEveryNameOfEveryAnswerInEveryLanguage) {
  unsigned seed = 13;
  for (const auto& g : kGrammars) {
    const std::set<std::string> inventory = vela::tools::promptInventory(g.tag, g.mode);
    std::vector<std::string> problems;
    int spoken = 0;
    {
      const vela::tools::QuietGrammars quiet;  // also hides gtest's output: report afterwards
      vela::testing::TextCorpus corpus(++seed, vela::testing::sourceWords(), 20);
      for (int i = 0; i < 5000; ++i) {
        const std::string text = corpus.next();
        const auto names = vela::tools::speakNames(g.tag, g.mode, text);
        spoken += names.has_value();
        for (const std::string& name : names.value_or(std::vector<std::string>{}))
          if (inventory.count(name) == 0)
            problems.push_back(utf8FromCp1251(text) + " says " + utf8FromCp1251(name));
      }
    }
    for (const std::string& name : inventory)
      if (name.empty() || name.find_first_of(" \"") != std::string::npos ||
          name.find(".wav") != std::string::npos)
        problems.push_back(utf8FromCp1251(name) + " is no prompt name");
    problems.resize(std::min<std::size_t>(problems.size(), 10));
    EXPECT_EQ(problems, std::vector<std::string>{}) << g.tag << " mode " << int(g.mode);
    EXPECT_EQ(inventory.count(g.absent), 0u) << g.tag;
    EXPECT_GT(spoken, 2500) << g.tag;  // the corpus is mostly tokens
  }
}

}  // namespace
