import com.talvik.ostra.macrosynthesis.vela.VelaMacroSynthesis;
import java.nio.charset.Charset;
import java.util.Arrays;
import java.util.concurrent.atomic.AtomicInteger;

/**
 * A host program that knows nothing of vela but the native method's signature:
 * loads the library by file name (args[0]) and calls it from several threads.
 */
public final class IndependentCaller {
  public static void main(String[] args) throws Exception {
    System.load(args[0]);
    Charset cp1251 = Charset.forName("windows-1251");
    VelaMacroSynthesis vela = new VelaMacroSynthesis();
    byte[] en = "en".getBytes(cp1251);

    byte[] answer = vela.getSpaceDelimitedFilesWindows1251Encoded("  a.wav   b  ".getBytes(cp1251), en, false);
    boolean ok = Arrays.equals(answer, "a.wav b".getBytes(cp1251));
    byte[] nothing = vela.getSpaceDelimitedFilesWindows1251Encoded(new byte[0], en, true);
    ok &= nothing != null && nothing.length == 0;

    byte[] text = "21руб".getBytes(cp1251);
    byte[] ru = "ru".getBytes(cp1251);
    byte[] expected = vela.getSpaceDelimitedFilesWindows1251Encoded(text, ru, false);
    AtomicInteger mismatches = new AtomicInteger();
    Thread[] threads = new Thread[8];
    for (int t = 0; t < threads.length; t++) {
      threads[t] = new Thread(() -> {
        for (int i = 0; i < 2000; i++)
          if (!Arrays.equals(vela.getSpaceDelimitedFilesWindows1251Encoded(text, ru, false), expected))
            mismatches.incrementAndGet();
      });
      threads[t].start();
    }
    for (Thread thread : threads) thread.join();
    ok &= expected.length > 0 && mismatches.get() == 0;

    System.out.println(ok ? "ok" : "FAILED: answer=" + new String(answer, cp1251) + " empty=" + nothing.length
        + " expected=" + new String(expected, cp1251) + " mismatches=" + mismatches.get());
    System.exit(ok ? 0 : 1);
  }
}
