/* A C host built from the installed header and pkg-config alone. */
#include <stdio.h>
#include <string.h>
#include <vela/vela.h>

int main(void) {
  char* out = NULL;
  /* A ".wav" text passes through, trimmed. */
  int rc = decodeBuffer("en", "  a.wav  ", &out);
  if (rc != 0 || out == NULL || strcmp(out, "a.wav") != 0) {
    printf("FAILED: decodeBuffer returned %d, \"%s\"\n", rc, out ? out : "(null)");
    return 1;
  }
  decodeReleaseBuffer(out);
  decodeReleaseBuffer(NULL);
  printf("c consumer ok\n");
  return 0;
}
