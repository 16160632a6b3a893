#include "tools/inventory.h"

#include <fcntl.h>
#include <unistd.h>

#include <boost/shared_ptr.hpp>
#include <cstdio>
#include <map>

#include "analysis/rules.h"
#include "grammar/factory.h"
#include "grammar/helpers.h"
#include "pipeline/text_decoder.h"
#include "tools/inventory_inputs.h"

namespace vela::tools {
namespace {

using Grammar = boost::shared_ptr<IGrammar>;

// Whether the rule runner replaces `text` (already trimmed) by prompt names:
// the same test as the runner's, a rule that takes the whole text.
bool someRuleTakes(const std::string& text) {
  if (text.find(".wav") != std::string::npos) return false;
  return rulesTakingWholeText(text) != 0;
}

// Whether the classifier gives `token` to the number reading: "1.5" is a
// date (day.month), "1,5" and "1.50" are numbers.
bool takenAsNumber(const std::string& token) {
  if (token.find('.') == std::string::npos || token.size() > 5) return true;
  TokenMatch match;
  const int rule = classifyToken(token, 0, match);
  return rule >= 0 && decodeRules[rule].handler == &TextDecoder::onNumber;
}

// The grammar of (tag, mode), held without owning it: grammars live as long as
// the library.
Grammar grammarOf(const std::string& tag, unsigned char mode, std::string& error) {
  return Grammar(&grammarFor(tag, mode, error), [](IGrammar*) {});
}

std::optional<std::string> speakText(const Grammar& grammar, const std::string& text) {
  TextDecoder decoder(*grammar, text);
  if (!someRuleTakes(decoder.text)) return std::nullopt;
  runRules(decoder);
  return decoder.output;
}

// Calls the grammar the way the token handlers do, without the classifier:
// fast enough to try hundreds of thousands of inputs.
class SlotCaller {
 public:
  explicit SlotCaller(Grammar grammar) : grammar_(std::move(grammar)) {}

  // "12.50руб", or "-12.50руб" when negative.
  std::string amount(const std::string& intDigits, const std::string& fracDigits, const std::string& unit,
                     bool negative) const {
    DigitList intList;
    DigitList fracList;
    splitDigitGroups(intDigits, intList);
    splitDigitGroups(fracDigits, fracList);
    std::string out;
    if (negative) {
      grammar_->speakAmount(intList, fracList, intDigits, fracDigits, unit, out);
      std::string minus;
      grammar_->appendMinus(minus);
      return minus + out;
    }
    if (!grammar_->speakSpecialAmount(intDigits, unit, out))
      grammar_->speakAmount(intList, fracList, intDigits, fracDigits, unit, out);
    return out;
  }
  std::string number(const std::string& token) const {
    std::string out;
    grammar_->speakNumber(DigitList{token}, out);
    return out;
  }
  // `keys` without its quotes.
  std::string digitString(const std::string& keys) const {
    std::string out;
    grammar_->speakDigitString(DigitList{'"' + keys + '"'}, out);
    return out;
  }
  std::string date(const DateInput& d) const {
    std::string out;
    const std::string century = d.marked ? "I" : d.year.substr(0, 2);
    grammar_->speakDate(d.day, d.month, d.year, century, d.year.size() > 2 ? d.year.substr(2) : "", out);
    return out;
  }
  std::string clock(const TimeInput& t) const {
    std::string out;
    if (t.seconds.empty()) {
      grammar_->speakClockTime(t.hours, t.minutes, out);
    } else {
      grammar_->speakClockTimeWithSeconds(t.hours, t.minutes, t.seconds, out);
    }
    return out;
  }
  std::string duration(const TimeInput& t) const {
    std::string out;
    if (t.seconds.empty()) {
      grammar_->speakDuration(t.hours, t.minutes, out);
    } else {
      grammar_->speakDurationWithSeconds(t.hours, t.minutes, t.seconds, out);
    }
    return out;
  }

 private:
  Grammar grammar_;
};

// Everything a grammar says for the probe amounts, in one string: two words
// with the same signature read alike.
std::string signature(const SlotCaller& slots, const std::string& unit) {
  std::string all;
  for (const AmountInput& a : probeAmounts()) {
    all += slots.amount(a.intDigits, a.fracDigits, unit, a.negative);
    all += '\n';
  }
  return all;
}

// A word no grammar table can hold (cells are at most 31 bytes): what the
// grammar says for a word it does not know.
const std::string& unknownWord() {
  static const std::string word(40, 'q');
  return word;
}

std::string upper(const std::string& word) {
  std::string s = word;
  for (char& c : s) {
    const auto b = static_cast<unsigned char>(c);
    if ((b >= 'a' && b <= 'z') || b >= 0xE0) c = static_cast<char>(b - 0x20);
  }
  return s;
}

std::string lower(const std::string& word) {
  std::string s = word;
  for (char& c : s) c = static_cast<char>(lowerCp1251(static_cast<unsigned char>(c)));
  return s;
}

// Keeps one word per signature, other than the unknown word's.
class WordSorter {
 public:
  explicit WordSorter(const SlotCaller& slots) : slots_(slots), unknown_(signature(slots, unknownWord())) {}

  void offer(const std::string& word) {
    if (word.empty() || tried_.count(word) != 0) return;
    tried_.insert(word);
    std::string sig = signature(slots_, word);
    if (sig != unknown_) bySignature_.emplace(std::move(sig), word);
  }
  std::vector<std::string> words() const {
    std::vector<std::string> found;
    for (const auto& [sig, word] : bySignature_) found.push_back(word);
    return found;
  }

