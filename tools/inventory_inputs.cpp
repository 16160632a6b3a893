#include "tools/inventory_inputs.h"

#include <set>

namespace vela::tools {
namespace {

std::string pad(int value, std::size_t width) {
  std::string s = std::to_string(value);
  return std::string(width > s.size() ? width - s.size() : 0, '0') + s;
}

std::string repeat(const std::string& s, int times) {
  std::string r;
  for (int i = 0; i < times; ++i) r += s;
  return r;
}

// 0-9 and 00-99: every spelling of one or two digits.
std::vector<std::string> oneOrTwoDigits() {
  std::vector<std::string> all;
  all.reserve(110);
  for (int v = 0; v < 10; ++v) all.push_back(std::to_string(v));
  for (int v = 0; v < 100; ++v) all.push_back(pad(v, 2));
  return all;
}

// 00-99.
std::vector<std::string> twoDigits() {
  std::vector<std::string> all;
  all.reserve(100);
  for (int v = 0; v < 100; ++v) all.push_back(pad(v, 2));
  return all;
}

// Group values whose words a reader may treat specially: 0-30, the round
// tens, the round hundreds and each hundred with small and teen remainders.
std::vector<int> tellingGroupValues() {
  std::set<int> values;
  for (int v = 0; v <= 30; ++v) values.insert(v);
  for (int v = 40; v < 1000; v += 10) values.insert(v);
  for (int h = 100; h < 1000; h += 100) {
    for (int r : {1, 2, 3, 5, 11, 15, 21, 22, 25, 99}) values.insert(h + r);
  }
  values.insert(999);
  return {values.begin(), values.end()};
}

// `value` as the group `position` groups up (0: units, 1: thousands, ...),
// above lower groups all equal to `lower` ("000" or "001"), below `higher`.
std::string placed(int value, int position, const std::string& lower, const std::string& higher) {
  const std::string group = higher.empty() ? std::to_string(value) : pad(value, 3);
  return higher + group + repeat(lower, position);
}

// Numbers of any length past the twelve digits that are read.
std::vector<std::string> longNumbers() {
  std::vector<std::string> all;
  for (int length = 10; length <= 40; ++length) {
    all.push_back(std::string(static_cast<std::size_t>(length), '9'));
    all.push_back(std::string(static_cast<std::size_t>(length), '1'));
    all.push_back("1" + std::string(static_cast<std::size_t>(length - 1), '0'));
  }
  return all;
}

// Every bare number the inventory reads.
std::vector<std::string> bareNumbers() {
  std::set<std::string> all;
  for (int position = 0; position <= 4; ++position) {
    for (int value = 0; value < 1000; ++value) {
      for (const char* lower : {"000", "001"}) {
        for (const char* higher : {"", "1"}) all.insert(placed(value, position, lower, higher));
      }
    }
  }
  for (int value = 0; value < 1000; ++value) {
    all.insert("0" + std::to_string(value));
    all.insert("00" + std::to_string(value));
  }
  for (const std::string& n : longNumbers()) all.insert(n);
  return {all.begin(), all.end()};
}

// Every fraction of one to three digits, and longer ones.
std::vector<std::string> fractions(bool withThreeDigits) {
  std::vector<std::string> all = oneOrTwoDigits();
  if (withThreeDigits) {
    for (int v = 0; v < 1000; ++v) all.push_back(pad(v, 3));
  }
  for (int length = 4; length <= 12; ++length) {
    all.push_back(std::string(static_cast<std::size_t>(length), '5'));
    all.push_back("0" + std::string(static_cast<std::size_t>(length - 1), '1'));
    all.push_back(std::string(static_cast<std::size_t>(length), '0'));
  }
  return all;
}

const char* const kSmallWholes[] = {"0", "1", "2", "3", "5", "10", "11", "21", "22", "100", "1000", "2000"};
const char* const kFewWholes[] = {"0", "1", "2", "21"};

}  // namespace

const std::vector<AmountInput>& amountInputs() {
  static const std::vector<AmountInput> inputs = [] {
    std::vector<AmountInput> all;
    for (int value = 0; value < 1000; ++value) {
      all.push_back({std::to_string(value), "", false});
      all.push_back({std::to_string(value * 1000), "", false});
    }
    for (int value : tellingGroupValues()) {
      all.push_back({std::to_string(value * 1000 + 1), "", false});
      for (int position = 2; position <= 4; ++position) {
        for (const char* lower : {"000", "001"})
          all.push_back({placed(value, position, lower, ""), "", false});
      }
    }
    for (const std::string& n : longNumbers()) all.push_back({n, "", false});
    for (const std::string& f : fractions(false)) {
      all.push_back({"", f, false});
      for (const char* whole : kFewWholes) all.push_back({whole, f, false});
    }
    for (const std::string& f : fractions(true)) all.push_back({"1", f, false});
    for (const char* whole : kSmallWholes) {
      for (const char* f : {"", "0", "5", "05", "50", "567"}) all.push_back({whole, f, true});
    }
    for (const char* f : {"5", "05", "50"}) all.push_back({"", f, true});
    return all;
  }();
  return inputs;
}

const std::vector<AmountInput>& probeAmounts() {
  static const std::vector<AmountInput> inputs = [] {
    std::vector<AmountInput> all;
    for (const char* whole :
         {"0", "1", "2", "3", "5", "11", "21", "22", "100", "1000", "2000", "5000", "1000000"})
      all.push_back({whole, "", false});
    for (const char* whole : {"", "0", "1", "2"}) {
      for (const char* f : {"5", "05", "50", "567"}) all.push_back({whole, f, false});
    }
    for (const char* whole : {"0", "1", "2"}) all.push_back({whole, "", true});
    return all;
  }();
  return inputs;
}

const std::vector<AmountInput>& quickProbeAmounts() {
  static const std::vector<AmountInput> inputs = {{"1", "", false}, {"0", "", false},  {"2", "", false},
                                                  {"5", "", false}, {"1", "5", false}, {"0", "05", false}};
  return inputs;
}

const std::vector<std::string>& numberTokens() {
  static const std::vector<std::string> tokens = [] {
    std::vector<std::string> all = bareNumbers();
    for (int value = 0; value < 1000; ++value) {
      all.push_back(std::to_string(value) + "-5");
      all.push_back("5-" + std::to_string(value));
      all.push_back(pad(value, 3) + "-" + pad(value, 2));
    }
    for (const char* separator : {".", ",", "|"}) {
      for (int value = 0; value < 1000; ++value) {
        all.push_back(std::to_string(value) + separator + "5");
        all.push_back(std::to_string(value * 1000) + separator + "5");
      }
      for (const char* whole : kSmallWholes) {
        for (const std::string& f : fractions(false)) all.push_back(whole + (separator + f));
      }
      for (const char* whole : kFewWholes) {
        for (int value = 0; value < 1000; ++value) all.push_back(whole + (separator + pad(value, 3)));
      }
    }
    return all;
  }();
  return tokens;
}

const std::vector<std::string>& keypadStrings() {
  static const std::vector<std::string> strings = [] {
    const std::string keys = "0123456789#*";
    std::vector<std::string> all{""};
    std::vector<std::string> shorter{""};
    for (int length = 1; length <= 4; ++length) {
      std::vector<std::string> longer;
      for (const std::string& s : shorter) {
        for (char k : keys) longer.push_back(s + k);
      }
      all.insert(all.end(), longer.begin(), longer.end());
      shorter = std::move(longer);
    }
    all.erase(all.begin());
    for (char k : keys) {
      for (int run = 5; run <= 12; ++run) all.push_back(std::string(static_cast<std::size_t>(run), k));
    }
    return all;
  }();
  return strings;
}

const std::vector<DateInput>& dateInputs() {
  static const std::vector<DateInput> inputs = [] {
    // The spellings the date rules accept: day 1-9, 01-31; month 1-9, 00-12.
    std::vector<std::string> days;
    for (int d = 1; d <= 9; ++d) days.push_back(std::to_string(d));
    for (int d = 1; d <= 31; ++d) days.push_back(pad(d, 2));
    std::vector<std::string> months;
    for (int m = 1; m <= 9; ++m) months.push_back(std::to_string(m));
    for (int m = 0; m <= 12; ++m) months.push_back(pad(m, 2));
    std::vector<DateInput> all;
    for (bool marked : {false, true}) {
      for (const std::string& day : days) {
        for (const std::string& month : months) {
          for (const char* year : {"", "1999", "2000", "2015"}) all.push_back({day, month, year, marked});
        }
      }
      for (int year = 1900; year <= 2099; ++year) {
        for (const auto& [day, month] :
             {std::pair{"1", "1"}, {"01", "01"}, {"31", "12"}, {"5", "00"}, {"2", "3"}})
          all.push_back({day, month, std::to_string(year), marked});
      }
    }
    return all;
  }();
  return inputs;
}

const std::vector<TimeInput>& clockInputs() {
  static const std::vector<TimeInput> inputs = [] {
    std::vector<TimeInput> all;
    for (const std::string& h : oneOrTwoDigits()) {
      for (const std::string& m : twoDigits()) {
        all.push_back({h, m, ""});
        for (const char* s : {"00", "01"}) all.push_back({h, m, s});
      }
    }
    for (const char* h : {"0", "00", "1", "01", "12", "13", "23"}) {
      for (const char* m : {"00", "01", "30"}) {
        for (const std::string& s : twoDigits()) all.push_back({h, m, s});
      }
    }
    return all;
  }();
  return inputs;
}

const std::vector<TimeInput>& durationInputs() {
  static const std::vector<TimeInput> inputs = [] {
    std::vector<std::string> hours;
    for (int value = 0; value < 1000; ++value) {
      hours.push_back(std::to_string(value));
      hours.push_back(std::to_string(value * 1000));
    }
    for (const char* h : {"00", "01", "007", "1000001", "1000000000", "123456789012", "9999999999999"})
      hours.push_back(h);
    std::vector<TimeInput> all;
    for (const std::string& h : hours) {
      for (const char* m : {"00", "01", "05"}) {
        all.push_back({h, m, ""});
        for (const char* s : {"00", "01"}) all.push_back({h, m, s});
      }
    }
    for (const char* h : {"0", "1", "2", "5", "21", "100"}) {
      for (const std::string& m : twoDigits()) {
        all.push_back({h, m, ""});
        for (const char* s : {"00", "01"}) all.push_back({h, m, s});
        all.push_back({h, "00", m});
      }
    }
    return all;
  }();
  return inputs;
}

}  // namespace vela::tools
