// vela voice check: every prompt of a language against a voice's recordings.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <sstream>

#include "audio/analysis.h"
#include "audio/render.h"
#include "tools/cli/text.h"
#include "tools/cli/voice_options.h"
#include "tools/inventory.h"

namespace vela::cli {
namespace {

// What the check finds, in the order the summary lists the kinds.
const char* const kKinds[] = {"missing",       "not-a-file", "unreadable", "empty",   "truncated",
                              "out-of-bounds", "format",     "silence",    "clipped", "loudness"};

struct Problem {
  std::string prompt;  // as shown
  std::string file;
  std::string kind;
  std::string detail;
};

struct Found {
  std::string prompt;
  std::string file;
  std::string format;  // "8000 Hz, 1 channel, PCM 16-bit"
  audio::Measures measures;
};

std::string formatOf(const audio::RecordingInfo& info) {
  return std::to_string(info.rate) + " Hz, " + std::to_string(info.channels) +
         (info.channels == 1 ? " channel, " : " channels, ") + audio::encodingName(info.format);
}

std::string fixed(double x, int digits) {
  std::ostringstream s;
  s.setf(std::ios::fixed);
  s.precision(digits);
  s << x;
  return s.str();
}

// The value most recordings share.
std::string mostCommonFormat(const std::vector<Found>& found) {
  std::map<std::string, int> counts;
  for (const Found& f : found) ++counts[f.format];
  return std::max_element(counts.begin(), counts.end(),
                          [](const auto& a, const auto& b) { return a.second < b.second; })
      ->first;
}

double medianLoudness(const std::vector<Found>& found) {
  std::vector<double> values;
  for (const Found& f : found) {
    if (std::isfinite(f.measures.loudness)) values.push_back(f.measures.loudness);
  }
  if (values.empty()) return 0;
  std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                   values.end());
  return values[values.size() / 2];
}

// Problems of recordings that read well: measured against the set.
void judgeSet(const std::vector<Found>& found, const VoiceOptions& options, std::vector<Problem>& problems) {
  if (found.empty()) return;
  const std::string usual = mostCommonFormat(found);
  const double median = medianLoudness(found);
  const double maxSilence = options.maxSilenceMs / 1000.0;
  for (const Found& f : found) {
    const audio::Measures& m = f.measures;
    if (f.format != usual)
      problems.push_back({f.prompt, f.file, "format", f.format + " (most: " + usual + ")"});
    if (m.leadingSilence > maxSilence || m.trailingSilence > maxSilence)
      problems.push_back(
          {f.prompt, f.file, "silence",
           fixed(m.leadingSilence, 2) + " s before, " + fixed(m.trailingSilence, 2) + " s after"});
    if (m.clippedSamples > 0)
      problems.push_back(
          {f.prompt, f.file, "clipped", std::to_string(m.clippedSamples) + " samples at full scale"});
    if (!std::isfinite(m.loudness)) {
      problems.push_back({f.prompt, f.file, "loudness", "silent"});
    } else if (std::fabs(m.loudness - median) > options.loudnessRange) {
      problems.push_back({f.prompt, f.file, "loudness",
                          fixed(m.loudness, 1) + " LUFS, " + fixed(m.loudness - median, 1) +
                              " LU from the median " + fixed(median, 1)});
    }
  }
}

std::string jsonString(const std::string& text) {
  std::string out = "\"";
  for (const char c : text) {
    const auto b = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (b < 0x20) {
      char escaped[8];
      std::snprintf(escaped, sizeof escaped, "\\u%04x", b);
      out += escaped;
    } else {
      out += c;
    }
  }
  return out + "\"";
}

// Characters, not bytes, for lining up UTF-8 columns.
std::size_t width(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

void printTable(const std::vector<Problem>& problems, std::FILE* out) {
  std::size_t w[3] = {6, 4, 4};
  for (const Problem& p : problems) {
    w[0] = std::max(w[0], width(p.prompt));
    w[1] = std::max(w[1], width(p.file));
    w[2] = std::max(w[2], width(p.kind));
  }
  const auto cell = [&](const std::string& text, std::size_t column) {
    std::fprintf(out, "%s%*s  ", text.c_str(), static_cast<int>(w[column] - width(text)), "");
  };
  cell("prompt", 0), cell("file", 1), cell("kind", 2);
  std::fprintf(out, "detail\n");
  for (const Problem& p : problems) {
    cell(p.prompt, 0), cell(p.file, 1), cell(p.kind, 2);
    std::fprintf(out, "%s\n", p.detail.c_str());
  }
}

void printJson(const VoiceOptions& options, std::size_t prompts, std::size_t recordings,
               const std::vector<Problem>& problems, const std::map<std::string, int>& counts,
               std::FILE* out) {
  std::fprintf(out, "{\"tag\": %s, \"folders\": [", jsonString(options.language.tag).c_str());
  for (std::size_t i = 0; i < options.positional.size(); ++i)
    std::fprintf(out, "%s%s", i ? ", " : "", jsonString(options.positional[i]).c_str());
  std::fprintf(out, "], \"prompts\": %zu, \"recordings\": %zu, \"problems\": [", prompts, recordings);
  for (std::size_t i = 0; i < problems.size(); ++i) {
    const Problem& p = problems[i];
    std::fprintf(out, "%s\n  {\"prompt\": %s, \"file\": %s, \"kind\": %s, \"detail\": %s}", i ? "," : "",
                 jsonString(p.prompt).c_str(), jsonString(p.file).c_str(), jsonString(p.kind).c_str(),
                 jsonString(p.detail).c_str());
  }
  std::fprintf(out, "], \"summary\": {");
  bool first = true;
  for (const auto& [kind, n] : counts) {
    std::fprintf(out, "%s%s: %d", first ? "" : ", ", jsonString(kind).c_str(), n);
    first = false;
  }
  std::fprintf(out, "}}\n");
}

}  // namespace

// The check proper, for `voice check` and the `prompts --check` alias.
int runVoiceCheck(const VoiceOptions& options, std::FILE* out) {
  for (const std::string& folder : options.positional) {
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error)) {
      std::fprintf(stderr, "vela: %s is not a directory\n", folder.c_str());
      return 2;
    }
  }
  if (!checkTag(options.language)) return 1;
  const audio::Voice voice{options.positional};
  std::vector<Problem> problems;
  std::vector<Found> found;
  std::size_t prompts = 0;
  for (const std::string& name : tools::promptInventory(options.language.tag, options.language.mode)) {
    ++prompts;
    const std::string shown = shownName(options.language, name);
    const std::optional<std::string> path = audio::findRecording(voice, name);
    if (!path) {
      problems.push_back(
          {shown, audio::promptFileStem(name) + ".wav", "missing", "no recording in any folder"});
      continue;
    }
    const audio::Checked<audio::Sound> sound = audio::readRecording(*path);
    if (!sound) {
      const std::string& message = sound.error().message;
      problems.push_back({shown, *path, std::string(audio::faultName(sound.error().fault)),
                          message.substr(std::min(message.size(), path->size() + 2))});
      continue;
    }
    found.push_back(
        {shown, *path, formatOf(sound->info), audio::measureRecording(*sound, options.silenceDb)});
  }
  judgeSet(found, options, problems);
  std::stable_sort(problems.begin(), problems.end(), [](const Problem& a, const Problem& b) {
    const auto rank = [](const std::string& kind) {
      return std::find(std::begin(kKinds), std::end(kKinds), kind) - std::begin(kKinds);
    };
    return rank(a.kind) < rank(b.kind);
  });
  std::map<std::string, int> counts;
  for (const Problem& p : problems) ++counts[p.kind];
  if (options.json) {
    printJson(options, prompts, found.size(), problems, counts, out);
  } else {
    if (!problems.empty()) printTable(problems, out);
    std::fprintf(out, "%s%zu prompts, %zu recordings read\n", problems.empty() ? "" : "\n", prompts,
                 found.size());
    for (const char* kind : kKinds) {
      if (counts.count(kind) != 0) std::fprintf(out, "%s: %d\n", kind, counts[kind]);
    }
  }
  std::fflush(out);
  return problems.empty() ? 0 : 1;
}

}  // namespace vela::cli
