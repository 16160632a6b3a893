#include "languages/russian/rus_grammar_trans.h"

#include "languages/russian/family_speaker.h"

namespace vela {
namespace {

FamilySpeaker speaker() { return FamilySpeaker(kRussianTransLanguage); }

}  // namespace

int RusGrammarTrans::speakDate(const std::string& day, const std::string& month, const std::string& year,
                               const std::string& century, const std::string&, std::string& out) {
  return speaker().speakDate(day, month, year, century, out);
}
void RusGrammarTrans::speakNumber(const DigitList& tokenList, std::string& out) {
  speaker().speakNumber(tokenList, out);
}
void RusGrammarTrans::speakDigitString(const DigitList& tokenList, std::string& out) {
  speaker().speakDigitString(tokenList, out);
}
void RusGrammarTrans::speakCharacter(const std::string& character, std::string& out) {
  speaker().speakCharacter(character, out);
}
void RusGrammarTrans::speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) {
  speaker().speakClockTime(hours, minutes, out);
}
void RusGrammarTrans::speakDuration(const std::string& hours, const std::string& minutes, std::string& out) {
  speaker().speakDuration(hours, minutes, out);
}
void RusGrammarTrans::appendMinus(std::string& out) { speaker().appendMinus(out); }
void RusGrammarTrans::speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                                const std::string& seconds, std::string& out) {
  speaker().speakClockTimeWithSeconds(hours, minutes, seconds, out);
}

bool RusGrammarTrans::isUnit(const std::string& unit) { return speaker().isUnit(unit); }
bool RusGrammarTrans::isCurrency(const std::string& unit) { return speaker().isCurrency(unit); }
void RusGrammarTrans::speakMoney(const DigitList&, const DigitList&, const std::string& intDigits,
                                 const std::string& fracDigits, const std::string& unit, std::string& out) {
  speaker().speakMoney(intDigits, fracDigits, unit, out);
}
void RusGrammarTrans::speakCount(const DigitList&, const std::string& intDigits, const std::string& unit,
                                 std::string& out) {
  speaker().speakCount(intDigits, unit, out);
}
bool RusGrammarTrans::allowsFraction(const std::string&) { return true; }
void RusGrammarTrans::speakMinorUnits(const DigitList&, const DigitList&, const std::string&,
                                      const std::string& fracDigits, const std::string& unit,
                                      std::string& out) {
  speaker().speakMinorUnits(fracDigits, unit, out);
}
void RusGrammarTrans::speakDecimal(const DigitList&, const DigitList&, const std::string& intDigits,
                                   const std::string& fracDigits, const std::string& unit, std::string& out) {
  speaker().speakDecimal(intDigits, fracDigits, unit, out);
}

int RusGrammarTrans::speak3(const DigitGroup& group, int gender, int genitive, int ordinal,
                            std::string& out) const {
  return speaker().speak3(group, gender, genitive, ordinal, out);
}
void RusGrammarTrans::appendUnitForm(const DigitGroup& group, std::string& out, int unitRow, int mode) const {
  speaker().appendUnitForm(group, out, unitRow, mode);
}
int RusGrammarTrans::getGender(const std::string& suffix) const { return speaker().getGender(suffix); }
int RusGrammarTrans::findUnit(const std::string& suffix) const { return speaker().findUnit(suffix); }
int RusGrammarTrans::findSymbol(const std::string& token) const { return speaker().findSymbol(token); }

}  // namespace vela
