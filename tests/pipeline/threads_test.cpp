// Requests on several threads at once: every grammar, both modes, every kind of
// token. Each thread must get the answers one thread gets. Run under
// ThreadSanitizer by scripts/test.sh, which then also proves there is no race
// on the shared grammar instances and the per-thread decoders.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include "grammar/cp1251.h"
#include "pipeline/text_decoder.h"
#include "vela/vela.h"

namespace vela {
namespace {

// One tag of every grammar, and one that is unknown.
const char* const kTags[] = {"en", "ru", "ro", "uk", "uz", "tg", "kk", "ka", "hy", "ar", "xx"};

// One text of every kind of token.
const std::string kTexts[] = {
    "12.50руб"_cp, "-5,5kb",   "1.05.2015", "1.05.2015(I)", "1.05",    "1.05(I)",
    "1234567",     "0-05-120", "\"12#*\"",  "7:05",         "7:05:30", "\"125:30\"",
    "\"1:02:03\"", "1,5",      "x",         "ab",           "x.wav",   "3min",
    "25:61",  // a complaint
};

// The answer of decodeText, then the reading's status, names and complaints.
std::string decode(const char* tag, const std::string& text, unsigned char mode) {
  char* out = nullptr;
  vela_reading reading;
  if (decodeText(tag, text.c_str(), &out, mode) != 0 || out == nullptr) return "<failed>";
  std::string answer = out;
  std::free(out);
  if (vela_read(tag, text.c_str(), mode != 0 ? VELA_LATIN : 0, &reading) != 0) return "<failed>";
  answer += "|" + std::to_string(reading.status) + "|" + reading.names + "|" + reading.diagnostics;
  vela_reading_free(&reading);
  return answer;
}

struct Request {
  const char* tag;
  const std::string* text;
  unsigned char mode;
};

TEST(ThreadsTest, EveryTagAndModeGivesOneThreadsAnswers) {
  std::vector<Request> requests;
  std::vector<std::string> expected;
  for (const char* tag : kTags) {
    for (const std::string& text : kTexts) {
      for (unsigned char mode : {0, 1}) {
        requests.push_back({tag, &text, mode});
        expected.push_back(decode(tag, text, mode));
      }
    }
  }
  constexpr int kThreads = 4;
  std::vector<std::size_t> mismatches(kThreads, 0);
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([&, t] {
      // Each thread walks the requests from its own starting point, so
      // different grammars run at the same moment.
      for (std::size_t n = 0; n < requests.size(); ++n) {
        const std::size_t i = (n + t * requests.size() / kThreads) % requests.size();
        if (decode(requests[i].tag, *requests[i].text, requests[i].mode) != expected[i]) ++mismatches[t];
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(mismatches, std::vector<std::size_t>(kThreads, 0));
}

}  // namespace
}  // namespace vela
