#include "grammar/complaints.h"

#include <cstdio>

namespace vela {
namespace {

thread_local RequestReport* openReport = nullptr;

// One buffer per thread, reused by every report opened on it.
std::string& threadComplaintBuffer() {
  thread_local std::string buffer = [] {
    std::string s;
    s.reserve(256);
    return s;
  }();
  return buffer;
}

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

}  // namespace

void complain(const char* format, ...) {
  std::va_list args;
  va_start(args, format);
  if (openReport != nullptr) {
    openReport->keep(format, args);
  } else {
    std::vprintf(format, args);
  }
  va_end(args);
}

void leaveUnsaid() {
  if (openReport != nullptr) openReport->markPartial();
}

RequestReport::RequestReport() : complaints_(threadComplaintBuffer()), outer_(openReport) {
  complaints_.clear();
  openReport = this;
}

RequestReport::~RequestReport() { openReport = outer_; }

void RequestReport::keep(const char* format, std::va_list args) {
  partial_ = true;
  const std::size_t start = complaints_.size();
  std::va_list again;
  va_copy(again, args);
  const int length = std::vsnprintf(nullptr, 0, format, args);
  if (length > 0) {
    complaints_.resize(start + static_cast<std::size_t>(length) + 1);
    std::vsnprintf(complaints_.data() + start, static_cast<std::size_t>(length) + 1, format, again);
    complaints_.resize(start + static_cast<std::size_t>(length));
  }
  va_end(again);
  // The line without its blanks at either end, then one '\n'; nothing for a blank line.
  std::size_t end = complaints_.size();
  while (end > start && isBlank(complaints_[end - 1])) --end;
  std::size_t begin = start;
  while (begin < end && isBlank(complaints_[begin])) ++begin;
  complaints_.resize(end);
  complaints_.erase(start, begin - start);
  if (complaints_.size() > start) complaints_ += '\n';
}

}  // namespace vela
