#include "languages/centralasian/family.h"

#include "grammar/complaints.h"

namespace vela::centralasian {

const char* findWord(std::span<const KeyWord> table, const std::string& key) {
  for (const KeyWord& row : table)
    if (matchesWord(key, row.key)) return row.word;
  return nullptr;
}

bool findUnitWord(const FamilyTables& tables, const std::string& key, std::string& word) {
  const char* found = findWord(tables.units, key);
  if (found == nullptr) return false;
  word += found;
  return true;
}

const char* findSymbol(const FamilyTables& tables, const std::string& token) {
  for (const KeyWord& row : tables.symbols)
    if (token == row.key) return row.word;
  return "";
}

void noteDigitsBeyondTwelve(const std::string& digits) {
  if (digits.size() <= 12) return;
  if (digits.find_first_not_of('0') < digits.size() - 12) leaveUnsaid();
}

DigitGroup groupOf(const std::string& digits, int cut) {
  DigitGroup group;
  getDigitGroup(digits, &group, cut);
  return group;
}

bool hasDigits(const DigitGroup& group) {
  return group.hundreds != 0 || group.tens != 0 || group.teen != 0 || group.units != 0;
}

void normaliseTeen(DigitGroup& group) {
  if (group.teen == 0) return;
  group.tens = 10;
  group.units = group.teen - 10;
}

void normaliseLastTwo(DigitGroup& group) {
  if (group.teen != 0) {
    group.tens = group.teen;
    group.units = group.teen - 10;
  } else {
    group.tens += group.units;
  }
  group.hundreds /= 100;
}

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

void speakPiece(const FamilyTables& tables, NumberSpeller speakNumber, const std::string& piece,
                std::string& out) {
  for (char c : piece) {
    if (c != '0') {
      const std::size_t start = out.size();
      speakNumber(piece, out);  // leading zeros add nothing to the value
      // A number whose first word carries no blank (a Tajik hundreds word)
      // never fuses onto the zero or the piece before it.
      if (out.size() > start && out[start] != ' ' && start > 0 && out[start - 1] != ' ')
        out.insert(start, 1, ' ');
      return;
    }
    out += tables.leadingZero;
  }
}

// The time-unit keys are compared as written: a zero count of "H" takes the absence word.
bool isTimeUnit(const std::string& unit) { return unit == "h" || unit == "min" || unit == "sec"; }

}  // namespace

// A number with a fraction given bare ("32.1", "32,1", "32|1") is read as two
// numbers, like dash-separated ones: its separator is never taken for a digit.
constexpr const char* kPieceSeparators = "-.,|";

void speakDashedNumber(const FamilyTables& tables, NumberSpeller speakNumber, const std::string& token,
                       std::string& out) {
  std::size_t start = 0;
  for (;;) {
    const std::size_t dash = token.find_first_of(kPieceSeparators, start);
    speakPiece(tables, speakNumber, token.substr(start, dash - start), out);
    if (dash == std::string::npos) return;
    if (token[dash] != '-') leaveUnsaid();  // the decimal point has no word: the fraction is a second number
    start = dash + 1;
  }
}

void speakDigits(const FamilyTables& tables, const std::string& text, std::string& out) {
  for (char c : text) {
    if (isDigit(c))
      out += tables.digitWords[c - '0'];
    else if (c != '"' && c != '-')
      leaveUnsaid();  // "#", "*" and a decimal point have no word; quotes and dashes are not read
    out += " ";
  }
}

void speakCharacter(const FamilyTables& tables, const std::string& token, std::string& out) {
  if (token.empty()) return;
  if (isDigit(token[0])) {
    out += tables.digitWords[token[0] - '0'];
    return;
  }
  out += findSymbol(tables, token);
}

void speakCount(const FamilyTables& tables, NumberSpeller speakNumber, const std::string& digits,
                const std::string& unit, std::string& out) {
  std::string word;
  if (!findUnitWord(tables, unit, word)) {
    leaveUnsaid();  // a word not in the unit table: the count is not said
    return;
  }
  if (readInt(digits) != 0) {
    speakNumber(digits, out);
    out += " ";
    out += word;
  } else if (isTimeUnit(unit)) {
    out += tables.amounts.zeroTimeUnit;
    out += word;
  } else {
    out += word;
    out += tables.amounts.absence;
  }
}

std::string minorDigits(const std::string& minor) {
  if (minor.size() > 2) leaveUnsaid();
  return minor.size() == 1 ? minor + "0" : minor;
}

void speakMoney(const FamilyTables& tables, NumberSpeller speakNumber, const std::string& major,
                const std::string& minor, const std::string& unit, std::string& out) {
  std::string currency;
  if (!findUnitWord(tables, unit, currency)) return;
  const char* minorWord = findWord(tables.currencies, unit);
  const bool majorZero = readInt(major) == 0;
  const bool minorZero = readInt(minor) == 0;
  if (minorWord == nullptr && majorZero) {
    out += currency;
    out += tables.amounts.absence;
    return;
  }
  if (minorWord != nullptr && majorZero && minorZero) {
    out += tables.amounts.zeroAmount;
    out += currency;
    return;
  }
  // With a minor word and no major part, only the minor part is spoken.
  if (minorWord == nullptr || !majorZero) {
    speakNumber(major, out);
    out += " ";
    out += currency;
    if (minorZero) return;
    if (tables.amounts.glideBeforeMinor) {
      appendGlide(out);
      out += "u";
    }
  }
  out += " ";
  speakNumber(minorDigits(minor), out);
  out += " ";
  out += minorWord != nullptr ? minorWord : "";
}

void speakDuration(const FamilyTables& tables, NumberSpeller speakNumber, const std::string& hours,
                   const std::string& minutes, std::string& out) {
  const DurationWords& words = tables.duration;
  if (readInt(hours) == 0)
    out += words.zeroHours;
  else
    speakNumber(hours, out);
  out += words.hoursWord;
  if (readInt(minutes) == 0)
    out += words.zeroMinutes;
  else
    speakNumber(minutes, out);
  out += words.minutesWord;
}

void appendGlide(std::string& text, std::size_t start) {
  if (text.size() <= start) return;
  const char last = text.back();
  if (last == 'i' || last == 'a' || last == 'u' || last == 'e') text += "y";
}

bool hoursAccepted(const std::string& hours, DigitGroup& group) {
  getDigitGroup(hours, &group, 0);
  if (group.value < 25) return true;
  complain("wrong time (hours) %s\r\n", hours.c_str());
  return false;
}

bool dayAccepted(const std::string& day, DigitGroup& group) {
  getDigitGroup(day, &group, 0);
  if (group.value < 32) return true;
  complain(" incorrect day %d \r\n", group.value);
  return false;
}

bool monthAccepted(const std::string& month, DigitGroup& group) {
  getDigitGroup(month, &group, 0);
  if (group.value == 0) leaveUnsaid();  // month 0: its slot says nothing or a stand-in word
  if (group.value < 13) return true;
  complain(" incorrect month %d \r\n", group.value);
  return false;
}

}  // namespace vela::centralasian
