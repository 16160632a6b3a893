// The prompt inventory is complete: whatever a request answers with, in any
// language and either Russian mode, is in the inventory of its grammar.
#include "tools/inventory.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <string>
#include <typeinfo>
#include <vector>

#include "grammar/factory.h"
#include "pipeline/text_decoder.h"
#include "support/source_words.h"
#include "tools/encoding.h"

namespace {

using vela::tools::promptInventory;

// Every tag the factory knows.
const char* const kTags[] = {"ENGLISH",  "eng",      "en",        "RUSSIAN",    "rus",        "ru",
                             "ROMANIAN", "mol",      "mo",        "rom",        "ro",         "rum",
                             "MOLDOVA",  "UKRANIAN", "UKRAINIAN", "ukr",        "uk",         "UKRAINIEN",
                             "UKRAINE",  "UZBEK",    "uzb",       "uz",         "OUSZBEK",    "UZBEKISTAN",
                             "TADJIK",   "tgk",      "tg",        "TAJIK",      "TAJIKISTAN", "KAZAH",
                             "kaz",      "kk",       "KAZAKH",    "KAZAKHSTAN", "GEORGIA",    "geo",
                             "ka",       "GEORGIAN", "ARMJAN",    "hy",         "ARAB",       "ar"};

// The inventory of the grammar class behind (tag, mode), computed once per class.
const std::set<std::string>& inventoryOf(const std::string& tag, unsigned char mode) {
  static std::map<std::string, std::set<std::string>> byClass;
  std::string error;
  const vela::IGrammar& grammar = vela::grammarFor(tag, mode, error);
  const std::string cls = typeid(grammar).name();
  auto it = byClass.find(cls);
  if (it == byClass.end()) it = byClass.emplace(cls, promptInventory(tag, mode)).first;
  return it->second;
}

using vela::testing::sourceWords;

// Random texts of every kind a request may hold, valid and slightly broken.
class Corpus {
 public:
  explicit Corpus(unsigned seed) : random_(seed) {}

  std::string next() {
    std::string text;
    switch (pick(7)) {
      case 0:
        text = amount();
        break;
      case 1:
        text = date();
        break;
      case 2:
        text = time();
        break;
      case 3:
        text = number();
        break;
      case 4:
        text = '"' + keys() + '"';
        break;
      case 5:
        text = std::string(1, static_cast<char>(1 + pick(255)));
        break;
      default:
        text = amount();
        break;
    }
    if (pick(6) == 0) mutate(text);
    return text;
  }

 private:
  int pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random_); }

  std::string digits(int most) {
    std::string s;
    const int length = pick(most + 1);
    for (int i = 0; i < length; ++i) s += static_cast<char>('0' + (pick(3) == 0 ? 0 : pick(10)));
    return s;
  }
  // 0-99 in one or two digits, or an odd three-digit value.
  std::string smallNumber(int below) {
    const int v = pick(below);
    if (pick(8) == 0) return std::to_string(100 + pick(900));
    return (v < 10 && pick(2) == 0) ? "0" + std::to_string(v) : std::to_string(v);
  }
  std::string unitWord() {
    std::string word;
    if (pick(4) == 0 || sourceWords().empty()) {
      const int length = 1 + pick(5);
      for (int i = 0; i < length; ++i)
        word += static_cast<char>(pick(2) == 0 ? 'a' + pick(26) : 0xE0 + pick(32));
    } else {
      word = sourceWords()[static_cast<std::size_t>(pick(static_cast<int>(sourceWords().size())))];
    }
    if (pick(4) == 0) {
      for (char& c : word) {
        const auto b = static_cast<unsigned char>(c);
        if ((b >= 'a' && b <= 'z') || b >= 0xE0) c = static_cast<char>(b - 0x20);
      }
    }
    return word;
  }
  std::string amount() {
    std::string s = pick(5) == 0 ? "-" : "";
    s += digits(14);
    if (pick(2) == 0) s += std::string(1, ".,|"[pick(3)]) + digits(5);
    return s + unitWord();
  }
  std::string date() {
    std::string s = smallNumber(40) + "." + smallNumber(20);
    if (pick(2) == 0) s += "." + std::to_string(1890 + pick(230));
    if (pick(3) == 0) s += "(I)";
    return s;
  }
  std::string time() {
    std::string s = (pick(2) == 0 ? smallNumber(100) : digits(8)) + ":" + smallNumber(100);
    if (pick(2) == 0) s += ":" + smallNumber(100);
    return pick(2) == 0 ? '"' + s + '"' : s;
  }
  std::string number() {
    std::string s = digits(20);
    if (pick(3) == 0) s += "-" + digits(6);
    if (pick(3) == 0) s += std::string(1, ".,|"[pick(3)]) + digits(6);
    return s.empty() ? "0" : s;
  }
  std::string keys() {
    std::string s;
    const int length = 1 + pick(10);
    for (int i = 0; i < length; ++i) s += "0123456789#*"[pick(12)];
    return s;
  }
  void mutate(std::string& text) {
    const std::string pool = "0123456789.,|-:\"#*()I a";
    const char c = pool[static_cast<std::size_t>(pick(static_cast<int>(pool.size())))];
    const auto at = static_cast<std::size_t>(pick(static_cast<int>(text.size()) + 1));
    switch (pick(3)) {
      case 0:
        text.insert(at, 1, c);
        break;
      case 1:
        if (at < text.size()) text.erase(at, 1);
        break;
      default:
        if (at < text.size()) text[at] = c;
        break;
    }
  }

  std::mt19937 random_;
};

