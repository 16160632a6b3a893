import com.talvik.ostra.macrosynthesis.vela.VelaMacroSynthesis;
import java.util.List;

public class Host {
  public static void main(String[] args) {
    VelaMacroSynthesis.loadLibrary(); // libvela.so from java.library.path
    List<String> names = VelaMacroSynthesis.getPromptNames("ru", "21руб", false); // Cyrillic names
    String latin = VelaMacroSynthesis.getSpaceDelimitedFiles("ru", "21rub", true); // transliterated
    System.out.println(names);
    System.out.println(latin);
  }
}
