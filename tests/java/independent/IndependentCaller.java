import com.talvik.ostra.macrosynthesis.vela.VelaMacroSynthesis;
import java.nio.charset.Charset;
import java.util.Arrays;
import java.util.concurrent.atomic.AtomicInteger;

// A host program that knows nothing of vela but the native method's signature:
// loads the library by file name (args[0]) and calls it from several threads.
public final class IndependentCaller {
  public static void main(String[] args) throws Exception {
    System.load(args[0]);
    Charset cp1251 = Charset.forName("windows-1251");
    VelaMacroSynthesis vela = new VelaMacroSynthesis();
    byte[] text = "  21руб ".getBytes(cp1251), ru = "ru".getBytes(cp1251), want = "двадцать один рубль".getBytes(cp1251);
    AtomicInteger wrong = new AtomicInteger();
    Thread[] threads = new Thread[8];
    for (int t = 0; t < threads.length; t++) {
      (threads[t] = new Thread(() -> {
        for (int i = 0; i < 2000; i++)
          if (!Arrays.equals(vela.getSpaceDelimitedFilesWindows1251Encoded(text, ru, false), want)) wrong.incrementAndGet();
      })).start();
    }
    for (Thread thread : threads) thread.join();
    System.out.println(wrong.get() == 0 ? "ok" : "FAILED: " + wrong.get() + " wrong answers");
    System.exit(wrong.get() == 0 ? 0 : 1);
  }
}
