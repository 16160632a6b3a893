// The Java native entry driven through a fake JNI table, so that it runs under
// the sanitizers without a JVM; the answers themselves are checked in a real
// JVM by VelaJvmTest.
#include <gtest/gtest.h>
#include <jni.h>

#include <algorithm>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "grammar/cp1251.h"

extern "C" JNIEXPORT jbyteArray JNICALL
Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded(
    JNIEnv* env, jclass, jbyteArray text, jbyteArray language, jboolean transliterated);

namespace vela::testing {
namespace {

// A JVM with only the five byte-array functions of the JNI table: the entry
// calling anything else crashes on a null slot. Arrays are strings; their
// elements are handed out as exact-size heap copies, so a read past an array's
// end is an AddressSanitizer report. One at a time.
struct FakeJvm {
  FakeJvm() { self = this; }

  static std::string& of(jarray a) { return *reinterpret_cast<std::string*>(a); }
  static jsize JNICALL length(JNIEnv*, jarray a) { return static_cast<jsize>(of(a).size()); }
  static jbyte* JNICALL elements(JNIEnv*, jbyteArray a, jboolean*) {
    if (self->handedOut == self->failAt) return nullptr;
    ++self->handedOut;
    ++self->held;
    auto* copy = new jbyte[of(a).size()];
    std::copy(of(a).begin(), of(a).end(), copy);
    return copy;
  }
  static void JNICALL release(JNIEnv*, jbyteArray, jbyte* elements, jint mode) {
    self->broken |= mode != 0;
    --self->held;
    delete[] elements;
  }
  static jbyteArray JNICALL newArray(JNIEnv*, jsize length) {
    return self->failNewArray ? nullptr : self->array(std::string(static_cast<std::size_t>(length), '\0'));
  }
  // The answer is set whole, in one call, and has no terminating zero.
  static void JNICALL setRegion(JNIEnv*, jbyteArray a, jsize start, jsize length, const jbyte* from) {
    ++self->regionsSet;
    self->broken |= start != 0 || static_cast<std::size_t>(length) != of(a).size();
    if (!self->broken) std::copy(from, from + length, of(a).begin());
  }

  jbyteArray array(const std::string& bytes) {
    arrays.push_back(std::make_unique<std::string>(bytes));
    return reinterpret_cast<jbyteArray>(arrays.back().get());
  }
  // The entry's answer; a null pointer stands for a null array either way.
  const std::string* call(const std::string* text, const std::string* language, bool transliterated = false) {
    jbyteArray answer =
        Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded(
            &env, nullptr, text ? array(*text) : nullptr, language ? array(*language) : nullptr,
            transliterated);
    return answer != nullptr ? &of(answer) : nullptr;
  }

  static inline FakeJvm* self = nullptr;
  JNINativeInterface_ table{.GetArrayLength = length,
                            .NewByteArray = newArray,
                            .GetByteArrayElements = elements,
                            .ReleaseByteArrayElements = release,
                            .SetByteArrayRegion = setRegion};
  JNIEnv env{&table};
  std::vector<std::unique_ptr<std::string>> arrays;
  int failAt = -1;  // the GetByteArrayElements call that finds no memory
  bool failNewArray = false;
  bool broken = false;  // an element released with a mode other than 0, or the answer set in pieces
  int handedOut = 0, held = 0, regionsSet = 0;
};

// Arguments on both sides of their bounds are fetched, read no further than
// their ends and released with mode 0; the flag chooses the Russian mode.
TEST(JniEntry, ArgumentsAtTheirBounds) {
  const std::string longest = std::string(10239 - 5, 'b') + "a.wav", ru31 = "ru" + std::string(29, '\0');
  const std::string over512 = "   " + std::string(503, 'b') + "a.wav  ";  // too long to trim
  const std::tuple<std::string, std::string, bool, std::string> kCases[] = {
      {longest, "en", false, longest},
      {longest + "b", "en", false, ""},
      {over512, "en", false, over512.substr(2, 510)},
      {"21", ru31, false, "двадцать один"_cp},
      {"21", ru31 + '\0', false, "two one"},
      {"21rub", "ru", false, "двадцать один рубль"_cp},
      {"21rub", "ru", true, "dvadcat odin rubl"}};
  FakeJvm jvm;
  for (const auto& [text, language, transliterated, expected] : kCases) {
    const std::string* answer = jvm.call(&text, &language, transliterated);
    EXPECT_EQ(answer ? *answer : "(null)", expected) << text.size() << " " << language.size();
  }
  EXPECT_EQ(std::tuple(jvm.handedOut, jvm.held, jvm.broken), std::tuple(14, 0, false));
}

// When the JVM has no memory for an argument or the answer, the entry returns
// null (Java's OutOfMemoryError is pending), releasing what it already holds.
TEST(JniEntry, JvmOutOfMemoryGivesNull) {
  const std::string text = "a.wav", language = "en";
  for (int failAt : {0, 1, 2}) {  // the first argument, the second, the answer
    FakeJvm jvm;
    jvm.failAt = failAt < 2 ? failAt : -1;
    jvm.failNewArray = failAt == 2;
    EXPECT_EQ(jvm.call(&text, &language), nullptr) << failAt;
    EXPECT_EQ(std::tuple(jvm.held, jvm.regionsSet), std::tuple(0, 0)) << failAt;
  }
}

}  // namespace
}  // namespace vela::testing
