#include "analysis/classifier.h"

namespace vela {
namespace {

// Byte classes, fixed whatever locale the host has set. Letters of a unit word
// are a-z, A-Z and the Windows-1251 letters А-я (C0-FF); ё and Ё (B8, A8) are
// not among them. Printable is 20-7E: no byte above 7F is.
constexpr bool isDigit(unsigned char c) { return static_cast<unsigned>(c - '0') < 10u; }
constexpr bool isLetter(unsigned char c) {
  return c >= 0xC0 || static_cast<unsigned>((c | 0x20) - 'a') < 26u;
}
constexpr bool isSeparator(unsigned char c) { return c == '.' || c == '|' || c == ','; }
constexpr bool isKey(unsigned char c) { return isDigit(c) || c == '#' || c == '*'; }
constexpr bool isPrintable(unsigned char c) { return c >= 0x20 && c < 0x7F; }

constexpr std::uint32_t bit(TokenRule rule) { return std::uint32_t{1} << rule; }

// A cursor that only moves forward over the text.
class Cursor {
 public:
  explicit Cursor(std::string_view text) : text_(text) {}

  bool atEnd() const { return pos_ == text_.size(); }
  unsigned char peek() const { return atEnd() ? 0 : static_cast<unsigned char>(text_[pos_]); }
  // Whether the byte under the cursor is `c`; steps over it if so.
  bool take(char c) {
    if (atEnd() || text_[pos_] != c) return false;
    ++pos_;
    return true;
  }
  // Steps over the run of bytes in the class and returns it.
  template <class Class>
  std::string_view run(Class inClass) {
    const std::size_t start = pos_;
    while (pos_ < text_.size() && inClass(static_cast<unsigned char>(text_[pos_]))) ++pos_;
    return text_.substr(start, pos_ - start);
  }
  // Whether the rest of the text is exactly `tail`.
  bool restIs(std::string_view tail) const { return text_.substr(pos_) == tail; }
  std::string_view rest() const { return text_.substr(pos_); }

