/*
 * The machine-dependent JNI definitions for Windows targets, used by the
 * mingw-w64 cross build in place of the build machine's own: a JVM on Windows
 * calls native methods with the stdcall convention (the callee pops its
 * arguments; a no-op on x86_64, where there is one convention), finds them as
 * exports of the DLL, and has a 32-bit `long`, so the JNI's 64-bit jlong must
 * be `long long` there. jint is 32 bits and jbyte a signed byte, as everywhere.
 */
#ifndef VELA_WINDOWS_JNI_MD_H
#define VELA_WINDOWS_JNI_MD_H

#ifndef JNIEXPORT
#define JNIEXPORT __declspec(dllexport)
#endif
#define JNIIMPORT __declspec(dllimport)
#define JNICALL __stdcall

typedef int jint;
typedef long long jlong;
typedef signed char jbyte;

#endif /* VELA_WINDOWS_JNI_MD_H */
