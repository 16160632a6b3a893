// Arabic numbers and the nouns they count. The noun agrees with the count
// (singular, dual, plural), 3-10 take the form of the opposite gender to the
// noun, and the words of 2, 12 and the tens change with the case.
#pragma once

#include <string>
#include <string_view>

#include "grammar/helpers.h"
#include "languages/arabic/arab_words.h"

namespace vela::arabic {

enum class ArabicCase { kNominative = 0, kOblique = 1 };

// The record a noun token names: its code or its singular form (leading space
// included), compared byte for byte; the first record in table order wins.
const ArabicUnitRecord* findUnitRecord(std::string_view token);

// The gender of the record the token names, or kNoGender.
int unitGender(const std::string& token);

// The form of the token's noun after `count`: dual after 2 (" ^alfayn" for the
// thousand in the oblique case), plural after 3-10, singular otherwise; "" for
// a token that names no record.
const char* arabicNounForm(const std::string& token, long long count, ArabicCase grammaticalCase);

// Appends one group of three digits (its value is the sum of its parts, so a
// group cut from a longer number counts only its own digits) and, where the
// count calls for it, the token's noun. A gender other than kFeminine is
// spoken as masculine.
void speakArabicGroup(const DigitGroup& group, bool ordinal, int gender, ArabicCase grammaticalCase,
                      const std::string& token, std::string& result);

// Appends a whole number of up to twelve digits (a longer text speaks its last
// twelve) with its scale nouns and, after the last group, the token's noun.
void speakArabicNumber(const std::string& number, bool ordinal, int gender, ArabicCase grammaticalCase,
                       const std::string& token, std::string& result);

// The value of the last twelve characters of `number`, a non-digit counting as
// 0: the number speakArabicNumber speaks.
long long arabicNumberValue(std::string_view number);

}  // namespace vela::arabic
