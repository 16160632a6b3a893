// The Central Asian and Caucasian family (Kazakh, Uzbek, Tajik, Georgian,
// Armenian): Latin prompt names, numbers read in three-digit groups, a unit
// table with a zero phrase, a currency table with minor-unit words, month
// names and one way of phrasing clock times and spans.
//
// What the languages share lives here once: the table shapes, the look-ups,
// dash-separated numbers with leading zeros, digit and character readings,
// counts with their zero phrase, money with its minor part, the hours check
// of the clock slots and the day/month checks of dates. Each language brings
// its tables, its own number speller and its named differences.
//
// Every word carries its own blanks ("nol ", " zhoq"): the readings are
// appended as they stand, and consumers split at spaces.
#pragma once

#include <array>
#include <span>
#include <string>

#include "grammar/helpers.h"

namespace vela::centralasian {

// A table row: the key written after a number (or a symbol) and its word.
struct KeyWord {
  const char* key;
  const char* word;
};

// Words of a quoted span of time ("1:30").
struct DurationWords {
  const char* zeroHours;    // hours of 0, instead of a number
  const char* hoursWord;    // after the hours
  const char* zeroMinutes;  // minutes of 0, instead of a number
  const char* minutesWord;  // closes the span
};

// Words that close the two clock-time readings.
struct ClockWords {
  const char* minutesEnd;     // hours:minutes ends with it
  const char* beforeSeconds;  // hours:minutes:seconds: after the minutes
  const char* secondsEnd;     // and after the seconds
};

// Words of counts and amounts of money.
struct AmountWords {
  const char* zeroTimeUnit;  // before the word of a zero count of h, min, sec
  const char* absence;       // after the word of any other zero count
  const char* zeroAmount;    // a zero amount of money, before the currency word
  bool glideBeforeMinor;     // the currency word takes the "and" connective before the minor part
};

// Everything that makes one language of the family, besides its speller.
struct FamilyTables {
  std::span<const KeyWord> units;          // key -> unit or currency word; first match wins
  std::span<const KeyWord> currencies;     // key -> minor-unit word; a key here is a currency
  std::span<const KeyWord> symbols;        // the whole token, compared byte for byte
  std::array<const char*, 10> digitWords;  // digit strings and single characters
  // Each leading zero of a dash-separated piece; null: a plain number is read
  // digit by digit, like a quoted digit string.
  const char* leadingZero;
  // Slot 0 is spoken for month 0: it is not a month.
  std::array<const char*, 13> months;
  DurationWords duration;
  ClockWords clock;
  AmountWords amounts;
};

// The word of `key` in `table`, matched case-insensitively; null when absent.
const char* findWord(std::span<const KeyWord> table, const std::string& key);

// Looks the key up in the unit table; appends the word to `word` if found.
bool findUnitWord(const FamilyTables& tables, const std::string& key, std::string& word);

// The symbol word of a whole token, compared byte for byte; "" when unknown.
const char* findSymbol(const FamilyTables& tables, const std::string& token);

// `table[index]`, or "" when the index is outside the table or the cell is empty:
// no reading ever indexes outside its table.
template <std::size_t N>
const char* wordAt(const std::array<const char*, N>& table, int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= N || table[index] == nullptr) return "";
  return table[index];
}

// Notes the digits a speller leaves unsaid: it reads only the last twelve, so
// a non-zero digit above them is lost. Every speller calls it on its number.
void noteDigitsBeyondTwelve(const std::string& digits);

// The group of `digits` above a cut of trailing digits (9, 6, 3, 0).
DigitGroup groupOf(const std::string& digits, int cut);

// Whether any digit of the group's own three is non-zero (the milliards group
// too: only the last twelve digits of a number are read).
bool hasDigits(const DigitGroup& group);

// 11..19 as ten and a digit: tens 10, units teen - 10 (teen is kept).
void normaliseTeen(DigitGroup& group);

// The last two digits as one number 0..99 in tens, units the last digit (1
// for 11), hundreds as its digit.
void normaliseLastTwo(DigitGroup& group);

// A whole number read by a language's speller, for the shared algorithms.
using NumberSpeller = void (*)(const std::string& digits, std::string& out);

// Pieces separated by "-" (or the "." / "," of a bare fraction): each leading
// "0" says the zero word, the rest of the piece is read as one number (007 is
// zero, zero, seven; 32.1 is thirty-two, one).
void speakDashedNumber(const FamilyTables& tables, NumberSpeller speakNumber, const std::string& token,
                       std::string& out);

// One digit word and a blank per digit; any other character only the blank.
void speakDigits(const FamilyTables& tables, const std::string& text, std::string& out);

// A digit's word, or the symbol word of the whole token; nothing for "".
void speakCharacter(const FamilyTables& tables, const std::string& token, std::string& out);

// A count of a unit: the number and the word, or the zero phrase.
void speakCount(const FamilyTables& tables, NumberSpeller speakNumber, const std::string& digits,
                const std::string& unit, std::string& out);

// Money: major part and currency word, then the minor part ("5" is 50).
void speakMoney(const FamilyTables& tables, NumberSpeller speakNumber, const std::string& major,
                const std::string& minor, const std::string& unit, std::string& out);

// A quoted span: hours and minutes, a zero said by its own word.
void speakDuration(const FamilyTables& tables, NumberSpeller speakNumber, const std::string& hours,
                   const std::string& minutes, std::string& out);

// The minor part of an amount: one digit counts tens ("5" is "50"). A longer
// one is read whole, as that many minor units: the amount said then differs
// from the amount written, and the reading counts as partial.
std::string minorDigits(const std::string& minor);

// "y" onto a word ending in a vowel before the connective "u" or a suffix
// beginning with one (Tajik: si -> siyu, du -> duyum). Only the part of the
// text from `start` on counts: nothing there, no glide.
void appendGlide(std::string& text, std::size_t start = 0);

// Checks shared by the dates and clock times; each prints the family's
// diagnostic and returns false when the value is out of range. Month 0 is
// accepted, but its slot is no month: the reading counts as partial.
bool hoursAccepted(const std::string& hours, DigitGroup& group);
bool dayAccepted(const std::string& day, DigitGroup& group);
bool monthAccepted(const std::string& month, DigitGroup& group);

}  // namespace vela::centralasian
