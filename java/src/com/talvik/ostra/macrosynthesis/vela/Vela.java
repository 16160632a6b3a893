package com.talvik.ostra.macrosynthesis.vela;

import java.util.Arrays;
import java.util.Collections;
import java.util.List;

/**
 * Readings that say how much of a text they speak, with the library's complaints kept in them
 * instead of printed.
 *
 * <pre>{@code
 * Vela.Reading r = Vela.read("ru", "12.50руб", false);
 * r.names();   // [двенадцать, рублей, пятьдесят, копеек]
 * r.status();  // SPOKEN
 * }</pre>
 *
 * <p>All methods are static, keep no state and may be called from any number of threads at once.
 * The library is loaded as {@link VelaMacroSynthesis#loadLibrary()} does, unless it was loaded
 * before.
 */
public final class Vela {
  /** How much of the text a reading speaks. */
  public enum Status {
    /** The whole text. */
    SPOKEN,
    /** Names, but part of the text was left unsaid or changed. */
    PARTLY_SPOKEN,
    /** No name at all. */
    NOT_SPOKEN,
    /** The text holds ".wav": it is passed through as names. */
    FILE_NAMES
  }

  /** One reading: names in playing order, its status, the complaints, the unknown-tag flag. */
  public static final class Reading {
    private final List<String> names;
    private final Status status;
    private final List<String> diagnostics;
    private final boolean unknownTag;

    Reading(List<String> names, Status status, List<String> diagnostics, boolean unknownTag) {
      this.names = names;
      this.status = status;
      this.diagnostics = diagnostics;
      this.unknownTag = unknownTag;
    }

    public List<String> names() { return names; }
    public Status status() { return status; }
    /** The library's complaints about the text, one an element. */
    public List<String> diagnostics() { return diagnostics; }
    /** True when the tag was unknown and English was used. */
    public boolean unknownTag() { return unknownTag; }

    @Override
    public String toString() {
      return "Reading[names=" + names + ", status=" + status + ", diagnostics=" + diagnostics
          + ", unknownTag=" + unknownTag + "]";
    }
  }

  private static final int LATIN = 1;
  private static final int STRICT_TAG = 2;

  private Vela() {}

  /**
   * Reads {@code text} in the language {@code tag} ("ru", "en", "uk", ...; exact and
   * case-sensitive). An unknown tag is read in English, with {@link Reading#unknownTag()} set.
   * {@code latin} asks the Russian tags for Latin-transliterated names.
   *
   * @throws IllegalArgumentException when {@code tag} or {@code text} has a character that
   *     Windows-1251 cannot encode
   */
  public static Reading read(String tag, String text, boolean latin) {
    return read(tag, text, latin ? LATIN : 0);
  }

  /**
   * Like {@link #read(String, String, boolean)}, but an unknown tag is an error.
   *
   * @throws IllegalArgumentException for an unknown tag, or a character that Windows-1251 cannot
   *     encode
   */
  public static Reading readStrict(String tag, String text, boolean latin) {
    return read(tag, text, STRICT_TAG | (latin ? LATIN : 0));
  }

  /** The library's version, "MAJOR.MINOR.PATCH". */
  public static String version() {
    VelaMacroSynthesis.loadLibrary();
    return version0();
  }

  private static Reading read(String tag, String text, int options) {
    VelaMacroSynthesis.loadLibrary();
    byte[][] strings = new byte[2][];
    int result =
        read0(VelaMacroSynthesis.encode(tag), VelaMacroSynthesis.encode(text), options, strings);
    if (result < 0) {
      throw new IllegalArgumentException("unknown language tag: " + tag);
    }
    String names = new String(strings[0], VelaMacroSynthesis.WINDOWS_1251);
    String diagnostics = new String(strings[1], VelaMacroSynthesis.WINDOWS_1251);
    return new Reading(
        names.isEmpty() ? List.of() : Collections.unmodifiableList(Arrays.asList(names.split(" "))),
        Status.values()[result & 3],
        diagnostics.isEmpty() ? List.of() : List.of(diagnostics.split("\n")),
        (result & 4) != 0);
  }

  // Fills strings[0] with the names and strings[1] with the complaints (Windows-1251) and returns
  // the status, plus 4 when the tag was unknown; -3 for an unknown tag under STRICT_TAG. Throws
  // OutOfMemoryError when memory runs out.
  private static native int read0(byte[] tag, byte[] text, int options, byte[][] strings);

  private static native String version0();
}
