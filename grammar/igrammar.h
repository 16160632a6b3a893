// The grammar interface: what a token handler may ask of a language.
//
// Every operation appends prompt names to `out`, separated by spaces; where a
// language puts its spaces is its own convention, so a reading may begin or end
// with a space. A grammar object holds no state.
#pragma once

#include <string>
#include <vector>

namespace vela {

// Digits of a number, least significant first, one digit per string; empty
// for an empty digit string or one of more than nine digits.
using DigitList = std::vector<std::string>;

// Slots 0-12, in virtual-table order.
class IGrammar {
 public:
  virtual int speakAmount(const DigitList& intList, const DigitList& fracList, const std::string& intDigits,
                          const std::string& fracDigits, const std::string& unit, std::string& out) = 0;
  virtual bool speakSpecialAmount(const std::string& intDigits, const std::string& unit,
                                  std::string& out) = 0;
  // century holds the first two year digits, or "I" for a date marked "(I)".
  virtual int speakDate(const std::string& day, const std::string& month, const std::string& year,
                        const std::string& century, const std::string& yearTail, std::string& out) = 0;
  virtual void speakNumber(const DigitList& tokenList, std::string& out) = 0;
  virtual void speakDigitString(const DigitList& tokenList, std::string& out) = 0;
  virtual void speakDialString(const std::string& keys, std::string& out) = 0;
  virtual void speakCharacter(const std::string& character, std::string& out) = 0;
  virtual void speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) = 0;
  virtual void speakDuration(const std::string& hours, const std::string& minutes, std::string& out) = 0;
  virtual void speakDurationWithSeconds(const std::string& hours, const std::string& minutes,
                                        const std::string& seconds, std::string& out) = 0;
  virtual void appendMinus(std::string& out) = 0;
  virtual void speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                         const std::string& seconds, std::string& out) = 0;
  virtual ~IGrammar() = default;
};

struct IGrammarBase : IGrammar {};

}  // namespace vela
