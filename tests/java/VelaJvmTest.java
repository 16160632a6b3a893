import com.talvik.ostra.macrosynthesis.vela.Vela;
import com.talvik.ostra.macrosynthesis.vela.VelaMacroSynthesis;
import java.nio.charset.Charset;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.Arrays;
import java.util.List;
import java.util.regex.Matcher;
import java.util.regex.Pattern;

// The native entries and both Java classes in a real JVM. Prints only "ok" (the
// test also fails if a complaint reaches standard output); exits 1 when a check
// fails. Usage: VelaJvmTest PATH/vela.h
public final class VelaJvmTest {
  private static final Charset CP1251 = VelaMacroSynthesis.WINDOWS_1251;
  private static int failures;

  public static void main(String[] args) throws Exception {
    VelaMacroSynthesis.loadLibrary();
    // Text, tag, transliterated, answer: the bytes at the bounds are checked
    // through a fake JVM (jni_entry_test.cpp). A request that yields nothing
    // is an empty array, never null; a null tag speaks English.
    String[][] cases = {
        {"  a.wav   b  ", "en", "false", "a.wav b"},
        {"21rub", "ru", "true", "dvadcat odin rubl"},
        {null, "en", "false", ""},
        {"a.wav", null, "false", "a.wav"},
    };
    for (String[] c : cases) {
      byte[] got = VelaMacroSynthesis.getSpaceDelimitedFilesWindows1251Encoded(
          bytes(c[0]), bytes(c[1]), Boolean.parseBoolean(c[2]));
      check(Arrays.equals(got, bytes(c[3])),
          Arrays.toString(c) + ": " + (got == null ? null : new String(got, CP1251)));
    }
    check(VelaMacroSynthesis.getPromptNames("ru", " рубль.wav  b", false).equals(List.of("рубль.wav", "b")),
        "getPromptNames converts and splits");
    // The Vela class: tag, text, latin, names, status, diagnostics (never printed), unknown tag
    Object[][] readings = {
        {"ru", "21руб", false, List.of("двадцать", "один", "рубль"), Vela.Status.SPOKEN, List.of(), false},
        {"ru", "5", true, List.of("pyat"), Vela.Status.SPOKEN, List.of(), false},
        {"ru", "7:75", false, List.of(), Vela.Status.NOT_SPOKEN, List.of("wrong time (minutes) 7"), false},
        {"xx", "5", false, List.of("five"), Vela.Status.SPOKEN, List.of(), true},
        {"en", " a.wav  b ", false, List.of("a.wav", "b"), Vela.Status.FILE_NAMES, List.of(), false},
    };
    for (Object[] r : readings) {
      Vela.Reading got = Vela.read((String) r[0], (String) r[1], (Boolean) r[2]);
      check(got.names().equals(r[3]) && got.status() == r[4] && got.diagnostics().equals(r[5])
          && got.unknownTag() == (Boolean) r[6], r[0] + " " + r[1] + ": got " + got);
    }
    refused(() -> VelaMacroSynthesis.getSpaceDelimitedFiles("en", "中.wav", false), "a character not in cp1251");
    refused(() -> Vela.readStrict("xx", "5", false), "an unknown tag, by readStrict");
    Matcher v = Pattern.compile("#define VELA_VERSION_MAJOR (\\d+)\n#define VELA_VERSION_MINOR (\\d+)\n"
        + "#define VELA_VERSION_PATCH (\\d+)").matcher(Files.readString(Path.of(args[0])));
    check(v.find() && Vela.version().equals(v.group(1) + "." + v.group(2) + "." + v.group(3)),
        "version " + Vela.version() + " is not the header's");
    System.out.print(failures == 0 ? "ok\n" : failures + " checks failed\n");
    System.exit(failures == 0 ? 0 : 1);
  }

  static byte[] bytes(String s) { return s == null ? null : s.getBytes(CP1251); }

  static void refused(Runnable call, String what) {
    try {
      call.run();
      check(false, what + " must be refused");
    } catch (IllegalArgumentException expected) {
    }
  }

  static void check(boolean ok, String what) {
    if (!ok) System.out.println("FAILED: " + what + " (" + ++failures + ")");
  }
}
