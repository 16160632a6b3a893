// The unit words of every grammar come from its class's own list: each listed
// word is one the grammar reads, no other word changes a reading, and the
// inventory takes the listed words with the spellings that read apart.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "analysis/rules.h"
#include "grammar/factory.h"
#include "grammar/grammar_base.h"
#include "grammar/helpers.h"
#include "grammar/unit_keys.h"
#include "support/source_words.h"
#include "tools/encoding.h"
#include "tools/inventory.h"
#include "tools/inventory_inputs.h"

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

// One grammar class per row.
struct GrammarRow {
  const char* tag;
  unsigned char mode;
};
constexpr GrammarRow kGrammars[] = {
    {"ru", 0}, {"ru", 1}, {"uk", 0}, {"en", 0}, {"ro", 0}, {"ar", 0},
    {"kk", 0}, {"uz", 0}, {"tg", 0}, {"ka", 0}, {"hy", 0},
};

std::string lowered(const std::string& word) {
  std::string s = word;
  for (char& c : s) c = static_cast<char>(vela::lowerCp1251(static_cast<unsigned char>(c)));
  return s;
}

std::string uppered(const std::string& word) {
  std::string s = word;
  for (char& c : s) {
    const auto b = static_cast<unsigned char>(c);
    if ((b >= 'a' && b <= 'z') || b >= 0xE0) c = static_cast<char>(b - 0x20);
  }
  return s;
}

bool lettersOnly(const std::string& word) {
  return !word.empty() && std::all_of(word.begin(), word.end(), [](char c) {
    return vela::testing::isUnitLetter(static_cast<unsigned char>(c));
  });
}

// What the grammar does with `unit` after each probe amount, as the amount
// handler calls it: the special reading, or the dispatcher's words and result.
std::string readingsOf(vela::IGrammar& grammar, const std::string& unit) {
  std::string all;
  for (const vela::tools::AmountInput& a : vela::tools::probeAmounts()) {
    if (a.negative) continue;
    std::string out;
    if (!grammar.speakSpecialAmount(a.intDigits, unit, out)) {
      vela::DigitList intList;
      vela::DigitList fracList;
      vela::splitDigitGroups(a.intDigits, intList);
      vela::splitDigitGroups(a.fracDigits, fracList);
      out += std::to_string(grammar.speakAmount(intList, fracList, a.intDigits, a.fracDigits, unit, out));
    }
    all += out + '\n';
  }
  return all;
}

struct Listing {
  Grammar grammar;
  std::vector<std::string> keys;
  std::set<std::string> lowerKeys;
};

Listing listingOf(const GrammarRow& row) {
  Listing listing;
  std::string error;
  // Grammars live as long as the library: held here without owning them.
  listing.grammar = Grammar(&vela::grammarFor(row.tag, row.mode, error), [](vela::IGrammar*) {});
  vela::listUnitKeys(row.tag, row.mode, listing.keys);
  for (const std::string& key : listing.keys) listing.lowerKeys.insert(lowered(key));
  return listing;
}

// What is wrong with one grammar's list, gathered while the grammars' own
// complaints are silenced (gtest's output with them): reported afterwards.
using Problems = std::vector<std::string>;

// Keys no text can hold after a number ("N/A" rows) are left aside.
Problems unreadListedKeys(const GrammarRow& row) {
  const vela::tools::QuietGrammars quiet;
  const Listing listing = listingOf(row);
  const std::string unknown = readingsOf(*listing.grammar, std::string(40, 'q'));
  Problems problems;
  int readable = 0;
  for (const std::string& key : listing.keys) {
    if (!lettersOnly(key)) continue;
    ++readable;
    std::string out;
    if (listing.grammar->speakAmount({"1"}, {}, "1", "", key, out) == -1)
      problems.push_back(vela::tools::utf8FromCp1251(key) + " is not a unit");
    if (readingsOf(*listing.grammar, key) == unknown)
      problems.push_back(vela::tools::utf8FromCp1251(key) + " reads like an unknown word");
  }
  if (readable < 5) problems.push_back("lists " + std::to_string(readable) + " keys");
  return problems;
}

// Whatever is not a listed key, in any capitalisation, must read like a word
// no table holds.
Problems unlistedWordsRead(const GrammarRow& row, const std::vector<std::string>& candidates) {
  const vela::tools::QuietGrammars quiet;
  const Listing listing = listingOf(row);
  const std::string unknown = readingsOf(*listing.grammar, std::string(40, 'q'));
  Problems problems;
  for (const std::string& word : candidates) {
    if (listing.lowerKeys.count(lowered(word)) != 0) continue;
    for (const std::string& spelling : {lowered(word), uppered(word)}) {
      if (readingsOf(*listing.grammar, spelling) != unknown)
        problems.push_back(vela::tools::utf8FromCp1251(spelling) + " is read but not listed");
    }
  }
  return problems;
}

void report(const GrammarRow& row, const Problems& problems) {
  for (std::size_t i = 0; i < problems.size() && i < 10; ++i)
    ADD_FAILURE() << row.tag << " mode " << int(row.mode) << ": " << problems[i];
  if (problems.size() > 10) ADD_FAILURE() << row.tag << ": " << problems.size() - 10 << " more";
}

TEST(UnitWordsTest, EveryListedKeyIsAUnitTheGrammarReads) {
  for (const GrammarRow& row : kGrammars) report(row, unreadListedKeys(row));
}

// Candidates: the words of the language sources and every one-letter word.
TEST(UnitWordsTest, NoWordOutsideTheListChangesAReading) {
  std::vector<std::string> candidates = vela::testing::sourceWords();
  for (int c = 0; c < 256; ++c) {
    if (vela::testing::isUnitLetter(static_cast<unsigned char>(c)))
      candidates.emplace_back(1, static_cast<char>(c));
  }
  ASSERT_GT(candidates.size(), 500u);
  for (const GrammarRow& row : kGrammars) report(row, unlistedWordsRead(row, candidates));
}

}  // namespace
