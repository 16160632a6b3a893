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

// Makes the grammar; with `unitKeys`, only lists its unit words there instead
// (returns null, or the grammar itself when it lists none).
using Maker = IGrammar* (*)(unsigned char transliterated, std::vector<std::string>* unitKeys);

template <class T>
IGrammar* make(unsigned char, std::vector<std::string>* unitKeys) {
  if (unitKeys != nullptr && listUnitKeysOf<T>(*unitKeys)) return nullptr;
  return new T;
}

IGrammar* makeRussian(unsigned char transliterated, std::vector<std::string>* unitKeys) {
  if (transliterated == 0) return make<RusGrammar>(0, unitKeys);
  return make<RusGrammarTrans>(transliterated, unitKeys);
}

struct TagRow {
  const char* tag;
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

boost::shared_ptr<IGrammar> makeGrammar(const std::string& tag, unsigned char transliterated,
                                        std::string& error) {
  for (const TagRow& row : kTags) {
    if (tag == row.tag) return boost::shared_ptr<IGrammar>(row.maker(transliterated, nullptr));
  }
  error = " language tag incorrect";
  return boost::shared_ptr<IGrammar>(new EnglishGrammar);
}

bool listUnitKeys(const std::string& tag, unsigned char transliterated, std::vector<std::string>& keys) {
  Maker maker = make<EnglishGrammar>;
  for (const TagRow& row : kTags) {
    if (tag == row.tag) {
      maker = row.maker;
      break;
    }
  }
  // A grammar that lists no keys was made instead: it is not needed.
  const boost::shared_ptr<IGrammar> unused(maker(transliterated, &keys));
  return unused == nullptr;
}

}  // namespace vela
