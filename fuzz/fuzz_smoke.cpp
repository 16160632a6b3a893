// Deterministic smoke run of the fuzz target: texts assembled at random from
// the pieces the classifier and the grammars care about, plus raw bytes.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

const char* const kPieces[] = {
    "0",
    "1",
    "2",
    "5",
    "9",
    "00",
    "11",
    "12",
    "19",
    "21",
    "31",
    "99",
    "100",
    "1000",
    "2015",
    "1999",
    "123456789012",
    "9999999999999999999999999999999999999999",
    ".",
    ",",
    "|",
    "-",
    ":",
    "\"",
    "#",
    "*",
    "(I)",
    "rub",
    "RUB",
    "usd",
    "eur",
    "min",
    "kb",
    "sec",
    "\xF0\xF3\xE1",
    "\xEA\xEE\xEF",
    "\xF8\xF2",
    "\xD0\xD3\xC1",
    "x",
    " ",
    "  ",
    ".wav",
    "\xB8",
    "\x80",
    "\xFF",
    "a",
    "female",
};

}  // namespace

int main(int argc, char** argv) {
  const long runs = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 100000;
  std::mt19937 rng(20261122);
  std::string input;
  for (long i = 0; i < runs; ++i) {
    input.assign(1, static_cast<char>(rng() & 0xFF));
    input += static_cast<char>(rng() % 4 == 0 ? rng() & 0xFF : rng() & 1);  // the mode
    const int pieces = 1 + static_cast<int>(rng() % 6);
    for (int p = 0; p < pieces; ++p) {
      if (rng() % 8 == 0) {
        input += static_cast<char>(1 + rng() % 255);
      } else {
        input += kPieces[rng() % std::size(kPieces)];
      }
    }
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(input.data()), input.size());
  }
  std::printf("fuzz smoke: %ld inputs, no finding\n", runs);
  return 0;
}
