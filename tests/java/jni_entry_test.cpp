// The Java native entry driven through a fake JNI table, so that it runs under
// the sanitizers without a JVM; the answers themselves are checked in a real
// JVM by VelaJvmTest. The fake hands out exact-size heap copies of the arrays:
// a read past an array's end is an AddressSanitizer report.
#include <gtest/gtest.h>
#include <jni.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

extern "C" JNIEXPORT jbyteArray JNICALL
Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded(
    JNIEnv* env, jclass, jbyteArray text, jbyteArray language, jboolean transliterated);

namespace {

// A JVM with only the five byte-array functions. Every other slot of the table
// is null: the entry calling anything else crashes the test.
struct FakeJvm {
  FakeJvm() {
    table.GetArrayLength = [](JNIEnv*, jarray a) { return static_cast<jsize>(of(a).size()); };
    table.GetByteArrayElements = [](JNIEnv*, jbyteArray a, jboolean*) -> jbyte* {
      if (self->handedOut == self->failAt) return nullptr;
      ++self->handedOut;
      ++self->held;
      auto* copy = new jbyte[of(a).size()];
      std::copy(of(a).begin(), of(a).end(), copy);
      return copy;
    };
    table.ReleaseByteArrayElements = [](JNIEnv*, jbyteArray, jbyte* elements, jint mode) {
      EXPECT_EQ(mode, 0);
      --self->held;
      delete[] elements;
    };
    table.NewByteArray = [](JNIEnv*, jsize length) {
      return self->failNewArray ? nullptr : self->array(std::string(static_cast<std::size_t>(length), 0));
    };
    // The answer is set whole, in one call, and has no terminating zero.
    table.SetByteArrayRegion = [](JNIEnv*, jbyteArray a, jsize start, jsize length, const jbyte* from) {
      ++self->regionsSet;
      ASSERT_TRUE(start == 0 && static_cast<std::size_t>(length) == of(a).size());
      std::copy(from, from + length, of(a).begin());
    };
    env.functions = &table;
    self = this;
  }

  static std::string& of(jarray a) { return *reinterpret_cast<std::string*>(a); }

  jbyteArray array(const std::string& bytes) {
    arrays.push_back(std::make_unique<std::string>(bytes));
    return reinterpret_cast<jbyteArray>(arrays.back().get());
  }

  jbyteArray call(const std::string& text, const std::string& language) {
    return Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded(
        &env, nullptr, array(text), array(language), JNI_FALSE);
  }

  static inline FakeJvm* self = nullptr;
  JNINativeInterface_ table{};
  JNIEnv env{};
  std::vector<std::unique_ptr<std::string>> arrays;
  int failAt = -1;  // the GetByteArrayElements call that finds no memory
  bool failNewArray = false;
  int handedOut = 0, held = 0, regionsSet = 0;
};

// Arguments on both sides of their bounds are fetched, read no further than
// their ends and released with mode 0.
TEST(JniEntry, ArgumentsAtTheirBounds) {
  const std::string text10239 = std::string(10239 - 5, 'b') + "a.wav";
  const std::pair<std::string, std::string> kCases[] = {
      {text10239, "en"}, {text10239 + "b", "en"}, {"21", std::string(31, 'r')}, {"21", std::string(32, 'r')}};
  FakeJvm jvm;
  for (const auto& [text, language] : kCases) {
    EXPECT_NE(jvm.call(text, language), nullptr) << text.size() << " " << language.size();
  }
  EXPECT_EQ(jvm.handedOut, 8);
  EXPECT_EQ(jvm.held, 0);
}

// When the JVM has no memory for an argument or the answer, the entry returns
// null (Java's OutOfMemoryError is pending), releasing what it already holds.
TEST(JniEntry, JvmOutOfMemoryGivesNull) {
  for (int failAt : {0, 1}) {
    FakeJvm jvm;
    jvm.failAt = failAt;
    EXPECT_EQ(jvm.call("a.wav", "en"), nullptr) << failAt;
    EXPECT_EQ(jvm.held, 0) << failAt;
  }
  FakeJvm jvm;
  jvm.failNewArray = true;
  EXPECT_EQ(jvm.call("a.wav", "en"), nullptr);
  EXPECT_EQ(jvm.regionsSet, 0);
}

}  // namespace
