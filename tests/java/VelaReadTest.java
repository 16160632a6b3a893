import com.talvik.ostra.macrosynthesis.vela.Vela;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.List;
import java.util.regex.Matcher;
import java.util.regex.Pattern;

// The Vela class in a real JVM; prints only "ok" (the test also fails if a
// complaint reaches standard output). Exits 1 when a check fails.
public final class VelaReadTest {
  private static int failures;

  public static void main(String[] args) throws Exception {
    // tag, text, latin, names, status, diagnostics, unknown tag
    Object[][] rows = {
      {"ru", "12.50руб", false, List.of("двенадцать", "рублей", "пятьдесят", "копеек"),
          Vela.Status.SPOKEN, List.of(), false},
      {"ru", "5", true, List.of("pyat"), Vela.Status.SPOKEN, List.of(), false},
      {"ru", "7:75", false, List.of(), Vela.Status.NOT_SPOKEN, List.of("wrong time (minutes) 7"), false},
      {"xx", "5", false, List.of("five"), Vela.Status.SPOKEN, List.of(), true},
      {"en", " a.wav  b ", false, List.of("a.wav", "b"), Vela.Status.FILE_NAMES, List.of(), false},
    };
    for (Object[] r : rows) {
      Vela.Reading got = Vela.read((String) r[0], (String) r[1], (Boolean) r[2]);
      check(got.names().equals(r[3]) && got.status() == r[4] && got.diagnostics().equals(r[5])
              && got.unknownTag() == (Boolean) r[6],
          r[0] + " " + r[1] + ": got " + got);
    }
    try {
      Vela.readStrict("xx", "5", false);
      check(false, "readStrict must refuse an unknown tag");
    } catch (IllegalArgumentException expected) {
    }
    Matcher v = Pattern.compile("#define VELA_VERSION_MAJOR (\\d+)\n#define VELA_VERSION_MINOR (\\d+)\n"
        + "#define VELA_VERSION_PATCH (\\d+)").matcher(Files.readString(Path.of(args[0])));
    check(v.find() && Vela.version().equals(v.group(1) + "." + v.group(2) + "." + v.group(3)),
        "version " + Vela.version() + " is not the header's");
    System.out.print(failures == 0 ? "ok\n" : failures + " checks failed\n");
    System.exit(failures == 0 ? 0 : 1);
  }

  static void check(boolean ok, String what) {
    if (!ok) {
      failures++;
      System.out.println("FAILED: " + what);
    }
  }
}
