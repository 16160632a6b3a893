// Helpers for the Russian-family tests: a request through the public API, its
// prompt names joined by single spaces, and the diagnostics it printed.
#pragma once

#include <gtest/gtest.h>

#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "pipeline/text_decoder.h"
#include "vela/vela.h"

namespace vela::testing_russian {

// A text and the prompt names it gives, joined by single spaces (the caller's
// text when nothing is spoken; "" when DecodeBufferASCII declines).
struct Reading {
  const char* text;
  const char* prompts;
};

// The non-empty space-separated pieces of `names`, joined by single spaces.
inline std::string joinNames(const std::string& names) {
  std::string joined;
  std::istringstream in(names);
  for (std::string name; in >> name;) joined += (joined.empty() ? "" : " ") + name;
  return joined;
}

// The buffer exactly as returned (Windows-1251 bytes): decodeBuffer in mode 0;
// decodeText in mode 1, which keeps capitals (the "(I)" marker) where
// DecodeBufferASCII lower-cases them.
inline std::string decodeRaw(const char* tag, const std::string& text, int mode = 0) {
  char* out = nullptr;
  EXPECT_EQ(mode == 0 ? decodeBuffer(tag, text.c_str(), &out) : decodeText(tag, text.c_str(), &out, mode), 0);
  std::string result = out != nullptr ? out : "";
  decodeReleaseBuffer(out);
  return result;
}

// Mode 0 through decodeBuffer; mode 1 (transliterated Russian) through DecodeBufferASCII.
inline std::string speak(const char* tag, const std::string& text, bool transliterated = false) {
  if (!transliterated) return joinNames(decodeRaw(tag, text));
  std::vector<std::string> files;
  std::ostringstream log;
  if (!DecodeBufferASCII(tag, text, files, log)) return "";
  std::string names;
  for (const std::string& name : files) names += name + " ";
  return joinNames(names);
}

inline void expectReadings(const char* tag, std::span<const Reading> cases, bool transliterated = false) {
  for (const Reading& c : cases) EXPECT_EQ(speak(tag, c.text, transliterated), c.prompts) << c.text;
}

// What `speakFn` printed on standard output.
template <class Fn>
std::string capturedStdout(Fn speakFn) {
  ::testing::internal::CaptureStdout();
  speakFn();
  return ::testing::internal::GetCapturedStdout();
}

}  // namespace vela::testing_russian
