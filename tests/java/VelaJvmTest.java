import com.talvik.ostra.macrosynthesis.vela.VelaMacroSynthesis;
import java.nio.charset.Charset;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.concurrent.Callable;
import java.util.concurrent.CountDownLatch;
import java.util.concurrent.ExecutorService;
import java.util.concurrent.Executors;
import java.util.concurrent.Future;

/** The native entry and the Java class in a real JVM. Exits 1 when any check fails. */
public final class VelaJvmTest {
  private static final Charset CP1251 = VelaMacroSynthesis.WINDOWS_1251;
  private static int failures;
  private static int checks;

  public static void main(String[] args) throws Exception {
    VelaMacroSynthesis.loadLibrary();
    resultIsTrimmedAndCollapsed();
    textLengthBounds();
    languageLengthBounds();
    failuresGiveEmptyArrays();
    modes();
    stringMethods();
    manyThreads();
    System.out.println(checks + " checks, " + failures + " failed");
    System.exit(failures == 0 ? 0 : 1);
  }

  static byte[] call(byte[] text, byte[] language, boolean transliterated) {
    return VelaMacroSynthesis.getSpaceDelimitedFilesWindows1251Encoded(
        text, language, transliterated);
  }

  static byte[] call(String text, String language, boolean transliterated) {
    return call(text.getBytes(CP1251), language.getBytes(CP1251), transliterated);
  }

  static void check(boolean ok, String what) {
    checks++;
    if (!ok) {
      failures++;
      System.out.println("FAILED: " + what);
    }
  }

  static void checkBytes(byte[] got, byte[] want, String what) {
    check(
        got != null && Arrays.equals(got, want),
        what + ": got " + show(got) + ", want " + show(want));
  }

  static String show(byte[] bytes) {
    if (bytes == null) return "null";
    String s = new String(bytes, CP1251);
    return bytes.length > 40 ? "[" + bytes.length + " bytes] " + s.substring(0, 40) + "..." : "\"" + s + "\"";
  }

  static String repeat(char c, int n) {
    char[] chars = new char[n];
    Arrays.fill(chars, c);
    return new String(chars);
  }

  // Texts that pass through whole (".wav") or that no rule covers come back
  // trimmed, with every run of spaces made one.
  static void resultIsTrimmedAndCollapsed() {
    String[][] cases = {
      {"  a.wav   b  ", "a.wav b"},
      {"a.wav", "a.wav"},
      {"x  y.wav", "x y.wav"},
      {"a.wav\tb", "a.wav\tb"},
      {"  hello   there ", "hello there"},
      {"рубль.wav", "рубль.wav"},
    };
    for (String[] c : cases) {
      for (String tag : new String[] {"en", "ru"}) {
        for (boolean mode : new boolean[] {false, true}) {
          checkBytes(call(c[0], tag, mode), c[1].getBytes(CP1251), tag + " " + mode + " \"" + c[0] + "\"");
        }
      }
    }
    // The bytes themselves travel, unconverted: рубль is F0 F3 E1 EB FC.
    byte[] rouble = {(byte) 0xF0, (byte) 0xF3, (byte) 0xE1, (byte) 0xEB, (byte) 0xFC, '.', 'w', 'a', 'v'};
    checkBytes(call(rouble, "ru".getBytes(CP1251), false), rouble, "Windows-1251 bytes unchanged");
  }

  // A text of up to 10239 bytes is passed whole, 10240 bytes count as empty. An
  // answer longer than 512 bytes keeps its outer spaces (inner runs still shrink).
  static void textLengthBounds() {
    String longest = "a.wav" + repeat('b', 10239 - 5);
    checkBytes(call(longest, "en", false), longest.getBytes(CP1251), "text of 10239 bytes");
    checkBytes(call(longest + "b", "en", false), new byte[0], "text of 10240 bytes");
    checkBytes(call(longest + repeat('b', 5000), "en", false), new byte[0], "text of 15239 bytes");

    String pad512 = "  a.wav" + repeat('b', 512 - 9) + "  ";
    checkBytes(call(pad512, "en", false), pad512.trim().getBytes(CP1251), "512 bytes: trimmed");
    String pad513 = " " + pad512;
    checkBytes(call(pad513, "en", false), (" " + pad512.trim() + " ").getBytes(CP1251),
        "513 bytes: outer spaces kept, runs collapsed");
  }

  static byte[] padded(String tag, int length) {
    return Arrays.copyOf(tag.getBytes(CP1251), length);
  }

  // A tag array of up to 31 bytes is read up to its first zero byte; one of 32
  // bytes or more is an empty tag, which the library speaks in English.
  static void languageLengthBounds() {
    String[] texts = {"21", "21руб", "1.05.2015", "7:05", "\"12#\"", "  a.wav   b  "};
    boolean distinct = false;
    for (String text : texts) {
      byte[] t = text.getBytes(CP1251);
      byte[] russian = call(t, "ru".getBytes(CP1251), false);
      byte[] empty = call(t, new byte[0], false);
      distinct |= !Arrays.equals(russian, empty);
      checkBytes(call(t, padded("ru", 31), false), russian, "tag \"ru\" in 31 bytes, \"" + text + "\"");
      checkBytes(call(t, padded("ru", 32), false), empty, "tag \"ru\" in 32 bytes, \"" + text + "\"");
      checkBytes(call(t, padded("ru", 100), false), empty, "tag \"ru\" in 100 bytes, \"" + text + "\"");
      checkBytes(call(t, "en".getBytes(CP1251), false), empty, "empty tag speaks English, \"" + text + "\"");
    }
    check(distinct, "Russian and English answers differ, so the tag bounds are told apart");
  }

