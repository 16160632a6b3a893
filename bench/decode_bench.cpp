// Request throughput through the public entry points.
#include <benchmark/benchmark.h>

#include <sstream>
#include <string>
#include <vector>

#include "vela/vela.h"

namespace {

struct Request {
  const char* tag;
  const char* text;  // Windows-1251
  const char* label;
};

// One representative text per kind of token, in the languages that speak them.
const Request kRequests[] = {
    {"ru", "12.50\xF0\xF3\xE1", "ru amount"},
    {"ru", "1.05.2015", "ru date"},
    {"ru", "7:05", "ru clock"},
    {"ru", "123456789", "ru number"},
    {"ru", "\"12#*\"", "ru keypad"},
    {"en", "1.05usd", "en amount"},
    {"en", "12:30", "en clock"},
    {"en", "1234567", "en number"},
    {"uk", "21.03.1999", "uk date"},
    {"ru", "ab", "no rule"},
    {"ru", "x.wav", "pass-through"},
    {"xx", "15", "unknown tag"},
};

void BM_DecodeBuffer(benchmark::State& state) {
  const Request& r = kRequests[state.range(0)];
  for (auto _ : state) {
    char* out = nullptr;
    benchmark::DoNotOptimize(decodeBuffer(r.tag, r.text, &out));
    decodeReleaseBuffer(out);
  }
  state.SetLabel(r.label);
}
BENCHMARK(BM_DecodeBuffer)->DenseRange(0, std::size(kRequests) - 1);
BENCHMARK(BM_DecodeBuffer)->Arg(0)->Threads(2)->UseRealTime();

void BM_DecodeBufferAscii(benchmark::State& state) {
  std::vector<std::string> files;
  std::ostringstream log;
  for (auto _ : state) {
    files.clear();
    benchmark::DoNotOptimize(DecodeBufferASCII("ru", "12.50rub", files, log));
  }
}
BENCHMARK(BM_DecodeBufferAscii);

}  // namespace

BENCHMARK_MAIN();
