/*
 * A host that loads vela at run time, finds every export by its plain name and
 * runs a table of requests through each of them (the Java native entry with a
 * small fake JNI function table), writing one answer line per request. The
 * same source builds on Linux (dlopen) and for Windows (LoadLibrary):
 * scripts/windows.sh compares the Windows DLL's answers with the Linux build's.
 *
 *   host LIBRARY REQUESTS ANSWERS
 *
 * REQUESTS: one request a line, "entry<TAB>tag<TAB>text"; '#' starts a comment.
 * entry: c (decodeBuffer), c-noout (decodeBuffer with a null out), jni and
 * jni-t (the Java entry, transliterated off and on), ascii (DecodeBufferASCII,
 * through ascii_call.cpp: its arguments are C++ objects). In tag and text:
 * \xHH is a byte, a field of just \N a null pointer (a null array for the Java
 * entry, an empty string for DecodeBufferASCII), and \R<count>:<piece> the
 * piece repeated. The library prints its own diagnostics on standard output.
 */
#include <jni.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#if defined(_WIN32)
#include <windows.h>
typedef HMODULE Library;
static Library openLibrary(const char* path) { return LoadLibraryA(path); }
static void* findExport(Library lib, const char* name) { return (void*)(INT_PTR)GetProcAddress(lib, name); }
#else
#include <dlfcn.h>
typedef void* Library;
static Library openLibrary(const char* path) { return dlopen(path, RTLD_NOW | RTLD_LOCAL); }
static void* findExport(Library lib, const char* name) { return dlsym(lib, name); }
#endif

typedef int (*DecodeBufferFn)(const char*, const char*, char**);
typedef void (*ReleaseFn)(void*);
typedef jbyteArray(JNICALL* JavaEntryFn)(JNIEnv*, jclass, jbyteArray, jbyteArray, jboolean);

static DecodeBufferFn decodeBuffer;
static ReleaseFn decodeReleaseBuffer;
static JavaEntryFn javaEntry;
static void* asciiEntry;
static FILE* answers;

/* ascii_call.cpp */
void velaHostCallAscii(void* function, const char* tag, size_t tagLength, const char* text,
                       size_t textLength);

/* Writes bytes to the answers; those that would break a line or read ambiguously as \xHH. */
void velaHostPut(const char* p, size_t n) {
  for (size_t i = 0; i < n; ++i) {
    unsigned char c = (unsigned char)p[i];
    if (c < 0x20 || c == 0x7f || c == '\\') {
      fprintf(answers, "\\x%02X", c);
    } else {
      fputc(c, answers);
    }
  }
}

/* ---- the fake JNI table: byte arrays are plain heap blocks ---- */

typedef struct {
  jsize length;
  jbyte* elements;
} FakeArray;

static int elementsOut; /* GetByteArrayElements not yet released */
static int contractBroken;

static jsize JNICALL getArrayLength(JNIEnv* env, jarray array) {
  (void)env;
  return ((FakeArray*)array)->length;
}

static jbyte* JNICALL getByteArrayElements(JNIEnv* env, jbyteArray array, jboolean* isCopy) {
  (void)env;
  if (isCopy != NULL) *isCopy = JNI_FALSE;
  ++elementsOut;
  return ((FakeArray*)array)->elements;
}

static void JNICALL releaseByteArrayElements(JNIEnv* env, jbyteArray array, jbyte* elements, jint mode) {
  (void)env;
  if (elements != ((FakeArray*)array)->elements || mode != 0) contractBroken = 1;
  --elementsOut;
}

static FakeArray* newArray(const char* bytes, jsize length) {
  FakeArray* a = malloc(sizeof *a);
  if (a == NULL || (a->elements = malloc(length > 0 ? (size_t)length : 1)) == NULL) abort();
  a->length = length;
  if (bytes != NULL && length > 0) memcpy(a->elements, bytes, (size_t)length);
  return a;
}

static void freeArray(FakeArray* a) {
  if (a != NULL) free(a->elements);
  free(a);
}

static jbyteArray JNICALL newByteArray(JNIEnv* env, jsize length) {
  (void)env;
  return (jbyteArray)newArray(NULL, length);
}

static void JNICALL setByteArrayRegion(JNIEnv* env, jbyteArray array, jsize start, jsize length,
                                       const jbyte* bytes) {
  (void)env;
  FakeArray* a = (FakeArray*)array;
  if (start < 0 || length < 0 || start + length > a->length) {
    contractBroken = 1;
  } else if (length > 0) {
    memcpy(a->elements + start, bytes, (size_t)length);
  }
}

/* ---- requests ---- */

typedef struct {
  int isNull;
  size_t size;
  char* data; /* zero-terminated */
} Field;

static void append(Field* f, const char* p, size_t n) {
  if ((f->data = realloc(f->data, f->size + n + 1)) == NULL) abort();
  memcpy(f->data + f->size, p, n);
  f->size += n;
  f->data[f->size] = '\0';
}

/* Decodes one field of a request line (see the top of the file). */
static void parseField(const char* p, size_t n, Field* f) {
  memset(f, 0, sizeof *f);
  append(f, "", 0);
  char* colon = NULL;
  if (n == 2 && strncmp(p, "\\N", 2) == 0) {
    f->isNull = 1;
  } else if (n > 2 && strncmp(p, "\\R", 2) == 0 && (colon = memchr(p, ':', n)) != NULL) {
    for (long i = strtol(p + 2, NULL, 10); i > 0; --i) append(f, colon + 1, n - (size_t)(colon + 1 - p));
  } else {
    for (size_t i = 0; i < n; ++i) {
      if (p[i] == '\\' && i + 3 < n && p[i + 1] == 'x') {
        char hex[3] = {p[i + 2], p[i + 3], 0}, c = (char)strtol(hex, NULL, 16);
        append(f, &c, 1);
        i += 3;
      } else {
        append(f, &p[i], 1);
      }
    }
  }
}

