#include "audio/platforms.h"

namespace vela::audio {

extern const std::string_view kAsteriskSoundsTable;

namespace {

// FreeSWITCH's sound sets are LANG/REGION/VOICE (en/us/callie).
struct RegionRow {
  std::string_view language, region;
};
const RegionRow kRegions[] = {
    {"en", "us"}, {"ru", "ru"}, {"uk", "ua"}, {"ro", "ro"}, {"kk", "kz"},
    {"uz", "uz"}, {"tg", "tj"}, {"ka", "ge"}, {"hy", "am"}, {"ar", "sa"},
};

std::string regionOf(const ExportRequest& request) {
  if (!request.region.empty()) return request.region;
  for (const RegionRow& row : kRegions) {
    if (row.language == request.language) return std::string(row.region);
  }
  return request.language;
}

Error refuse(const std::string& why) { return Error{Fault::cannotWrite, "", "", why}; }

// The file Asterisk reads for one rate and encoding.
Checked<ExportTarget> asteriskTarget(const ExportRequest& request, int rate) {
  OutputFormat format;
  format.rate = rate;
  format.encoding = request.encoding;
  format.container =
      request.headerless || request.encoding != Encoding::pcm16 ? Container::raw : Container::wav;
  const std::string folder = request.destination + "/sounds/" + request.language + "/vela";
  if (request.encoding == Encoding::ulaw && rate == 8000) return ExportTarget{folder, ".ulaw", format};
  if (request.encoding == Encoding::alaw && rate == 8000) return ExportTarget{folder, ".alaw", format};
  if (request.encoding != Encoding::pcm16)
    return refuse("Asterisk plays mu-law and A-law files at 8000 Hz only");
  if (rate == 8000) return ExportTarget{folder, request.headerless ? ".sln" : ".wav", format};
  if (rate == 16000) return ExportTarget{folder, request.headerless ? ".sln16" : ".wav16", format};
  return refuse("Asterisk plays 16-bit files at 8000 or 16000 Hz, not " + std::to_string(rate));
}

std::vector<std::string_view> fields(std::string_view line) {
  std::vector<std::string_view> out;
  for (std::size_t tab; (tab = line.find('\t')) != std::string_view::npos; line.remove_prefix(tab + 1))
    out.push_back(line.substr(0, tab));
  out.push_back(line);
  return out;
}

}  // namespace

Checked<std::vector<ExportTarget>> exportTargets(const ExportRequest& request) {
  std::vector<int> rates = request.rates;
  if (rates.empty())
    rates = request.layout == Layout::asterisk ? std::vector<int>{8000} : std::vector<int>{8000, 16000};
  std::vector<ExportTarget> targets;
  for (int rate : rates) {
    if (request.layout == Layout::asterisk) {
      Checked<ExportTarget> target = asteriskTarget(request, rate);
      if (!target) return target.error();
      targets.push_back(*target);
      continue;
    }
    if (request.headerless) return refuse("FreeSWITCH reads prompts as .wav files");
    OutputFormat format;
    format.rate = rate;
    format.encoding = request.encoding;
    targets.push_back(ExportTarget{request.destination + "/" + request.language + "/" + regionOf(request) +
                                       "/" + request.voiceName + "/vela/" + std::to_string(rate),
                                   ".wav", format});
  }
  return targets;
}

std::vector<AsteriskSound> asteriskSounds(std::string_view language) {
  std::vector<AsteriskSound> rows;
  std::string_view text = kAsteriskSoundsTable;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.empty() || line.front() == '#') continue;
    const std::vector<std::string_view> cells = fields(line);
    if (cells.size() != 4 || cells[0] != language) continue;
    rows.push_back(AsteriskSound{std::string(cells[0]), std::string(cells[1]), std::string(cells[2]),
                                 std::string(cells[3])});
  }
  return rows;
}

}  // namespace vela::audio
