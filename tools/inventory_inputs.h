// The inputs the prompt inventory tries: together they reach every word a
// grammar reads by digit groups, by the digits of a date or a time, or by the
// keys of a keypad string. Each list is built once.
#pragma once

#include <string>
#include <vector>

namespace vela::tools {

struct AmountInput {
  std::string intDigits;
  std::string fracDigits;
  bool negative = false;
};

struct DateInput {
  std::string day;
  std::string month;
  std::string year;  // empty for day.month
  bool marked = false;
};

struct TimeInput {
  std::string hours;
  std::string minutes;
  std::string seconds;  // empty for hours:minutes
};

// Amounts tried with every unit word: every three-digit group in the units and
// thousands positions, the telling values in the higher ones, every one- and
// two-digit fraction and every three-digit one, negatives.
const std::vector<AmountInput>& amountInputs();
// Amounts whose readings tell two unit words apart.
const std::vector<AmountInput>& probeAmounts();
// A few of them, to drop a word that is plainly unknown.
const std::vector<AmountInput>& quickProbeAmounts();

// Bare numbers (every group value in every position, over zero and non-zero
// lower groups, leading zeros, long numbers), dash-separated numbers and
// numbers with a fraction, as the token reaches the grammar.
const std::vector<std::string>& numberTokens();
// Every keypad string of up to four keys, and runs of one key.
const std::vector<std::string>& keypadStrings();
// Every day and month spelling the date rules accept, marked and unmarked,
// without a year and with telling years; every year with telling days.
const std::vector<DateInput>& dateInputs();
// Every hours and minutes spelling of a clock time, with telling seconds;
// every seconds spelling with telling hours and minutes.
const std::vector<TimeInput>& clockInputs();
// Spans of time: hours of every group value, every minutes and seconds spelling.
const std::vector<TimeInput>& durationInputs();

}  // namespace vela::tools
