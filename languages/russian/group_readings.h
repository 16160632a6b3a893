// The cardinal reading of every three-digit group of a Russian-family
// language, worked out once by the family's own speller: a number of up to
// twelve digits is then at most four appends.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "grammar/helpers.h"

namespace vela {

class FamilySpeaker;

class GroupReadings {
 public:
  // The units group in each gender, and the thousands, millions and milliards
  // groups followed by their scale word ("две тысячи", "пять миллионов").
  enum Variant : int {
    kUnitsMasculine,
    kUnitsFeminine,
    kUnitsNeuter,
    kThousands,
    kMillions,
    kMilliards,
    kCount
  };

  // Reads every group 000-999 in every variant with `speaker` (which must not
  // itself use readings).
  explicit GroupReadings(const FamilySpeaker& speaker);

  // What the speller appends for `group` in `variant` (the group's own three
  // digits decide: the reading of "005" is that of "5").
  std::string_view reading(int variant, const DigitGroup& group) const {
    const std::size_t at = static_cast<std::size_t>(variant) * kGroupValues + groupDigits(group);
    return std::string_view(bytes_.data() + starts_[at], starts_[at + 1] - starts_[at]);
  }

  // The bytes the readings take (their offsets aside).
  std::size_t textBytes() const { return bytes_.size(); }

  // The three digits of a group as one number, 0-999.
  static int groupDigits(const DigitGroup& group) {
    return group.hundreds + group.tens + group.teen + group.units;
  }

 private:
  static constexpr std::size_t kGroupValues = 1000;
  std::string bytes_;
  std::array<std::uint32_t, kCount * kGroupValues + 1> starts_{};
};

}  // namespace vela
