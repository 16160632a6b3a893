// A grammar that speaks nothing real: every operation records its name and
// arguments as "op(arg1|arg2|...)" and appends " op", so the classifier and the
// handlers can be tested without a language.
#pragma once

#include <string>
#include <vector>

#include "grammar/grammar_base.h"

namespace vela::testing {

using Args = std::vector<std::string>;

// "5,0,2,1" for the digit list {5,0,2,1}.
std::string joinList(const DigitList& list, const char* separator = ",");

class RecordingGrammar final : public GrammarBase<RecordingGrammar> {
 public:
  explicit RecordingGrammar(bool specialAmount = false) : special_(specialAmount) {}
  std::string calls() const { return joinList(calls_, ";"); }

  bool speakSpecialAmount(const std::string& digits, const std::string& unit, std::string& out) override {
    if (special_) record("special", {digits, unit}, out);
    return special_;
  }
  int speakDate(const std::string& d, const std::string& m, const std::string& y, const std::string& c,
                const std::string& t, std::string& out) override {
    record("date", {d, m, y, c, t}, out);
    return 0;
  }
  void speakNumber(const DigitList& tokens, std::string& out) override { record("number", tokens, out); }
  void speakDigitString(const DigitList& tokens, std::string& out) override { record("digits", tokens, out); }
  void speakDialString(const std::string& keys, std::string& out) override { record("dial", {keys}, out); }
  void speakCharacter(const std::string& c, std::string& out) override { record("char", {c}, out); }
  void speakClockTime(const std::string& h, const std::string& m, std::string& out) override {
    record("clock", {h, m}, out);
  }
  void speakDuration(const std::string& h, const std::string& m, std::string& out) override {
    record("span", {h, m}, out);
  }
  void speakDurationWithSeconds(const std::string& h, const std::string& m, const std::string& s,
                                std::string& out) override {
    record("spans", {h, m, s}, out);
  }
  void appendMinus(std::string& out) override { out += "MINUS"; }
  void speakClockTimeWithSeconds(const std::string& h, const std::string& m, const std::string& s,
                                 std::string& out) override {
    record("clocks", {h, m, s}, out);
  }

  // "rub" is a currency, "kb" a unit taking fractions, "pcs" one taking none.
  virtual bool isUnit(const std::string& u) { return u == "rub" || u == "kb" || u == "pcs"; }
  virtual bool isCurrency(const std::string& u) { return u == "rub"; }
  virtual void speakMoney(const DigitList& il, const DigitList& fl, const std::string& id,
                          const std::string& fd, const std::string& u, std::string& out) {
    record("money", {joinList(il), joinList(fl), id, fd, u}, out);
  }
  virtual void speakCount(const DigitList& il, const std::string& id, const std::string& u,
                          std::string& out) {
    record("count", {joinList(il), id, u}, out);
  }
  virtual bool allowsFraction(const std::string& u) { return u == "kb"; }
  virtual void speakMinorUnits(const DigitList&, const DigitList&, const std::string&, const std::string&,
                               const std::string&, std::string&) {}
  virtual void speakDecimal(const DigitList& il, const DigitList& fl, const std::string& id,
                            const std::string& fd, const std::string& u, std::string& out) {
    record("decimal", {joinList(il), joinList(fl), id, fd, u}, out);
  }

 private:
  void record(const std::string& op, const Args& args, std::string& out) {
    calls_.push_back(op + "(" + joinList(args, "|") + ")");
    out += " " + op;
  }
  bool special_;
  std::vector<std::string> calls_;
};

inline std::string joinList(const DigitList& list, const char* separator) {
  std::string s;
  for (std::size_t i = 0; i < list.size(); ++i) s += (i == 0 ? "" : separator) + list[i];
  return s;
}

}  // namespace vela::testing
