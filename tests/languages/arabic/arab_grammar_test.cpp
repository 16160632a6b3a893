// Arabic readings through the public API. Most tables compare the prompt names
// joined by single spaces; the raw table compares the bytes handed back, where
// a glued "t", "uun"/"iin" or space is the point.
#include "languages/arabic/arab_grammar.h"

#include <gtest/gtest.h>

#include <string>

#include "languages/arabic/arab_number.h"
#include "support/speak.h"

namespace vela::testing {
namespace {

// Numbers with counted nouns.
const Reading kNumbers[] = {
    // 1 and 2: the noun first, then the number in the noun's gender.
    {"1usd", "duulaar waahid"},
    {"2usd", "duulaaraan ^ithnaan"},
    // 3-10: the opposite gender's form, then the plural; eight has its own
    // feminine nominative word.
    {"3usd", "thalaathat duulaaraat"},
    {"8h", "thamaanii saacaat"},
    {"10num", "cashrat ^arqaam"},
    {"5eye", "khams wahdaat"},
    // 11-19: form A whatever the gender, then the singular; 15 is two prompts.
    {"11num", "^ahadacashara raqm"},
    {"15num", "khamsatacashara khamsacashrata raqm"},
    // 20-99: units, " wa", the tens with "uun", the singular.
    {"21usd", "waahid wa ^ishruun duulaar"},
    // Hundreds: a round hundred glues "t" on, except 200; the rest after " wa".
    {"100num", "mi^at raqm"},
    {"200num", "mi^ataan raqm"},
    {"101num", "mi^a wa raqm waahid"},
    {"1234num", "^alf wa mi^ataan wa ^arbaca wa thalaathuun raqm"},
    // Scale groups: one or two is the noun alone, more the masculine group with
    // its noun; after a scale group the unit's noun follows alone.
    {"2000num", "^alfaan raqm"},
    {"3000num", "thalaathat aalaaf raqm"},
    {"11000num", "^ahadacashara ^alf raqm"},
    {"1001num", "^alf wa raqm waahid"},
    {"2000000num", "milyuunaan raqm"},
    {"1000001num", "milyuun wa raqm waahid"},
    {"1002003004num", "milyaar wa milyuunaan wa thalaathat aalaaf wa ^arbacat ^arqaam"},
    // Ten digits and more reach speakCount with an empty digit list; only the
    // last twelve digits are spoken.
    {"3000000000num", "thalaathat milyaaraat raqm"},
    {"1000000000005num", "khamsat ^arqaam"},
    {"5000000000000num", "laa_yuujadu raqm"},
    // Zero, unit words in capitals, unknown words, fractions, the minus word.
    {"0mes", "laa_yuujadu khabar"},
    {"1.5h", "1.5h"},
    {"-5usd", "naqs khamsat duulaaraat"},
};

TEST(ArabGrammar, NumbersAndCountedNouns) { expectReadings("ar", kNumbers); }

// Money: "<major> wa <minor>", the fraction padded to the minor unit's places
// and kept whole when longer; a zero part is left out.
const Reading kMoney[] = {
    {"1.05usd", "duulaar waahid wa khamsat siintaat"},
    {"1.2usd", "duulaar waahid wa ^ishruun siint"},
    {"2.02d", "duulaaraan ^ithnaan wa siintaan ^ithnaan"},
    {",5usd", "khamsuun siint"},
    {"0.00usd", "laa_yuujadu duulaar"},
    {"1.5dinar", "diinaar waahid wa khamsumi^at fils"},
    {"2.005dzd", "diinaaraan ^ithnaan wa khamsat filsaat"},
    {"3.1234usd", "thalaathat duulaaraat wa ^alf wa mi^ataan wa ^arbaca wa thalaathuun siint"},
};

TEST(ArabGrammar, Money) { expectReadings("ar", kMoney); }

// Dates: the day a masculine ordinal, the year a feminine cardinal, both in the
// oblique case; month 00 says " tiscumi^a".
const Reading kDates[] = {
    {"5.01.2005", "lkhaamis min yanaayir ^aam ^alfayn wa khams"},
    {"21.03.1999", "l^awwal wa ^ishriin min maars ^aam ^alf wa tiscumi^a wa tisc wa tis^iin"},
    {"12.05", "ththaaniyacashar min maayuu ^aam"},
    {"31.12.1999(I)", "l^awwal wa thalaathiin min diisambar ^aam ^alf wa tiscumi^a wa tisc wa tis^iin"},
    {"5.00.2015", "lkhaamis min tiscumi^a ^aam ^alfayn wa khamsatacashara khamsacashrata"},
};

TEST(ArabGrammar, Dates) { expectReadings("ar", kDates); }

// Clock times: the minutes rows, the hour moved on only above 40, each period
// of the day, 24 as midnight; h:mm:ss says nothing.
const Reading kClockTimes[] = {
    {"7:01", "^assaaca ssaabica wa daqiiqa waahida sabaahan"},
    {"7:05", "^assaaca ssaabica wa khams daqaa^iq sabaahan"},
    {"7:15", "^assaaca ssaabica wa rrubc sabaahan"},
    {"7:20", "^assaaca ssaabica wa ththulth sabaahan"},
    {"7:21", "^assaaca ssaabica wa waahida wa ^ishruun daqiiqa sabaahan"},
    {"7:25", "^assaaca ssaabica wa nnisf ^illaa khams daqaa^iq sabaahan"},
    {"7:29", "^assaaca ssaabica wa nnisf ^illaa daqiiqa waahida sabaahan"},
    {"7:30", "^assaaca ssaabica wa nnisf sabaahan"},
    {"7:40", "^assaaca ssaabica ^illaa thulth sabaahan"},
    {"7:41", "^assaaca ththaamina ^illaa tiscatacashara daqiiqa sabaahan"},
    {"7:45", "^assaaca ththaamina ^illaa rubc sabaahan"},
    {"7:58", "^assaaca ththaamina ^illaa daqiiqataan ^ithnataan sabaahan"},
    {"00:00", "^assaaca ththaaniyacashrata fi_muntasafi_llayl"},
    {"1:00", "^assaaca lwaahida bacd_muntasafi_llayl"},
    {"4:10", "^assaaca rraabica wa cashr daqaa^iq bacd_muntasafi_llayl"},
    {"13:00", "^assaaca lwaahida bacd_zzuhr"},
    {"23:50", "^assaaca ththaaniyacashrata ^illaa cashr daqaa^iq fi_muntasafi_llayl"},
    {"24:00", "^assaaca ththaaniyacashrata fi_muntasafi_llayl"},
    {"7:05:09", "7:05:09"},
};

TEST(ArabGrammar, ClockTimes) { expectReadings("ar", kClockTimes); }

// Quoted spans: hours and minutes with their nouns and no " wa" between; a
// zero part is left out, nothing at all is " muntasafi_llayl".
const Reading kDurations[] = {
    {"\"0:00\"", "muntasafi_llayl"},
    {"\"1:30\"", "saaca waahida thalaathuun daqiiqa"},
    {"\"125:30\"", "mi^a wa khams wa ^ishruun saaca thalaathuun daqiiqa"},
    {"\"0:00:05\"", "khams thawaanin"},
    {"\"0:02:03\"", "daqiiqataan ^ithnataan thalaath thawaanin"},
};

TEST(ArabGrammar, Durations) { expectReadings("ar", kDurations); }

// The exact bytes: glued endings, the space glued after 3-10 before a feminine
// noun, the space after every digit-string word; a character without a word
// gives the caller's text back.
const Reading kRawBytes[] = {
    {"3usd", " thalaathat duulaaraat"},
    {"8h", " thamaanii  saacaat"},
    {"21usd", " waahid wa ^ishruun duulaar"},
    {"5.01.2005", " lkhaamis min yanaayir ^aam ^alfayn wa khams "},
    {"2009", " ^ithnaan  sifr  sifr  tisca "},
    {"1-2", " waahid   ^ithnaan "},
    {"\"12#*\"", "  waahid  ^ithnaan    "},
    {"1,5", " waahid   khamsa "},
    {"#", " shabaka"},
    {"a", "a"},
};

TEST(ArabGrammar, RawBytes) { expectRawReadings("ar", kRawBytes); }

// Out-of-range parts print their diagnostic, keep what came before and
// refuse the date.
TEST(ArabGrammar, Diagnostics) {
  using Call = void (*)(ArabGrammar&, std::string&);
  const struct {
    Call call;
    const char* appended;
    const char* printed;
  } cases[] = {
      {[](auto& g, auto& out) { EXPECT_EQ(g.speakDate("32", "5", "2005", "", "", out), 0); }, "",
       " incorrect day 32 \r\n"},
      {[](auto& g, auto& out) { EXPECT_EQ(g.speakDate("5", "13", "2005", "", "", out), 0); }, " lkhaamis min",
       " incorrect month 13 \r\n"},
      {[](auto& g, auto& out) { g.speakClockTime("25", "00", out); }, "", "wrong time (hours) 25\r\n"},
      {[](auto& g, auto& out) { g.speakClockTime("-1", "00", out); }, "", "wrong time (hours) -1\r\n"},
      {[](auto& g, auto& out) { g.speakClockTime("7", "60", out); }, "", "wrong time (minutes) 60\r\n"},
      {[](auto& g, auto& out) { g.speakClockTime("99", "99", out); }, "", "wrong time (hours) 99\r\n"},
      {[](auto& g, auto& out) { g.speakDate("5", "5", "", "", "", out); }, " lkhaamis min maayuu ^aam", ""},
  };
  for (const auto& c : cases) {
    ArabGrammar grammar;
    std::string out;
    EXPECT_EQ(capturedStdout([&] { c.call(grammar, out); }), c.printed) << &c - cases;
    EXPECT_EQ(out, c.appended) << &c - cases;
  }
  // Through the API the rejected clock time gives the caller's text back.
  std::string answer;
  EXPECT_EQ(capturedStdout([&] { answer = decodeRaw("ar", "12:60"); }), "wrong time (minutes) 60\r\n");
  EXPECT_EQ(answer, "12:60");
}

// Calls no token makes: a noun token that names no record speaks masculine
// with no noun; a digit goes to speakCharacter; a longer token has no symbol.
TEST(ArabGrammar, DirectCalls) {
  using arabic::ArabicCase;
  const struct {
    const char* number;
    int gender;
    const char* token;
    const char* appended;
  } numbers[] = {
      {"3", arabic::kNoGender, "xyz", " thalaathat"},
      {"21", arabic::kNoGender, "xyz", " waahid wa ^ishruun"},
      {"2000000", arabic::kNoGender, "xyz", " milyuunaan"},
      {"3", arabic::kFeminine, " saaca", " thalaath  saacaat"},
  };
  for (const auto& c : numbers) {
    std::string out;
    arabic::speakArabicNumber(c.number, false, c.gender, ArabicCase::kNominative, c.token, out);
    EXPECT_EQ(out, c.appended) << c.number << " " << c.token;
  }
  ArabGrammar grammar;
  std::string out;
  grammar.speakCharacter("7", out);
  grammar.speakCharacter("1", out);
  grammar.speakCharacter("##", out);
  grammar.speakCharacter("", out);
  EXPECT_EQ(out, " sabca waahid");
}

}  // namespace
}  // namespace vela::testing
