// Helpers for the Central Asian and Caucasian tests: a request through the
// public C API, its prompt names joined by single spaces, and what a call
// printed on standard output.
#pragma once

#include <gtest/gtest.h>

#include <span>
#include <sstream>
#include <string>

#include "vela/vela.h"

namespace vela::testing_family {

// A text and the prompt names it gives, joined by single spaces (the caller's
// own text when nothing is spoken).
struct Reading {
  const char* text;
  const char* prompts;
};

// The buffer exactly as decodeBuffer returns it.
inline std::string decodeRaw(const char* tag, const std::string& text) {
  char* out = nullptr;
  EXPECT_EQ(decodeBuffer(tag, text.c_str(), &out), 0);
  std::string result = out != nullptr ? out : "";
  decodeReleaseBuffer(out);
  return result;
}

// The non-empty space-separated pieces, joined by single spaces.
inline std::string joinNames(const std::string& names) {
  std::string joined;
  std::istringstream in(names);
  for (std::string name; in >> name;) joined += (joined.empty() ? "" : " ") + name;
  return joined;
}

inline std::string speak(const char* tag, const std::string& text) { return joinNames(decodeRaw(tag, text)); }

inline void expectReadings(const char* tag, std::span<const Reading> cases) {
  for (const Reading& c : cases) EXPECT_EQ(speak(tag, c.text), c.prompts) << tag << " " << c.text;
}

// What `fn` printed on standard output.
template <class Fn>
std::string capturedStdout(Fn fn) {
  ::testing::internal::CaptureStdout();
  fn();
  return ::testing::internal::GetCapturedStdout();
}

// A clock time or date the classifier accepts but the grammar refuses: what
// it printed and what it handed back.
struct Refusal {
  const char* text;
  const char* printed;
  const char* prompts;
};

inline void expectRefusals(const char* tag, std::span<const Refusal> cases) {
  for (const Refusal& c : cases) {
    std::string prompts;
    EXPECT_EQ(capturedStdout([&] { prompts = speak(tag, c.text); }), c.printed) << tag << " " << c.text;
    EXPECT_EQ(prompts, c.prompts) << tag << " " << c.text;
  }
}

// A whole number and its reading by one speller.
struct Spelled {
  const char* digits;
  const char* words;
};

}  // namespace vela::testing_family
