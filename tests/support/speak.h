// Requests through the public API for the language tests: the answer as
// handed back, its prompt names joined by single spaces, and what a call
// printed on standard output.
#pragma once

#include <gtest/gtest.h>

#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "pipeline/text_decoder.h"
#include "vela/vela.h"

namespace vela::testing {

// A text and the prompt names it gives, joined by single spaces (the caller's
// own text when nothing is spoken; "" when DecodeBufferASCII declines).
struct Reading {
  const char* text;
  const char* prompts;
};

// The buffer exactly as returned (Windows-1251 bytes): decodeBuffer in mode 0,
// decodeText in mode 1.
inline std::string decodeRaw(const char* tag, const std::string& text, int mode = 0) {
  char* out = nullptr;
  EXPECT_EQ(mode == 0 ? decodeBuffer(tag, text.c_str(), &out) : decodeText(tag, text.c_str(), &out, mode), 0);
  std::string result = out != nullptr ? out : "<null>";
  decodeReleaseBuffer(out);
  return result;
}

// The non-empty space-separated pieces of `names`, joined by single spaces.
inline std::string joinNames(const std::string& names) {
  std::string joined;
  std::istringstream in(names);
  for (std::string name; in >> name;) joined += (joined.empty() ? "" : " ") + name;
  return joined;
}

// Mode 0 through decodeBuffer; transliterated Russian through DecodeBufferASCII.
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
  for (const Reading& c : cases)
    EXPECT_EQ(speak(tag, c.text, transliterated), c.prompts) << tag << " " << c.text;
}

// Readings compared byte for byte, spaces included.
inline void expectRawReadings(const char* tag, std::span<const Reading> cases) {
  for (const Reading& c : cases) EXPECT_EQ(decodeRaw(tag, c.text), c.prompts) << tag << " " << c.text;
}

// What `fn` printed on standard output.
template <class Fn>
std::string capturedStdout(Fn fn) {
  ::testing::internal::CaptureStdout();
  fn();
  return ::testing::internal::GetCapturedStdout();
}

// A text, what its request printed, and the prompt names it gave.
struct Complaint {
  const char* text;
  const char* printed;
  const char* prompts;
};

inline void expectComplaints(const char* tag, std::span<const Complaint> cases, bool transliterated = false) {
  for (const Complaint& c : cases) {
    std::string prompts;
    EXPECT_EQ(capturedStdout([&] { prompts = speak(tag, c.text, transliterated); }), c.printed)
        << tag << " " << c.text;
    EXPECT_EQ(prompts, c.prompts) << tag << " " << c.text;
  }
}

}  // namespace vela::testing
