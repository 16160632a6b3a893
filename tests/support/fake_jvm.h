// A JVM with only the five byte-array functions of the JNI table, to drive the
// Java native entry without a JVM (under the sanitizers, and on Windows). Every
// other slot of the table is null: the entry calling anything else crashes.
// Arrays are strings; their elements are handed out as exact-size heap copies,
// so a read past an array's end is an AddressSanitizer report. One at a time.
#pragma once

#include <jni.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace vela::testing {

using JavaEntry = jbyteArray(JNICALL*)(JNIEnv*, jclass, jbyteArray, jbyteArray, jboolean);

struct FakeJvm {
  FakeJvm() {
    self = this;
    table.GetArrayLength = length;
    table.GetByteArrayElements = elements;
    table.ReleaseByteArrayElements = release;
    table.NewByteArray = newArray;
    table.SetByteArrayRegion = setRegion;
    env.functions = &table;
  }

  static jsize JNICALL length(JNIEnv*, jarray a) { return static_cast<jsize>(of(a).size()); }
  static jbyte* JNICALL elements(JNIEnv*, jbyteArray a, jboolean* isCopy) {
    if (self->handedOut == self->failAt) return nullptr;
    ++self->handedOut;
    ++self->held;
    if (isCopy != nullptr) *isCopy = JNI_TRUE;
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

  static std::string& of(jarray a) { return *reinterpret_cast<std::string*>(a); }

  jbyteArray array(const std::string& bytes) {
    arrays.push_back(std::make_unique<std::string>(bytes));
    return reinterpret_cast<jbyteArray>(arrays.back().get());
  }

  // The entry's answer; a null pointer stands for a null array either way.
  const std::string* call(JavaEntry entry, const std::string* text, const std::string* language,
                          bool transliterated = false) {
    jbyteArray answer = entry(&env, nullptr, text ? array(*text) : nullptr,
                              language ? array(*language) : nullptr, transliterated ? JNI_TRUE : JNI_FALSE);
    return answer != nullptr ? &of(answer) : nullptr;
  }

  static inline FakeJvm* self = nullptr;
  JNINativeInterface_ table{};
  JNIEnv env{};
  std::vector<std::unique_ptr<std::string>> arrays;
  int failAt = -1;  // the GetByteArrayElements call that finds no memory
  bool failNewArray = false;
  bool broken = false;  // an element released with a mode other than 0, or the answer set in pieces
  int handedOut = 0, held = 0, regionsSet = 0;
};

}  // namespace vela::testing
