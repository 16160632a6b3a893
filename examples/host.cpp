#include <vela/vela.h>

#include <iostream>
#include <sstream>
#include <string>
#include <vector>

int main() {
  // Russian with Latin-transliterated names: the text's unit word in Latin too.
  std::vector<std::string> files;
  std::ostringstream log;
  if (!DecodeBufferASCII("ru", "21rub", files, log)) {
    std::cerr << log.str() << '\n';  // an unknown tag, or a text that gives nothing
    return 1;
  }
  for (const std::string& name : files) std::cout << name << '\n';
}
