// The Java native entry: byte arrays in, one byte array out, Windows-1251 both
// ways and no character conversion here. Java declares it in
// com.talvik.ostra.macrosynthesis.vela.VelaMacroSynthesis as
//   native byte[] getSpaceDelimitedFilesWindows1251Encoded(byte[] text, byte[] language,
//                                                          boolean transliterated);
// Only the byte-array functions of the JNI table are used.
#include <jni.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "pipeline/text_decoder.h"

namespace {

// Both bounds are strict: a text of 10240 bytes or a tag of 32 bytes arrives
// as an empty string, and the zero-filled buffers always stay zero-terminated.
constexpr jsize kTextCapacity = 10240;
constexpr jsize kLanguageCapacity = 32;

struct FreeDeleter {
  void operator()(char* p) const { std::free(p); }
};

// Copies `array` into the zero-filled `buffer` when 0 < length < capacity,
// otherwise leaves it empty. A null array counts as empty. Returns false only
// when the JVM could not hand out the elements (an OutOfMemoryError is pending).
bool copyArgument(JNIEnv* env, jbyteArray array, char* buffer, jsize capacity) {
  if (array == nullptr) return true;
  const jsize length = env->GetArrayLength(array);
  jbyte* elements = env->GetByteArrayElements(array, nullptr);
  if (elements == nullptr) return false;
  if (length > 0 && length < capacity) std::memcpy(buffer, elements, static_cast<std::size_t>(length));
  env->ReleaseByteArrayElements(array, elements, 0);
  return true;
}

// The driver's answer, trimmed and with single spaces; empty when the driver
// failed. Never throws: nothing may unwind into the JVM.
std::string decodeForJava(const char* language, const char* text, unsigned char mode) noexcept {
  try {
    char* raw = nullptr;
    if (vela::decodeText(language, text, &raw, mode) != 0) return {};
    const std::unique_ptr<char, FreeDeleter> decoded(raw);
    std::string result = decoded ? decoded.get() : "";
    vela::trimInput(result);
    vela::collapseSpaces(result);
    return result;
  } catch (...) {
    return {};
  }
}

}  // namespace

// Returns the space-delimited prompt names of `text` in the language `language`
// (Russian transliterated when `transliterated` is true), without a terminating
// zero; an empty array when nothing could be produced; null, with Java's
// OutOfMemoryError pending, when the JVM has no memory for the arguments or the
// answer.
extern "C" JNIEXPORT jbyteArray JNICALL
Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded(
    JNIEnv* env, jclass /*unused*/, jbyteArray text, jbyteArray language, jboolean transliterated) {
  char textBuffer[kTextCapacity] = {};
  char languageBuffer[kLanguageCapacity] = {};
  if (!copyArgument(env, text, textBuffer, kTextCapacity)) return nullptr;
  if (!copyArgument(env, language, languageBuffer, kLanguageCapacity)) return nullptr;

  std::string result = decodeForJava(languageBuffer, textBuffer, transliterated != JNI_FALSE ? 1 : 0);
  if (result.size() > static_cast<std::size_t>(INT_MAX)) result.clear();
  const auto length = static_cast<jsize>(result.size());
  jbyteArray answer = env->NewByteArray(length);
  if (answer == nullptr) return nullptr;
  env->SetByteArrayRegion(answer, 0, length, reinterpret_cast<const jbyte*>(result.data()));
  return answer;
}
