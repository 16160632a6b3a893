// Dates, clock times and spans of time of the Russian family. A date or time
// is appended word by word and cut back to where it began when a part of it
// turns out invalid: a rejected one leaves nothing in the output.

#include "grammar/complaints.h"
#include "languages/russian/family_speaker.h"

namespace vela {

// "первого января две тысячи пятого года"; with the marker "(I)" the day is
// nominative ("первое января"). Years 1000-2999 are spoken; a year below 1000
// (or none) gives the day and month only.
int FamilySpeaker::speakDate(const std::string& day, const std::string& month, const std::string& year,
                             const std::string& caseMarker, std::string& out) const {
  std::string& words = out;
  const std::size_t start = out.size();
  DigitGroup group;
  getDigitGroup(day, &group, 0);
  if (group.value > 31 || group.value < 0) {
    complain(" incorrect day %d \r\n", group.value);
    return 0;
  }
  if (lang_.hasDayCaseMarker && caseMarker == "I") {
    speak3(group, kNeuter, 0, 1, words);
  } else {
    speak3(group, kMasculine, 1, 1, words);
  }
  getDigitGroup(month, &group, 0);
  // Month 0 passes the date patterns but has no name: rejected like month 13.
  if (group.value > 12 || group.value < 1 || static_cast<std::size_t>(group.value) >= lang_.months.size()) {
    complain(" incorrect month %d \r\n", group.value);
    out.resize(start);
    return 0;
  }
  words += ' ';
  words += lang_.months[group.value];
  DigitGroup thousands;
  getDigitGroup(year, &thousands, 3);
  if (thousands.value == 0) return 1;
  if (thousands.value != 1 && thousands.value != 2) {
    complain(" incorrect year %d \r\n", thousands.value);
    out.resize(start);
    return 0;
  }
  if (year == "2000") {
    words += lang_.year2000;
  } else {
    // The space here and the one speak3 puts before its word leave two spaces
    // after the thousand word; consumers split at spaces and drop the empty piece.
    const UnitRow& thousandWords = lang_.units[lang_.thousandsRow];
    speak3(thousands, kFeminine, 0, 0, words);
    words += ' ';
    words += thousands.value == 1 ? thousandWords.form1 : thousandWords.form2;
    getDigitGroup(year, &group, 0);
    words += ' ';
    speak3(group, kMasculine, 1, 1, words);
  }
  words += lang_.yearWord;
  return 1;
}

void FamilySpeaker::speakTimePart(const DigitGroup& group, int gender, int row, std::string& words) const {
  speakUnitsGroup(group, gender, words);
  appendUnitForm(group, words, row, 2);
}

// "десять часов пять минут"; zero hours and minutes are spoken ("ноль часов
// ноль минут"), zero seconds are not. The messages quote the hours text.
void FamilySpeaker::speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                              const std::string& seconds, std::string& out) const {
  std::string& words = out;
  const std::size_t start = out.size();
  DigitGroup group;
  getDigitGroup(hours, &group, 0);
  if (group.value > 24) {
    complain("wrong time (hours) %s\r\n", hours.c_str());
    return;
  }
  speakTimePart(group, lang_.hoursGender, lang_.hoursRow, words);
  getDigitGroup(minutes, &group, 0);
  if (group.value > 60) {
    complain("wrong time (minutes) %s\r\n", hours.c_str());
    out.resize(start);
    return;
  }
  speakTimePart(group, kFeminine, lang_.minutesRow, words);
  getDigitGroup(seconds, &group, 0);
  if (!seconds.empty() && group.value != 0) {
    if (group.value > 60) {
      complain("wrong time (secundes) %s\r\n", hours.c_str());
      out.resize(start);
      return;
    }
    speakTimePart(group, kFeminine, lang_.secondsRow, words);
  }
}

void FamilySpeaker::speakClockTime(const std::string& hours, const std::string& minutes,
                                   std::string& out) const {
  speakClockTimeWithSeconds(hours, minutes, "0", out);
}

// A span of time counts like any unit: "1000 часов", "ноль часов".
void FamilySpeaker::speakDuration(const std::string& hours, const std::string& minutes,
                                  std::string& out) const {
  speakCount(hours, "h", out);
  speakCount(minutes, "min", out);
}

}  // namespace vela
