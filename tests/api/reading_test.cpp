// vela_read: its contract, the status it gives, and its agreement with
// decodeBuffer and decodeText over a random corpus: the same names, and the
// complaints they print on standard output kept in the reading instead, with
// nothing printed.
#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <sstream>
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

// The status of a reading: every way a grammar leaves part of a text unsaid,
// or says it changed, makes the reading partly spoken; the near misses that say
// everything stay spoken.
struct StatusCase {
  const char* tag;
  unsigned options;
  const char* text;
  int status;
  const char* diagnostics;
};

constexpr int kSpoken = VELA_SPOKEN, kPartly = VELA_PARTLY_SPOKEN, kNone = VELA_NOT_SPOKEN;

const StatusCase kStatusCases[] = {
    // Russian family: a unit dropped after a whole fraction, keys without a
    // word, a decimal where the language has no decimal words, month 0.
    {"ru", 0, "12.001руб"_cp, kPartly, ""},
    {"ru", 0, "7.00kb", kPartly, ""},
    {"ru", 0, "\"1*#\"", kPartly, ""},
    {"ru", VELA_LATIN, "-1,5kb", kPartly, ""},
    {"ru", 0, "1.00.2015", kNone, "incorrect month 0\n"},
    // ... and what says everything: twelve digits, leading zeros above them,
    // zeros cut from a fraction, zero seconds.
    {"ru", 0, "999999999999", kSpoken, ""},
    {"ru", 0, "0000000000001руб"_cp, kSpoken, ""},
    {"ru", 0, "1.23", kSpoken, ""},
    {"ru", 0, "1.230", kSpoken, ""},
    {"ru", 0, "12.500руб"_cp, kSpoken, ""},
    {"ru", 0, "\"0123456789\"", kSpoken, ""},
    {"ru", 0, "7:05:00", kSpoken, ""},

    // English: a number above the millions, a decimal separator or key without
    // a word, month 0 and the century of a marked date left out, hours past the
    // day, the zero phrase that ignores a fraction.
    {"en", 0, "\"1234567890:00\"", kPartly, ""},
    {"en", 0, "1,5", kPartly, ""},
    {"en", 0, "\"1*#\"", kPartly, ""},
    {"en", 0, "1.00.2015", kPartly, ""},
    {"en", 0, "1.05.2015(I)", kPartly, ""},
    {"en", 0, "24:00", kPartly, ""},
    {"en", 0, "0.5msg", kPartly, ""},
    {"en", 0, "0000000000usd", kSpoken, ""},
    {"en", 0, "12.500usd", kSpoken, ""},
    {"en", 0, "\"999999999:00\"", kSpoken, ""},
    {"en", 0, "0-05-120", kSpoken, ""},
    {"en", 0, "23:59", kSpoken, ""},
    {"en", 0, "0,0msg", kSpoken, ""},

    // Romanian: month 0, the zero phrase; money beyond nine digits is said
    // digit by digit and keys have words.
    {"ro", 0, "1.00.2015", kPartly, ""},
    {"ro", 0, "0.5mes", kPartly, ""},
    {"ro", 0, "1234567890leu", kSpoken, ""},
    {"ro", 0, "\"*#0\"", kSpoken, ""},

    // Arabic.
    // Twelve digits and zeros above them lose nothing; all-zero low digits do.
    {"ar", 0, "1000000000000h", kPartly, ""},  // read as no hours at all
    {"ar", 0, "100000000001h", kSpoken, ""},
    {"ar", 0, "0000000000001h", kSpoken, ""},
    {"ARAB", 0, "\"1000000000001:00\"", kPartly, ""},
    // A word that names no noun: the sign stands alone, or nothing is said.
    {"ar", 0, "-5xyz", kPartly, ""},
    {"ar", 0, "5xyz", kNone, ""},
    // A fraction longer than the minor unit's places is misread as minor units;
    // a shorter one is padded, and a zero one loses nothing.
    {"ar", 0, "5.123d", kPartly, ""},
    {"ar", 0, "5.12d", kSpoken, ""},
    {"ar", 0, "5.5dinar", kSpoken, ""},
    {"ar", 0, "5.000d", kSpoken, ""},
    // Keys and the decimal point have no word; quotes and dashes are not text.
    {"ar", 0, "\"1*#\"", kPartly, ""},
    {"ar", 0, "\"123\"", kSpoken, ""},
    {"ar", 0, "1.50", kPartly, ""},
    {"ar", 0, "0-05-120", kSpoken, ""},
    // Month 00 is no month: its slot holds a stand-in word.
    {"ar", 0, "5.00", kPartly, ""},
    {"ar", 0, "5.01", kSpoken, ""},
    // Nothing said: a clock time with seconds, a character without a word, a
    // refused hour (with its complaint).
    {"ar", 0, "7:05:09", kNone, ""},
    {"ar", 0, "a", kNone, ""},
    {"ar", 0, "25:00", kNone, "wrong time (hours) 25\n"},

    // Kazakh, Uzbek, Tajik, Georgian and Armenian, under their various tags.
    // Twelve digits say everything.
    {"kk", 0, "100000000001", kSpoken, ""},
    {"ka", 0, "1000000000001", kSpoken, ""},  // a plain Georgian number is read digit by digit
    // A word not in the unit table.
    {"TAJIK", 0, "-5xyz", kPartly, ""},
    {"hy", 0, "-5xyz", kPartly, ""},
    // A minor part of more than two digits is read as that many minor units.
    {"UZBEK", 0, "5.123rub", kPartly, ""},
    {"uz", 0, "5.5rub", kSpoken, ""},
    {"hy", 0, "5.123rub", kPartly, ""},
    // Keys, and a bare fraction read as two numbers or as its digits.
    {"GEORGIAN", 0, "\"1*#\"", kPartly, ""},
    {"KAZAKH", 0, "32.1", kPartly, ""},
    {"ka", 0, "1.50", kPartly, ""},
    {"tg", 0, "0-05-120", kSpoken, ""},
    // Month 00 says nothing (Uzbek) or a stand-in word (Kazakh).
    {"uz", 0, "5.00", kPartly, ""},
    {"kk", 0, "5.00", kPartly, ""},
    {"uz", 0, "5.01", kSpoken, ""},
    // Georgian thousands ending in 1 say only the scale word.
    {"ka", 0, "1000rub", kSpoken, ""},
    // Armenian seconds 11-19 are not read as their number.
    {"hy", 0, "7:05:15", kPartly, ""},
    {"hy", 0, "7:05:20", kSpoken, ""},
    // An Armenian date without a year says the year zero.
    {"hy", 0, "5.01", kPartly, ""},
    {"hy", 0, "5.01.2008", kSpoken, ""},
    // A span with seconds only Armenian reads; a refused hour keeps the closing word.
    {"kk", 0, "\"1:05:07\"", kNone, ""},
    {"hy", 0, "\"1:05:07\"", kSpoken, ""},
    {"tg", 0, "25:00", kPartly, "wrong time (hours) 25\n"},
};

