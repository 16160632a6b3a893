// vela prompts --script: what a voice talent reads. For every prompt, one or
// two texts that produce it and the whole answer it occurs in.
#include <algorithm>
#include <map>

#include "tools/cli/text.h"
#include "tools/cli/voice_options.h"
#include "tools/inventory.h"
#include "vela/vela.h"

namespace vela::cli {
namespace {

constexpr std::size_t kExamples = 2;

struct Example {
  std::string text;
  std::string answer;
};

std::string joined(const std::vector<std::string>& names) {
  std::string line;
  for (const std::string& n : names) line += (line.empty() ? "" : " ") + n;
  return line;
}

// Keeps, for each prompt, the examples with the shortest answers. A text is
// kept only when, sent as a request, it is wholly spoken and does say the
// prompt (the enumeration calls the grammar directly, and a request may be
// read otherwise, or only in part).
class ExampleFinder {
 public:
  explicit ExampleFinder(const VoiceOptions& options) : options_(options) {}

  void offer(const std::string& text, const std::string& answer) {
    names_.clear();
    tools::splitNames(answer, names_);
    for (const std::string& name : names_) {
      std::vector<Example>& kept = byName_[name];
      if (kept.size() == kExamples && answer.size() >= kept.back().answer.size()) continue;
      const std::vector<std::string>& spoken = spokenNames(text);
      if (std::find(spoken.begin(), spoken.end(), name) == spoken.end()) continue;
      Example example{text, joined(spoken)};
      if (std::any_of(kept.begin(), kept.end(), [&](const Example& e) { return e.answer == example.answer; }))
        continue;
      if (kept.size() == kExamples) kept.pop_back();
      kept.push_back(std::move(example));
      std::stable_sort(kept.begin(), kept.end(),
                       [](const Example& a, const Example& b) { return a.answer.size() < b.answer.size(); });
    }
  }
  const std::map<std::string, std::vector<Example>>& examples() const { return byName_; }

 private:
  const std::vector<std::string>& spokenNames(const std::string& text) {
    auto [it, added] = spoken_.try_emplace(text);
    if (!added) return it->second;
    vela_reading reading;
    const unsigned latin = options_.language.mode != 0 ? VELA_LATIN : 0;
    if (vela_read(options_.language.tag.c_str(), text.c_str(), latin, &reading) != 0) return it->second;
    if (reading.status == VELA_SPOKEN) tools::splitNames(reading.names, it->second);
    vela_reading_free(&reading);
    return it->second;
  }

  const VoiceOptions& options_;
  std::vector<std::string> names_;
  std::map<std::string, std::vector<std::string>> spoken_;
  std::map<std::string, std::vector<Example>> byName_;
};

std::map<std::string, std::vector<Example>> examples(const VoiceOptions& options) {
  ExampleFinder finder(options);
  tools::forEachReading(
      options.language.tag, options.language.mode,
      [&](const std::string& text, const std::string& answer) { finder.offer(text, answer); });
  return finder.examples();
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
  if (!checkTag(options.language)) return 1;
  const bool asHtml = options.format == "html";
  const auto byName = examples(options);
  if (asHtml) {
    std::fprintf(out,
                 "<!DOCTYPE html>\n<meta charset=\"utf-8\">\n<title>vela %s prompts</title>\n<table>\n"
                 "<tr><th>prompt</th><th>file</th><th>example</th><th>whole answer</th></tr>\n",
                 html(options.language.tag).c_str());
  } else {
    std::fprintf(out, "prompt\tfile\texample\twhole answer\n");
  }
  int status = 0;
  for (const std::string& name : tools::promptInventory(options.language.tag, options.language.mode)) {
    const auto found = byName.find(name);
    const std::vector<Example> none;
    const std::vector<Example>& list = found == byName.end() ? none : found->second;
    if (list.empty()) status = 1;
    const std::string shown = shownName(options.language, name);
    const std::string file = audio::promptFileStem(name) + ".wav";
    for (std::size_t i = 0; i < std::max<std::size_t>(list.size(), 1); ++i) {
      const std::string text = i < list.size() ? shownName(options.language, list[i].text) : "";
      const std::string answer = i < list.size() ? shownName(options.language, list[i].answer) : "";
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

}  // namespace vela::cli
