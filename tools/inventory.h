// The prompt inventory: every prompt name a grammar can answer with, found by
// driving the grammar over every input that can change what it says.
#pragma once

#include <boost/shared_ptr.hpp>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "grammar/igrammar.h"

namespace vela::tools {

// The words that change what the grammar of (tag, mode) says after a number,
// one per kind of reading (two words read alike, such as "руб" and "rub",
// count once), each with the capitalisations that read differently: the
// words its class lists (grammar/unit_keys.h) and their other spellings, less
// those read like a word no table holds.
std::vector<std::string> findUnitWords(const std::string& tag, unsigned char mode);
// The same for any grammar object and the words its class lists.
std::vector<std::string> findUnitWords(const boost::shared_ptr<IGrammar>& grammar,
                                       const std::vector<std::string>& listed);

// Every prompt name the grammar of (tag, mode) can answer any request with:
// Windows-1251 bytes, sorted by byte, without repeats. Tags that share a
// grammar share the answer.
std::set<std::string> promptInventory(const std::string& tag, unsigned char mode);
std::set<std::string> promptInventory(const boost::shared_ptr<IGrammar>& grammar,
                                      const std::vector<std::string>& listed);

// Calls `visit(text, answer)` for inputs of the inventory's enumeration that
// can be written as a request: `text` (Windows-1251) is what a caller would
// send and `answer` what the grammar says for it (the request itself may be
// read otherwise: check with speakNames). Amounts, bare numbers, keypad
// strings, dates, clock times, spans and single characters.
void forEachReading(const std::string& tag, unsigned char mode,
                    const std::function<void(const std::string& text, const std::string& answer)>& visit);

// The prompt names of one request, or nullopt when no rule takes the text
// (the library then hands the text itself back).
std::optional<std::vector<std::string>> speakNames(const std::string& tag, unsigned char mode,
                                                   const std::string& text);

// While one lives, standard output goes nowhere: the grammars print a
// complaint there for every bad input, and the inventory tries many on purpose.
class QuietGrammars {
 public:
  QuietGrammars();
  ~QuietGrammars();
  QuietGrammars(const QuietGrammars&) = delete;
  QuietGrammars& operator=(const QuietGrammars&) = delete;

 private:
  int saved_ = -1;
};

// Appends the non-empty space-separated pieces of `names`.
void splitNames(const std::string& names, std::vector<std::string>& into);

}  // namespace vela::tools
