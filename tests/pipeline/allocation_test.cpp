// A request allocates nothing but its answer buffer: counted, not timed.
//
// The count covers operator new everywhere, and malloc where no sanitizer owns
// it (a sanitizer build intercepts malloc itself, so there only new is counted).
#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>
#include <thread>

#include "grammar/cp1251.h"
#include "vela/vela.h"

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define VELA_COUNT_MALLOC 0
#else
#define VELA_COUNT_MALLOC 1
#endif

namespace {

thread_local bool counting = false;
thread_local long newCalls = 0;
thread_local long mallocCalls = 0;

}  // namespace

#if VELA_COUNT_MALLOC
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* malloc(std::size_t size) {
  if (counting) ++mallocCalls;
  return __libc_malloc(size);
}
#endif

void* operator new(std::size_t size) {
  if (counting) ++newCalls;
  if (void* p = std::malloc(size == 0 ? 1 : size)) return p;
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* p) noexcept { std::free(p); }
void operator delete[](void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }
void operator delete[](void* p, std::size_t) noexcept { std::free(p); }

namespace {

using vela::operator""_cp;

struct Count {
  long news = 0;
  long mallocs = 0;
};

// Counts the allocations of one decodeBuffer call; the answer buffer is its one malloc.
Count countRequest(const char* tag, const std::string& text, std::string& answer) {
  char* out = nullptr;
  const long news = newCalls, mallocs = mallocCalls;
  counting = true;
  const int status = decodeBuffer(tag, text.c_str(), &out);
  counting = false;
  EXPECT_EQ(status, 0);
  answer = out != nullptr ? out : "";
  decodeReleaseBuffer(out);
  return {newCalls - news, mallocCalls - mallocs};
}

// Counts the allocations of one vela_read call: its two strings are its mallocs.
Count countReading(const char* tag, const std::string& text) {
  vela_reading reading;
  const long news = newCalls, mallocs = mallocCalls;
  counting = true;
  const int status = vela_read(tag, text.c_str(), 0, &reading);
  counting = false;
  EXPECT_EQ(status, 0);
  vela_reading_free(&reading);
  return {newCalls - news, mallocCalls - mallocs};
}

struct Request {
  const char* tag;
  std::string text;
};

// Every kind of token and every grammar, the longest readings (up to 1 KB) and
// texts (up to 64 bytes); unknown units, rejected dates and unknown tags too.
const Request kRequests[] = {
    {"ru", "12.50руб"_cp},
    {"ru", "-999999999999,99руб"_cp},
    {"ru", "12345678901234567890123"},
    {"ru", "\"0123456789#*0123456789#*0123456789#*0123456789#*0123\""},
    {"ru", "x.wav"},
    {"ru", "5xyz"},
    {"ru", "25:61"},
    {"uk", "12.50грн"_cp},
    {"ro", "-5,5lei"},
    {"ar", "12.50usd"},
    {"ar", "7:05"},
    {"kk", "1.05.2015"},
    {"uz", "1.05.2015(I)"},
    {"tg", "12.50som"},
    {"ka", "1234567"},
    {"hy", "\"125:30\""},
    {"en", "999999999min"},
    {"en", "\"12#*\""},
    {"xx", "ab"},
    {"", "x.wav"},
};

// On a thread of its own, whose buffers no earlier request has grown.
TEST(AllocationTest, OnlyTheAnswerIsAllocated) {
  std::thread([] {
    std::string answer;
    countRequest("ru", "1", answer);        // the thread's first request sets up its buffers,
    countRequest("uk", "1", answer);        // and a Russian-family language's first its group readings,
    countRequest("en", "1:02:03", answer);  // and English's first time and money its digit lists
    countRequest("en", "1.05usd", answer);
    std::printf("%s", "");        // and standard output its own, as a grammar's complaint would
    countReading("ru", "25:61");  // and the thread's complaint buffer its own
    for (const Request& r : kRequests) {
      ASSERT_LE(r.text.size(), 64u);
      const Count count = countRequest(r.tag, r.text, answer);
      EXPECT_LE(answer.size(), 1024u) << r.tag << " " << r.text;
      EXPECT_EQ(count.news, 0) << r.tag << " " << r.text;
      EXPECT_EQ(count.mallocs, VELA_COUNT_MALLOC) << r.tag << " " << r.text;
      const Count reading = countReading(r.tag, r.text);
      EXPECT_EQ(reading.news, 0) << "vela_read " << r.tag << " " << r.text;
      EXPECT_EQ(reading.mallocs, 2 * VELA_COUNT_MALLOC) << "vela_read " << r.tag << " " << r.text;
    }
  }).join();
}

// The counter sees what it should: a request too long for the thread's buffers
// is allowed to allocate, and is counted when it does.
TEST(AllocationTest, CounterSeesAllocations) {
  std::string answer;
  const Count count = countRequest("en", std::string(5000, '7'), answer);
  EXPECT_GT(count.news + count.mallocs, VELA_COUNT_MALLOC);
}

}  // namespace