TEST(StatusTest, PartialReadingsAreNeverSpoken) {
  for (const StatusCase& c : kStatusCases) {
    const Read got = read(c.tag, c.text, c.options);
    EXPECT_EQ(got.status, c.status) << c.tag << " " << c.text << " -> [" << got.names << "]";
    EXPECT_EQ(got.diagnostics, c.diagnostics) << c.tag << " " << c.text;
  }
}

// A fully spoken reading depends on every digit of its text: changing one of
// them changes the names. Texts of every shape ("#" a random digit), long runs
// now and then: this is what finds digits cut from a number, a fraction or a
// minor part, so the table above holds the other ways and the near misses.
TEST(StatusTest, SpokenReadingsSayEveryDigit) {
  static const char* const kShapes[] = {
      "#",    "##",       "-#h",     "#rub",        "#d",        "##.#d",       "#.###dinar", "#.#######h",
      "#.##", "#.##.20#", "##:##",   "##:##:##",    "\"##:##\"", "\"#:##:##\"", "\"#*##\"",   "#-##",
      "##.#", "#####usd", "-####ab", "###########", "##.###",    ",##kzt",      "##|#gel",    "#######amd",
  };
  static const char* const kTags[] = {"ar", "kk", "uz", "tg", "ka", "hy", "ru", "uk", "en", "ro"};
  std::mt19937 random(18);
  const auto digit = [&random] { return static_cast<char>('0' + random() % 10); };
  for (const char* tag : kTags) {
    for (int round = 0; round < 20; ++round) {
      for (const char* shape : kShapes) {
        std::string text = shape;
        // Long runs now and then: up to sixteen digits for a "#".
        for (std::size_t i = 0; i < text.size(); ++i) {
          if (text[i] != '#') continue;
          text[i] = digit();
          if (round % 5 == 0 && i + 1 < text.size() && text[i + 1] != '#')
            text.insert(i + 1, random() % 15, '7');
        }
        const Read reading = read(tag, text.c_str(), 0);
        if (reading.status != VELA_SPOKEN) continue;
        for (std::size_t i = 0; i < text.size(); ++i) {
          if (text[i] < '0' || text[i] > '9') continue;
          std::string changed = text;
          changed[i] = static_cast<char>('0' + (text[i] - '0' + 1 + random() % 9) % 10);
          const Read other = read(tag, changed.c_str(), 0);
          EXPECT_FALSE(other.status == VELA_SPOKEN && other.names == reading.names)
              << tag << ": " << text << " and " << changed << " both read [" << reading.names << "]";
        }
      }
    }
  }
}

// Lines of printed complaints, each without its blanks at either end and ended by '\n'.
std::string complaintLines(const std::string& printed) {
  std::string lines, line;
  std::istringstream in(printed);
  while (std::getline(in, line)) {
    const std::size_t b = line.find_first_not_of(" \r\t"), e = line.find_last_not_of(" \r\t");
    if (b != std::string::npos) lines += line.substr(b, e - b + 1) + "\n";
  }
  return lines;
}

TEST(ReadingTest, AgreesWithTheOlderEntriesOnACorpus) {
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
