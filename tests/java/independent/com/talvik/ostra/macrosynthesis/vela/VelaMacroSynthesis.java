package com.talvik.ostra.macrosynthesis.vela;

// A host's own declaration of the native method, as an instance method.
public class VelaMacroSynthesis {
  public native byte[] getSpaceDelimitedFilesWindows1251Encoded(byte[] text, byte[] language, boolean flag);
}
