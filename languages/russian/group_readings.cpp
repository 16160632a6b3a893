#include "languages/russian/group_readings.h"

#include "languages/russian/family_speaker.h"

namespace vela {
namespace {

// A group of three digits with the parts speak3 reads: 10 is not a teen.
DigitGroup groupOf(int digits) {
  DigitGroup group;
  group.value = digits;
  group.hundreds = digits / 100 * 100;
  const int lastTwo = digits % 100;
  if (lastTwo >= 11 && lastTwo <= 19) {
    group.teen = lastTwo;
  } else {
    group.tens = lastTwo / 10 * 10;
    group.units = lastTwo % 10;
  }
  return group;
}

}  // namespace

GroupReadings::GroupReadings(const FamilySpeaker& speaker) {
  bytes_.reserve(kCount * kGroupValues * 24);
  std::size_t at = 0;
  for (int variant = 0; variant < kCount; ++variant) {
    for (int digits = 0; digits < static_cast<int>(kGroupValues); ++digits) {
      starts_[at++] = static_cast<std::uint32_t>(bytes_.size());
      speaker.speakGroup(groupOf(digits), static_cast<Variant>(variant), bytes_);
    }
  }
  starts_[at] = static_cast<std::uint32_t>(bytes_.size());
}

}  // namespace vela
