// The Java native entry driven through a fake JNI table, so that it runs under
// the sanitizers without a JVM. The fake hands out exact-size heap copies of
// the arrays: a read past an array's end is an AddressSanitizer report.
#include <gtest/gtest.h>
#include <jni.h>

#include <memory>
#include <string>
#include <vector>

#include "grammar/cp1251.h"

extern "C" JNIEXPORT jbyteArray JNICALL
Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded(
    JNIEnv* env, jclass, jbyteArray text, jbyteArray language, jboolean transliterated);

namespace {

using namespace vela;

struct FakeArray {
  std::vector<jbyte> bytes;
};

// A JVM with only the five byte-array functions. Every other slot of the table
// is null: the entry calling anything else crashes the test.
class FakeJvm {
 public:
  FakeJvm() {
    table_.GetArrayLength = &getArrayLength;
    table_.GetByteArrayElements = &getByteArrayElements;
    table_.ReleaseByteArrayElements = &releaseByteArrayElements;
    table_.NewByteArray = &newByteArray;
    table_.SetByteArrayRegion = &setByteArrayRegion;
    env_.functions = &table_;
    current = this;
  }
  ~FakeJvm() { current = nullptr; }

  jbyteArray array(const std::string& bytes) {
    arrays_.push_back(std::make_unique<FakeArray>(FakeArray{{bytes.begin(), bytes.end()}}));
    return reinterpret_cast<jbyteArray>(arrays_.back().get());
  }

  jbyteArray call(jbyteArray text, jbyteArray language, bool transliterated) {
    return Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded(
        &env_, nullptr, text, language, transliterated ? JNI_TRUE : JNI_FALSE);
  }

  std::string decode(const std::string& text, const std::string& language, bool transliterated = false) {
    jbyteArray answer = call(array(text), array(language), transliterated);
    EXPECT_NE(answer, nullptr);
    return answer == nullptr ? "<null>" : contents(answer);
  }

  static std::string contents(jbyteArray a) {
    const auto& bytes = reinterpret_cast<FakeArray*>(a)->bytes;
    return {bytes.begin(), bytes.end()};
  }

  bool failElements = false;
  bool failNewArray = false;
  int elementsHandedOut = 0;
  int elementsReleased = 0;
  int badReleaseModes = 0;
  int regionsSet = 0;

 private:
  static FakeJvm* self() { return current; }
  static FakeArray& of(jarray a) { return *reinterpret_cast<FakeArray*>(a); }

  static jsize JNICALL getArrayLength(JNIEnv*, jarray a) { return static_cast<jsize>(of(a).bytes.size()); }

  static jbyte* JNICALL getByteArrayElements(JNIEnv*, jbyteArray a, jboolean* isCopy) {
    if (self()->failElements) return nullptr;
    ++self()->elementsHandedOut;
    if (isCopy != nullptr) *isCopy = JNI_TRUE;
    const auto& bytes = of(a).bytes;
    auto* copy = new jbyte[bytes.size()];
    std::copy(bytes.begin(), bytes.end(), copy);
    return copy;
  }

  static void JNICALL releaseByteArrayElements(JNIEnv*, jbyteArray a, jbyte* elements, jint mode) {
    ++self()->elementsReleased;
    if (mode != 0) ++self()->badReleaseModes;
    auto& bytes = of(a).bytes;
    std::copy(elements, elements + bytes.size(), bytes.begin());
    delete[] elements;
  }

  static jbyteArray JNICALL newByteArray(JNIEnv*, jsize length) {
    if (self()->failNewArray) return nullptr;
    return self()->array(std::string(static_cast<std::size_t>(length), '\xAA'));
  }

  static void JNICALL setByteArrayRegion(JNIEnv*, jbyteArray a, jsize start, jsize length,
                                         const jbyte* from) {
    ++self()->regionsSet;
    auto& bytes = of(a).bytes;
    ASSERT_GE(start, 0);
    ASSERT_LE(static_cast<std::size_t>(start) + static_cast<std::size_t>(length), bytes.size());
    std::copy(from, from + length, bytes.begin() + start);
  }

