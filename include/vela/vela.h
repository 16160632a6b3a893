/*
 * vela: text to voice-prompt names.
 *
 * A request is a language tag ("ru", "en", "UKRAINIAN", ...) and one short
 * text: a number, an amount with a unit or currency word ("12.50руб", "3min"),
 * a date ("1.05.2015"), a clock time ("7:05"), a quoted span or keypad string,
 * or one character. The answer is the names of the recordings that, played in
 * order, speak the text, separated by spaces. All text in and out is
 * Windows-1251. The functions keep no state and may be called from any number
 * of threads at once. Diagnostics about bad input are printed on standard
 * output.
 */
#ifndef VELA_VELA_H
#define VELA_VELA_H

#if defined(_WIN32) && defined(VELA_BUILDING_DLL)
#define VELA_API __declspec(dllexport)
#elif defined(_WIN32)
#define VELA_API __declspec(dllimport)
#else
#define VELA_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
#include <ostream>
#include <string>
#include <vector>
extern "C" {
#endif

/*
 * Speaks `text` in the language of `languageTag`, Russian with Cyrillic names.
 * On 0, *out holds a malloc'ed, zero-terminated buffer that the caller owns and
 * gives back with decodeReleaseBuffer: the space-separated prompt names, or the
 * caller's own text, byte for byte, when nothing could be spoken (an empty text
 * gives an empty buffer). An unknown tag is spoken in English without a word.
 * A null languageTag or text counts as an empty string.
 * Returns 0; -2 when the buffer cannot be allocated (*out is null, nothing to
 * release); -1 when out is null.
 */
VELA_API int decodeBuffer(const char* languageTag, const char* text, char** out);

/* Releases a buffer from decodeBuffer. A null pointer is harmless. */
VELA_API void decodeReleaseBuffer(void* buffer);

#ifdef __cplusplus
} /* extern "C" */

/*
 * C++ only, for hosts built with the same standard library: the prompt names
 * as a list, Russian with Latin-transliterated names. The tag and the text are
 * lower-cased (ASCII letters) first. Appends the names to `files` (never
 * clears it) and returns true. Returns false, writing to `log`:
 *   " language tag incorrect" for an unknown tag (files untouched);
 *   "input buffer have an incorrect format: " and the text as passed, when
 *   nothing could be spoken.
 */
extern "C" VELA_API bool DecodeBufferASCII(const std::string& languageTag, const std::string& text,
                                           std::vector<std::string>& files, std::ostream& log);
#endif

#endif /* VELA_VELA_H */
