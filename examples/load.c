#include <stdio.h>
#ifdef _WIN32
#include <windows.h>
#define OPEN(path) LoadLibraryA(path)
#define FIND(library, name) (void*)(INT_PTR)GetProcAddress(library, name)
typedef HMODULE Library;
#else
#include <dlfcn.h>
#define OPEN(path) dlopen(path, RTLD_NOW)
#define FIND(library, name) dlsym(library, name)
typedef void* Library;
#endif

typedef int (*DecodeBufferFn)(const char*, const char*, char**);
typedef void (*ReleaseFn)(void*);

int main(int argc, char** argv) {
  Library vela = OPEN(argc > 1 ? argv[1] : "vela.dll");
  if (vela == NULL) return 1;
  DecodeBufferFn decode = (DecodeBufferFn)FIND(vela, "decodeBuffer");
  ReleaseFn release = (ReleaseFn)FIND(vela, "decodeReleaseBuffer");
  char* names = NULL;
  if (decode("en", "21usd", &names) == 0) {
    printf("%s\n", names);
    release(names);
  }
  return 0;
}
