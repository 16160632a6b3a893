// The unit words of every grammar come from its class's own list: each listed
// word is one the grammar reads, no other word gives a reading the listed ones
// do not, and the inventory takes the listed words with the spellings that
// read apart.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "grammar/factory.h"
#include "grammar/grammar_base.h"
#include "grammar/helpers.h"
#include "grammar/unit_keys.h"
#include "support/source_words.h"
#include "tools/encoding.h"
#include "tools/inventory.h"

namespace {

using Grammar = boost::shared_ptr<vela::IGrammar>;

// A table as the languages keep theirs: key, word, currency or not.
struct TinyUnit {
  const char* key;
  const char* word;
  bool currency;
};
constexpr TinyUnit kTinyUnits[] = {
    {"zxqa", "tinydollar", true},
    {"zxqb", "tinypiece", false},
    {"zxqc", "tinypiece", false},  // read like zxqb
};
// Only this exact spelling is read differently.
constexpr const char* kShoutedKey = "ZXQB";

class TinyGrammar final : public vela::GrammarBase<TinyGrammar> {
 public:
  static void listUnitKeys(std::vector<std::string>& keys) {
    vela::appendKeys(keys, kTinyUnits, &TinyUnit::key);
  }

  virtual bool isUnit(const std::string& u) { return find(u) != nullptr; }
  virtual bool isCurrency(const std::string& u) { return find(u)->currency; }
  virtual void speakMoney(const vela::DigitList&, const vela::DigitList&, const std::string& digits,
                          const std::string&, const std::string& u, std::string& out) {
    out += "n" + digits + " " + find(u)->word;
  }
  virtual void speakCount(const vela::DigitList&, const std::string& digits, const std::string& u,
                          std::string& out) {
    out += "n" + digits + " " + (u == kShoutedKey ? "shout" : find(u)->word);
  }
  virtual bool allowsFraction(const std::string&) { return false; }
  virtual void speakMinorUnits(const vela::DigitList&, const vela::DigitList&, const std::string&,
                               const std::string&, const std::string&, std::string&) {}
  virtual void speakDecimal(const vela::DigitList&, const vela::DigitList&, const std::string&,
                            const std::string&, const std::string&, std::string&) {}

 private:
  static const TinyUnit* find(const std::string& u) {
    for (const TinyUnit& row : kTinyUnits) {
      if (vela::matchesWord(u, row.key)) return &row;
    }
    return nullptr;
  }
};

TEST(UnitWordsTest, ListedWordsAreKeptOncePerReadingWithTheSpellingsThatReadApart) {
  std::vector<std::string> listed;
  TinyGrammar::listUnitKeys(listed);
  ASSERT_EQ(listed, (std::vector<std::string>{"zxqa", "zxqb", "zxqc"}));
  listed.emplace_back("nothere");  // a listed word the grammar does not read
  const Grammar grammar(new TinyGrammar);
  std::vector<std::string> found = vela::tools::findUnitWords(grammar, listed);
  std::sort(found.begin(), found.end());
  EXPECT_EQ(found, (std::vector<std::string>{kShoutedKey, "zxqa", "zxqb"}));

  const auto inventory = vela::tools::promptInventory(grammar, listed);
  for (const char* name : {"tinydollar", "tinypiece", "shout", "n21", "minus"})
    EXPECT_EQ(inventory.count(name), 1u) << name;
}

// Every listed key made of letters (keys no text can hold after a number, the
// "N/A" rows, are left aside) is a unit that reads apart from a word no table
// holds; and the words of the language sources and every one-letter word, in
// any capitalisation, add no reading to those of the listed keys.
TEST(UnitWordsTest, TheListedKeysAreTheWordsTheGrammarReads) {
  std::vector<std::string> candidates = vela::testing::sourceWords();
  for (int c = 0; c < 256; ++c) {
    if (vela::testing::isUnitLetter(static_cast<unsigned char>(c)))
      candidates.emplace_back(1, static_cast<char>(c));
  }
  ASSERT_GT(candidates.size(), 500u);
  const std::pair<const char*, unsigned char> grammars[] = {
      {"ru", 0}, {"ru", 1}, {"uk", 0}, {"en", 0}, {"ro", 0}, {"ar", 0},
      {"kk", 0}, {"uz", 0}, {"tg", 0}, {"ka", 0}, {"hy", 0},
  };
  for (const auto& [tag, mode] : grammars) {
    std::string error;
    const Grammar grammar(&vela::grammarFor(tag, mode, error), [](vela::IGrammar*) {});
    std::vector<std::string> listed;
    vela::listUnitKeys(tag, mode, listed);
    int readable = 0;
    for (const std::string& key : listed) {
      if (!std::all_of(key.begin(), key.end(), [](char c) { return vela::testing::isUnitLetter(c); }))
        continue;
      ++readable;
      std::string out;
      const vela::tools::QuietGrammars quiet;
      const bool unit = grammar->speakAmount({"1"}, {}, "1", "", key, out) != -1;
      const bool readApart = !vela::tools::findUnitWords(grammar, {key}).empty();
      EXPECT_TRUE(unit && readApart) << tag << " " << int(mode) << ": " << vela::tools::utf8FromCp1251(key);
    }
    EXPECT_GE(readable, 5) << tag;
    std::vector<std::string> all = listed;
    all.insert(all.end(), candidates.begin(), candidates.end());
    EXPECT_EQ(vela::tools::findUnitWords(grammar, all).size(),
              vela::tools::findUnitWords(grammar, listed).size())
        << tag << " " << int(mode) << ": a word outside the list gives a reading of its own";
  }
}

}  // namespace
