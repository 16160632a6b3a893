// The Java native entry driven through a fake JNI table, so that it runs under
// the sanitizers without a JVM; the answers themselves are checked in a real
// JVM by VelaJvmTest.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "grammar/cp1251.h"
#include "support/fake_jvm.h"

extern "C" JNIEXPORT jbyteArray JNICALL
Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded(
    JNIEnv* env, jclass, jbyteArray text, jbyteArray language, jboolean transliterated);

namespace vela::testing {
namespace {

constexpr JavaEntry kEntry =
    Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded;

// Arguments on both sides of their bounds are fetched, read no further than
// their ends and released with mode 0; the answer is the driver's.
TEST(JniEntry, ArgumentsAtTheirBounds) {
  const std::string text10239 = std::string(10239 - 5, 'b') + "a.wav";
  const std::pair<std::string, std::string> kCases[] = {
      {text10239, "en"}, {text10239 + "b", "en"}, {"21", std::string(31, 'r')}, {"21", std::string(32, 'r')}};
  FakeJvm jvm;
  for (const auto& [text, language] : kCases) {
    EXPECT_NE(jvm.call(kEntry, &text, &language), nullptr) << text.size() << " " << language.size();
  }
  const std::string rub = "21rub", ru = "ru";  // the flag chooses the Russian mode
  EXPECT_EQ(*jvm.call(kEntry, &rub, &ru, false), "двадцать один рубль"_cp);
  EXPECT_EQ(*jvm.call(kEntry, &rub, &ru, true), "dvadcat odin rubl");
  EXPECT_EQ(jvm.handedOut, 12);
  EXPECT_EQ(jvm.held, 0);
  EXPECT_FALSE(jvm.broken);
}

// When the JVM has no memory for an argument or the answer, the entry returns
// null (Java's OutOfMemoryError is pending), releasing what it already holds.
TEST(JniEntry, JvmOutOfMemoryGivesNull) {
  const std::string text = "a.wav", language = "en";
  for (int failAt : {0, 1}) {
    FakeJvm jvm;
    jvm.failAt = failAt;
    EXPECT_EQ(jvm.call(kEntry, &text, &language), nullptr) << failAt;
    EXPECT_EQ(jvm.held, 0) << failAt;
  }
  FakeJvm jvm;
  jvm.failNewArray = true;
  EXPECT_EQ(jvm.call(kEntry, &text, &language), nullptr);
  EXPECT_EQ(jvm.regionsSet, 0);
}

}  // namespace
}  // namespace vela::testing
