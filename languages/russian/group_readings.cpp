#include "languages/russian/group_readings.h"

#include "languages/russian/family_speaker.h"

namespace vela {

GroupReadings::GroupReadings(const FamilySpeaker& speaker) {
  bytes_.reserve(kCount * kGroupValues * 24);
  std::size_t at = 0;
  for (int variant = 0; variant < kCount; ++variant) {
    for (int digits = 0; digits < static_cast<int>(kGroupValues); ++digits) {
      starts_[at++] = static_cast<std::uint32_t>(bytes_.size());
      speaker.speakGroup(digitGroupOf(digits), static_cast<Variant>(variant), bytes_);
    }
  }
  starts_[at] = static_cast<std::uint32_t>(bytes_.size());
}

}  // namespace vela
