// Words in the constant data of the loaded program: where a grammar keeps its
// table words, whatever the grammar.
#pragma once

#include <string>
#include <vector>

namespace vela::tools {

// Every zero-terminated run of Latin or Cyrillic Windows-1251 letters (the
// letters a unit word after a number may hold) of 1 to 31 bytes in the data of
// the object that holds this code, with every tail of such a run (a linker may
// keep "rub" as the end of "xrub"). Sorted, without repeats; read once.
const std::vector<std::string>& wordsInImage();

}  // namespace vela::tools