 private:
  std::string_view text_;
  std::size_t pos_ = 0;
};

// Where the groups lie; what each span means depends on the rule (see groupsOf).
struct Scan {
  std::uint32_t rules = 0;
  std::string_view first, second, third;
};

// Day 1-31: one digit 1-9, or two digits 01-31.
bool isDay(std::string_view d) {
  if (d.size() == 1) return d[0] != '0';
  if (d.size() != 2) return false;
  if (d[0] == '3') return d[1] <= '1';
  return d[0] <= '2' && d != "00";
}

// Month 1-12: one digit 1-9, or two digits 00-09 or 10-12 ("00" passes).
bool isMonth(std::string_view m) {
  if (m.size() == 1) return m[0] != '0';
  if (m.size() != 2) return false;
  return m[0] == '0' || (m[0] == '1' && m[1] <= '2');
}

// Years 1900-2099 only.
bool isYear(std::string_view y) { return y.size() == 4 && (y.starts_with("19") || y.starts_with("20")); }

// -12,5rub and -,5rub: a minus, digits, an optional separator, digits, a unit.
void scanNegative(Cursor& at, Scan& scan) {
  scan.first = at.run(isDigit);
  const bool separated = isSeparator(at.peek());
  if (separated) at.take(static_cast<char>(at.peek()));
  scan.second = at.run(isDigit);
  scan.third = at.run(isLetter);
  if (!at.atEnd() || scan.third.empty()) return;
  if (!scan.first.empty()) scan.rules |= bit(kNegativeAmount);
  if (separated && !scan.second.empty()) scan.rules |= bit(kNegativeFraction);
}

// "12#*", "125:30" and "1:02:03": a quoted digit string or span.
void scanQuoted(Cursor& at, Scan& scan) {
  const std::string_view hours = at.run(isDigit);
  const std::string_view keys = at.run(isKey);  // the keys after the leading digits
  if (keys.empty() && !hours.empty() && at.take(':')) {
    scan.first = hours;
    scan.second = at.run(isDigit);
    if (scan.second.size() != 2) return;
    if (at.restIs("\"")) {
      scan.rules |= bit(kDuration);
    } else if (at.take(':')) {
      scan.third = at.run(isDigit);
      if (scan.third.size() == 2 && at.restIs("\"")) scan.rules |= bit(kDurationWithSeconds);
    }
    return;
  }
  const std::size_t length = hours.size() + keys.size();
  if (length == 0 || !at.restIs("\"")) return;
  scan.first = std::string_view(hours.data(), length);
  scan.rules |= bit(kDigitString) | bit(kDialString);
}

// What may follow "day.month": the end, ".year", "(I)" or ".year(I)".
void scanDateTail(Cursor& at, Scan& scan) {
  if (!isDay(scan.first) || !isMonth(scan.second)) return;
  if (at.atEnd()) {
    scan.rules |= bit(kDayMonth);
  } else if (at.restIs("(I)")) {
    scan.rules |= bit(kMarkedDayMonth);
  } else if (at.take('.')) {
    scan.third = at.run(isDigit);
    if (!isYear(scan.third)) return;
    if (at.atEnd()) scan.rules |= bit(kDate);
    if (at.restIs("(I)")) scan.rules |= bit(kMarkedDate);
  }
}

// 5,5rub, ,25kb, 1,5, 1.05, 1.05.2015(I): digits and a separator, then more.
void scanAfterSeparator(Cursor& at, Scan& scan, char separator) {
  scan.second = at.run(isDigit);
  if (at.atEnd()) {
    if (!scan.first.empty() && !scan.second.empty()) scan.rules |= bit(kFractionNumber);
  } else if (isLetter(at.peek())) {
    scan.third = at.run(isLetter);
    if (!at.atEnd()) return;
    if (!scan.first.empty()) scan.rules |= bit(kAmount);
    if (!scan.second.empty()) scan.rules |= bit(kFractionAmount);
    return;
  }
  if (separator == '.') scanDateTail(at, scan);
}

// 0-05-120: at least one dash, each followed by digits.
void scanDashed(Cursor& at, Scan& scan) {
  while (at.take('-')) {
    const std::string_view digits = at.run(isDigit);
    if (digits.empty()) return;
    scan.first = std::string_view(digits.data() - 1, digits.size() + 1);  // the last "-digits"
  }
  if (at.atEnd()) scan.rules |= bit(kDashedNumber);
}

// 7:05 and 7:05:09.
void scanClock(Cursor& at, Scan& scan) {
  if (scan.first.size() > 2) return;
  at.take(':');
  scan.second = at.run(isDigit);
  if (scan.second.size() != 2) return;
  if (at.atEnd()) {
    scan.rules |= bit(kClockTime);
  } else if (at.take(':')) {
    scan.third = at.run(isDigit);
    if (scan.third.size() == 2 && at.atEnd()) scan.rules |= bit(kClockTimeWithSeconds);
  }
}

// A text that starts with a digit or a separator.
void scanNumeric(Cursor& at, Scan& scan) {
  scan.first = at.run(isDigit);
  const unsigned char next = at.peek();
  if (at.atEnd()) {
    scan.rules |= bit(kNumber);
  } else if (isSeparator(next)) {
    at.take(static_cast<char>(next));
    scanAfterSeparator(at, scan, static_cast<char>(next));
  } else if (scan.first.empty()) {
    return;
  } else if (isLetter(next)) {
    scan.third = at.run(isLetter);
    if (at.atEnd()) scan.rules |= bit(kAmount);
  } else if (next == '-') {
    scanDashed(at, scan);
  } else if (next == ':') {
    scanClock(at, scan);
  }
}

Scan scanText(std::string_view text) {
  Scan scan;
  if (text.empty()) return scan;
  if (text.size() == 1 && isPrintable(static_cast<unsigned char>(text[0]))) scan.rules |= bit(kCharacter);
  Cursor at(text);
  if (at.take('-')) {
    scanNegative(at, scan);
  } else if (at.take('"')) {
    scanQuoted(at, scan);
  } else if (isDigit(at.peek()) || isSeparator(at.peek())) {
    scanNumeric(at, scan);
  }
  return scan;
}

// The groups of `rule`, which took the whole of `text` in `scan`.
void groupsOf(int rule, std::string_view text, const Scan& scan, TokenMatch& match) {
  match = TokenMatch{};
  match.rule = rule;
  match.group[0] = text;
  switch (rule) {
    case kDate:
    case kMarkedDate:
      match.group[4] = scan.third.substr(0, 2);
      match.group[5] = scan.third.substr(2, 2);
      [[fallthrough]];
    case kNegativeAmount:
    case kNegativeFraction:
    case kAmount:
    case kFractionAmount:
    case kClockTimeWithSeconds:
    case kDurationWithSeconds:
      match.group[3] = scan.third;
      [[fallthrough]];
    case kDayMonth:
    case kMarkedDayMonth:
    case kDuration:
    case kClockTime:
      match.group[2] = scan.second;
      [[fallthrough]];
    case kDashedNumber:
    case kDigitString:
    case kDialString:
      match.group[1] = scan.first;
      break;
    case kNumber:
    case kCharacter:
      match.group[1] = text;
      break;
    case kFractionNumber:
      match.group[1] = scan.first;
      match.group[2] = text.substr(scan.first.size());
      break;
    default:
      break;
  }
}

}  // namespace

std::uint32_t rulesTakingWholeText(std::string_view text) { return scanText(text).rules; }

int classifyToken(std::string_view text, int firstRule, TokenMatch& match) {
  if (firstRule < 0) firstRule = 0;
  const Scan scan = firstRule < kTokenRuleCount ? scanText(text) : Scan{};
  const std::uint32_t candidates = scan.rules & (~std::uint32_t{0} << (firstRule & 31));
  if (candidates == 0) {
    match = TokenMatch{};
    return -1;
  }
  const int rule = __builtin_ctz(candidates);
  groupsOf(rule, text, scan, match);
  return rule;
}

}  // namespace vela
