#include "tools/image_words.h"

#include <link.h>

#include <algorithm>
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

// Table cells are read as bytes, redzones between globals included.
__attribute__((no_sanitize("address"))) void collectRuns(const unsigned char* begin, std::size_t size,
                                                         std::set<std::string>& words) {
  std::size_t runStart = 0;
  for (std::size_t i = 0; i < size; ++i) {
    const unsigned char c = begin[i];
    if (isUnitLetter(c)) continue;
    const std::size_t length = i - runStart;
    if (c == 0 && length > 0 && length <= kLongestWord) {
      for (std::size_t tail = runStart; tail < i; ++tail)
        words.emplace(reinterpret_cast<const char*>(begin + tail), i - tail);
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
    collectRuns(reinterpret_cast<const unsigned char*>(info->dlpi_addr + ph.p_vaddr), ph.p_filesz,
                search->words);
  }
  return 1;
}

}  // namespace

std::vector<std::string> wordsInImage() {
  Search search{reinterpret_cast<std::uintptr_t>(&wordsInImage), {}};
  dl_iterate_phdr(visitObject, &search);
  return {search.words.begin(), search.words.end()};
}

}  // namespace vela::tools
