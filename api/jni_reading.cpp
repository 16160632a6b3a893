// The native methods of com.talvik.ostra.macrosynthesis.vela.Vela: vela_read
// and vela_version for Java, Windows-1251 bytes both ways.
#include <jni.h>

#include <cstring>
#include <string>

#include "vela/vela.h"

namespace {

// The bytes of `array` as a string; "" for null. False when the JVM could not
// hand out the elements (an OutOfMemoryError is then pending).
bool bytesOf(JNIEnv* env, jbyteArray array, std::string& bytes) {
  bytes.clear();
  if (array == nullptr) return true;
  const jsize length = env->GetArrayLength(array);
  jbyte* elements = env->GetByteArrayElements(array, nullptr);
  if (elements == nullptr) return false;
  bytes.assign(reinterpret_cast<const char*>(elements), static_cast<std::size_t>(length));
  env->ReleaseByteArrayElements(array, elements, JNI_ABORT);
  // The library reads zero-terminated strings: a zero byte ends the text there.
  bytes.resize(std::strlen(bytes.c_str()));
  return true;
}

// Stores a new byte array holding `bytes` at `strings[index]`; false when the
// JVM has no memory for it (an OutOfMemoryError is then pending).
bool store(JNIEnv* env, jobjectArray strings, jsize index, const char* bytes) {
  const auto length = static_cast<jsize>(std::strlen(bytes));
  jbyteArray array = env->NewByteArray(length);
  if (array == nullptr) return false;
  env->SetByteArrayRegion(array, 0, length, reinterpret_cast<const jbyte*>(bytes));
  env->SetObjectArrayElement(strings, index, array);
  env->DeleteLocalRef(array);
  return !env->ExceptionCheck();
}

void throwOutOfMemory(JNIEnv* env) {
  jclass error = env->FindClass("java/lang/OutOfMemoryError");
  if (error != nullptr) env->ThrowNew(error, "vela: out of memory");
}

}  // namespace

extern "C" JNIEXPORT jint JNICALL Java_com_talvik_ostra_macrosynthesis_vela_Vela_read0(
    JNIEnv* env, jclass /*unused*/, jbyteArray tag, jbyteArray text, jint options, jobjectArray strings) {
  std::string tagBytes, textBytes;
  try {
    if (!bytesOf(env, tag, tagBytes) || !bytesOf(env, text, textBytes)) return -2;
  } catch (...) {  // nothing may unwind into the JVM
    throwOutOfMemory(env);
    return -2;
  }
  vela_reading reading;
  const int result = vela_read(tagBytes.c_str(), textBytes.c_str(), static_cast<unsigned>(options), &reading);
  if (result == -3) return -3;
  if (result != 0) {
    throwOutOfMemory(env);
    return -2;
  }
  const bool stored = store(env, strings, 0, reading.names) && store(env, strings, 1, reading.diagnostics);
  const jint answer = reading.status | (reading.unknown_tag != 0 ? 4 : 0);
  vela_reading_free(&reading);
  return stored ? answer : -2;
}

extern "C" JNIEXPORT jstring JNICALL
Java_com_talvik_ostra_macrosynthesis_vela_Vela_version0(JNIEnv* env, jclass /*unused*/) {
  return env->NewStringUTF(vela_version());
}
