/*
 * A host that loads vela at run time, finds every export by its plain name and
 * runs a table of requests through each of them (the Java native entry with a
 * small fake JNI function table). The same source builds on Linux (dlopen)
 * and for Windows (LoadLibrary), so the Linux build writes the answers that the
 * Windows DLL must then give byte for byte.
 *
 *   host write LIBRARY REQUESTS ANSWERS   run the requests, write the answers
 *   host check LIBRARY REQUESTS ANSWERS   run them again, compare, report
 *
 * REQUESTS: one request a line, "entry<TAB>tag<TAB>text"; '#' starts a comment.
 * entry: c (decodeBuffer), c-noout (decodeBuffer with a null out), jni and
 * jni-t (the Java entry, transliterated off and on), ascii (DecodeBufferASCII,
 * through ascii_call.cpp: its arguments are C++ objects). In tag and text:
 * \xHH is a byte, \\ a backslash, a field of just \N a null pointer (a null
 * array for the Java entry, an empty string for DecodeBufferASCII), and
 * \R<count>:<piece> the piece repeated.
 * The library prints its own diagnostics on standard output; this program
 * reports on standard error only.
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

#define JAVA_ENTRY \
  "Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_getSpaceDelimitedFilesWindows1251Encoded"

typedef int (*DecodeBufferFn)(const char*, const char*, char**);
typedef void (*ReleaseFn)(void*);
typedef jbyteArray(JNICALL* JavaEntryFn)(JNIEnv*, jclass, jbyteArray, jbyteArray, jboolean);

static DecodeBufferFn decodeBuffer;
static ReleaseFn decodeReleaseBuffer;
static JavaEntryFn javaEntry;
static void* asciiEntry;

/* ascii_call.cpp */
void velaHostCallAscii(void* function, const char* tag, size_t tagLength, const char* text, size_t textLength,
                       void* answer);
void velaHostPut(void* answer, const char* bytes, size_t length);

/* ---- a growable byte buffer ---- */

typedef struct {
  char* data;
  size_t size, capacity;
} Bytes;

static void put(Bytes* b, const char* p, size_t n) {
  if (b->size + n + 1 > b->capacity) {
    size_t capacity = b->capacity ? b->capacity : 64;
    while (b->size + n + 1 > capacity) capacity *= 2;
    b->data = realloc(b->data, capacity);
    if (b->data == NULL) abort();
    b->capacity = capacity;
  }
  if (n > 0) memcpy(b->data + b->size, p, n);
  b->size += n;
  b->data[b->size] = '\0';
}

static void putText(Bytes* b, const char* s) { put(b, s, strlen(s)); }

/* Bytes that would break a line or read ambiguously are written as \xHH. */
static void putEscaped(Bytes* b, const char* p, size_t n) {
  for (size_t i = 0; i < n; ++i) {
    unsigned char c = (unsigned char)p[i];
    if (c < 0x20 || c == 0x7f || c == '\\') {
      char hex[8];
      snprintf(hex, sizeof hex, "\\x%02X", c);
      putText(b, hex);
    } else {
      put(b, (const char*)&p[i], 1);
    }
  }
}

void velaHostPut(void* answer, const char* bytes, size_t length) {
  putEscaped((Bytes*)answer, bytes, length);
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
  if (a == NULL) abort();
  a->length = length;
  a->elements = malloc(length > 0 ? (size_t)length : 1);
  if (a->elements == NULL) abort();
  if (bytes != NULL && length > 0) memcpy(a->elements, bytes, (size_t)length);
  return a;
}

static void freeArray(FakeArray* a) {
  if (a == NULL) return;
  free(a->elements);
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
    return;
  }
  if (length > 0) memcpy(a->elements + start, bytes, (size_t)length);
}

/* ---- requests ---- */

typedef struct {
  int isNull;
  Bytes bytes;
} Field;

