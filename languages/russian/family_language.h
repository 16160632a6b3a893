// The Russian family (Russian, transliterated Russian, Ukrainian): three
// genders, three plural forms after a number (1, 2-4, 5+) and ordinal cases.
// One set of algorithms (FamilySpeaker) reads any of these languages; a
// language is only its word tables and the few ways in which it differs.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace vela {

// Grammatical gender, as the unit tables store it.
enum FamilyGender : int { kMasculine = 0, kFeminine = 1, kNeuter = 2 };

// A counted thing: its key (the abbreviation written after a number, "N/A"
// for rows reached only through their word) and its word after 1, after 2-4,
// and after 0, 5-20 and the teens.
struct UnitRow {
  const char* key;
  int gender;
  std::string_view form1;  // views: the readings append them without measuring them
  std::string_view form2;
  std::string_view form5;
};

// A currency key and the word (form 1) of its minor unit.
struct CurrencyRow {
  const char* key;
  const char* minorUnit;
};

// A symbol read on its own; the key is compared byte for byte.
struct SymbolRow {
  const char* key;
  const char* word;
};

// One word per gender: masculine, feminine, neuter.
using GenderCells = std::array<const char*, 3>;

// kNoForm marks a form a table lacks; the cardinal is spoken in its place.
inline constexpr const char* kNoForm = nullptr;

struct TeenRow {
  const char* cardinal;
  const char* ordinalNominative;  // neuter
  const char* ordinalGenitive;
};

struct TensRow {
  const char* cardinal;
  const char* ordinalGenitive;
  const char* ordinalNominative;  // neuter
};

struct HundredsRow {
  const char* cardinal;
  const char* ordinalGenitive;
};

// Number words. Row = digit; teens by (number - 10), tens by the tens digit,
// hundreds by the hundreds digit. Row 0 of the teens, tens and hundreds is
// never spoken.
struct NumberWords {
  std::array<GenderCells, 10> cardinal;
  std::array<GenderCells, 10> ordinalNominative;
  std::array<GenderCells, 10> ordinalGenitive;
  std::array<TeenRow, 10> teens;
  std::array<TensRow, 10> tens;
  std::array<HundredsRow, 10> hundreds;
};

// The same number words as views, their lengths counted once: the
// cardinal readings append many of them. A form the table lacks (kNoForm) is a
// view without data.
struct NumberViews {
  struct Teen {
    std::string_view cardinal, ordinalNominative, ordinalGenitive;
  };
  struct Tens {
    std::string_view cardinal, ordinalGenitive, ordinalNominative;
  };
  struct Hundreds {
    std::string_view cardinal, ordinalGenitive;
  };
  using Genders = std::array<std::string_view, 3>;
  std::array<Genders, 10> cardinal;
  std::array<Genders, 10> ordinalNominative;
  std::array<Genders, 10> ordinalGenitive;
  std::array<Teen, 10> teens;
  std::array<Tens, 10> tens;
  std::array<Hundreds, 10> hundreds;
};

constexpr std::string_view viewOf(const char* word) {
  return word != nullptr ? std::string_view(word) : std::string_view();
}

constexpr NumberViews viewsOf(const NumberWords& w) {
  NumberViews v{};
  for (std::size_t i = 0; i < 10; ++i) {
    for (std::size_t g = 0; g < 3; ++g) {
      v.cardinal[i][g] = viewOf(w.cardinal[i][g]);
      v.ordinalNominative[i][g] = viewOf(w.ordinalNominative[i][g]);
      v.ordinalGenitive[i][g] = viewOf(w.ordinalGenitive[i][g]);
    }
    v.teens[i] = {viewOf(w.teens[i].cardinal), viewOf(w.teens[i].ordinalNominative),
                  viewOf(w.teens[i].ordinalGenitive)};
    v.tens[i] = {viewOf(w.tens[i].cardinal), viewOf(w.tens[i].ordinalGenitive),
                 viewOf(w.tens[i].ordinalNominative)};
    v.hundreds[i] = {viewOf(w.hundreds[i].cardinal), viewOf(w.hundreds[i].ordinalGenitive)};
  }
  return v;
}

// Keys of the unit rows that read a decimal fraction ("две целых пять десятых").
struct DecimalKeys {
  const char* whole;
  const char* tenths;
  const char* hundredths;
};

// Everything that makes one language of the family.
struct FamilyLanguage {
  const NumberWords* numbers;
  const NumberViews* numberViews;  // viewsOf(*numbers)
  std::span<const UnitRow> units;  // first match wins: never sorted
  std::span<const CurrencyRow> currencies;
  std::span<const SymbolRow> symbols;
  std::span<const char* const> months;  // genitive month names, entry 0 empty

  // Unit rows used by number rather than by a suffix.
  int milliardsRow;
  int millionsRow;
  int thousandsRow;  // its forms 1 and 2 are also the year's thousand words
  int hoursRow;
  int minutesRow;
  int secondsRow;

  // The named differences between the languages.
  const char* speak3Complaint;  // printed for a genitive without the ordinal flag
  const char* zeroBeforeUnit;   // zero with a unit word: " ноль " then form 5
  const char* leadingZero;      // each leading zero of a bare number
  const char* minusWord;        // the minus prefix, or null for the interface's default
  const char* femaleSuffix;     // suffix asking for a feminine number without a unit word, or null
  const DecimalKeys* decimals;  // unit keys of the decimal words; null: decimals are not spoken
  bool hasDayCaseMarker;        // "(I)" after a date asks for a nominative day
  int hoursGender;              // "один час" (Russian) or "odna godyna" (Ukrainian)
  const char* year2000;         // the whole year 2000 as one word
  const char* yearWord;         // after the year
};

extern const FamilyLanguage kRussianLanguage;
extern const FamilyLanguage kRussianTransLanguage;
extern const FamilyLanguage kUkrainianLanguage;

}  // namespace vela
