// The three things the `vela` tool does.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace vela::tools {

struct Options {
  std::string command;  // "" (speak), "prompts" or "say"
  std::string tag = "ru";
  unsigned char mode = 0;
  bool raw = false;
  std::string checkDir;    // prompts --check
  bool withFiles = false;  // prompts --files
  std::string voiceDir;    // say --voice
  std::string outPath;     // say -o
  int pauseMs = 150;       // say --pause
  std::vector<std::string> texts;
};

// Each returns the exit status. `promptOut` is the real standard output (the
// grammars' complaints go to standard error).
int speakTexts(const Options& options, std::FILE* promptOut);
int listPrompts(const Options& options, std::FILE* promptOut);

// False (after a message) when the tag is unknown: the texts are then English.
bool checkTag(const Options& options);

}  // namespace vela::tools
