#include "grammar/factory.h"

#include <gtest/gtest.h>

#include <typeindex>
#include <typeinfo>
#include <vector>

#include "languages/arabic/arab_grammar.h"
#include "languages/centralasian/armjan_grammar.h"
#include "languages/centralasian/georg_grammar.h"
#include "languages/centralasian/kazah_grammar.h"
#include "languages/centralasian/tadjik_grammar.h"
#include "languages/centralasian/uzbek_grammar.h"
#include "languages/english/english_grammar.h"
#include "languages/romanian/roman_grammar.h"
#include "languages/russian/rus_grammar.h"
#include "languages/russian/rus_grammar_trans.h"
#include "languages/russian/ukranian_grammar.h"

namespace vela {
namespace {

struct TagRow {
  std::type_index grammar;
  std::vector<const char*> tags;
};

// All 42 tags, grouped by grammar.
const TagRow kTags[] = {
    {typeid(EnglishGrammar), {"ENGLISH", "eng", "en"}},
    {typeid(RusGrammar), {"RUSSIAN", "rus", "ru"}},
    {typeid(RomanGrammar), {"ROMANIAN", "mol", "mo", "rom", "ro", "rum", "MOLDOVA"}},
    {typeid(UkranianGrammar), {"UKRANIAN", "UKRAINIAN", "ukr", "uk", "UKRAINIEN", "UKRAINE"}},
    {typeid(UzbekGrammar), {"UZBEK", "uzb", "uz", "OUSZBEK", "UZBEKISTAN"}},
    {typeid(TadjikGrammar), {"TADJIK", "tgk", "tg", "TAJIK", "TAJIKISTAN"}},
    {typeid(KazahGrammar), {"KAZAH", "kaz", "kk", "KAZAKH", "KAZAKHSTAN"}},
    {typeid(GeorgGrammar), {"GEORGIA", "geo", "ka", "GEORGIAN"}},
    {typeid(ArmjanGrammar), {"ARMJAN", "hy"}},
    {typeid(ArabGrammar), {"ARAB", "ar"}},
};

// Only the Russian tags look at the transliteration flag (any non-zero value).
TEST(FactoryTest, EveryTagSelectsItsGrammar) {
  std::size_t count = 0;
  for (const auto& row : kTags) {
    count += row.tags.size();
    for (const char* tag : row.tags) {
      for (unsigned char flag : {0, 1, 7}) {
        std::string error = "untouched";
        IGrammar& grammar = grammarFor(tag, flag, error);
        const bool latin = row.grammar == typeid(RusGrammar) && flag != 0;
        EXPECT_EQ(std::type_index(typeid(grammar)), latin ? typeid(RusGrammarTrans) : row.grammar) << tag;
        EXPECT_EQ(error, "untouched") << tag;
      }
    }
  }
  EXPECT_EQ(count, 42u);
}

// Matching is exact: no case folding, trimming or prefixes.
// Near misses: case, spaces, a zero byte, a prefix, a last byte past the
// eighth changed, a tag longer than any.
const std::string kUnknownTags[] = {
    "", "english", "Ru", "uk ", std::string("ru\0", 3), "KAZAKHSTA", "UKRAINIEX", "UZBEKISTANUZBEKISTAN"};

TEST(FactoryTest, UnknownTagFallsBackToEnglishWithMessage) {
  for (const auto& tag : kUnknownTags) {
    std::string error = "old text";
    IGrammar& grammar = grammarFor(tag, 0, error);
    EXPECT_EQ(std::type_index(typeid(grammar)), std::type_index(typeid(EnglishGrammar))) << tag;
    EXPECT_EQ(error, " language tag incorrect") << tag;
  }
}

// Grammars hold no state: a tag gives the same instance every time, and tags of
// one class share it (the transliterated Russian grammar is a class of its own).
TEST(FactoryTest, OneInstancePerGrammarClass) {
  std::string error;
  EXPECT_EQ(&grammarFor("ru", 0, error), &grammarFor("RUSSIAN", 0, error));
  EXPECT_NE(&grammarFor("ru", 0, error), &grammarFor("ru", 1, error));
  EXPECT_EQ(&grammarFor("xx", 0, error), &grammarFor("en", 0, error));
}

}  // namespace
}  // namespace vela
