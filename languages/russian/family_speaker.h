// The readings of the Russian family, written once over a FamilyLanguage.
//
// Every word appended by speak3 and appendUnitForm is preceded by one space;
// digit-by-digit readings put the space after the word instead. Bad input is
// reported through complain() and never stops a request.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "grammar/helpers.h"
#include "grammar/igrammar.h"
#include "languages/russian/family_language.h"
#include "languages/russian/group_readings.h"

namespace vela {

class FamilySpeaker {
 public:
  // With `readings`, cardinal groups are appended from them; without, each is
  // spelled word by word (which is how the readings are made).
  explicit FamilySpeaker(const FamilyLanguage& language, const GroupReadings* readings = nullptr)
      : lang_(language), readings_(readings) {}

  // --- numbers, gender and plural forms ---

  // One three-digit group: cardinal (0, 0), nominative ordinal (0, 1) or
  // genitive ordinal (1, 1), in the gender given (0, 1, 2). Only the last word
  // of an ordinal takes the ordinal form. Returns 0 without a word for a
  // genitive without the ordinal flag, 1 otherwise.
  int speak3(const DigitGroup& group, int gender, int genitive, int ordinal, std::string& out) const;
  // The form of unit row `unitRow` after `group`. For a group whose digits are
  // all zero, mode 0 appends nothing, mode 1 form 5, mode 2 the zero word and
  // form 5; mode 0 also appends nothing for a zero value.
  void appendUnitForm(const DigitGroup& group, std::string& out, int unitRow, int mode) const;
  // A cardinal group in one of the variants of GroupReadings: speak3 in the
  // variant's gender, then for a scale group its unit form (mode 0).
  void speakGroup(const DigitGroup& group, GroupReadings::Variant variant, std::string& out) const;

  // First unit row whose key or form 1 is the suffix (case-insensitive); -1.
  int findUnit(std::string_view suffix) const;
  // Gender of that row; -1.
  int getGender(const std::string& suffix) const;
  // 1-based row of the symbol table; 0 when absent.
  int findSymbol(const std::string& token) const;
  // Form 1 of the minor unit of a currency key; null when absent.
  const char* findMinorCurrency(const std::string& suffix) const;
  // Only keys count: "шт" is a unit, "штука" is not.
  bool isUnit(const std::string& unit) const;
  bool isCurrency(const std::string& unit) const;

  // Cardinal number and the unit word in its form after it (twelve digits are
  // spoken at most: the milliards, millions, thousands and units groups).
  void speakCount(const std::string& digits, const std::string& suffix, std::string& out) const;
  void speakNumber(const DigitList& tokenList, std::string& out) const;
  void speakDigitString(const DigitList& tokenList, std::string& out) const;
  void speakCharacter(const std::string& token, std::string& out) const;
  void appendMinus(std::string& out) const;

  // --- money and decimals ---

  void speakMoney(const std::string& intDigits, const std::string& fracDigits, const std::string& unit,
                  std::string& out) const;
  void speakMinorUnits(const std::string& fracDigits, const std::string& unit, std::string& out) const;
  void speakDecimal(const std::string& intDigits, const std::string& fracDigits, const std::string& unit,
                    std::string& out) const;

  // --- dates and times ---

  // Returns 1 when spoken, 0 when rejected (nothing appended).
  int speakDate(const std::string& day, const std::string& month, const std::string& year,
                const std::string& caseMarker, std::string& out) const;
  void speakClockTimeWithSeconds(const std::string& hours, const std::string& minutes,
                                 const std::string& seconds, std::string& out) const;
  void speakClockTime(const std::string& hours, const std::string& minutes, std::string& out) const;
  void speakDuration(const std::string& hours, const std::string& minutes, std::string& out) const;

 private:
  const UnitRow* unitRow(int row) const;
  // Gender of unit row `row`; -1 when there is no such row.
  int genderOf(int row) const;
  bool speakHigherGroups(const std::array<DigitGroup, 4>& groups, std::string& out) const;
  void speakCardinal(std::string_view digits, int gender, std::string& out) const;
  void speakUnitsGroup(const DigitGroup& group, int gender, std::string& out) const;
  void speakNumberPiece(std::string_view piece, std::string& out) const;
  void appendProxyForm(const char* proxyDigit, int row, std::string& out) const;
  bool speakDecimalNumber(const std::string& intDigits, const std::string& fracDigits,
                          std::string& out) const;
  void speakTimePart(const DigitGroup& group, int gender, int row, std::string& words) const;

  const FamilyLanguage& lang_;
  const GroupReadings* readings_;
};

}  // namespace vela
