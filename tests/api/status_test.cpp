// The status of a reading: every way a grammar leaves part of a text unsaid,
// or says it changed, makes the reading partly spoken; the near misses that say
// everything stay spoken.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "grammar/cp1251.h"
#include "vela/vela.h"

namespace vela {
namespace {

struct Reading {
  std::string names;
  std::string diagnostics;
  int status = -1;
};

Reading readOf(const char* tag, const std::string& text, unsigned options = 0) {
  vela_reading r;
  if (vela_read(tag, text.c_str(), options, &r) != 0) return {};
  Reading reading{r.names, r.diagnostics, r.status};
  vela_reading_free(&r);
  return reading;
}

struct StatusCase {
  const char* tag;
  unsigned options;
  const char* text;
  int status;
  const char* diagnostics;
};

constexpr int kSpoken = VELA_SPOKEN;
constexpr int kPartly = VELA_PARTLY_SPOKEN;
constexpr int kNone = VELA_NOT_SPOKEN;

const StatusCase kCases[] = {
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
  for (const StatusCase& c : kCases) {
    const Reading reading = readOf(c.tag, c.text, c.options);
    EXPECT_EQ(reading.status, c.status) << c.tag << " " << c.text << " -> [" << reading.names << "]";
    EXPECT_EQ(reading.diagnostics, c.diagnostics) << c.tag << " " << c.text;
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
        const Reading reading = readOf(tag, text);
        if (reading.status != VELA_SPOKEN) continue;
        for (std::size_t i = 0; i < text.size(); ++i) {
          if (text[i] < '0' || text[i] > '9') continue;
          std::string changed = text;
          changed[i] = static_cast<char>('0' + (text[i] - '0' + 1 + random() % 9) % 10);
          const Reading other = readOf(tag, changed);
          EXPECT_FALSE(other.status == VELA_SPOKEN && other.names == reading.names)
              << tag << ": " << text << " and " << changed << " both read [" << reading.names << "]";
        }
      }
    }
  }
}

}  // namespace
}  // namespace vela
