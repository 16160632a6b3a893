// Arabic dates, clock times and durations.
#include <string>

#include "grammar/complaints.h"
#include "grammar/helpers.h"
#include "languages/arabic/arab_grammar.h"
#include "languages/arabic/arab_number.h"

namespace vela {

using arabic::ArabicCase;
using arabic::speakArabicNumber;

namespace {

// The value of the last three digits of a date part.
int lastGroupValue(const std::string& text) {
  DigitGroup group;
  getDigitGroup(text, &group, 0);
  return group.hundreds + group.tens + group.teen + group.units;
}

// A count of minutes after or before the hour, with its noun (" daqiiqa waahida",
// " thalaath  daqaa^iq").
void speakMinutesCount(int count, std::string& out) {
  DigitGroup group;
  getDigitGroup(std::to_string(count), &group, 0);
  arabic::speakArabicGroup(group, false, arabic::kFeminine, ArabicCase::kNominative, "min", out);
}

// The minutes of a clock time: past the hour up to 39 (by the quarter, the
// third and the half), to the next hour from 40 on.
void speakClockMinutes(int m, std::string& out) {
  if (m == 0) return;
  if (m >= 40) {
    out += arabic::kTo;
    if (m == 40)
      out += arabic::kThirdTo;
    else if (m == 45)
      out += arabic::kQuarterTo;
    else
      speakMinutesCount(60 - m, out);
    return;
  }
  out += arabic::kAnd;
  if (m == 15) {
    out += arabic::kQuarterPast;
  } else if (m == 20) {
    out += arabic::kThirdPast;
  } else if (m >= 25 && m <= 29) {
    out += arabic::kHalf;
    out += arabic::kTo;
    speakMinutesCount(30 - m, out);
  } else if (m == 30) {
    out += arabic::kHalf;
  } else if (m > 30) {
    out += arabic::kHalf;
    out += arabic::kAnd;
    speakMinutesCount(m - 30, out);
  } else {
    speakMinutesCount(m, out);
  }
}

// The period of the day said after a clock time, by the hour told (0-23).
const char* periodOfDay(int h) {
  if (h == 0) return arabic::kAtMidnight;
  if (h == 12) return arabic::kAtNoon;
  if (h <= 4) return arabic::kAfterMidnight;
  if (h <= 11) return arabic::kMorning;
  if (h <= 16) return arabic::kAfternoon;
  return arabic::kEvening;
}

// The hour as a feminine ordinal; midnight and noon are both "the twelfth".
const char* hourWord(int h) {
  if (h == 0 || h == 12) return arabic::kOrdinals[12].feminine;
  return arabic::kOrdinals[h % 12].feminine;
}

void speakSpan(const std::string& text, const char* unitCode, std::string& out) {
  speakArabicNumber(text, false, arabic::unitGender(unitCode), ArabicCase::kNominative, unitCode, out);
}

}  // namespace

// "<day ordinal> min <month> ^aam <year>": the day is a masculine ordinal in
// the oblique case, the year a feminine cardinal in the oblique case. A day
// above 31 says nothing; a month above 12 keeps the day and " min".
int ArabGrammar::speakDate(const std::string& day, const std::string& month, const std::string& year,
                           const std::string&, const std::string&, std::string& out) {
  const int dayValue = lastGroupValue(day);
  if (dayValue >= 32) {
    complain(" incorrect day %d \r\n", dayValue);
    return 0;
  }
  speakArabicNumber(day, true, arabic::kMasculine, ArabicCase::kOblique, "", out);
  out += arabic::kOf;
  const int monthValue = lastGroupValue(month);
  if (monthValue >= 13) {
    complain(" incorrect month %d \r\n", monthValue);
    return 0;
  }
  if (monthValue == 0) leaveUnsaid();  // month 0 is no month: its slot is a stand-in word
  out += arabic::kMonths[monthValue];
  out += arabic::kYear;
  speakArabicNumber(year, false, arabic::kFeminine, ArabicCase::kOblique, "", out);
  return 0;
}

// " ^assaaca <hour> <minutes> <period>". Above 40 minutes the time is told to
// the next hour; at exactly 40 it is still the current hour " ^illaa thulth".
// 24 is accepted and said as midnight; a negative part is rejected like one
// out of range.
void ArabGrammar::speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) {
  int h = readInt(hours);
  const int m = readInt(minutes);
  if (h < 0 || h > 24) {
    complain("wrong time (hours) %s\r\n", hours.c_str());
    return;
  }
  if (m < 0 || m > 59) {
    complain("wrong time (minutes) %s\r\n", minutes.c_str());
    return;
  }
  out += arabic::kTheHour;
  if (m > 40) ++h;
  h %= 24;
  out += hourWord(h);
  speakClockMinutes(m, out);
  out += periodOfDay(h);
}

// "<hours> <minutes>" with their nouns and no " wa" between; a zero part is
// left out, and a span of nothing at all is " muntasafi_llayl".
void ArabGrammar::speakDuration(const std::string& hours, const std::string& minutes, std::string& out) {
  const bool hasMinutes = arabic::arabicNumberValue(minutes) != 0;
  if (arabic::arabicNumberValue(hours) != 0) {
    speakSpan(hours, "h", out);
    if (!hasMinutes) return;
  } else if (!hasMinutes) {
    out += arabic::kMidnightDuration;
    return;
  }
  speakSpan(minutes, "min", out);
}

void ArabGrammar::speakDurationWithSeconds(const std::string& hours, const std::string& minutes,
                                           const std::string& seconds, std::string& out) {
  const bool hasHoursOrMinutes =
      arabic::arabicNumberValue(hours) != 0 || arabic::arabicNumberValue(minutes) != 0;
  const bool hasSeconds = arabic::arabicNumberValue(seconds) != 0;
  if (!hasHoursOrMinutes && !hasSeconds) {
    out += arabic::kMidnightDuration;
    return;
  }
  if (hasHoursOrMinutes) speakDuration(hours, minutes, out);
  if (hasSeconds) speakSpan(seconds, "sec", out);
}

}  // namespace vela
