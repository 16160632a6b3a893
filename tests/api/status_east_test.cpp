// The status of a reading in Arabic and in the Central Asian and Caucasian
// family: every way a grammar there leaves part of a text unsaid, or says it
// changed, makes the reading partial; the near misses stay fully spoken.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "vela/vela.h"

namespace {

struct Reading {
  std::string names;
  std::string diagnostics;
  int status = -1;
};

Reading readOf(const char* tag, const std::string& text) {
  vela_reading r;
  if (vela_read(tag, text.c_str(), 0, &r) != 0) return {};
  Reading reading{r.names, r.diagnostics, r.status};
  vela_reading_free(&r);
  return reading;
}

struct Case {
  const char* tag;
  const char* text;
  int status;
  const char* diagnostics;
};

// Arabic.
const Case kArabic[] = {
    // Only the last twelve digits are read; zeros above them lose nothing.
    {"ar", "1000000000001h", VELA_PARTLY_SPOKEN, ""},
    {"ar", "1000000000000h", VELA_PARTLY_SPOKEN, ""},  // read as no hours at all
    {"ar", "100000000001h", VELA_SPOKEN, ""},
    {"ar", "0000000000001h", VELA_SPOKEN, ""},
    {"ARAB", "\"1000000000001:00\"", VELA_PARTLY_SPOKEN, ""},
    // A word that names no noun: the sign stands alone, or nothing is said.
    {"ar", "-5xyz", VELA_PARTLY_SPOKEN, ""},
    {"ar", "5xyz", VELA_NOT_SPOKEN, ""},
    // A fraction of more than nine digits on a count is ignored.
    {"ar", "5.1234567890h", VELA_PARTLY_SPOKEN, ""},
    // A fraction longer than the minor unit's places is misread as minor units;
    // a shorter one is padded, and a zero one loses nothing.
    {"ar", "5.123d", VELA_PARTLY_SPOKEN, ""},
    {"ar", "5.12d", VELA_SPOKEN, ""},
    {"ar", "5.5dinar", VELA_SPOKEN, ""},
    {"ar", "5.000d", VELA_SPOKEN, ""},
    // Keys and the decimal point have no word; quotes and dashes are not text.
    {"ar", "\"1*#\"", VELA_PARTLY_SPOKEN, ""},
    {"ar", "\"123\"", VELA_SPOKEN, ""},
    {"ar", "1.50", VELA_PARTLY_SPOKEN, ""},
    {"ar", "0-05-120", VELA_SPOKEN, ""},
    // Month 00 is no month: its slot holds a stand-in word.
    {"ar", "5.00", VELA_PARTLY_SPOKEN, ""},
    {"ar", "5.01", VELA_SPOKEN, ""},
    // Nothing said: a clock time with seconds, a character without a word, a
    // refused hour (with its complaint).
    {"ar", "7:05:09", VELA_NOT_SPOKEN, ""},
    {"ar", "a", VELA_NOT_SPOKEN, ""},
    {"ar", "25:00", VELA_NOT_SPOKEN, "wrong time (hours) 25\n"},
};

// Kazakh, Uzbek, Tajik, Georgian and Armenian, under their various tags.
const Case kCentralAsian[] = {
    // Only the last twelve digits are read, by every speller.
    {"kk", "1000000000001", VELA_PARTLY_SPOKEN, ""},
    {"kk", "100000000001", VELA_SPOKEN, ""},
    {"ARMJAN", "1000000000000rub", VELA_PARTLY_SPOKEN, ""},
    {"ka", "1000000000001", VELA_SPOKEN, ""},  // a plain Georgian number is read digit by digit
    // A word not in the unit table.
    {"TAJIK", "-5xyz", VELA_PARTLY_SPOKEN, ""},
    {"hy", "-5xyz", VELA_PARTLY_SPOKEN, ""},
    // A fraction of more than nine digits on a count.
    {"uz", "5.1234567890h", VELA_PARTLY_SPOKEN, ""},
    // A minor part of more than two digits is read as that many minor units.
    {"UZBEK", "5.123rub", VELA_PARTLY_SPOKEN, ""},
    {"uz", "5.5rub", VELA_SPOKEN, ""},
    {"hy", "5.123rub", VELA_PARTLY_SPOKEN, ""},
    // Keys, and a bare fraction read as two numbers or as its digits.
    {"GEORGIAN", "\"1*#\"", VELA_PARTLY_SPOKEN, ""},
    {"KAZAKH", "32.1", VELA_PARTLY_SPOKEN, ""},
    {"ka", "1.50", VELA_PARTLY_SPOKEN, ""},
    {"tg", "0-05-120", VELA_SPOKEN, ""},
    // Month 00 says nothing (Uzbek) or a stand-in word (Kazakh).
    {"uz", "5.00", VELA_PARTLY_SPOKEN, ""},
    {"kk", "5.00", VELA_PARTLY_SPOKEN, ""},
    {"uz", "5.01", VELA_SPOKEN, ""},
    // Georgian thousands ending in 1 say only the scale word.
    {"ka", "21000rub", VELA_PARTLY_SPOKEN, ""},
    {"ka", "1000rub", VELA_SPOKEN, ""},
    // Armenian seconds 11-19 are not read as their number.
    {"hy", "7:05:15", VELA_PARTLY_SPOKEN, ""},
    {"hy", "7:05:20", VELA_SPOKEN, ""},
    // An Armenian date without a year says the year zero.
    {"hy", "5.01", VELA_PARTLY_SPOKEN, ""},
    {"hy", "5.01.2008", VELA_SPOKEN, ""},
    // A span with seconds only Armenian reads; a refused hour keeps the closing word.
    {"kk", "\"1:05:07\"", VELA_NOT_SPOKEN, ""},
    {"hy", "\"1:05:07\"", VELA_SPOKEN, ""},
    {"tg", "25:00", VELA_PARTLY_SPOKEN, "wrong time (hours) 25\n"},
};

void expectStatuses(const Case* begin, const Case* end) {
  for (const Case* c = begin; c != end; ++c) {
    const Reading reading = readOf(c->tag, c->text);
    EXPECT_EQ(reading.status, c->status) << c->tag << " " << c->text << " -> [" << reading.names << "]";
    EXPECT_EQ(reading.diagnostics, c->diagnostics) << c->tag << " " << c->text;
  }
}

TEST(StatusEastTest, Arabic) { expectStatuses(std::begin(kArabic), std::end(kArabic)); }

TEST(StatusEastTest, CentralAsian) { expectStatuses(std::begin(kCentralAsian), std::end(kCentralAsian)); }

// A fully spoken reading depends on every digit of its text: changing one of
// them changes the names. Texts of every shape ("#" a random digit).
TEST(StatusEastTest, SpokenReadingsSayEveryDigit) {
  static const char* const kShapes[] = {
      "#",    "##",       "-#h",     "#rub",        "#d",        "##.#d",       "#.###dinar", "#.#######h",
      "#.##", "#.##.20#", "##:##",   "##:##:##",    "\"##:##\"", "\"#:##:##\"", "\"#*##\"",   "#-##",
      "##.#", "#####usd", "-####ab", "###########", "##.###",    ",##kzt",      "##|#gel",    "#######amd",
  };
  static const char* const kTags[] = {"ar", "kk", "uz", "tg", "ka", "hy"};
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
