// How the inventory finds a grammar's unit words: from the grammar's own list,
// or, when its class gives none, among the words of the program's data.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "grammar/grammar_base.h"
#include "grammar/helpers.h"
#include "grammar/unit_keys.h"
#include "tools/inventory.h"

namespace {

// A table as the languages keep theirs: key, word, currency or not.
struct TinyUnit {
  const char* key;
  const char* word;
  bool currency;
};
constexpr TinyUnit kTinyUnits[] = {
    {"zxqa", "tinydollar", true},
    {"zxqb", "tinypiece", false},
};
// Only this exact spelling is read differently.
constexpr const char* kShoutedKey = "ZXQB";

class TinyGrammar final : public vela::GrammarBase<TinyGrammar> {
 public:
  static void listUnitKeys(std::vector<std::string>& keys) { keys.emplace_back(kTinyUnits[0].key); }

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

bool readsLike(const std::vector<std::string>& words, const std::string& key) {
  return std::any_of(words.begin(), words.end(),
                     [&](const std::string& w) { return vela::matchesWord(w, key.c_str()); });
}

TEST(UnitWordsTest, ListedWordsAreTakenAsTheGrammarGivesThem) {
  std::vector<std::string> listed;
  ASSERT_TRUE(vela::listUnitKeysOf<TinyGrammar>(listed));
  const boost::shared_ptr<vela::IGrammar> grammar(new TinyGrammar);
  const auto found = vela::tools::findUnitWords(grammar, &listed);
  EXPECT_TRUE(found.listedByGrammar);
  EXPECT_TRUE(readsLike(found.words, "zxqa"));
  EXPECT_FALSE(readsLike(found.words, "zxqb")) << "a listed grammar is not searched further";
}

TEST(UnitWordsTest, UnlistedWordsAreFoundInTheProgramDataWithTheSpellingsThatReadApart) {
  const boost::shared_ptr<vela::IGrammar> grammar(new TinyGrammar);
  const auto found = vela::tools::findUnitWords(grammar, nullptr);
  EXPECT_FALSE(found.listedByGrammar);
  EXPECT_TRUE(readsLike(found.words, "zxqa"));
  EXPECT_TRUE(readsLike(found.words, "zxqb"));
  EXPECT_NE(std::find(found.words.begin(), found.words.end(), kShoutedKey), found.words.end());
  EXPECT_EQ(found.words.size(), 3u) << "one word per reading, none that reads like an unknown word";

  const auto inventory = vela::tools::promptInventory(grammar, nullptr);
  for (const char* name : {"tinydollar", "tinypiece", "shout", "n21", "minus"})
    EXPECT_EQ(inventory.count(name), 1u) << name;
}

}  // namespace
