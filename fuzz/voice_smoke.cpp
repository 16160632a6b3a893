// Deterministic smoke run of the voice fuzz target: a small valid WAV file,
// its header bytes changed, cut short or grown at random.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

void put(std::string& out, uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out += static_cast<char>((value >> (8 * i)) & 0xFF);
}

// RIFF WAV, 8000 Hz mono 16-bit, a tone between silences.
std::string wavFile(int frames) {
  std::string w = "RIFF";
  put(w, 36 + 2 * frames, 4);
  w += "WAVEfmt ";
  put(w, 16, 4);
  put(w, 1, 2);
  put(w, 1, 2);
  put(w, 8000, 4);
  put(w, 16000, 4);
  put(w, 2, 2);
  put(w, 16, 2);
  w += "data";
  put(w, 2 * frames, 4);
  for (int i = 0; i < frames; ++i) {
    const bool loud = i > frames / 4 && i < 3 * frames / 4;
    put(w, static_cast<uint16_t>(static_cast<int16_t>(loud ? 12000 * std::sin(0.3 * i) : 0)), 2);
  }
  return w;
}

}  // namespace

int main(int argc, char** argv) {
  const long runs = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 3000;
  std::mt19937 rng(20261123);
  const std::string valid = wavFile(800);
  for (long i = 0; i < runs; ++i) {
    std::string input(2, '\0');
    input[0] = static_cast<char>(rng() & 0xFF);
    input[1] = static_cast<char>(rng() & 0xFF);
    std::string file = valid;
    const int changes = static_cast<int>(rng() % 4);
    for (int c = 0; c < changes; ++c) file[rng() % 44] = static_cast<char>(rng() & 0xFF);
    if (rng() % 4 == 0) file.resize(rng() % file.size());
    if (rng() % 8 == 0) file.append(rng() % 64, static_cast<char>(rng() & 0xFF));
    input += file;
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(input.data()), input.size());
  }
  std::printf("voice fuzz smoke: %ld inputs, no finding\n", runs);
  return 0;
}