  // A request that yields nothing is an empty array, never null.
  static void failuresGiveEmptyArrays() {
    checkBytes(call("", "en", false), new byte[0], "empty text");
    checkBytes(call("     ", "ru", true), new byte[0], "only spaces");
    checkBytes(call(new byte[0], new byte[0], false), new byte[0], "empty text and tag");
    checkBytes(call(null, "en".getBytes(CP1251), false), new byte[0], "null text");
    checkBytes(call("a.wav".getBytes(CP1251), null, false), "a.wav".getBytes(CP1251), "null tag");
  }

  // The flag chooses between Cyrillic and transliterated Russian only.
  static void modes() {
    String[] tags = {"en", "ENGLISH", "ro", "mo", "uk", "UKRAINIAN", "uz", "tg", "kk", "ka", "hy", "ar", "xx"};
    String[] texts = {"21", "21руб", "3min", "1.05.2015", "7:05", "\"12#\""};
    for (String tag : tags) {
      for (String text : texts) {
        byte[] cyrillic = call(text, tag, false);
        byte[] latin = call(text, tag, true);
        check(cyrillic.length > 0, tag + " \"" + text + "\": empty answer");
        checkBytes(latin, cyrillic, tag + " \"" + text + "\": modes agree");
      }
    }
    for (String text : texts) {
      check(call(text, "ru", false).length > 0 && call(text, "ru", true).length > 0,
          "ru \"" + text + "\": both modes answer");
    }
    byte[] cyrillic = call("21rub", "ru", false);
    byte[] latin = call("21rub", "ru", true);
    checkBytes(cyrillic, "двадцать один рубль".getBytes(CP1251), "ru mode 0 gives Cyrillic names");
    checkBytes(latin, "dvadcat odin rubl".getBytes(CP1251), "ru mode 1 gives Latin names");
    check(hasHighByte(cyrillic) && !hasHighByte(latin), "ru modes: Cyrillic against Latin bytes");
  }

  static boolean hasHighByte(byte[] bytes) {
    for (byte b : bytes) if (b < 0) return true;
    return false;
  }

  static void stringMethods() {
    check(VelaMacroSynthesis.getPromptNames("en", "  a.wav   b  ", false).equals(List.of("a.wav", "b")),
        "getPromptNames splits at spaces");
    check(VelaMacroSynthesis.getPromptNames("en", "", false).isEmpty(), "getPromptNames of nothing");
    check(VelaMacroSynthesis.getSpaceDelimitedFiles("ru", " рубль.wav  ", false).equals("рубль.wav"),
        "getSpaceDelimitedFiles converts both ways");
    try {
      VelaMacroSynthesis.getSpaceDelimitedFiles("en", "中.wav", false);
      check(false, "a character outside Windows-1251 must be refused");
    } catch (IllegalArgumentException expected) {
      check(true, "");
    }
  }

  // Many threads at once get the answers one thread gets.
  static void manyThreads() throws Exception {
    String[] tags = {"ru", "en", "ro", "ar", "ka", "xx"};
    String[] texts = {"21руб", "12.50руб", "-5,5kb", "1.05.2015", "1.05(I)", "7:05:30", "\"0:30\"",
        "\"12#*\"", "1-2-3", "123456789012", "x", "  a.wav   b  ", "a.wav" + repeat('b', 600)};
    List<Object[]> requests = new ArrayList<>();
    for (String tag : tags)
      for (String text : texts)
        for (boolean mode : new boolean[] {false, true})
          requests.add(new Object[] {text.getBytes(CP1251), tag.getBytes(CP1251), mode,
              call(text.getBytes(CP1251), tag.getBytes(CP1251), mode)});

    int threads = 16;
    ExecutorService pool = Executors.newFixedThreadPool(threads);
    CountDownLatch start = new CountDownLatch(1);
    List<Future<Integer>> results = new ArrayList<>();
    for (int t = 0; t < threads; t++) {
      final int offset = t;
      Callable<Integer> worker = () -> {
        start.await();
        int mismatches = 0;
        for (int round = 0; round < 30; round++) {
          for (int i = 0; i < requests.size(); i++) {
            Object[] r = requests.get((i + offset) % requests.size());
            byte[] got = call((byte[]) r[0], (byte[]) r[1], (Boolean) r[2]);
            if (!Arrays.equals(got, (byte[]) r[3])) mismatches++;
          }
        }
        return mismatches;
      };
      results.add(pool.submit(worker));
    }
    start.countDown();
    int mismatches = 0;
    for (Future<Integer> f : results) mismatches += f.get();
    pool.shutdown();
    check(mismatches == 0, threads + " threads: " + mismatches + " answers differ from one thread's");
  }
}
