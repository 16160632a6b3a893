import com.talvik.ostra.macrosynthesis.vela.VelaMacroSynthesis;
import java.nio.charset.Charset;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.concurrent.Callable;
import java.util.concurrent.ExecutorService;
import java.util.concurrent.Executors;
import java.util.concurrent.Future;

// The native entry and the Java class in a real JVM. Exits 1 when any check fails.
public final class VelaJvmTest {
  private static final Charset CP1251 = VelaMacroSynthesis.WINDOWS_1251;
  private static int failures;

  public static void main(String[] args) throws Exception {
    VelaMacroSynthesis.loadLibrary();
    String longest = "b".repeat(10239 - 5) + "a.wav";
    String pad512 = " ".repeat(2) + "b".repeat(512 - 9) + "a.wav  ";
    // Text, tag (String or bytes), transliterated, answer. A request that
    // yields nothing is an empty array, never null; an empty tag speaks English.
    Object[][] cases = {
        {"  a.wav   b  ", "en", false, "a.wav b"},
        {"  hello   there ", "ru", true, "hello there"},
        {pad512, "en", false, pad512.trim()},
        {" " + pad512, "en", false, " " + pad512.trim() + " "},
        {longest, "en", false, longest},
        {longest + "b", "en", false, ""},
        {"21", Arrays.copyOf(bytes("ru"), 31), false, "двадцать один"},
        {"21", Arrays.copyOf(bytes("ru"), 32), false, "two one"},
        {"21rub", "ru", false, "двадцать один рубль"},
        {"21rub", "ru", true, "dvadcat odin rubl"},
        {"     ", "ru", true, ""},
        {null, "en", false, ""},
        {"a.wav", null, false, "a.wav"},
    };
    for (Object[] c : cases) {
      byte[] got = call(c);
      check(
          Arrays.equals(got, bytes(c[3])), show(c[0]) + " " + show(c[1]) + " " + c[2] + ": got " + show(got));
    }
    check(VelaMacroSynthesis.getPromptNames("ru", " рубль.wav  b", false).equals(List.of("рубль.wav", "b")),
        "getPromptNames converts and splits");
    try {
      VelaMacroSynthesis.getSpaceDelimitedFiles("en", "中.wav", false);
      check(false, "a character outside Windows-1251 must be refused");
    } catch (IllegalArgumentException expected) {
    }
    manyThreads();
    System.out.println(failures == 0 ? "ok" : failures + " checks failed");
    System.exit(failures == 0 ? 0 : 1);
  }

  static byte[] bytes(Object o) { return o instanceof String ? ((String) o).getBytes(CP1251) : (byte[]) o; }

  static byte[] call(Object[] c) {
    return VelaMacroSynthesis.getSpaceDelimitedFilesWindows1251Encoded(
        bytes(c[0]), bytes(c[1]), (Boolean) c[2]);
  }

  static String show(Object o) {
    String s = o == null ? "null" : new String(bytes(o), CP1251);
    return s.length() > 40 ? "[" + s.length() + " bytes]" : "\"" + s.replace("\0", "\\0") + "\"";
  }

  static void check(boolean ok, String what) {
    if (!ok) {
      failures++;
      System.out.println("FAILED: " + what);
    }
  }

  // Many threads at once get the answers one thread gets.
  static void manyThreads() throws Exception {
    List<Object[]> requests = new ArrayList<>();
    for (String tag : new String[] {"ru", "en", "ro", "ar", "kk", "xx"})
      for (String text : new String[] {"21руб", "-5,5kb", "1.05.2015", "7:05:30", "\"12#*\"", "123456789012"})
        for (boolean mode : new boolean[] {false, true}) requests.add(new Object[] {text, tag, mode});
    List<Callable<byte[]>> calls = new ArrayList<>();
    for (int round = 0; round < 500; round++)
      for (Object[] r : requests) calls.add(() -> call(r));
    ExecutorService pool = Executors.newFixedThreadPool(16);
    List<Future<byte[]>> answers = pool.invokeAll(calls);
    pool.shutdown();
    int differ = 0;
    for (int i = 0; i < answers.size(); i++)
      if (!Arrays.equals(answers.get(i).get(), call(requests.get(i % requests.size())))) differ++;
    check(differ == 0, differ + " answers under 16 threads differ from one thread's");
  }
}
