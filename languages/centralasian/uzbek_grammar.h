// Uzbek.
#pragma once

#include "languages/centralasian/kazakh_design.h"

namespace vela {

// Uzbek with Latin prompt names in lower-case ASCII ("bir", "yuz", "tort"):
// built like Kazakh, with the Uzbek tables. Ordinals take -inchi, or -nchi
// after a vowel; dates are year, day, month; money in som and tiyin.
class UzbekGrammar final : public KazakhDesignGrammar<UzbekGrammar> {
 public:
  static const centralasian::KazakhStyleLanguage& language();
};

}  // namespace vela