static void runDecodeBuffer(const Field* tag, const Field* text, int withOut) {
  char* out = NULL;
  int rc =
      decodeBuffer(tag->isNull ? NULL : tag->data, text->isNull ? NULL : text->data, withOut ? &out : NULL);
  fprintf(answers, "rc=%d", rc);
  if (out != NULL) {
    fputc(' ', answers);
    velaHostPut(out, strlen(out));
    decodeReleaseBuffer(out);
  } else if (withOut) {
    fputs(" (no buffer)", answers);
  }
}

static void runJavaEntry(const Field* tag, const Field* text, jboolean transliterated) {
  struct JNINativeInterface_ table;
  memset(&table, 0, sizeof table);
  table.GetArrayLength = getArrayLength;
  table.GetByteArrayElements = getByteArrayElements;
  table.ReleaseByteArrayElements = releaseByteArrayElements;
  table.NewByteArray = newByteArray;
  table.SetByteArrayRegion = setByteArrayRegion;
  JNIEnv env = &table;

  FakeArray* textArray = text->isNull ? NULL : newArray(text->data, (jsize)text->size);
  FakeArray* tagArray = tag->isNull ? NULL : newArray(tag->data, (jsize)tag->size);
  FakeArray* result =
      (FakeArray*)javaEntry(&env, NULL, (jbyteArray)textArray, (jbyteArray)tagArray, transliterated);
  if (result == NULL) {
    fputs("null", answers);
  } else {
    fprintf(answers, "len=%ld ", (long)result->length);
    velaHostPut((const char*)result->elements, (size_t)result->length);
  }
  freeArray(textArray);
  freeArray(tagArray);
  freeArray(result);
}

/* Runs one request line and writes its answer line; returns 0 when the line is not a request. */
static int runRequest(const char* line) {
  const char* tab1 = strchr(line, '\t');
  const char* tab2 = tab1 ? strchr(tab1 + 1, '\t') : NULL;
  if (line[0] == '#' || tab2 == NULL) return 0;
  Field tag, text;
  parseField(tab1 + 1, (size_t)(tab2 - tab1 - 1), &tag);
  parseField(tab2 + 1, strcspn(tab2 + 1, "\r\n"), &text);
  const int entryLength = (int)(tab1 - line);
  fprintf(answers, "%.*s\t", entryLength, line);
  elementsOut = contractBroken = 0;
  if (strncmp(line, "c\t", 2) == 0) {
    runDecodeBuffer(&tag, &text, 1);
  } else if (strncmp(line, "c-noout\t", 8) == 0) {
    runDecodeBuffer(&tag, &text, 0);
  } else if (strncmp(line, "jni\t", 4) == 0) {
    runJavaEntry(&tag, &text, JNI_FALSE);
  } else if (strncmp(line, "jni-t\t", 6) == 0) {
    runJavaEntry(&tag, &text, JNI_TRUE);
  } else if (strncmp(line, "ascii\t", 6) == 0) {
    velaHostCallAscii(asciiEntry, tag.data, tag.size, text.data, text.size);
  } else {
    fputs("unknown entry", answers);
  }
  if (elementsOut != 0 || contractBroken) fputs(" (JNI elements not released as taken)", answers);
  fputc('\n', answers);
  free(tag.data);
  free(text.data);
  return 1;
}

static int loadExports(const char* path) {
  Library lib = openLibrary(path);
  if (lib == NULL) {
    fprintf(stderr, "host: cannot load %s\n", path);
    return 0;
  }
  const char* names[] = {"decodeBuffer", "decodeReleaseBuffer", "DecodeBufferASCII",
                         "Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_"
                         "getSpaceDelimitedFilesWindows1251Encoded"};
  void* found[4];
  int ok = 1;
  for (int i = 0; i < 4; ++i) {
    if ((found[i] = findExport(lib, names[i])) == NULL) {
      fprintf(stderr, "host: no export named %s\n", names[i]);
      ok = 0;
    }
  }
  decodeBuffer = (DecodeBufferFn)found[0];
  decodeReleaseBuffer = (ReleaseFn)found[1];
  asciiEntry = found[2];
  javaEntry = (JavaEntryFn)found[3];
  return ok;
}

int main(int argc, char** argv) {
  if (argc != 4) {
    fprintf(stderr, "usage: host LIBRARY REQUESTS ANSWERS\n");
    return 2;
  }
  if (!loadExports(argv[1])) return 1;
  decodeReleaseBuffer(NULL); /* harmless */
  FILE* requests = fopen(argv[2], "rb");
  answers = fopen(argv[3], "wb");
  if (requests == NULL || answers == NULL) {
    fprintf(stderr, "host: cannot open %s\n", requests == NULL ? argv[2] : argv[3]);
    return 1;
  }
  char line[4096];
  int count = 0;
  while (fgets(line, sizeof line, requests) != NULL) count += runRequest(line);
  fclose(requests);
  fflush(stdout);
  if (fclose(answers) != 0 || count == 0) return 1;
  fprintf(stderr, "host: %d requests answered\n", count);
  return 0;
}
