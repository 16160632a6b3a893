// A host may set any C or C++ locale: the answers must not change.
#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <string>

#include "grammar/helpers.h"
#include "support/speak.h"
#include "vela/vela.h"

namespace {

using vela::testing::decodeRaw;

const char* const kTexts[] = {"\xB8",      "\xC0",       "x",      "12.50\xD0\xD3\xC1",
                              "5\xB8\xE6", "31.12.1999", "\"1#\"", "15"};

TEST(LocaleTest, HostLocaleChangesNothing) {
  std::vector<std::string> before;
  for (const char* t : kTexts) before.push_back(decodeRaw("ru", t));

  std::locale cp1251;
  try {
    cp1251 = std::locale("ru_RU.CP1251");
  } catch (const std::runtime_error&) {
    GTEST_SKIP() << "locale ru_RU.CP1251 is not installed";
  }
  // Under this locale the byte 0xB8 (ё) is a printable letter.
  ASSERT_TRUE(std::isprint(static_cast<char>(0xB8), cp1251));
  const std::locale oldGlobal = std::locale::global(cp1251);
  const std::string oldC = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "ru_RU.CP1251");

  for (std::size_t i = 0; i < std::size(kTexts); ++i) EXPECT_EQ(decodeRaw("ru", kTexts[i]), before[i]) << i;
  EXPECT_TRUE(vela::matchesWord("\xD0\xD3\xC1", "\xF0\xF3\xE1"));
  EXPECT_FALSE(vela::matchesWord("\xB8", "\xA8"));

  std::setlocale(LC_ALL, oldC.c_str());
  std::locale::global(oldGlobal);
}

}  // namespace