 private:
  const SlotCaller& slots_;
  std::string unknown_;
  std::set<std::string> tried_;
  std::map<std::string, std::string> bySignature_;  // the first word offered with a signature
};

}  // namespace

QuietGrammars::QuietGrammars() {
  std::fflush(stdout);
  saved_ = dup(STDOUT_FILENO);
  const int null = open("/dev/null", O_WRONLY);
  if (null >= 0) {
    dup2(null, STDOUT_FILENO);
    close(null);
  }
}

QuietGrammars::~QuietGrammars() {
  std::fflush(stdout);
  if (saved_ >= 0) {
    dup2(saved_, STDOUT_FILENO);
    close(saved_);
  }
}

void splitNames(const std::string& names, std::vector<std::string>& into) {
  std::size_t pos = 0;
  while (pos < names.size()) {
    std::size_t space = names.find(' ', pos);
    if (space == std::string::npos) space = names.size();
    if (space > pos) into.emplace_back(names, pos, space - pos);
    pos = space + 1;
  }
}

std::vector<std::string> findUnitWords(const std::string& tag, unsigned char mode) {
  std::string error;
  std::vector<std::string> listed;
  listUnitKeys(tag, mode, listed);
  return findUnitWords(grammarOf(tag, mode, error), listed);
}

std::vector<std::string> findUnitWords(const boost::shared_ptr<IGrammar>& grammar,
                                       const std::vector<std::string>& listed) {
  const QuietGrammars quiet;
  const SlotCaller slots(grammar);
  WordSorter sorter(slots);
  // Matching is mostly case-blind, but a grammar may compare a word exactly.
  for (const std::string& word : listed) {
    if (word.empty()) continue;
    const std::string small = lower(word);
    sorter.offer(word);
    sorter.offer(small);
    sorter.offer(upper(word));
    sorter.offer(upper(small.substr(0, 1)) + small.substr(1));
  }
  return sorter.words();
}

std::optional<std::vector<std::string>> speakNames(const std::string& tag, unsigned char mode,
                                                   const std::string& text) {
  std::string error;
  const std::optional<std::string> spoken = speakText(grammarOf(tag, mode, error), text);
  if (!spoken) return std::nullopt;
  std::vector<std::string> names;
  splitNames(*spoken, names);
  return names;
}

std::set<std::string> promptInventory(const std::string& tag, unsigned char mode) {
  std::string error;
  std::vector<std::string> listed;
  listUnitKeys(tag, mode, listed);
  return promptInventory(grammarOf(tag, mode, error), listed);
}

std::set<std::string> promptInventory(const boost::shared_ptr<IGrammar>& grammar,
                                      const std::vector<std::string>& listed) {
  const QuietGrammars quiet;
  const SlotCaller slots(grammar);
  std::set<std::string> names;
  std::vector<std::string> pieces;
  const auto add = [&](const std::string& out) {
    pieces.clear();
    splitNames(out, pieces);
    names.insert(pieces.begin(), pieces.end());
  };

  std::vector<std::string> units = findUnitWords(grammar, listed);
  units.push_back(unknownWord());
  for (const std::string& unit : units) {
    for (const AmountInput& a : amountInputs())
      add(slots.amount(a.intDigits, a.fracDigits, unit, a.negative));
  }
  for (const std::string& token : numberTokens()) {
    if (takenAsNumber(token)) add(slots.number(token));
  }
  for (const std::string& keys : keypadStrings()) add(slots.digitString(keys));
  for (const DateInput& d : dateInputs()) add(slots.date(d));
  for (const TimeInput& t : clockInputs()) add(slots.clock(t));
  for (const TimeInput& t : durationInputs()) add(slots.duration(t));
  // Single bytes go through the classifier: which of them are characters is its business.
  for (int byte = 1; byte < 256; ++byte) {
    if (const auto out = speakText(grammar, std::string(1, static_cast<char>(byte)))) add(*out);
  }
  return names;
}

namespace {

// A marked date is written with "(I)" after it: 1.05(I).
std::string dateText(const DateInput& d) {
  return d.day + "." + d.month + (d.year.empty() ? "" : "." + d.year) + (d.marked ? "(I)" : "");
}

std::string timeText(const TimeInput& t) {
  return t.hours + ":" + t.minutes + (t.seconds.empty() ? "" : ":" + t.seconds);
}

}  // namespace

void forEachReading(const std::string& tag, unsigned char mode,
                    const std::function<void(const std::string& text, const std::string& answer)>& visit) {
  std::string error;
  const Grammar grammar = grammarOf(tag, mode, error);
  std::vector<std::string> listed;
  listUnitKeys(tag, mode, listed);
  const std::vector<std::string> units = findUnitWords(grammar, listed);
  const QuietGrammars quiet;
  const SlotCaller slots(grammar);
  for (int byte = 1; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    if (const auto out = speakText(grammar, text)) visit(text, *out);
  }
  for (const std::string& token : numberTokens()) {
    if (takenAsNumber(token)) visit(token, slots.number(token));
  }
  for (const std::string& unit : units) {
    for (const AmountInput& a : amountInputs()) {
      const std::string text =
          (a.negative ? "-" : "") + a.intDigits + (a.fracDigits.empty() ? "" : "." + a.fracDigits) + unit;
      visit(text, slots.amount(a.intDigits, a.fracDigits, unit, a.negative));
    }
  }
  for (const DateInput& d : dateInputs()) visit(dateText(d), slots.date(d));
  for (const TimeInput& t : clockInputs()) visit(timeText(t), slots.clock(t));
  for (const TimeInput& t : durationInputs()) visit('"' + timeText(t) + '"', slots.duration(t));
  for (const std::string& keys : keypadStrings()) visit('"' + keys + '"', slots.digitString(keys));
}

}  // namespace vela::tools
