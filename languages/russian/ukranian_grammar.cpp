#include "languages/russian/ukranian_grammar.h"

#include "languages/russian/family_speaker.h"

namespace vela {
namespace {

FamilySpeaker speaker() { return FamilySpeaker(kUkrainianLanguage); }

}  // namespace

int UkranianGrammar::speakDate(const std::string& day, const std::string& month, const std::string& year,
                               const std::string& century, const std::string&, std::string& out) {
  return speaker().speakDate(day, month, year, century, out);
}
void UkranianGrammar::speakNumber(const DigitList& tokenList, std::string& out) {
  speaker().speakNumber(tokenList, out);
}
void UkranianGrammar::speakDigitString(const DigitList& tokenList, std::string& out) {
  speaker().speakDigitString(tokenList, out);
}
void UkranianGrammar::speakCharacter(const std::string& character, std::string& out) {
  speaker().speakCharacter(character, out);
}
void UkranianGrammar::speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) {
  speaker().speakClockTime(hours, minutes, out);
}
void UkranianGrammar::speakDuration(const std::string& hours, const std::string& minutes, std::string& out) {
  speaker().speakDuration(hours, minutes, out);
}
void UkranianGrammar::speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                                const std::string& seconds, std::string& out) {
  speaker().speakClockTimeWithSeconds(hours, minutes, seconds, out);
}

bool UkranianGrammar::isUnit(const std::string& unit) { return speaker().isUnit(unit); }
bool UkranianGrammar::isCurrency(const std::string& unit) { return speaker().isCurrency(unit); }
void UkranianGrammar::speakMoney(const DigitList&, const DigitList&, const std::string& intDigits,
                                 const std::string& fracDigits, const std::string& unit, std::string& out) {
  speaker().speakMoney(intDigits, fracDigits, unit, out);
}
void UkranianGrammar::speakCount(const DigitList&, const std::string& intDigits, const std::string& unit,
                                 std::string& out) {
  speaker().speakCount(intDigits, unit, out);
}
bool UkranianGrammar::allowsFraction(const std::string&) { return true; }
void UkranianGrammar::speakMinorUnits(const DigitList&, const DigitList&, const std::string&,
                                      const std::string& fracDigits, const std::string& unit,
                                      std::string& out) {
  speaker().speakMinorUnits(fracDigits, unit, out);
}
void UkranianGrammar::speakDecimal(const DigitList&, const DigitList&, const std::string& intDigits,
                                   const std::string& fracDigits, const std::string& unit, std::string& out) {
  speaker().speakDecimal(intDigits, fracDigits, unit, out);
}

int UkranianGrammar::speak3(const DigitGroup& group, int gender, int genitive, int ordinal,
                            std::string& out) const {
  return speaker().speak3(group, gender, genitive, ordinal, out);
}
void UkranianGrammar::appendUnitForm(const DigitGroup& group, std::string& out, int unitRow, int mode) const {
  speaker().appendUnitForm(group, out, unitRow, mode);
}
int UkranianGrammar::getGender(const std::string& suffix) const { return speaker().getGender(suffix); }
int UkranianGrammar::findUnit(const std::string& suffix) const { return speaker().findUnit(suffix); }
int UkranianGrammar::findSymbol(const std::string& token) const { return speaker().findSymbol(token); }

}  // namespace vela
