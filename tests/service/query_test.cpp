// The request target and the text checks every route that reads a text makes.
#include "service/query.h"

#include <gtest/gtest.h>

namespace vela::service {
namespace {

// How a target splits into path and decoded parameters, and which are refused.
TEST(ServiceQueryTest, ParsesTargets) {
  struct Case {
    const char* target;
    const char* error;  // part of the message, or null when it parses
    const char* path;
    const char* text;  // the decoded text parameter, or null when absent
  };
  const Case kCases[] = {
      {"/v1/read?lang=ru&text=12.50%D1%80%D1%83%D0%B1", nullptr, "/v1/read", "12.50руб"},
      {"/v1/read?text=a+b%2Bc", nullptr, "/v1/read", "a b+c"},        // "+" is a space, %2B a plus
      {"/v1/read?text=1&text=2", nullptr, "/v1/read", "1"},           // the first one counts
      {"/v1/read?text=", nullptr, "/v1/read", ""},                    // present and empty
      {"/v1/read?&&text=7&", nullptr, "/v1/read", "7"},               // empty pairs skipped
      {"/v1/%2e%2e/read?x=1", nullptr, "/v1/%2e%2e/read", nullptr},   // the path stays as sent
      {"/v1/read?text=%", "percent-encoding", "/v1/read", nullptr},   // truncated escape
      {"/v1/read?te%xt=1", "percent-encoding", "/v1/read", nullptr},  // in a key too
      {"/v1/read?text=a%00b", "NUL", "/v1/read", nullptr},
      {"http://example.com/v1/read", "start with", "http://example.com/v1/read", nullptr},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.target);
    Target target;
    const auto error = parseTarget(c.target, target);
    EXPECT_EQ(target.path, c.path);
    if (c.error != nullptr) {
      ASSERT_TRUE(error.has_value());
      EXPECT_NE(error->find(c.error), std::string::npos) << *error;
      continue;
    }
    ASSERT_FALSE(error.has_value()) << *error;
    const std::string* text = target.find("text");
    if (c.text == nullptr) {
      EXPECT_EQ(text, nullptr);
    } else {
      ASSERT_NE(text, nullptr);
      EXPECT_EQ(*text, c.text);
    }
  }
}

// UTF-8 from the wire into the library's code page, and the refusals.
TEST(ServiceQueryTest, ConvertsToWindows1251) {
  struct Case {
    std::string utf8;
    std::string cp1251;  // expected bytes when it converts
    const char* error;   // part of the message otherwise
  };
  const Case kCases[] = {
      {"12.50руб", "12.50\xF0\xF3\xE1", nullptr},
      {"ёЁ№€", "\xB8\xA8\xB9\x88", nullptr},  // letters and signs outside the basic Cyrillic block
      {"\xFF", "", "invalid UTF-8 at byte 0"},
      {"ab\xD1", "", "invalid UTF-8 at byte 2"},  // a sequence cut short
      {"\xC0\xAF", "", "invalid UTF-8"},          // an overlong "/"
      {"5中", "", "U+4E2D is not in Windows-1251"},
      {"a\xF0\x9F\x98\x80", "", "U+1F600 is not in Windows-1251"},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.utf8);
    const Converted converted = toCp1251(c.utf8);
    if (c.error == nullptr) {
      EXPECT_EQ(converted.error, "");
      EXPECT_EQ(converted.bytes, c.cp1251);
    } else {
      EXPECT_NE(converted.error.find(c.error), std::string::npos) << converted.error;
    }
  }
}

}  // namespace
}  // namespace vela::service
