#include "grammar/factory.h"

#include <gtest/gtest.h>

#include <typeindex>
#include <typeinfo>

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

struct TagCase {
  const char* tag;
  std::type_index cyrillic;  // transliterated = 0
  std::type_index latin;     // transliterated = 1
};

const std::type_index kEn = typeid(EnglishGrammar);
const std::type_index kRu = typeid(RusGrammar);
const std::type_index kRuT = typeid(RusGrammarTrans);

// All 42 tags; only the Russian ones look at the transliteration flag.
const TagCase kTags[] = {
    {"ENGLISH", kEn, kEn},
    {"eng", kEn, kEn},
    {"en", kEn, kEn},
    {"RUSSIAN", kRu, kRuT},
    {"rus", kRu, kRuT},
    {"ru", kRu, kRuT},
    {"ROMANIAN", typeid(RomanGrammar), typeid(RomanGrammar)},
    {"mol", typeid(RomanGrammar), typeid(RomanGrammar)},
    {"mo", typeid(RomanGrammar), typeid(RomanGrammar)},
    {"rom", typeid(RomanGrammar), typeid(RomanGrammar)},
    {"ro", typeid(RomanGrammar), typeid(RomanGrammar)},
    {"rum", typeid(RomanGrammar), typeid(RomanGrammar)},
    {"MOLDOVA", typeid(RomanGrammar), typeid(RomanGrammar)},
    {"UKRANIAN", typeid(UkranianGrammar), typeid(UkranianGrammar)},
    {"UKRAINIAN", typeid(UkranianGrammar), typeid(UkranianGrammar)},
    {"ukr", typeid(UkranianGrammar), typeid(UkranianGrammar)},
    {"uk", typeid(UkranianGrammar), typeid(UkranianGrammar)},
    {"UKRAINIEN", typeid(UkranianGrammar), typeid(UkranianGrammar)},
    {"UKRAINE", typeid(UkranianGrammar), typeid(UkranianGrammar)},
    {"UZBEK", typeid(UzbekGrammar), typeid(UzbekGrammar)},
    {"uzb", typeid(UzbekGrammar), typeid(UzbekGrammar)},
    {"uz", typeid(UzbekGrammar), typeid(UzbekGrammar)},
    {"OUSZBEK", typeid(UzbekGrammar), typeid(UzbekGrammar)},
    {"UZBEKISTAN", typeid(UzbekGrammar), typeid(UzbekGrammar)},
    {"TADJIK", typeid(TadjikGrammar), typeid(TadjikGrammar)},
    {"tgk", typeid(TadjikGrammar), typeid(TadjikGrammar)},
    {"tg", typeid(TadjikGrammar), typeid(TadjikGrammar)},
    {"TAJIK", typeid(TadjikGrammar), typeid(TadjikGrammar)},
    {"TAJIKISTAN", typeid(TadjikGrammar), typeid(TadjikGrammar)},
    {"KAZAH", typeid(KazahGrammar), typeid(KazahGrammar)},
    {"kaz", typeid(KazahGrammar), typeid(KazahGrammar)},
    {"kk", typeid(KazahGrammar), typeid(KazahGrammar)},
    {"KAZAKH", typeid(KazahGrammar), typeid(KazahGrammar)},
    {"KAZAKHSTAN", typeid(KazahGrammar), typeid(KazahGrammar)},
    {"GEORGIA", typeid(GeorgGrammar), typeid(GeorgGrammar)},
    {"geo", typeid(GeorgGrammar), typeid(GeorgGrammar)},
    {"ka", typeid(GeorgGrammar), typeid(GeorgGrammar)},
    {"GEORGIAN", typeid(GeorgGrammar), typeid(GeorgGrammar)},
    {"ARMJAN", typeid(ArmjanGrammar), typeid(ArmjanGrammar)},
    {"hy", typeid(ArmjanGrammar), typeid(ArmjanGrammar)},
    {"ARAB", typeid(ArabGrammar), typeid(ArabGrammar)},
    {"ar", typeid(ArabGrammar), typeid(ArabGrammar)},
};

TEST(FactoryTest, EveryTagSelectsItsGrammar) {
  EXPECT_EQ(std::size(kTags), 42u);
  for (const auto& c : kTags) {
    for (unsigned char flag : {0, 1, 7}) {
      std::string error = "untouched";
      auto grammar = makeGrammar(c.tag, flag, error);
      ASSERT_TRUE(grammar) << c.tag;
      EXPECT_EQ(std::type_index(typeid(*grammar)), flag == 0 ? c.cyrillic : c.latin)
          << c.tag << " flag " << +flag;
      EXPECT_EQ(error, "untouched") << c.tag;
    }
  }
}

// Matching is exact: no case folding, trimming or prefixes.
const std::string kUnknownTags[] = {
    "",
    "english",
    "English",
    "Ru",
    "RU",
    "uk ",
    " uk",
    "u",
    "russian",
    "GEORGIAN ",
    "georgia",
    "ARMENIAN",
    std::string("ru\0", 3),
};

TEST(FactoryTest, UnknownTagFallsBackToEnglishWithMessage) {
  for (const auto& tag : kUnknownTags) {
    std::string error = "old text";
    auto grammar = makeGrammar(tag, 0, error);
    ASSERT_TRUE(grammar) << tag;
    EXPECT_EQ(std::type_index(typeid(*grammar)), kEn) << tag;
    EXPECT_EQ(error, " language tag incorrect") << tag;
  }
}

TEST(FactoryTest, EveryCallMakesANewObject) {
  std::string error;
  auto a = makeGrammar("ru", 0, error);
  auto b = makeGrammar("ru", 0, error);
  EXPECT_NE(a.get(), b.get());
  EXPECT_EQ(a.use_count(), 1);
}

}  // namespace
}  // namespace vela