/* Decodes one field of a request line (see the top of the file). */
static void parseField(const char* p, size_t n, Field* f) {
  memset(f, 0, sizeof *f);
  put(&f->bytes, "", 0);
  if (n == 2 && p[0] == '\\' && p[1] == 'N') {
    f->isNull = 1;
    return;
  }
  if (n > 2 && p[0] == '\\' && p[1] == 'R') {
    char* colon = NULL;
    long count = strtol(p + 2, &colon, 10);
    if (colon != NULL && *colon == ':') {
      size_t pieceLength = n - (size_t)(colon + 1 - p);
      for (long i = 0; i < count; ++i) put(&f->bytes, colon + 1, pieceLength);
      return;
    }
  }
  for (size_t i = 0; i < n; ++i) {
    if (p[i] == '\\' && i + 1 < n && p[i + 1] == '\\') {
      put(&f->bytes, "\\", 1);
      ++i;
    } else if (p[i] == '\\' && i + 3 < n && p[i + 1] == 'x') {
      char hex[3] = {p[i + 2], p[i + 3], 0};
      char c = (char)strtol(hex, NULL, 16);
      put(&f->bytes, &c, 1);
      i += 3;
    } else {
      put(&f->bytes, &p[i], 1);
    }
  }
}

static void runDecodeBuffer(const Field* tag, const Field* text, int withOut, Bytes* answer) {
  char* out = NULL;
  const char* tagArg = tag->isNull ? NULL : tag->bytes.data;
  const char* textArg = text->isNull ? NULL : text->bytes.data;
  int rc = decodeBuffer(tagArg, textArg, withOut ? &out : NULL);
  char head[32];
  snprintf(head, sizeof head, "rc=%d", rc);
  putText(answer, head);
  if (out != NULL) {
    putText(answer, " ");
    putEscaped(answer, out, strlen(out));
    decodeReleaseBuffer(out);
  } else if (withOut) {
    putText(answer, " (no buffer)");
  }
}

static void runJavaEntry(const Field* tag, const Field* text, jboolean transliterated, Bytes* answer) {
  struct JNINativeInterface_ table;
  memset(&table, 0, sizeof table);
  table.GetArrayLength = getArrayLength;
  table.GetByteArrayElements = getByteArrayElements;
  table.ReleaseByteArrayElements = releaseByteArrayElements;
  table.NewByteArray = newByteArray;
  table.SetByteArrayRegion = setByteArrayRegion;
  JNIEnv env = &table;

  FakeArray* textArray = text->isNull ? NULL : newArray(text->bytes.data, (jsize)text->bytes.size);
  FakeArray* tagArray = tag->isNull ? NULL : newArray(tag->bytes.data, (jsize)tag->bytes.size);
  FakeArray* result =
      (FakeArray*)javaEntry(&env, NULL, (jbyteArray)textArray, (jbyteArray)tagArray, transliterated);
  if (result == NULL) {
    putText(answer, "null");
  } else {
    char head[32];
    snprintf(head, sizeof head, "len=%ld ", (long)result->length);
    putText(answer, head);
    putEscaped(answer, (const char*)result->elements, (size_t)result->length);
  }
  freeArray(textArray);
  freeArray(tagArray);
  freeArray(result);
}

/* Runs one request line; returns 0 when the line is not a request. */
static int runRequest(const char* line, Bytes* answer) {
  const char* tab1 = strchr(line, '\t');
  const char* tab2 = tab1 ? strchr(tab1 + 1, '\t') : NULL;
  if (line[0] == '#' || tab2 == NULL) return 0;
  Field tag, text;
  parseField(tab1 + 1, (size_t)(tab2 - tab1 - 1), &tag);
  parseField(tab2 + 1, strlen(tab2 + 1), &text);
  size_t entryLength = (size_t)(tab1 - line);
  put(answer, line, entryLength);
  putText(answer, "\t");
  if (entryLength == 1 && line[0] == 'c') {
    runDecodeBuffer(&tag, &text, 1, answer);
  } else if (entryLength == 7 && strncmp(line, "c-noout", 7) == 0) {
    runDecodeBuffer(&tag, &text, 0, answer);
  } else if (entryLength == 3 && strncmp(line, "jni", 3) == 0) {
    runJavaEntry(&tag, &text, JNI_FALSE, answer);
  } else if (entryLength == 5 && strncmp(line, "jni-t", 5) == 0) {
    runJavaEntry(&tag, &text, JNI_TRUE, answer);
  } else if (entryLength == 5 && strncmp(line, "ascii", 5) == 0) {
    velaHostCallAscii(asciiEntry, tag.bytes.data, tag.bytes.size, text.bytes.data, text.bytes.size, answer);
  } else {
    putText(answer, "unknown entry");
  }
  free(tag.bytes.data);
  free(text.bytes.data);
  return 1;
}

