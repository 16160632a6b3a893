// Request cost, side by side: every kind of token in every grammar, Russian
// cardinals and English counts against ICU's rule-based spellout on the same
// numbers in the same process, one and two threads, very long texts, and what
// loading the library costs. The figures and the command are in README.md.
#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <unicode/locid.h>
#include <unicode/rbnf.h>
#include <unicode/unistr.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "grammar/cp1251.h"
#include "grammar/factory.h"
#include "languages/russian/family_speaker.h"
#include "pipeline/text_decoder.h"
#include "vela/vela.h"

namespace {

using vela::operator""_cp;

// A request as the C export makes it (mode 0), or as the Java entry makes it
// for transliterated Russian (mode 1).
void decodeOnce(const char* tag, const char* text, unsigned char mode) {
  char* out = nullptr;
  benchmark::DoNotOptimize(vela::decodeText(tag, text, &out, mode));
  std::free(out);
}

struct Grammar {
  const char* label;
  const char* tag;
  unsigned char mode;
  const char* unit;  // a unit word the grammar knows
};

const Grammar kGrammars[] = {
    {"ru", "ru", 0, "руб"_cp}, {"ru-latin", "ru", 1, "rub"}, {"uk", "uk", 0, "грн"_cp},
    {"en", "en", 0, "usd"},    {"ro", "ro", 0, "lei"},       {"ar", "ar", 0, "usd"},
    {"kk", "kk", 0, "tg"},     {"uz", "uz", 0, "sum"},       {"tg", "tg", 0, "som"},
    {"ka", "ka", 0, "lari"},   {"hy", "hy", 0, "dram"},
};

struct Token {
  const char* label;
  const char* text;  // "%s" stands for the grammar's unit word
};

const Token kTokens[] = {
    {"amount", "12.50%s"},
    {"negative-amount", "-5,5%s"},
    {"date", "1.05.2015"},
    {"marked-date", "1.05.2015(I)"},
    {"number", "1234567"},
    {"dashed-number", "0-05-120"},
    {"digit-string", "\"5551234\""},
    {"keypad-string", "\"12#*\""},
    {"clock", "7:05"},
    {"clock-seconds", "7:05:30"},
    {"span", "\"125:30\""},
    {"character", "x"},
    {"no-rule", "ab"},
    {"pass-through", "x.wav"},
};

void registerTokenBenchmarks() {
  for (const Grammar& g : kGrammars) {
    for (const Token& t : kTokens) {
      char text[64];
      std::snprintf(text, sizeof text, t.text, g.unit);
      const std::string name = std::string("Token/") + g.label + "/" + t.label;
      benchmark::RegisterBenchmark(name.c_str(), [g, request = std::string(text)](benchmark::State& state) {
        for (auto _ : state) decodeOnce(g.tag, request.c_str(), g.mode);
      });
    }
  }
  benchmark::RegisterBenchmark("Token/unknown-tag", [](benchmark::State& state) {
    for (auto _ : state) decodeOnce("xx", "15", 0);
  });
}

// The same 100,000 numbers for both sides: as many of each length (1 to
// `maxDigits` digits), fixed seed.
std::vector<long long> makeNumbers(int maxDigits) {
  std::mt19937_64 rng(42);
  std::vector<long long> numbers;
  for (int i = 0; i < 100000; ++i) {
    const int digits = 1 + i % maxDigits;
    long long low = 1;
    for (int d = 1; d < digits; ++d) low *= 10;
    numbers.push_back(std::uniform_int_distribution<long long>(digits == 1 ? 0 : low, low * 10 - 1)(rng));
  }
  return numbers;
}

std::vector<std::string> asTexts(const std::vector<long long>& numbers, const char* suffix) {
  std::vector<std::string> texts;
  for (long long n : numbers) texts.push_back(std::to_string(n) + suffix);
  return texts;
}

const std::vector<long long> kCardinals = makeNumbers(12);
const std::vector<std::string> kCardinalTexts = asTexts(kCardinals, "");
const std::vector<long long> kCounts = makeNumbers(9);  // English digit lists end at nine digits
const std::vector<std::string> kCountTexts = asTexts(kCounts, "h");

void BM_Vela_RussianCardinal(benchmark::State& state) {
  std::size_t i = 0;
  for (auto _ : state) {
    decodeOnce("ru", kCardinalTexts[i].c_str(), 0);
    if (++i == kCardinalTexts.size()) i = 0;
  }
}
BENCHMARK(BM_Vela_RussianCardinal);

// The Russian grammar alone on the same numbers: what the request path adds
// is the difference from BM_Vela_RussianCardinal.
void BM_RussianGrammarOnly(benchmark::State& state) {
  std::string error;
  vela::IGrammar& grammar = vela::grammarFor("ru", 0, error);
  vela::DigitList token(1);
  std::string out;
  std::size_t i = 0;
  for (auto _ : state) {
    token[0] = kCardinalTexts[i];
    out.clear();
    grammar.speakNumber(token, out);
    benchmark::DoNotOptimize(out.data());
    if (++i == kCardinalTexts.size()) i = 0;
  }
}
BENCHMARK(BM_RussianGrammarOnly);

std::unique_ptr<icu::RuleBasedNumberFormat> spellout(const char* locale, const char* ruleSet) {
  UErrorCode status = U_ZERO_ERROR;
  auto format =
      std::make_unique<icu::RuleBasedNumberFormat>(icu::URBNF_SPELLOUT, icu::Locale(locale), status);
  if (U_SUCCESS(status) && ruleSet != nullptr) format->setDefaultRuleSet(icu::UnicodeString(ruleSet), status);
  if (U_FAILURE(status)) {
    std::fprintf(stderr, "ICU spellout for %s: %s\n", locale, u_errorName(status));
    std::abort();
  }
  return format;
}

void timeIcu(benchmark::State& state, icu::RuleBasedNumberFormat& format,
             const std::vector<long long>& numbers) {
  std::size_t i = 0;
  for (auto _ : state) {
    icu::UnicodeString words;
    format.format(static_cast<int64_t>(numbers[i]), words);
    benchmark::DoNotOptimize(words.length());
    if (++i == numbers.size()) i = 0;
  }
}

void BM_Icu_RussianCardinal(benchmark::State& state) {
  const auto format = spellout("ru", "%spellout-cardinal-masculine");
  timeIcu(state, *format, kCardinals);
}
BENCHMARK(BM_Icu_RussianCardinal);

void BM_Vela_EnglishCount(benchmark::State& state) {
  std::size_t i = 0;
  for (auto _ : state) {
    decodeOnce("en", kCountTexts[i].c_str(), 0);
    if (++i == kCountTexts.size()) i = 0;
  }
}
BENCHMARK(BM_Vela_EnglishCount);

void BM_Icu_EnglishCardinal(benchmark::State& state) {
  const auto format = spellout("en", nullptr);
  timeIcu(state, *format, kCounts);
}
BENCHMARK(BM_Icu_EnglishCardinal);

// A mix of languages and kinds; items per second at 1 and 2 threads.
void BM_Throughput(benchmark::State& state) {
  static const std::pair<const char*, std::string> kMix[] = {
      {"ru", "12.50руб"_cp}, {"ru", "1.05.2015"}, {"ru", "7:05"},       {"ru", "123456789"},
      {"en", "1.05usd"},     {"en", "1234h"},     {"uk", "21.03.1999"}, {"ru", "\"12#*\""},
  };
  std::size_t i = state.thread_index();
  for (auto _ : state) {
    const auto& [tag, text] = kMix[i++ % std::size(kMix)];
    decodeOnce(tag, text.c_str(), 0);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Throughput)->Threads(1)->Threads(2)->UseRealTime();

// Linear in the text: 10,000 digits, and the Java entry's limit of 10,240 bytes.
void BM_LongText(benchmark::State& state) {
  const std::string text = std::string(state.range(0), '7') + (state.range(1) ? "rub" : "");
  for (auto _ : state) decodeOnce("ru", text.c_str(), 0);
}
BENCHMARK(BM_LongText)->Args({10000, 0})->Args({10237, 1})->Unit(benchmark::kMicrosecond);

// Loading and unloading the shared library (nothing is built at load).
void BM_LoadLibrary(benchmark::State& state) {
  for (auto _ : state) {
    void* library = dlopen(VELA_LIBRARY_PATH, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
      state.SkipWithError(dlerror());
      return;
    }
    benchmark::DoNotOptimize(dlsym(library, "decodeBuffer"));
    dlclose(library);
  }
}
BENCHMARK(BM_LoadLibrary)->Unit(benchmark::kMicrosecond);

// What a Russian-family language's first request adds once: reading every
// three-digit group in every variant.
void BM_GroupReadings(benchmark::State& state) {
  std::size_t bytes = 0;
  for (auto _ : state) {
    const vela::GroupReadings readings{vela::FamilySpeaker(vela::kRussianLanguage)};
    bytes = readings.textBytes();
    benchmark::DoNotOptimize(bytes);
  }
  state.counters["text_bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_GroupReadings)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  registerTokenBenchmarks();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
