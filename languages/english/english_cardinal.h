// English cardinal numbers: the phrases of a number, the words they speak and
// how words are joined into the output.
#pragma once

#include <boost/container/small_vector.hpp>
#include <string>
#include <string_view>

#include "grammar/igrammar.h"
#include "languages/english/english_words.h"

namespace vela::english {

// The words of one reading; held on the stack up to the size of any amount
// (a request allocates nothing for them).
// Views of table words (or of a string the caller keeps alive while the list is used).
using WordList = boost::container::small_vector<std::string_view, 24>;

// One group of three digits as it is spoken: the hundreds, "and" when anything
// was said before the tens and units ("one hundred and five", "one thousand
// and five"), the tens or teen, the units, then the record after the group.
struct GroupPhrase {
  const char* hundredsWord = nullptr;
  bool andBeforeTens = false;
  const char* tensWord = nullptr;  // a tens word, or the teen word for 11-19
  const char* unitsWord = nullptr;
  // The scale word of the group, or what a caller puts after the whole number
  // (a unit, a currency, the conjunction).
  const UnitRecord* record = nullptr;
};

struct CardinalBuilder {
  bool isOne = false;  // the number is exactly 1: records speak their singular form
  // Most significant group first; empty when the number is zero. Otherwise the
  // last phrase is always the units group, even when its digits are all zero,
  // so a caller can put the unit word after the number there.
  boost::container::small_vector<GroupPhrase, 5> phrases;
};

// The phrases of a number given as digits, least significant first, one digit
// per element; an element that is not a digit 0-9 counts as 0. Groups above the
// thousands all take the scale word "million": 10^9 is "one million".
CardinalBuilder buildCardinal(const DigitList& digits);

// Appends the words of the builder's phrases, in order, to `words`.
void emitPhrases(const CardinalBuilder& builder, WordList& words);

// Appends `words` to `out`, with one space before a word only when both `out`
// and the word are non-empty: empty words leave no trace.
void joinWords(const WordList& words, std::string& out);

// "first" ... "thirty first" for a day 1-31; an empty word for any other day
// or for a text that is not a number.
std::string dayOrdinal(const std::string& day);

}  // namespace vela::english