  static inline FakeJvm* current = nullptr;
  JNINativeInterface_ table_{};
  JNIEnv env_{};
  std::vector<std::unique_ptr<FakeArray>> arrays_;
};

// Texts that pass through whole (".wav") or that no rule covers come back
// trimmed and with single spaces, in every language and both modes.
TEST(JniEntry, TrimsAndCollapsesTheAnswer) {
  struct Case {
    const char* text;
    const char* answer;
  };
  const Case kCases[] = {
      {"  a.wav   b  ", "a.wav b"},
      {"a.wav", "a.wav"},
      {"x  y.wav", "x y.wav"},
      {"a.wav\tb", "a.wav\tb"},
      {"  hello   there ", "hello there"},
      {"рубль.wav"_cp, "рубль.wav"_cp},
      {"", ""},
      {"     ", ""},
  };
  FakeJvm jvm;
  for (const Case& c : kCases) {
    for (const char* tag : {"en", "ru", "xx"}) {
      for (bool mode : {false, true}) {
        EXPECT_EQ(jvm.decode(c.text, tag, mode), c.answer) << tag << " " << mode << " \"" << c.text << "\"";
      }
    }
  }
  EXPECT_EQ(std::string("рубль"_cp), "\xF0\xF3\xE1\xEB\xFC");
}

TEST(JniEntry, TextOf10240BytesOrMoreIsEmpty) {
  FakeJvm jvm;
  const std::string longest = "a.wav" + std::string(10239 - 5, 'b');
  EXPECT_EQ(jvm.decode(longest, "en"), longest);
  EXPECT_EQ(jvm.decode(longest + "b", "en"), "");
  EXPECT_EQ(jvm.decode(longest + std::string(70000, 'b'), "en"), "");
  // Only answers of up to 512 bytes are trimmed; inner runs always shrink.
  const std::string pad512 = "  a.wav" + std::string(512 - 9, 'b') + "  ";
  EXPECT_EQ(jvm.decode(pad512, "en"), pad512.substr(2, 512 - 4));
  EXPECT_EQ(jvm.decode(" " + pad512, "en"), " " + pad512.substr(2, 512 - 4) + " ");
}

// A tag array of up to 31 bytes is read up to its first zero; 32 bytes or more
// make an empty tag (spoken in English). The two sides can only be told apart
// on texts whose Russian and English answers differ.
TEST(JniEntry, LanguageOf32BytesOrMoreIsEmpty) {
  FakeJvm jvm;
  ASSERT_NE(jvm.decode("21", "ru"), jvm.decode("21", ""));
  for (const std::string text : {"21", "21руб"_cp, "1.05.2015", "7:05", "\"12#\""}) {
    const std::string russian = jvm.decode(text, "ru");
    const std::string english = jvm.decode(text, "");
    EXPECT_EQ(jvm.decode(text, std::string("ru") + std::string(29, '\0')), russian) << text;
    EXPECT_EQ(jvm.decode(text, std::string("ru") + std::string(30, '\0')), english) << text;
    EXPECT_EQ(jvm.decode(text, std::string(40, 'r')), english) << text;
    EXPECT_EQ(jvm.decode(text, "en"), english) << text;
  }
}

TEST(JniEntry, RussianModesGiveCyrillicAndLatinNames) {
  FakeJvm jvm;
  EXPECT_EQ(jvm.decode("21rub", "ru", false), "двадцать один рубль"_cp);
  EXPECT_EQ(jvm.decode("21rub", "ru", true), "dvadcat odin rubl");
  // The transliterated grammar knows only Latin unit words.
  EXPECT_EQ(jvm.decode("21руб"_cp, "ru", false), "двадцать один рубль"_cp);
  EXPECT_EQ(jvm.decode("21руб"_cp, "ru", true), "21руб"_cp);
}

// Every array the entry reads is released with mode 0, and the answer array is
// filled in one call, without a terminating zero.
TEST(JniEntry, UsesTheArraysAsJniRequires) {
  FakeJvm jvm;
  jbyteArray answer = jvm.call(jvm.array("  a.wav  "), jvm.array("en"), false);
  ASSERT_NE(answer, nullptr);
  EXPECT_EQ(FakeJvm::contents(answer), "a.wav");
  EXPECT_EQ(jvm.elementsHandedOut, 2);
  EXPECT_EQ(jvm.elementsReleased, 2);
  EXPECT_EQ(jvm.badReleaseModes, 0);
  EXPECT_EQ(jvm.regionsSet, 1);

  // Over-long arrays are still fetched and released.
  jvm.call(jvm.array(std::string(10240, 'a')), jvm.array(std::string(32, 'e')), true);
  EXPECT_EQ(jvm.elementsHandedOut, 4);
  EXPECT_EQ(jvm.elementsReleased, 4);
}

// A failed request is an empty array; only a JVM out of memory gives null.
TEST(JniEntry, FailuresAndNullArguments) {
  FakeJvm jvm;
  jbyteArray empty = jvm.call(jvm.array(""), jvm.array(""), false);
  ASSERT_NE(empty, nullptr);
  EXPECT_EQ(FakeJvm::contents(empty), "");

  jbyteArray noText = jvm.call(nullptr, jvm.array("en"), false);
  ASSERT_NE(noText, nullptr);
  EXPECT_EQ(FakeJvm::contents(noText), "");
  jbyteArray noTag = jvm.call(jvm.array("a.wav"), nullptr, false);
  ASSERT_NE(noTag, nullptr);
  EXPECT_EQ(FakeJvm::contents(noTag), "a.wav");

  const int regionsBefore = jvm.regionsSet;
  jvm.failNewArray = true;
  EXPECT_EQ(jvm.call(jvm.array("a.wav"), jvm.array("en"), false), nullptr);
  EXPECT_EQ(jvm.regionsSet, regionsBefore);  // nothing written to a failed allocation
  jvm.failNewArray = false;

  jvm.failElements = true;
  EXPECT_EQ(jvm.call(jvm.array("a.wav"), jvm.array("en"), false), nullptr);
  EXPECT_EQ(jvm.elementsHandedOut, jvm.elementsReleased);
}

// Whatever the driver throws on a pathological text (a regular expression
// giving up on thousands of digits, say) must not unwind into the JVM.
TEST(JniEntry, NothingUnwindsIntoTheJvm) {
  FakeJvm jvm;
  for (std::size_t digits : {600u, 5000u}) {
    jbyteArray answer = jvm.call(jvm.array(std::string(digits, '7')), jvm.array("ru"), false);
    EXPECT_NE(answer, nullptr) << digits;
  }
}

}  // namespace
