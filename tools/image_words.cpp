#include "tools/image_words.h"

#include <link.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <set>

namespace vela::tools {
namespace {

// The letters of a unit word: a-z, A-Z, and the Cyrillic А-я (C0-FF).
bool isUnitLetter(unsigned char c) {
  const unsigned char small = c | 0x20;
  return (small >= 'a' && small <= 'z') || c >= 0xC0;
}

constexpr std::size_t kLongestWord = 31;

struct Search {
  std::uintptr_t anchor;  // an address inside the object to scan
  std::set<std::string> words;
};

// Table cells are read byte by byte, redzones between globals included: the
// reads are not checked, and a run is copied out before any library call.
__attribute__((no_sanitize("address"))) void collectRuns(const unsigned char* begin, std::size_t size,
                                                         std::set<std::string>& words) {
  std::size_t runStart = 0;
  for (std::size_t i = 0; i < size; ++i) {
    const unsigned char c = static_cast<const volatile unsigned char*>(begin)[i];
    if (isUnitLetter(c)) continue;
    const std::size_t length = i - runStart;
    if (c == 0 && length > 0 && length <= kLongestWord) {
      std::array<char, kLongestWord> run{};
      for (std::size_t k = 0; k < length; ++k)
        run[k] = static_cast<char>(static_cast<const volatile unsigned char*>(begin)[runStart + k]);
      for (std::size_t tail = 0; tail < length; ++tail) words.emplace(run.data() + tail, length - tail);
    }
    runStart = i + 1;
  }
}

int visitObject(dl_phdr_info* info, std::size_t, void* data) {
  auto* search = static_cast<Search*>(data);
  bool holdsAnchor = false;
  for (int i = 0; i < info->dlpi_phnum; ++i) {
    const ElfW(Phdr)& ph = info->dlpi_phdr[i];
    const std::uintptr_t start = info->dlpi_addr + ph.p_vaddr;
    if (ph.p_type == PT_LOAD && search->anchor >= start && search->anchor < start + ph.p_memsz)
      holdsAnchor = true;
  }
  if (!holdsAnchor) return 0;
  for (int i = 0; i < info->dlpi_phnum; ++i) {
    const ElfW(Phdr)& ph = info->dlpi_phdr[i];
    // Data only: constant tables live in the read-only and relocated segments.
    if (ph.p_type != PT_LOAD || (ph.p_flags & PF_X) != 0 || (ph.p_flags & PF_R) == 0) continue;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the loader gives segments as addresses
    collectRuns(reinterpret_cast<const unsigned char*>(info->dlpi_addr + ph.p_vaddr), ph.p_filesz,
                search->words);
  }
  return 1;
}

}  // namespace

const std::vector<std::string>& wordsInImage() {
  static const std::vector<std::string> words = [] {
    Search search{reinterpret_cast<std::uintptr_t>(&wordsInImage), {}};
    dl_iterate_phdr(visitObject, &search);
    return std::vector<std::string>(search.words.begin(), search.words.end());
  }();
  return words;
}

}  // namespace vela::tools
