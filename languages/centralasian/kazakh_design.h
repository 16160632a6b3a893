// The number speller and calendar of the Kazakh design, shared by Kazakh and
// Uzbek: cardinal or ordinal numbers in three-digit groups, where only the
// last spoken word takes the ordinal form (or, for a round number, the last
// scale word its ordinal suffix); dates as year, day, month.
#pragma once

#include <array>
#include <string>

#include "grammar/helpers.h"
#include "languages/centralasian/family.h"
#include "languages/centralasian/family_grammar.h"

namespace vela::centralasian {

// A scale word and the suffix that makes it ordinal when it ends a number.
struct ScaleWord {
  const char* word;
  const char* ordinalSuffix;
};

struct KazakhStyleNumbers {
  std::array<const char*, 10> ones;         // by digit
  std::array<const char*, 10> ordinalOnes;  // by digit
  std::array<const char*, 10> tens;         // by tens digit; row 0 is never read
  std::array<const char*, 10> ordinalTens;  // by tens digit; row 0 is never read
  const char* zero;                         // a group whose value is 0
  ScaleWord hundred;                        // 100 is the hundred word alone
  ScaleWord thousand;
  ScaleWord million;
  ScaleWord milliard;
};

struct KazakhStyleLanguage {
  const KazakhStyleNumbers* numbers;
  const FamilyTables* tables;
  const char* yearWord;    // after the ordinal year
  bool yearWordNeedsYear;  // a date written without a year says no year word either
  const char* hoursLead;   // before the hours of a clock time
  const char* hoursWord;   // after them
};

// One three-digit group; the ordinal form on its last word.
void speakKazakhGroup(const KazakhStyleNumbers& numbers, DigitGroup group, std::string& out, bool ordinal);

// A whole number up to milliards (its last twelve digits); all zeros say nothing.
void speakKazakhInteger(const KazakhStyleNumbers& numbers, const std::string& digits, std::string& out,
                        bool ordinal);

// Year (ordinal) and its word, ordinal day, month word; 1 when spoken, 0 when refused.
int speakKazakhDate(const KazakhStyleLanguage& language, const std::string& day, const std::string& month,
                    const std::string& year, std::string& out);

// Hours and minutes of a clock time, both as cardinal groups.
void speakKazakhHours(const KazakhStyleLanguage& language, const std::string& hours,
                      const std::string& minutes, std::string& out);

// A cardinal group, for the seconds of a clock time.
void speakKazakhClockGroup(const KazakhStyleLanguage& language, const std::string& digits, std::string& out);

}  // namespace vela::centralasian

namespace vela {

// The slots of a language built on the Kazakh design: T names its tables with
// `static const centralasian::KazakhStyleLanguage& language()`.
template <class T>
class KazakhDesignGrammar : public CentralAsianGrammar<T> {
 public:
  // Year, day, month.
  int speakDate(const std::string& day, const std::string& month, const std::string& year, const std::string&,
                const std::string&, std::string& out) override {
    return centralasian::speakKazakhDate(T::language(), day, month, year, out);
  }

  // A whole number, cardinal or ordinal (the ordinal mark on its last word).
  static void speakInteger(const std::string& digits, std::string& out, bool ordinal) {
    centralasian::speakKazakhInteger(*T::language().numbers, digits, out, ordinal);
  }

  static const centralasian::FamilyTables& tables() { return *T::language().tables; }
  static void speakCardinal(const std::string& digits, std::string& out) { speakInteger(digits, out, false); }
  static void speakHoursPhrase(const std::string& hours, const std::string& minutes, std::string& out) {
    centralasian::speakKazakhHours(T::language(), hours, minutes, out);
  }
  static void speakSeconds(const std::string& seconds, std::string& out) {
    centralasian::speakKazakhClockGroup(T::language(), seconds, out);
  }
};

}  // namespace vela
