#include "grammar/factory.h"

#include <algorithm>
#include <array>
#include <cstdint>

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

// A tag of up to 16 bytes as two numbers and its length; a longer one is no tag.
struct PackedTag {
  std::uint64_t low = 0, high = 0;
  std::size_t size = 0;

  constexpr bool operator==(const PackedTag&) const = default;
};

constexpr std::size_t kMaxTag = 16;

constexpr PackedTag packTag(std::string_view tag) {
  PackedTag packed;
  packed.size = tag.size();
  for (std::size_t i = 0; i < tag.size() && i < kMaxTag; ++i) {
    const std::uint64_t byte = static_cast<unsigned char>(tag[i]);
    (i < 8 ? packed.low : packed.high) |= byte << (8 * (i % 8));
  }
  return packed;
}

constexpr std::size_t kSlots = 128;  // a power of two, well above the number of tags

constexpr std::size_t slotOf(const PackedTag& tag) {
  const std::uint64_t mixed =
      (tag.low ^ (tag.high * 0x9E3779B97F4A7C15ULL) ^ tag.size) * 0xFF51AFD7ED558CCDULL;
  return static_cast<std::size_t>(mixed >> 57) & (kSlots - 1);
}

// The tag table as an open-addressing hash: one probe or two instead of a scan
// of every row. A slot holds the row's index + 1; 0 is empty. A tag listed twice
// keeps its first row, as the scan of the table in order would.
struct TagIndex {
  std::array<PackedTag, kSlots> tags{};
  std::array<std::uint8_t, kSlots> rows{};
};

constexpr TagIndex makeTagIndex() {
  TagIndex index;
  for (std::size_t row = 0; row < std::size(kTags); ++row) {
    if (kTags[row].tag.size() > kMaxTag) throw "a tag longer than kMaxTag bytes";
    const PackedTag tag = packTag(kTags[row].tag);
    std::size_t slot = slotOf(tag);
    while (index.rows[slot] != 0 && !(index.tags[slot] == tag)) slot = (slot + 1) & (kSlots - 1);
    if (index.rows[slot] != 0) continue;
    index.tags[slot] = tag;
    index.rows[slot] = static_cast<std::uint8_t>(row + 1);
  }
  return index;
}

constexpr TagIndex kTagIndex = makeTagIndex();

// The row of `tag`, or null.
const TagRow* findTag(std::string_view tag) {
  if (tag.size() > kMaxTag) return nullptr;
  const PackedTag packed = packTag(tag);
  for (std::size_t slot = slotOf(packed); kTagIndex.rows[slot] != 0; slot = (slot + 1) & (kSlots - 1)) {
    if (kTagIndex.tags[slot] == packed) return &kTags[kTagIndex.rows[slot] - 1];
  }
  return nullptr;
}

}  // namespace

std::vector<std::string_view> knownTags() {
  std::vector<std::string_view> tags;
  for (const TagRow& row : kTags) {
    if (std::find(tags.begin(), tags.end(), row.tag) == tags.end()) tags.push_back(row.tag);
  }
  return tags;
}

IGrammar& grammarFor(std::string_view tag, unsigned char transliterated, std::string& error) {
  if (const TagRow* row = findTag(tag)) return *row->maker(transliterated, nullptr);
  error = " language tag incorrect";
  return instance<EnglishGrammar>();
}

void listUnitKeys(const std::string& tag, unsigned char transliterated, std::vector<std::string>& keys) {
  const TagRow* row = findTag(tag);
  (row != nullptr ? row->maker : make<EnglishGrammar>)(transliterated, &keys);
}

}  // namespace vela
