// The unit words a grammar knows, for tools that list everything a grammar can
// say (the prompt inventory). Not part of the grammar interface: requests never
// ask for it.
//
// A language class T lists its unit words by declaring
//
//   static void listUnitKeys(std::vector<std::string>& keys);
//
// which appends every word that may follow a number and change the reading
// (the keys of its unit and currency tables and any word its
// speakSpecialAmount answers), as the tables store them. A class without it is
// still enumerated: the tools then look for its unit words themselves, more
// slowly.
#pragma once

#include <string>
#include <vector>

namespace vela {

template <class T>
concept ListsUnitKeys = requires(std::vector<std::string>& keys) {
  T::listUnitKeys(keys);
};

// Appends T's unit words to `keys`; false when T does not list them.
template <class T>
bool listUnitKeysOf(std::vector<std::string>& keys) {
  if constexpr (ListsUnitKeys<T>) {
    T::listUnitKeys(keys);
    return true;
  } else {
    return false;
  }
}

}  // namespace vela
