// Words found apart from any grammar: every string literal of the language
// sources made only of letters a unit word may hold.
#pragma once

#include <string>
#include <vector>

namespace vela::testing {

// Latin and Cyrillic Windows-1251 letters (а-я E0-FF, А-Я C0-DF).
bool isUnitLetter(unsigned char c);

// Each letters-only literal of languages/ (up to 40 characters) in
// Windows-1251, sorted, without repeats; read once.
const std::vector<std::string>& sourceWords();

}  // namespace vela::testing
