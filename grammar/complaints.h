// The one route of a grammar's complaints about its input ("wrong suffix ...",
// " incorrect day ...") and of the parts of a text it leaves unsaid.
//
// A complaint is printed on standard output, exactly as given, unless a
// RequestReport is open on the calling thread: then it is kept there, and the
// request counts as partly spoken. Nothing else in the library prints.
#pragma once

#include <cstdarg>
#include <string>

namespace vela {

// Prints, or keeps for the open report, one complaint (printf format).
void complain(const char* format, ...) __attribute__((format(printf, 1, 2)));

// Notes that part of the text was left unsaid or changed without a complaint:
// digits beyond those the language reads, a key or character with no word, a
// fraction cut or ignored, a sign without its amount. Prints nothing.
void leaveUnsaid();

// While one is open on a thread, that thread's complaints are kept in it
// instead of printed. Reports do not nest: opening one while another is open
// on the same thread keeps the complaints in the newer one until it closes.
class RequestReport {
 public:
  RequestReport();
  ~RequestReport();
  RequestReport(const RequestReport&) = delete;
  RequestReport& operator=(const RequestReport&) = delete;

  // The complaints so far, one a line: each without its leading and trailing
  // blanks, ended by one '\n'.
  const std::string& complaints() const { return complaints_; }
  // True once a complaint was made or something was left unsaid.
  bool partial() const { return partial_; }

  void keep(const char* format, std::va_list args);
  void markPartial() { partial_ = true; }

 private:
  std::string& complaints_;  // the thread's buffer: it keeps its capacity between requests
  bool partial_ = false;
  RequestReport* outer_;
};

}  // namespace vela
