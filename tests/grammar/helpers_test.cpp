#include "grammar/helpers.h"

#include <gtest/gtest.h>

#include <climits>

#include "grammar/cp1251.h"

namespace vela {
namespace {

// Digit groups at every cut the grammars use, teens versus tens, and inputs
// the callers should not send but may.
struct GroupCase {
  const char* number;
  int cut;
  DigitGroup expected;
};

const GroupCase kGroups[] = {
    {"1234567", 3, {1234, 200, 30, 0, 4}},
    {"1234567", 0, {1234567, 500, 60, 0, 7}},
    {"1234567", 6, {1, 0, 0, 0, 1}},
    {"1234567", 9, {}},
    {"15", 0, {15, 0, 0, 15, 0}},
    {"7", 3, {}},
    {"7", 0, {7, 0, 0, 0, 7}},
    {"10", 0, {10, 0, 10, 0, 0}},
    {"110", 0, {110, 100, 10, 0, 0}},
    {"111", 0, {111, 100, 0, 11, 0}},
    {"119", 0, {119, 100, 0, 19, 0}},
    {"120", 0, {120, 100, 20, 0, 0}},
    {"000", 0, {0, 0, 0, 0, 0}},
    {"2000000000", 9, {2, 0, 0, 0, 2}},
    {"", 0, {}},
    // Longer than an int: the value saturates, the groups still read their digits.
    {"99999999999", 0, {INT_MAX, 900, 90, 0, 9}},
    {"1234567890123456789012345678901234567", 0, {INT_MAX, 500, 60, 0, 7}},
    // A separator inside the string is never a digit of a group.
    {"1,5", 0, {1, 100, 0, 0, 5}},
    {"3,", 0, {3, 0, 30, 0, 0}},
};

TEST(DigitGroupTest, Table) {
  for (const auto& c : kGroups) {
    DigitGroup g{1, 1, 1, 1, 1};
    getDigitGroup(c.number, &g, c.cut);
    SCOPED_TRACE(std::string(c.number) + " cut " + std::to_string(c.cut));
    EXPECT_EQ(g.value, c.expected.value);
    EXPECT_EQ(g.hundreds, c.expected.hundreds);
    EXPECT_EQ(g.tens, c.expected.tens);
    EXPECT_EQ(g.teen, c.expected.teen);
    EXPECT_EQ(g.units, c.expected.units);
  }
}

// Table words are lower case; tokens match whatever their case, Cyrillic too.
struct WordCase {
  std::string token;
  const char* word;
  bool matches;
};

const WordCase kWords[] = {
    {"", "", true},
    {"", nullptr, false},
    {"rub", "rub", true},
    {"RUB", "rub", true},
    {"Rub", "rub", true},
    {"rub", "RUB", false},
    {"rubl", "rub", false},
    {"ru", "rub", false},
    {"руб"_cp, "руб"_cp, true},
    {"РУБ"_cp, "руб"_cp, true},
    {"Руб"_cp, "руб"_cp, true},
    {"ЁЖ"_cp, "ёж"_cp, true},
    {"ЄІЇҐЎ"_cp, "єіїґў"_cp, true},
    {"руб"_cp, "РУБ"_cp, false},
    {std::string(256, 'a'), "a", false},
};

const std::string k255(255, 'a');

TEST(MatchesWordTest, Table) {
  for (const auto& c : kWords) {
    SCOPED_TRACE(c.token.substr(0, 20));
    EXPECT_EQ(matchesWord(c.token, c.word), c.matches);
  }
}

TEST(MatchesWordTest, LengthLimitIs255Bytes) {
  EXPECT_TRUE(matchesWord(k255, k255.c_str()));
  EXPECT_TRUE(matchesWord(std::string(255, 'A'), k255.c_str()));
}

TEST(MatchesWordTest, LongWordNeverMatches) {
  const std::string longWord(256, 'a');
  EXPECT_FALSE(matchesWord(longWord, longWord.c_str()));
}

struct IntCase {
  const char* text;
  int value;
};

const IntCase kInts[] = {
    {"0", 0},
    {"007", 7},
    {"2147483647", INT_MAX},
    {"2147483648", INT_MAX},
    {"99999999999999999999", INT_MAX},
    {"-2147483649", INT_MIN},
    {"12ab", 12},
    {"  42", 42},
    {"", 0},
    {"x1", 0},
};

TEST(ReadIntTest, Table) {
  for (const auto& c : kInts) EXPECT_EQ(readInt(c.text), c.value) << c.text;
}

// The literal converter must put Windows-1251 bytes into the binary.
TEST(Cp1251Test, Bytes) {
  EXPECT_EQ(std::string("рубль"_cp), "\xF0\xF3\xE1\xEB\xFC");
  EXPECT_EQ(std::string("АЯая"_cp), "\xC0\xDF\xE0\xFF");
  EXPECT_EQ(std::string("Ёё№"_cp), "\xA8\xB8\xB9");
  EXPECT_EQ(std::string("ІіЇїЄєҐґ"_cp), "\xB2\xB3\xAF\xBF\xAA\xBA\xA5\xB4");
  EXPECT_EQ(std::string("a-z 09"_cp), "a-z 09");
}

}  // namespace
}  // namespace vela
