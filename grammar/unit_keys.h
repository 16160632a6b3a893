// The unit words a grammar knows, for tools that list everything a grammar can
// say (the prompt inventory). Not part of the grammar interface: requests never
// ask for it.
//
// Every language class T lists its unit words by declaring
//
//   static void listUnitKeys(std::vector<std::string>& keys);
//
// which appends every word that may follow a number and change the reading
// (the keys of its unit and currency tables and any word its
// speakSpecialAmount answers), as the tables store them, read from the tables
// themselves. The factory refuses to compile a language class without it.
#pragma once

#include <string>
#include <vector>

namespace vela {

template <class T>
concept ListsUnitKeys = requires(std::vector<std::string>& keys) {
  T::listUnitKeys(keys);
};

// Appends the `key` cell of every row of `rows` (an array or a span of table
// rows), empty cells left out.
template <class Rows, class Row>
void appendKeys(std::vector<std::string>& keys, const Rows& rows, const char* Row::*key) {
  for (const Row& row : rows) {
    if (row.*key != nullptr) keys.emplace_back(row.*key);
  }
}

}  // namespace vela