constexpr int kTextsPerTag = 2500;

// What is wrong with the answers to a random corpus in (tag, mode): names
// missing from the inventory, texts not given back.
std::vector<std::string> completenessProblems(const std::string& tag, unsigned char mode, unsigned seed) {
  const std::set<std::string>& inventory = inventoryOf(tag, mode);
  std::vector<std::string> problems;
  const vela::tools::QuietGrammars quiet;  // also hides gtest's output: report afterwards
  Corpus corpus(seed);
  int spoken = 0;
  for (int i = 0; i < kTextsPerTag; ++i) {
    const std::string text = corpus.next();
    const auto names = vela::tools::speakNames(tag, mode, text);
    if (!names) {
      // No rule took it: the library must then give the text itself back.
      char* answer = nullptr;
      if (vela::decodeText(tag.c_str(), text.c_str(), &answer, mode) != 0) return {"out of memory"};
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
  if (spoken < kTextsPerTag / 2) problems.push_back("the corpus should be mostly tokens");
  return problems;
}

void expectCompleteFor(const std::string& tag, unsigned char mode, unsigned seed) {
  const std::vector<std::string> problems = completenessProblems(tag, mode, seed);
  for (std::size_t i = 0; i < problems.size() && i < 10; ++i)
    ADD_FAILURE() << tag << " mode " << int(mode) << " (seed " << seed << "): " << problems[i];
  if (problems.size() > 10) ADD_FAILURE() << tag << ": " << problems.size() - 10 << " more";
}

void expectListsNamesNotTexts() {
  // A few names each inventory must hold, and some it must not: no request
  // reaches the keypad reading of a dial string ("sharp"), and texts given
  // back are not names.
  struct Row {
    const char* tag;
    unsigned char mode;
    std::vector<std::string> present;
    std::vector<std::string> absent;
  };
  const std::string ruble = *vela::tools::convert("рублей", "WINDOWS-1251", "UTF-8");
  const std::string minus = *vela::tools::convert("минус", "WINDOWS-1251", "UTF-8");
  const Row rows[] = {
      {"ru", 0, {ruble, minus}, {"rublei", "12"}},
      {"ru", 1, {"rublei", "kopeek"}, {ruble}},
      {"en", 0, {"cents", "PM", "fifth", "january"}, {"sharp", "ought", "5"}},
  };
  for (const Row& row : rows) {
    const auto& inventory = inventoryOf(row.tag, row.mode);
    for (const std::string& name : row.present)
      EXPECT_EQ(inventory.count(name), 1u) << row.tag << ": " << name;
    for (const std::string& name : row.absent)
      EXPECT_EQ(inventory.count(name), 0u) << row.tag << ": " << name;
    for (const std::string& name : inventory) {
      EXPECT_EQ(name.find(' '), std::string::npos);
      EXPECT_FALSE(name.empty());
      EXPECT_EQ(name.find(".wav"), std::string::npos) << name;
    }
  }
}

// One test, so that each grammar's inventory is computed once.
TEST(PromptInventoryTest, HoldsEveryNameOfEveryAnswerInEveryLanguage) {
  expectListsNamesNotTexts();
  unsigned seed = 13;
  for (const char* tag : kTags) expectCompleteFor(tag, 0, ++seed);
  for (const char* tag : {"ru", "rus", "RUSSIAN"}) expectCompleteFor(tag, 1, ++seed);
}

}  // namespace
