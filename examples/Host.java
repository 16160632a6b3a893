import com.talvik.ostra.macrosynthesis.vela.Vela;
import com.talvik.ostra.macrosynthesis.vela.VelaMacroSynthesis;
import java.util.List;

public class Host {
  public static void main(String[] args) {
    VelaMacroSynthesis.loadLibrary(); // libvela.so from java.library.path
    List<String> names = VelaMacroSynthesis.getPromptNames("ru", "21руб", false); // Cyrillic names
    String latin = VelaMacroSynthesis.getSpaceDelimitedFiles("ru", "21rub", true); // transliterated
    System.out.println(names);
    System.out.println(latin);

    // The reading with its status and complaints, kept off standard output.
    Vela.Reading reading = Vela.read("ru", "25:00", false);
    System.out.println(reading.status() + " " + reading.names() + " " + reading.diagnostics());
  }
}
