/*
 * vela: text to voice-prompt names.
 *
 * A request is a language tag ("ru", "en", "UKRAINIAN", ...) and one short
 * text: a number, an amount with a unit or currency word ("12.50руб", "3min"),
 * a date ("1.05.2015"), a clock time ("7:05"), a quoted span or keypad string,
 * or one character. The answer is the names of the recordings that, played in
 * order, speak the text, separated by spaces. All text in and out is
 * Windows-1251. The functions keep no state and may be called from any number
 * of threads at once.
 *
 * Two ways in. decodeBuffer (and DecodeBufferASCII, the Java entry) answer as
 * they always have: the grammars' complaints about bad input are printed on
 * standard output, and a text that produces no prompt comes back in place of
 * the names. vela_read says how much of the text was spoken, keeps the
 * complaints in the answer, and never writes to standard output or error.
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

/* The library's version: VELA_VERSION_MAJOR.MINOR.PATCH, set here only. */
#define VELA_VERSION_MAJOR 0
#define VELA_VERSION_MINOR 1
#define VELA_VERSION_PATCH 0

/* Options of vela_read, or'ed together. */
#define VELA_LATIN 1u      /* Russian tags answer with Latin-transliterated names */
#define VELA_STRICT_TAG 2u /* an unknown tag is an error instead of an English reading */

/* How much of the text a reading speaks. */
enum vela_status {
  VELA_SPOKEN = 0,        /* the whole text */
  VELA_PARTLY_SPOKEN = 1, /* names, but part of the text was left unsaid or changed */
  VELA_NOT_SPOKEN = 2,    /* no name at all */
  VELA_FILE_NAMES = 3     /* the text holds ".wav": it is passed through as names */
};

/* One reading; its two strings belong to the caller until vela_reading_free. */
typedef struct vela_reading {
  char* names;       /* prompt names, Windows-1251, single spaces, none leading or trailing; "" when none */
  char* diagnostics; /* this request's complaints, one a line, each ending in "\n"; "" when none */
  int status;        /* enum vela_status */
  int unknown_tag;   /* 1 when the tag was unknown and English was used */
} vela_reading;

/*
 * Reads `text` in the language of `tag` (both zero-terminated; null counts as
 * ""). Fills *reading and returns 0; the caller then owns reading->names and
 * reading->diagnostics and gives them back with vela_reading_free. names never
 * holds the caller's text, except under VELA_FILE_NAMES (a text holding ".wav",
 * trimmed, its runs of spaces made single, as decodeBuffer passes it through).
 * diagnostics holds the complaints decodeBuffer would print for the same
 * request, in order, without their blanks at either end, each ended by "\n".
 * Writes nothing to standard output or standard error.
 * Returns -1 when reading is null; -2 when memory runs out; -3 for an unknown
 * tag under VELA_STRICT_TAG. On any error *reading is zeroed (strings null,
 * nothing to free).
 */
VELA_API int vela_read(const char* tag, const char* text, unsigned options, vela_reading* reading);

/* Frees the strings of a reading and sets them to null; null or a zeroed reading is harmless. */
VELA_API void vela_reading_free(vela_reading* reading);

/* The version as "MAJOR.MINOR.PATCH", a static string. */
VELA_API const char* vela_version(void);

/*
 * Speaks `text` in the language of `languageTag`, Russian with Cyrillic names.
 * On 0, *out holds a malloc'ed, zero-terminated buffer that the caller owns and
 * gives back with decodeReleaseBuffer: the space-separated prompt names. When
 * no rule takes the text, it comes back instead, trimmed of its spaces at
 * either end (a text of more than 512 bytes is not trimmed); when a rule takes
 * it but the grammar says nothing, or it is empty or only spaces, it comes
 * back byte for byte (an empty text gives an empty buffer).
 * An unknown tag is spoken in English without a word.
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
 * clears it) and returns true. A text that no rule takes is appended as its
 * own lower-cased, space-separated words, also with true. Returns false,
 * writing to `log`:
 *   " language tag incorrect" for an unknown tag (files untouched);
 *   "input buffer have an incorrect format: " and the text as passed, when
 *   the answer is empty (a text that trims to nothing, or one a rule takes
 *   but the grammar says nothing for).
 */
extern "C" VELA_API bool DecodeBufferASCII(const std::string& languageTag, const std::string& text,
                                           std::vector<std::string>& files, std::ostream& log);
#endif

#endif /* VELA_VELA_H */
