import com.talvik.ostra.macrosynthesis.vela.VelaMacroSynthesis;
import java.nio.charset.Charset;
import java.util.Arrays;
import java.util.List;

// The native entry and the Java class in a real JVM. Exits 1 when any check fails.
public final class VelaJvmTest {
  private static final Charset CP1251 = VelaMacroSynthesis.WINDOWS_1251;
  private static int failures;

  public static void main(String[] args) {
    VelaMacroSynthesis.loadLibrary();
    String longest = "b".repeat(10239 - 5) + "a.wav";
    String over512 = "   " + "b".repeat(512 - 9) + "a.wav  ";
    // Text, tag (String or bytes), transliterated, answer. A request that
    // yields nothing is an empty array, never null; an empty tag speaks English.
    Object[][] cases = {
        {"  a.wav   b  ", "en", false, "a.wav b"},
        {over512, "en", false, " " + over512.trim() + " "},  // too long to trim
        {longest, "en", false, longest},
        {longest + "b", "en", false, ""},
        {"21", Arrays.copyOf(bytes("ru"), 31), false, "двадцать один"},
        {"21", Arrays.copyOf(bytes("ru"), 32), false, "two one"},
        {"21rub", "ru", true, "dvadcat odin rubl"},
        {"     ", "ru", true, ""},
        {null, "en", false, ""},
        {"a.wav", null, false, "a.wav"},
    };
    for (Object[] c : cases) {
      byte[] got = VelaMacroSynthesis.getSpaceDelimitedFilesWindows1251Encoded(
          bytes(c[0]), bytes(c[1]), (Boolean) c[2]);
      check(Arrays.equals(got, bytes(c[3])), show(c[0]) + " " + show(c[1]) + " " + c[2] + ": got " + show(got));
    }
    check(VelaMacroSynthesis.getPromptNames("ru", " рубль.wav  b", false).equals(List.of("рубль.wav", "b")),
        "getPromptNames converts and splits");
    try {
      VelaMacroSynthesis.getSpaceDelimitedFiles("en", "中.wav", false);
      check(false, "a character outside Windows-1251 must be refused");
    } catch (IllegalArgumentException expected) {
    }
    System.out.println(failures == 0 ? "ok" : failures + " checks failed");
    System.exit(failures == 0 ? 0 : 1);
  }

  static byte[] bytes(Object o) { return o instanceof String ? ((String) o).getBytes(CP1251) : (byte[]) o; }

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
}
