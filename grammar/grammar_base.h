// GrammarBase<T>: the defaults every language inherits, and the amount
// dispatcher that reaches the language's own unit lookups through T.
#pragma once

#include <concepts>
#include <string>

#include "grammar/complaints.h"
#include "grammar/igrammar.h"

namespace vela {

// A language class that speaks amounts declares, as virtual and in this order:
//   bool isUnit(const std::string& unit);
//   bool isCurrency(const std::string& unit);
//   void speakMoney(intList, fracList, intDigits, fracDigits, unit, out);
//   void speakCount(intList, intDigits, unit, out);
//   bool allowsFraction(const std::string& unit);
//   void speakMinorUnits(intList, fracList, intDigits, fracDigits, unit, out);
//   void speakDecimal(intList, fracList, intDigits, fracDigits, unit, out);
// A class without them knows no unit word: every amount is an unknown unit.
// A class with only some of them does not compile.
template <class T>
concept SpeaksAmounts = requires(T& g, const DigitList& l, const std::string& s, std::string& out) {
  { g.isUnit(s) } -> std::same_as<bool>;
  { g.isCurrency(s) } -> std::same_as<bool>;
  g.speakMoney(l, l, s, s, s, out);
  g.speakCount(l, s, s, out);
  { g.allowsFraction(s) } -> std::same_as<bool>;
  g.speakMinorUnits(l, l, s, s, s, out);
  g.speakDecimal(l, l, s, s, s, out);
};

// A class that knows unit words at all.
template <class T>
concept DeclaresUnits = requires(T& g, const std::string& s) {
  g.isUnit(s);
};

template <class T>
class GrammarBase : public IGrammarBase {
 public:
  // -1: unknown unit; -2: a fraction with a unit that takes none; 0: spoken.
  int speakAmount(const DigitList& intList, const DigitList& fracList, const std::string& intDigits,
                  const std::string& fracDigits, const std::string& unit, std::string& out) override {
    if constexpr (DeclaresUnits<T>) {
      static_assert(SpeaksAmounts<T>, "a grammar that knows unit words declares all seven amount slots");
      T& self = static_cast<T&>(*this);
      if (!self.isUnit(unit)) return -1;
      if (self.isCurrency(unit)) {
        self.speakMoney(intList, fracList, intDigits, fracDigits, unit, out);
        return 0;
      }
      if (fracList.empty()) {
        // A fraction of more than nine digits has no digit list: it is ignored.
        if (!fracDigits.empty()) leaveUnsaid();
        self.speakCount(intList, intDigits, unit, out);
        return 0;
      }
      if (!self.allowsFraction(unit)) return -2;
      self.speakDecimal(intList, fracList, intDigits, fracDigits, unit, out);
      return 0;
    } else {
      return -1;
    }
  }
  bool speakSpecialAmount(const std::string&, const std::string&, std::string&) override { return false; }
  int speakDate(const std::string&, const std::string&, const std::string&, const std::string&,
                const std::string&, std::string&) override {
    return 0;
  }
  void speakNumber(const DigitList&, std::string&) override {}
  void speakDigitString(const DigitList&, std::string&) override {}
  void speakDialString(const std::string&, std::string&) override {}
  void speakCharacter(const std::string&, std::string&) override {}
  void speakClockTime(const std::string&, const std::string&, std::string&) override {}
  void speakDuration(const std::string&, const std::string&, std::string&) override {}
  void speakDurationWithSeconds(const std::string&, const std::string&, const std::string&,
                                std::string&) override {}
  void appendMinus(std::string& out) override { out += "minus "; }
  void speakClockTimeWithSeconds(const std::string&, const std::string&, const std::string&,
                                 std::string&) override {}
  ~GrammarBase() override = default;
};

}  // namespace vela
