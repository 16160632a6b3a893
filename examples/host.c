#include <stdio.h>
#include <vela/vela.h>

/* Tag and text are Windows-1251 bytes ("21\xF0\xF3\xE1" is 21руб); so are the
   names. VELA_LATIN asks for Russian names in Latin letters. */
static void show(const char* text, unsigned options) {
  vela_reading reading;
  if (vela_read("ru", text, options, &reading) != 0) return; /* -2: out of memory */
  printf("%s: status %d, names \"%s\"\n", text, reading.status, reading.names);
  fputs(reading.diagnostics, stdout); /* this text's complaints, one a line */
  vela_reading_free(&reading);
}

int main(void) {
  show("21rub", VELA_LATIN); /* VELA_SPOKEN: the whole text */
  show("25:00", 0);          /* VELA_NOT_SPOKEN: there is no hour 25 */
  return 0;
}
