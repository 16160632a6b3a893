// Helpers for the Russian-family tests: a request through the public API, its
// prompt names joined by single spaces, and the diagnostics it printed.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "vela/vela.h"

namespace vela::testing_russian {

// The non-empty space-separated pieces of `names`, joined by single spaces.
inline std::string joinNames(const std::string& names) {
  std::string joined;
  std::istringstream in(names);
  for (std::string name; in >> name;) joined += (joined.empty() ? "" : " ") + name;
  return joined;
}

// decodeBuffer's buffer exactly as returned (Windows-1251 bytes).
inline std::string decodeRaw(const char* tag, const std::string& text) {
  char* out = nullptr;
  EXPECT_EQ(decodeBuffer(tag, text.c_str(), &out), 0);
  std::string result = out != nullptr ? out : "";
  decodeReleaseBuffer(out);
  return result;
}

// Mode 0 (Cyrillic Russian, and every other tag).
inline std::string speak(const char* tag, const std::string& text) { return joinNames(decodeRaw(tag, text)); }

// Mode 1 (transliterated Russian): the names DecodeBufferASCII lists, or "" when it declines.
inline std::string speakAscii(const char* tag, const std::string& text) {
  std::vector<std::string> files;
  std::ostringstream log;
  if (!DecodeBufferASCII(tag, text, files, log)) return "";
  std::string joined;
  for (const std::string& name : files) joined += (joined.empty() ? "" : " ") + name;
  return joined;
}

// What `speakFn` printed on standard output.
template <class Fn>
std::string capturedStdout(Fn speakFn) {
  ::testing::internal::CaptureStdout();
  speakFn();
  return ::testing::internal::GetCapturedStdout();
}

}  // namespace vela::testing_russian
