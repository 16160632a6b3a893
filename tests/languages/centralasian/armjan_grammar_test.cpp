// Armenian readings through the public API, and its speller on its own.
#include "languages/centralasian/armjan_grammar.h"

#include <gtest/gtest.h>

#include "support/speak.h"

namespace vela::testing {
namespace {

const Reading kArmenian[] = {
    // A plain number digit by digit.
    {"2008", "erku zro zro ut"},
    // Counts: teens from their own row, "erek" for 300 and "haryur" for 700,
    // "mek hazar"; zero says zro except for zero messages (exact key).
    {"0num", "zro hamar"},
    {"12num", "tasnerku hamar"},
    {"300num", "erek harjur hamar"},
    {"700num", "jot haryur hamar"},
    {"2000000num", "erku milion hamar"},
    {"1000000001num", "mek miliard mek hamar"},
    {"0mes", "Duk chuneq hakhordagrutyunner"},
    {"0MES", "zro hakhordagrutjun"},
    {"5usd", "5usd"},
    // Money: no connective, no absence word.
    {"0.5amd", "hisun luma"},
    {"12.01rub", "tasnerku rubli mek kopek"},
    // Dates: year, month, day with its case ending.
    {"2.01.2008", "erku hazar ut tvakani hunvari erkusin"},
    {"20.01.2008", "erku hazar ut tvakani hunvari qsanin"},
    {"22.06.1999", "mek hazar iny harjur insun iny tvakani hunisi qsan erkusin"},
    {"5.00.2008", "erku hazar ut tvakani iny harjur hingin"},
    // Clock times: the hours in their case, seconds with the last two digits as
    // their tens (11..19 say tens, teen and units; 01..09 only the units).
    {"2:05", "dgamy erkusn ants hing rope"},
    {"0:30", "dgamy zro dgam eresun rope"},
    {"10:15:15", "dgamy tasy ants tasnhing rope tasy tasnhing hing vajrkjanin"},
    {"1:00:05", "dgamy mekn ants zro rope hing vajrkjanin"},
    // Spans, also with seconds; no case suffix.
    {"\"1:30\"", "mek dgam eresun rope"},
    {"\"1:02:03\"", "mek dgam erku rope ereq vajrkjan"},
    // Digit strings and symbols; a character without a word comes back.
    {"\"105\"", "mek zro hing"},
    {"#", "vandakanish"},
    {"_", "_"},
};

TEST(ArmjanGrammar, Readings) {
  expectReadings("hy", kArmenian);
  // The cent keeps its Cyrillic first letter (byte F1).
  EXPECT_EQ(speak("hy", "5.05d"),
            "hing dolar hing \xF1"
            "ent");
  EXPECT_EQ(decodeRaw("hy", "0.5amd"), "   hisun  luma");
  const Complaint refused[] = {{"25:00", "wrong time (hours) 25\r\n", "rope"}};
  expectComplaints("hy", refused);
}

// The month is checked before the day.
// The case suffix goes on the last word of a group only when asked for.
TEST(ArmjanGrammar, CaseSuffix) {
  const struct {
    int hundreds, tens, teen, units;
    bool withCase;
    const char* words;
  } cases[] = {
      {0, 0, 0, 2, true, "erkusn"},
      {0, 0, 12, 0, true, "tasnerkusn"},
      {0, 20, 0, 5, true, "qsan hingn"},
      {0, 30, 0, 0, true, "eresun"},
      {300, 0, 0, 2, false, "erek harjur erku"},
  };
  for (const auto& c : cases) {
    std::string out;
    ArmjanGrammar::speakGroup({c.hundreds + c.tens + c.teen + c.units, c.hundreds, c.tens, c.teen, c.units},
                              out, c.withCase);
    EXPECT_EQ(joinNames(out), c.words) << c.words;
  }
}

}  // namespace
}  // namespace vela::testing
