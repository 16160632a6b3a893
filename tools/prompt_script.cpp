// vela prompts --script: what a voice talent reads. For every prompt, one or
// two texts that produce it and the whole answer it occurs in.
#include <algorithm>
#include <map>

#include "tools/inventory.h"
#include "tools/voice_commands.h"
#include "tools/voice_options.h"

namespace vela::tools {
namespace {

constexpr std::size_t kExamples = 2;
constexpr std::size_t kCandidates = 6;  // per prompt, the shortest answers, checked in turn

struct Example {
  std::string text;
  std::string answer;
};

// A candidate is kept while it is among the shortest answers seen.
void offer(std::vector<Example>& kept, const std::string& text, const std::string& answer) {
  const auto longer = [](const Example& a, const Example& b) { return a.answer.size() < b.answer.size(); };
  if (kept.size() == kCandidates && answer.size() >= kept.back().answer.size()) return;
  for (const Example& e : kept) {
    if (e.answer == answer) return;
  }
  if (kept.size() == kCandidates) kept.pop_back();
  kept.push_back({text, answer});
  std::stable_sort(kept.begin(), kept.end(), longer);
}

std::string joined(const std::vector<std::string>& names) {
  std::string line;
  for (const std::string& n : names) line += (line.empty() ? "" : " ") + n;
  return line;
}

// The examples of each prompt whose text, sent as a request, says the prompt.
std::map<std::string, std::vector<Example>> examples(const VoiceOptions& options) {
  std::map<std::string, std::vector<Example>> candidates;
  std::vector<std::string> names;
  forEachReading(options.tag, options.mode, [&](const std::string& text, const std::string& answer) {
    names.clear();
    splitNames(answer, names);
    for (const std::string& name : names) offer(candidates[name], text, answer);
  });
  std::map<std::string, std::vector<Example>> chosen;
  for (auto& [name, list] : candidates) {
    for (const Example& e : list) {
      if (chosen[name].size() == kExamples) break;
      const auto spoken = speakNames(options.tag, options.mode, e.text);
      if (spoken && std::find(spoken->begin(), spoken->end(), name) != spoken->end())
        chosen[name].push_back({e.text, joined(*spoken)});
    }
  }
  return chosen;
}

std::string html(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c == '<')
      out += "&lt;";
    else if (c == '>')
      out += "&gt;";
    else if (c == '&')
      out += "&amp;";
    else if (c == '"')
      out += "&quot;";
    else
      out += c;
  }
  return out;
}

}  // namespace

int runPromptScript(const VoiceOptions& options, std::FILE* out) {
  if (options.format != "tsv" && options.format != "html" && !options.format.empty()) {
    std::fprintf(stderr, "vela prompts --script: --format is tsv or html\n");
    return 2;
  }
  if (!knownTag(options.tag)) return 1;
  const bool asHtml = options.format == "html";
  const auto byName = examples(options);
  if (asHtml) {
    std::fprintf(out,
                 "<!DOCTYPE html>\n<meta charset=\"utf-8\">\n<title>vela %s prompts</title>\n<table>\n"
                 "<tr><th>prompt</th><th>file</th><th>example</th><th>whole answer</th></tr>\n",
                 html(options.tag).c_str());
  } else {
    std::fprintf(out, "prompt\tfile\texample\twhole answer\n");
  }
  int status = 0;
  for (const std::string& name : promptInventory(options.tag, options.mode)) {
    const auto found = byName.find(name);
    const std::vector<Example> none;
    const std::vector<Example>& list = found == byName.end() ? none : found->second;
    if (list.empty()) status = 1;
    const std::string shown = shownName(options, name);
    const std::string file = audio::promptFileStem(name) + ".wav";
    for (std::size_t i = 0; i < std::max<std::size_t>(list.size(), 1); ++i) {
      const std::string text = i < list.size() ? shownName(options, list[i].text) : "";
      const std::string answer = i < list.size() ? shownName(options, list[i].answer) : "";
      if (asHtml) {
        std::fprintf(out, "<tr><td>%s</td><td>%s</td><td>%s</td><td>%s</td></tr>\n", html(shown).c_str(),
                     html(file).c_str(), html(text).c_str(), html(answer).c_str());
      } else {
        std::fprintf(out, "%s\t%s\t%s\t%s\n", shown.c_str(), file.c_str(), text.c_str(), answer.c_str());
      }
    }
  }
  if (asHtml) std::fprintf(out, "</table>\n");
  std::fflush(out);
  if (status != 0) std::fprintf(stderr, "vela: some prompts have no example text (their rows are empty)\n");
  return status;
}

}  // namespace vela::tools
