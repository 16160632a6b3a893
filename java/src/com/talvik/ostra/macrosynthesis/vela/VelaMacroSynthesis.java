package com.talvik.ostra.macrosynthesis.vela;

import java.nio.ByteBuffer;
import java.nio.CharBuffer;
import java.nio.charset.CharacterCodingException;
import java.nio.charset.Charset;
import java.nio.charset.CodingErrorAction;
import java.util.ArrayList;
import java.util.Collections;
import java.util.List;

/**
 * Text to voice-prompt names, from the native vela library.
 *
 * <p>A request is a language tag ("ru", "en", "UKRAINIAN", ...) and one short text: a number, an
 * amount with a unit word ("12.50руб"), a date, a clock time, a quoted span or keypad string, or one
 * character. The answer is the names of the recordings that, played in order, speak the text.
 *
 * <p>Load the library once with {@link #loadLibrary()} (searches {@code java.library.path} for
 * {@code libvela.so}) or {@link #load(String)}; the string methods load it on first use. All methods
 * are static, keep no state and may be called from any number of threads at once.
 */
public final class VelaMacroSynthesis {
  /** The code page of every text that crosses the native boundary. */
  public static final Charset WINDOWS_1251 = Charset.forName("windows-1251");

  private static boolean loaded;

  private VelaMacroSynthesis() {}

  /** Loads {@code libvela} from {@code java.library.path}; later calls do nothing. */
  public static synchronized void loadLibrary() {
    if (!loaded) {
      System.loadLibrary("vela");
      loaded = true;
    }
  }

  /** Loads the library from an absolute file name; later calls (of either loader) do nothing. */
  public static synchronized void load(String absolutePath) {
    if (!loaded) {
      System.load(absolutePath);
      loaded = true;
    }
  }

  /**
   * The native entry. {@code text} and {@code language} are Windows-1251 bytes; a text of 10240
   * bytes or more, or a tag of 32 bytes or more, is taken as empty. Russian prompt names are Latin
   * transliterations when {@code transliterated} is true, Cyrillic otherwise; other languages do
   * not depend on it. An unknown tag is spoken in English.
   *
   * @return the space-delimited prompt names as Windows-1251 bytes, single spaces, none at either
   *     end (when at most 512 bytes long); the caller's own text when nothing in it could be
   *     spoken; an empty array (never null) when the request failed.
   */
  public static native byte[] getSpaceDelimitedFilesWindows1251Encoded(
      byte[] text, byte[] language, boolean transliterated);

  /**
   * Like the native entry, with Java strings.
   *
   * @throws IllegalArgumentException when {@code language} or {@code text} has a character that
   *     Windows-1251 cannot encode
   */
  public static String getSpaceDelimitedFiles(String language, String text, boolean transliterated) {
    loadLibrary();
    byte[] answer =
        getSpaceDelimitedFilesWindows1251Encoded(encode(text), encode(language), transliterated);
    return new String(answer, WINDOWS_1251);
  }

  /**
   * The prompt names as a list, in playing order; empty when the request failed.
   *
   * @throws IllegalArgumentException when {@code language} or {@code text} has a character that
   *     Windows-1251 cannot encode
   */
  public static List<String> getPromptNames(String language, String text, boolean transliterated) {
    String names = getSpaceDelimitedFiles(language, text, transliterated);
    List<String> list = new ArrayList<>();
    for (String name : names.split(" ")) {
      if (!name.isEmpty()) {
        list.add(name);
      }
    }
    return Collections.unmodifiableList(list);
  }

  // A character with no Windows-1251 byte is an error, never a silent '?'.
  static byte[] encode(String s) {
    try {
      ByteBuffer bytes =
          WINDOWS_1251
              .newEncoder()
              .onMalformedInput(CodingErrorAction.REPORT)
              .onUnmappableCharacter(CodingErrorAction.REPORT)
              .encode(CharBuffer.wrap(s));
      byte[] array = new byte[bytes.remaining()];
      bytes.get(array);
      return array;
    } catch (CharacterCodingException e) {
      throw new IllegalArgumentException("not encodable in Windows-1251: " + s, e);
    }
  }
}
