// Kazakh.
#pragma once

#include "languages/centralasian/kazakh_design.h"

namespace vela {

// Kazakh with Latin prompt names ("bir", "zhuz", "qangtarynda"): cardinal and
// ordinal numbers, dates as year, day, month, clock times, spans, counts and
// money with tiyn and cents: the Kazakh design over the Kazakh tables.
class KazahGrammar final : public KazakhDesignGrammar<KazahGrammar> {
 public:
  static const centralasian::KazakhStyleLanguage& language();
};

}  // namespace vela
