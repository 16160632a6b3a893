#include "grammar/helpers.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <iterator>
#include <string>
#include <vector>

#include "grammar/cp1251.h"

namespace vela {
namespace {

struct GroupCase {
  const char* number;
  int cut;
  DigitGroup expected;  // value, hundreds, tens, teen, units
};

// Digit groups at the cuts the grammars use, teens against tens, and inputs
// the callers should not send but may.
const GroupCase kGroups[] = {
    {"1234567", 3, {1234, 200, 30, 0, 4}},
    {"1234567", 6, {1, 0, 0, 0, 1}},
    {"1234567", 9, {}},
    {"15", 0, {15, 0, 0, 15, 0}},
    {"7", 3, {}},
    {"10", 0, {10, 0, 10, 0, 0}},
    {"111", 0, {111, 100, 0, 11, 0}},
    {"120", 0, {120, 100, 20, 0, 0}},
    {"", 0, {}},
    // longer than an int: the value saturates, the groups still read their digits
    {"1234567890123456789012345678901234567", 0, {INT_MAX, 500, 60, 0, 7}},
    // a separator inside the string is never a digit of a group
    {"1,5", 0, {1, 100, 0, 0, 5}},
};

std::vector<int> fields(const DigitGroup& d) { return {d.value, d.hundreds, d.tens, d.teen, d.units}; }

TEST(DigitGroupTest, Table) {
  for (const auto& c : kGroups) {
    DigitGroup g{1, 1, 1, 1, 1};
    getDigitGroup(c.number, &g, c.cut);
    EXPECT_EQ(fields(g), fields(c.expected)) << c.number << " cut " << c.cut;
  }
}

// getDigitGroups reads all four cuts at once; it must agree with getDigitGroup
// cut by cut on every number above, digits only or not.
TEST(DigitGroupTest, AllCutsAgreeWithOneCut) {
  const char* extra[] = {"1", "1000", "999999999999", "2147483648000", "0001002003", "12 34", "-5", " 7",
                         "+7",
                         // a byte that is not a digit after the value saturates, or among the last twelve
                         "99999999999x123456789012", "999999999999999x12345678", "1234567890123456789"};
  std::vector<std::string> numbers(std::begin(extra), std::end(extra));
  for (const auto& c : kGroups) numbers.emplace_back(c.number);
  const int cuts[4] = {9, 6, 3, 0};
  for (const std::string& number : numbers) {
    const std::array<DigitGroup, 4> all = getDigitGroups(number);
    for (int i = 0; i < 4; ++i) {
      DigitGroup one;
      getDigitGroup(number, &one, cuts[i]);
      EXPECT_EQ(fields(all[i]), fields(one)) << number << " cut " << cuts[i];
    }
  }
}

// A remembered answer is given back only for the same table and the same
// bytes, and only the last two are remembered; a word too long to keep is
// looked up every time.
TEST(LastLookupTest, AsksAgainWhenTableOrWordChanges) {
  const int tableA = 0;
  const int tableB = 0;
  const std::string longWord(LastLookup<int>::kMaxWord + 1, 'w');
  struct Step {
    const void* table;
    std::string word;
    int answer;  // the n-th look-up answers n
  };
  const Step steps[] = {
      {nullptr, "", 1},  // nothing is remembered before the first answer
      {&tableA, "rub", 2},    {&tableA, "rub", 2}, {&tableB, "rub", 3}, {&tableA, "rub", 2},
      {&tableB, "RUB", 4},    {&tableB, "RUB", 4}, {&tableA, "rub", 5}, {&tableB, "RU", 6},
      {&tableB, "", 7},       {&tableB, "RU", 6},  {&tableB, "", 7},    {&tableB, longWord, 8},
      {&tableB, longWord, 9},
  };
  LastLookup<int> last;
  int asked = 0;
  for (const Step& step : steps) {
    EXPECT_EQ(last.get(step.table, step.word, [&] { return ++asked; }), step.answer) << step.word;
  }
}

const std::string k255(255, 'a');
const std::string k256(256, 'a');

// Table words are lower case; tokens match whatever their case, Cyrillic too.
const std::tuple<std::string, const char*, bool> kWords[] = {
    {"", "", true},
    {"", nullptr, false},
    {"RUB", "rub", true},
    {"rub", "RUB", false},
    {"rubl", "rub", false},
    {"РУБ"_cp, "руб"_cp, true},
    {"ЁЖ"_cp, "ёж"_cp, true},
    {"ЄІЇҐЎ"_cp, "єіїґў"_cp, true},
    {std::string(255, 'A'), k255.c_str(), true},
    {k256, k256.c_str(), false},
};

TEST(MatchesWordTest, Table) {
  for (const auto& [token, word, matches] : kWords)
    EXPECT_EQ(matchesWord(token, word), matches) << token.size();
}

TEST(ReadIntTest, Table) {
  const std::pair<const char*, int> cases[] = {
      {"007", 7}, {"2147483648", INT_MAX}, {"-2147483649", INT_MIN}, {"12ab", 12}, {"", 0}, {"x1", 0},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(readInt(text), value) << text;
}

// The literal converter must put Windows-1251 bytes into the binary.
TEST(Cp1251Test, Bytes) {
  EXPECT_EQ(std::string("рубль"_cp), "\xF0\xF3\xE1\xEB\xFC");
  EXPECT_EQ(std::string("АЯая"_cp), "\xC0\xDF\xE0\xFF");
  EXPECT_EQ(std::string("ЁёІіЇїЄєҐґ№"_cp), "\xA8\xB8\xB2\xB3\xAF\xBF\xAA\xBA\xA5\xB4\xB9");
}

}  // namespace
}  // namespace vela
