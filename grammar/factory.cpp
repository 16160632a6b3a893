#include "grammar/factory.h"

#include "grammar/unit_keys.h"
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

// Gives the grammar's one instance; with `unitKeys`, only lists its unit words
// there instead (and gives null).
using Maker = IGrammar* (*)(unsigned char transliterated, std::vector<std::string>* unitKeys);

// The one instance of a grammar class: built on first use, never destroyed
// before the library is unloaded.
template <class T>
IGrammar& instance() {
  static T grammar;
  return grammar;
}

template <class T>
IGrammar* make(unsigned char, std::vector<std::string>* unitKeys) {
  static_assert(ListsUnitKeys<T>, "a language class lists its unit words (grammar/unit_keys.h)");
  if (unitKeys == nullptr) return &instance<T>();
  T::listUnitKeys(*unitKeys);
  return nullptr;
}

IGrammar* makeRussian(unsigned char transliterated, std::vector<std::string>* unitKeys) {
  if (transliterated == 0) return make<RusGrammar>(0, unitKeys);
  return make<RusGrammarTrans>(transliterated, unitKeys);
}

// Tags are a few bytes long: comparing them in place beats a library call per row.
bool sameTag(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (a[i] != b[i]) return false;
  return true;
}

struct TagRow {
  std::string_view tag;
  Maker maker;
};

// Tried in this order; the first exact match decides. The odd spellings are
// tags in their own right, and "GEORGIA" is listed twice on purpose.
constexpr TagRow kTags[] = {
    {"ENGLISH", make<EnglishGrammar>},
    {"eng", make<EnglishGrammar>},
    {"en", make<EnglishGrammar>},

    {"RUSSIAN", makeRussian},
    {"rus", makeRussian},
    {"ru", makeRussian},

    {"ROMANIAN", make<RomanGrammar>},
    {"mol", make<RomanGrammar>},
    {"mo", make<RomanGrammar>},
    {"rom", make<RomanGrammar>},
    {"ro", make<RomanGrammar>},
    {"rum", make<RomanGrammar>},
    {"MOLDOVA", make<RomanGrammar>},

    {"UKRANIAN", make<UkranianGrammar>},
    {"UKRAINIAN", make<UkranianGrammar>},
    {"ukr", make<UkranianGrammar>},
    {"uk", make<UkranianGrammar>},
    {"UKRAINIEN", make<UkranianGrammar>},
    {"UKRAINE", make<UkranianGrammar>},

    {"UZBEK", make<UzbekGrammar>},
    {"uzb", make<UzbekGrammar>},
    {"uz", make<UzbekGrammar>},
    {"OUSZBEK", make<UzbekGrammar>},
    {"UZBEKISTAN", make<UzbekGrammar>},

    {"TADJIK", make<TadjikGrammar>},
    {"tgk", make<TadjikGrammar>},
    {"tg", make<TadjikGrammar>},
    {"TAJIK", make<TadjikGrammar>},
    {"TAJIKISTAN", make<TadjikGrammar>},

    {"KAZAH", make<KazahGrammar>},
    {"kaz", make<KazahGrammar>},
    {"kk", make<KazahGrammar>},
    {"KAZAKH", make<KazahGrammar>},
    {"KAZAKHSTAN", make<KazahGrammar>},

    {"GEORGIA", make<GeorgGrammar>},
    {"geo", make<GeorgGrammar>},
    {"ka", make<GeorgGrammar>},
    {"GEORGIAN", make<GeorgGrammar>},
    {"GEORGIA", make<GeorgGrammar>},

    {"ARMJAN", make<ArmjanGrammar>},
    {"hy", make<ArmjanGrammar>},

    {"ARAB", make<ArabGrammar>},
    {"ar", make<ArabGrammar>},
};

}  // namespace

IGrammar& grammarFor(std::string_view tag, unsigned char transliterated, std::string& error) {
  for (const TagRow& row : kTags) {
    if (sameTag(tag, row.tag)) return *row.maker(transliterated, nullptr);
  }
  error = " language tag incorrect";
  return instance<EnglishGrammar>();
}

void listUnitKeys(const std::string& tag, unsigned char transliterated, std::vector<std::string>& keys) {
  Maker maker = make<EnglishGrammar>;
  for (const TagRow& row : kTags) {
    if (tag == row.tag) {
      maker = row.maker;
      break;
    }
  }
  maker(transliterated, &keys);
}

}  // namespace vela
