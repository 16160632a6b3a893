#include "support/recording_grammar.h"

namespace vela::testing {

std::string CallLog::joined() const {
  std::string all;
  for (const auto& c : calls) all += (all.empty() ? "" : ";") + c;
  return all;
}

std::string joinList(const DigitList& list) {
  std::string s;
  for (const auto& d : list) s += (s.empty() ? "" : ",") + d;
  return s;
}

void RecordingGrammar::record(const std::string& op, const std::vector<std::string>& args, std::string& out) {
  std::string line = op + "(";
  for (std::size_t i = 0; i < args.size(); ++i) line += (i ? "|" : "") + args[i];
  log_.calls.push_back(line + ")");
  out += " " + op;
}

bool RecordingGrammar::speakSpecialAmount(const std::string& intDigits, const std::string& unit,
                                          std::string& out) {
  if (!special_) return false;
  record("special", {intDigits, unit}, out);
  return true;
}
int RecordingGrammar::speakDate(const std::string& d, const std::string& m, const std::string& y,
                                const std::string& c, const std::string& t, std::string& out) {
  record("date", {d, m, y, c, t}, out);
  return 0;
}
void RecordingGrammar::speakNumber(const DigitList& tokens, std::string& out) {
  record("number", tokens, out);
}
void RecordingGrammar::speakDigitString(const DigitList& tokens, std::string& out) {
  record("digits", tokens, out);
}
void RecordingGrammar::speakDialString(const std::string& keys, std::string& out) {
  record("dial", {keys}, out);
}
void RecordingGrammar::speakCharacter(const std::string& c, std::string& out) { record("char", {c}, out); }
void RecordingGrammar::speakClockTime(const std::string& h, const std::string& m, std::string& out) {
  record("clock", {h, m}, out);
}
void RecordingGrammar::speakDuration(const std::string& h, const std::string& m, std::string& out) {
  record("span", {h, m}, out);
}
void RecordingGrammar::speakDurationWithSeconds(const std::string& h, const std::string& m,
                                                const std::string& s, std::string& out) {
  record("spans", {h, m, s}, out);
}
void RecordingGrammar::appendMinus(std::string& out) { out += "MINUS"; }
void RecordingGrammar::speakClockTimeWithSeconds(const std::string& h, const std::string& m,
                                                 const std::string& s, std::string& out) {
  record("clocks", {h, m, s}, out);
}
bool RecordingGrammar::isUnit(const std::string& u) { return u == "rub" || u == "kb" || u == "pcs"; }
bool RecordingGrammar::isCurrency(const std::string& u) { return u == "rub"; }
bool RecordingGrammar::allowsFraction(const std::string& u) { return u == "kb"; }
void RecordingGrammar::speakMoney(const DigitList& il, const DigitList& fl, const std::string& id,
                                  const std::string& fd, const std::string& u, std::string& out) {
  record("money", {joinList(il), joinList(fl), id, fd, u}, out);
}
void RecordingGrammar::speakCount(const DigitList& il, const std::string& id, const std::string& u,
                                  std::string& out) {
  record("count", {joinList(il), id, u}, out);
}
void RecordingGrammar::speakDecimal(const DigitList& il, const DigitList& fl, const std::string& id,
                                    const std::string& fd, const std::string& u, std::string& out) {
  record("decimal", {joinList(il), joinList(fl), id, fd, u}, out);
}

}  // namespace vela::testing