/* Reads a whole file; lines end at '\n' (a '\r' before it is dropped). */
static char* readFile(const char* path) {
  FILE* f = fopen(path, "rb");
  if (f == NULL) return NULL;
  Bytes b = {0};
  char chunk[65536];
  size_t n;
  put(&b, "", 0);
  while ((n = fread(chunk, 1, sizeof chunk, f)) > 0) put(&b, chunk, n);
  fclose(f);
  return b.data;
}

static char* nextLine(char** cursor) {
  char* line = *cursor;
  if (line == NULL || *line == '\0') return NULL;
  char* end = strchr(line, '\n');
  if (end != NULL) {
    *end = '\0';
    *cursor = end + 1;
  } else {
    *cursor = line + strlen(line);
  }
  size_t n = strlen(line);
  if (n > 0 && line[n - 1] == '\r') line[n - 1] = '\0';
  return line;
}

static int loadExports(const char* path) {
  Library lib = openLibrary(path);
  if (lib == NULL) {
    fprintf(stderr, "host: cannot load %s\n", path);
    return 0;
  }
  const char* names[] = {"decodeBuffer", "decodeReleaseBuffer", "DecodeBufferASCII", JAVA_ENTRY};
  void* found[4];
  int ok = 1;
  for (int i = 0; i < 4; ++i) {
    found[i] = findExport(lib, names[i]);
    if (found[i] == NULL) {
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
  if (argc != 5 || (strcmp(argv[1], "write") != 0 && strcmp(argv[1], "check") != 0)) {
    fprintf(stderr, "usage: host write|check LIBRARY REQUESTS ANSWERS\n");
    return 2;
  }
  const int writing = strcmp(argv[1], "write") == 0;
  if (!loadExports(argv[2])) return 1;
  decodeReleaseBuffer(NULL); /* harmless */

  char* requests = readFile(argv[3]);
  char* expected = writing ? NULL : readFile(argv[4]);
  if (requests == NULL || (!writing && expected == NULL)) {
    fprintf(stderr, "host: cannot read %s\n", requests == NULL ? argv[3] : argv[4]);
    return 1;
  }
  FILE* out = writing ? fopen(argv[4], "wb") : NULL;
  if (writing && out == NULL) {
    fprintf(stderr, "host: cannot write %s\n", argv[4]);
    return 1;
  }

  int passed = 0, failed = 0, lineNumber = 0;
  char *cursor = requests, *expectedCursor = expected, *line;
  while ((line = nextLine(&cursor)) != NULL) {
    ++lineNumber;
    Bytes answer = {0};
    elementsOut = 0;
    contractBroken = 0;
    if (!runRequest(line, &answer)) continue;
    int ok = elementsOut == 0 && !contractBroken;
    if (!ok) fprintf(stderr, "host: line %d: JNI elements not released as taken\n", lineNumber);
    if (writing) {
      fprintf(out, "%s\n", answer.data);
    } else {
      const char* want = nextLine(&expectedCursor);
      if (want == NULL || strcmp(want, answer.data) != 0) {
        fprintf(stderr, "host: line %d differs\n  want: %.300s\n  got:  %.300s\n", lineNumber,
                want ? want : "(no answer)", answer.data);
        ok = 0;
      }
    }
    if (ok) {
      ++passed;
    } else {
      ++failed;
    }
    free(answer.data);
  }
  if (!writing && nextLine(&expectedCursor) != NULL) {
    fprintf(stderr, "host: more answers than requests\n");
    ++failed;
  }
  if (out != NULL && fclose(out) != 0) ++failed;
  fflush(stdout);
  fprintf(stderr, "%s: %d passed, %d failed\n", writing ? "written" : "checked", passed, failed);
  return failed == 0 && passed > 0 ? 0 : 1;
}
