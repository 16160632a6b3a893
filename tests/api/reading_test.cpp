// vela_read: its contract, and its agreement with the stated exports over a
// random corpus: the same names, and the complaints they print on standard
// output kept in the reading instead, with nothing printed.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "grammar/cp1251.h"
#include "support/speak.h"
#include "support/text_corpus.h"
#include "vela/vela.h"

namespace vela {
namespace {

struct Read {
  int result;
  std::string names, diagnostics;
  int status = -1, unknownTag = -1;
};

Read read(const char* tag, const char* text, unsigned options) {
  vela_reading r;
  Read got{vela_read(tag, text, options, &r), r.names ? r.names : "<null>",
           r.diagnostics ? r.diagnostics : "<null>", r.status, r.unknown_tag};
  vela_reading_free(&r);
  return got;
}

struct Case {
  const char* tag;
  std::string text;
  unsigned options;
  int result, status;
  const char* names;
  const char* diagnostics;
  int unknownTag;
};

const Case kCases[] = {
    {"ru", "12.50руб"_cp, 0, 0, VELA_SPOKEN, "двенадцать рублей пятьдесят копеек"_cp, "", 0},
    {"ru", "5", VELA_LATIN, 0, VELA_SPOKEN, "pyat", "", 0},
    // A sign without its amount: the unit is unknown.
    {"ru", "-5xyz", 0, 0, VELA_PARTLY_SPOKEN, "минус"_cp, "", 0},
    // No rule takes it, or the grammar says only blanks: no names, never the text.
    {"ru", "5 руб"_cp, 0, 0, VELA_NOT_SPOKEN, "", "", 0},
    {"ru", "\"*#\"", 0, 0, VELA_NOT_SPOKEN, "", "", 0},
    {"ru", "  ", 0, 0, VELA_NOT_SPOKEN, "", "", 0},
    // A complaint, without its blanks, ended by one newline.
    {"ru", "7:75", 0, 0, VELA_NOT_SPOKEN, "", "wrong time (minutes) 7\n", 0},
    {"ru", " a.wav   b ", 0, 0, VELA_FILE_NAMES, "a.wav b", "", 0},
    {"xx", "5", 0, 0, VELA_SPOKEN, "five", "", 1},
    {nullptr, "", 0, 0, VELA_NOT_SPOKEN, "", "", 1},
    // Under the strict option an unknown tag is an error and nothing is allocated.
    {"xx", "5", VELA_STRICT_TAG, -3, 0, "<null>", "<null>", 0},
    {"ru", "5", VELA_STRICT_TAG, 0, VELA_SPOKEN, "пять"_cp, "", 0},
};

TEST(ReadingTest, Table) {
  for (const Case& c : kCases) {
    Read got;
    EXPECT_EQ(testing::capturedStdout(
                  [&] { got = read(c.tag, c.tag == nullptr ? nullptr : c.text.c_str(), c.options); }),
              "")
        << c.text;
    EXPECT_EQ(got.result, c.result) << c.text;
    EXPECT_EQ(got.names, c.names) << c.text;
    EXPECT_EQ(got.diagnostics, c.diagnostics) << c.text;
    if (c.result != 0) continue;
    EXPECT_EQ(got.status, c.status) << c.text;
    EXPECT_EQ(got.unknownTag, c.unknownTag) << c.text;
  }
  EXPECT_EQ(vela_read("ru", "5", 0, nullptr), -1);
  vela_reading_free(nullptr);
}

// Lines of printed complaints, each without its blanks at either end and ended by '\n'.
std::string complaintLines(const std::string& printed) {
  std::string lines;
  std::size_t start = 0;
  while (start < printed.size()) {
    std::size_t end = printed.find('\n', start);
    if (end == std::string::npos) end = printed.size();
    std::size_t b = start, e = end;
    while (b < e && (printed[b] == ' ' || printed[b] == '\r' || printed[b] == '\t')) ++b;
    while (e > b && (printed[e - 1] == ' ' || printed[e - 1] == '\r' || printed[e - 1] == '\t')) --e;
    if (e > b) lines.append(printed, b, e - b).append("\n");
    start = end + 1;
  }
  return lines;
}

TEST(ReadingTest, AgreesWithTheStatedExportsOnACorpus) {
  const std::vector<std::string> units = {"руб"_cp, "коп"_cp, "грн"_cp, "usd", "kb",
                                          "min",    "lei",    "som",    "sec"};
  const char* const kTags[] = {"ru", "uk", "en", "ro", "ar", "kk", "uz", "tg", "ka", "hy", "xx"};
  testing::TextCorpus corpus(7, units, 30);
  int spoken = 0, partly = 0, notSpoken = 0;
  for (int n = 0; n < 3000; ++n) {
    const std::string text = corpus.next();
    for (const char* tag : kTags) {
      for (unsigned char mode : {0, 1}) {
        if (mode == 1 && tag != std::string("ru")) continue;
        std::string answer;
        const std::string printed =
            complaintLines(testing::capturedStdout([&] { answer = testing::decodeRaw(tag, text, mode); }));
        Read got;
        const std::string where = std::string(tag) + " [" + text + "]";
        ASSERT_EQ(testing::capturedStdout([&] { got = read(tag, text.c_str(), mode != 0 ? VELA_LATIN : 0); }),
                  "")
            << where;
        ASSERT_EQ(got.diagnostics, printed) << where;
        if (!printed.empty()) ASSERT_NE(got.status, VELA_SPOKEN) << where;
        if (got.status == VELA_NOT_SPOKEN) {
          ASSERT_EQ(got.names, "") << where;
          ++notSpoken;
        } else {
          ASSERT_EQ(got.names, testing::joinNames(answer)) << where;
          ASSERT_FALSE(got.names.empty()) << where;
          (got.status == VELA_SPOKEN ? spoken : partly) += 1;
        }
      }
    }
  }
  // The corpus reaches every status but the file names.
  EXPECT_GT(spoken, 0);
  EXPECT_GT(partly, 0);
  EXPECT_GT(notSpoken, 0);
}

}  // namespace
}  // namespace vela
