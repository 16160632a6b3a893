#include "languages/centralasian/kazakh_design.h"

namespace vela::centralasian {
namespace {

// A scale word with nothing after it: its ordinal suffix fuses onto it.
void endOnScale(const KazakhStyleNumbers& numbers, const DigitGroup& units, const ScaleWord& scale,
                std::string& out) {
  if (hasDigits(units))
    speakKazakhGroup(numbers, units, out, true);
  else
    out += scale.ordinalSuffix;
}

}  // namespace

// 11..19 are said as ten and a digit ("on bes").
void speakKazakhGroup(const KazakhStyleNumbers& numbers, DigitGroup group, std::string& out, bool ordinal) {
  normaliseTeen(group);
  out += ' ';
  if (group.value == 0) out += numbers.zero;
  if (group.hundreds != 0) {
    if (group.hundreds > 100) out += wordAt(numbers.ones, group.hundreds / 100);
    out += numbers.hundred.word;
    if (ordinal && group.tens == 0 && group.units == 0) out += numbers.hundred.ordinalSuffix;
  }
  if (group.tens != 0) {
    out += " ";
    out += wordAt(ordinal && group.units == 0 ? numbers.ordinalTens : numbers.tens, group.tens / 10);
  }
  if (group.units != 0) {
    out += " ";
    out += wordAt(ordinal ? numbers.ordinalOnes : numbers.ones, group.units);
  }
}

// Only the last twelve digits are read: the milliards group counts its own
// three digits, never the value of everything above them.
// Higher groups are always cardinal; the ordinal mark goes on the units group
// or, when it is empty, on the last scale word. A cardinal keeps every group.
void speakKazakhInteger(const KazakhStyleNumbers& numbers, const std::string& digits, std::string& out,
                        bool ordinal) {
  noteDigitsBeyondTwelve(digits);
  const auto [g9, g6, g3, g0] = getDigitGroups(digits);
  const bool m = hasDigits(g6), t = hasDigits(g3), u = hasDigits(g0);

  bool thousandsNext = false;  // an ordinal milliard with thousands skips the millions
  if (hasDigits(g9)) {
    speakKazakhGroup(numbers, g9, out, false);
    out += numbers.milliard.word;
    if (ordinal && !m) {
      if (!t) return endOnScale(numbers, g0, numbers.milliard, out);
      thousandsNext = true;
    }
  }
  if (!thousandsNext && m) {
    speakKazakhGroup(numbers, g6, out, false);
    out += numbers.million.word;
    if (ordinal && !t) return endOnScale(numbers, g0, numbers.million, out);
  }
  if (!t) {
    if (u) speakKazakhGroup(numbers, g0, out, ordinal);
    return;
  }
  speakKazakhGroup(numbers, g3, out, false);
  out += numbers.thousand.word;
  if (ordinal)
    endOnScale(numbers, g0, numbers.thousand, out);
  else if (u)
    speakKazakhGroup(numbers, g0, out, false);
}

int speakKazakhDate(const KazakhStyleLanguage& language, const std::string& day, const std::string& month,
                    const std::string& year, std::string& out) {
  const std::size_t start = out.size();  // a rejected date leaves `out` as it was
  speakKazakhInteger(*language.numbers, year, out, true);
  if (!year.empty() || !language.yearWordNeedsYear) out += language.yearWord;
  DigitGroup group;
  if (!dayAccepted(day, group)) {
    out.resize(start);
    return 0;
  }
  out += " ";
  speakKazakhInteger(*language.numbers, day, out, true);
  if (!monthAccepted(month, group)) {
    out.resize(start);
    return 0;
  }
  out += " ";
  out += wordAt(language.tables->months, group.value);
  return 1;
}

void speakKazakhHours(const KazakhStyleLanguage& language, const std::string& hours,
                      const std::string& minutes, std::string& out) {
  out += language.hoursLead;
  speakKazakhClockGroup(language, hours, out);
  out += language.hoursWord;
  speakKazakhClockGroup(language, minutes, out);
}

void speakKazakhClockGroup(const KazakhStyleLanguage& language, const std::string& digits, std::string& out) {
  speakKazakhGroup(*language.numbers, groupOf(digits, 0), out, false);
}

}  // namespace vela::centralasian
