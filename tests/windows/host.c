/*
 * A host that loads vela at run time, finds every export by its plain name and
 * runs a table of requests through the C and C++ ones, writing one answer line
 * per request (the Java entries are found, not called: they need a JVM). The
 * same source builds on Linux (dlopen) and for Windows (LoadLibrary):
 * scripts/windows.sh compares the Windows DLL's answers with the Linux build's.
 *
 *   host LIBRARY REQUESTS ANSWERS
 *
 * REQUESTS: one request a line, "entry<TAB>tag<TAB>text"; '#' starts a comment.
 * entry: c (decodeBuffer), c-noout (decodeBuffer with a null out), read,
 * read-latin and read-strict (vela_read with no option, VELA_LATIN and
 * VELA_STRICT_TAG), ascii (DecodeBufferASCII, through ascii_call.cpp: its
 * arguments are C++ objects). In tag and text: \xHH is a byte, a field of
 * just \N a null pointer (an empty string for DecodeBufferASCII), and \R<count>:<piece> the
 * piece repeated. The library prints its own diagnostics on standard output.
 */
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
typedef struct {
  char* names;
  char* diagnostics;
  int status;
  int unknownTag;
} Reading; /* vela_reading, declared here as a host that has only the DLL would */
typedef int (*ReadFn)(const char*, const char*, unsigned, Reading*);
typedef void (*ReadingFreeFn)(Reading*);
typedef const char* (*VersionFn)(void);

static DecodeBufferFn decodeBuffer;
static ReleaseFn decodeReleaseBuffer;
static ReadFn velaRead;
static ReadingFreeFn velaReadingFree;
static VersionFn velaVersion;
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

static void runRead(const Field* tag, const Field* text, unsigned options) {
  Reading r;
  int rc = velaRead(tag->isNull ? NULL : tag->data, text->isNull ? NULL : text->data, options, &r);
  fprintf(answers, "rc=%d", rc);
  if (rc == 0) {
    fprintf(answers, " status=%d unknown=%d names=", r.status, r.unknownTag);
    velaHostPut(r.names, strlen(r.names));
    fputs(" diagnostics=", answers);
    velaHostPut(r.diagnostics, strlen(r.diagnostics));
  }
  velaReadingFree(&r);
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
  if (strncmp(line, "c\t", 2) == 0) {
    runDecodeBuffer(&tag, &text, 1);
  } else if (strncmp(line, "c-noout\t", 8) == 0) {
    runDecodeBuffer(&tag, &text, 0);
  } else if (strncmp(line, "read\t", 5) == 0) {
    runRead(&tag, &text, 0);
  } else if (strncmp(line, "read-latin\t", 11) == 0) {
    runRead(&tag, &text, 1);
  } else if (strncmp(line, "read-strict\t", 12) == 0) {
    runRead(&tag, &text, 2);
  } else if (strncmp(line, "ascii\t", 6) == 0) {
    velaHostCallAscii(asciiEntry, tag.data, tag.size, text.data, text.size);
  } else {
    fputs("unknown entry", answers);
  }
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
  const char* names[] = {"decodeBuffer",
                         "decodeReleaseBuffer",
                         "DecodeBufferASCII",
                         "vela_read",
                         "vela_reading_free",
                         "vela_version",
                         "Java_com_talvik_ostra_macrosynthesis_vela_VelaMacroSynthesis_"
                         "getSpaceDelimitedFilesWindows1251Encoded",
                         "Java_com_talvik_ostra_macrosynthesis_vela_Vela_read0",
                         "Java_com_talvik_ostra_macrosynthesis_vela_Vela_version0"};
  enum { kExports = sizeof names / sizeof names[0] };
  void* found[kExports];
  int ok = 1;
  for (int i = 0; i < kExports; ++i) {
    if ((found[i] = findExport(lib, names[i])) == NULL) {
      fprintf(stderr, "host: no export named %s\n", names[i]);
      ok = 0;
    }
  }
  decodeBuffer = (DecodeBufferFn)found[0];
  decodeReleaseBuffer = (ReleaseFn)found[1];
  asciiEntry = found[2];
  velaRead = (ReadFn)found[3];
  velaReadingFree = (ReadingFreeFn)found[4];
  velaVersion = (VersionFn)found[5];
  return ok;
}

int main(int argc, char** argv) {
  if (argc != 4) {
    fprintf(stderr, "usage: host LIBRARY REQUESTS ANSWERS\n");
    return 2;
  }
  if (!loadExports(argv[1])) return 1;
  decodeReleaseBuffer(NULL); /* harmless */
  velaReadingFree(NULL);
  fprintf(stderr, "host: vela %s\n", velaVersion());
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
