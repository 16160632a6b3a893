// vela voice export and vela voice import: sound sets where platforms look for
// them, and a voice built from Debian's recorded Asterisk prompts.
#include <filesystem>
#include <set>

#include "audio/output_file.h"
#include "audio/platforms.h"
#include "audio/render.h"
#include "tools/cli/text.h"
#include "tools/cli/voice_options.h"
#include "tools/inventory.h"

namespace fs = std::filesystem;

namespace vela::cli {
namespace {

// Writes one prompt into every target folder; false after a message.
bool exportPrompt(const audio::Voice& voice, const std::string& name,
                  const std::vector<audio::ExportTarget>& targets, const VoiceOptions& options) {
  for (const audio::ExportTarget& target : targets) {
    audio::RenderOptions render;
    render.format = target.format;
    render.pauseMs = 0;
    render.trimDb = options.trimDb;
    const audio::Rendered one = audio::renderPrompts(voice, {name}, render);
    for (const audio::Error& error : one.errors) std::fprintf(stderr, "vela: %s\n", error.message.c_str());
    if (!one.ok()) return false;
    const std::string path = target.folder + "/" + audio::promptFileStem(name) + target.extension;
    if (auto error = audio::writeOutputFile(path, one.bytes)) {
      std::fprintf(stderr, "vela: %s\n", error->message.c_str());
      return false;
    }
  }
  return true;
}

// The package's file for a sound name, of any kind of recording we read.
std::optional<std::string> soundFile(const std::string& stem) {
  for (std::string_view extension : audio::kRecordingExtensions) {
    std::string path = stem + std::string(extension);
    std::error_code error;
    if (fs::exists(fs::symlink_status(path, error))) return path;
  }
  return std::nullopt;
}

}  // namespace

int runVoiceExport(const VoiceOptions& options, std::FILE* out) {
  if (options.positional.size() != 1 || options.voices.empty() || options.layout.empty()) {
    std::fprintf(stderr,
                 "vela voice export: needs -l TAG, --voice DIR, --layout asterisk|freeswitch and DEST\n");
    return 2;
  }
  if (!checkTag(options.language)) return 1;
  audio::ExportRequest request;
  request.layout = options.layout == "asterisk" ? audio::Layout::asterisk : audio::Layout::freeswitch;
  request.destination = options.positional[0];
  request.language = options.language.tag;
  request.voiceName = options.name;
  request.rates = options.rates;
  request.encoding = options.encoding.value_or(audio::Encoding::pcm16);
  request.headerless = options.format == "sln";
  if (!options.format.empty() && options.format != "sln" && options.format != "wav") {
    std::fprintf(stderr, "vela voice export: --format is wav or sln\n");
    return 2;
  }
  const audio::Checked<std::vector<audio::ExportTarget>> targets = audio::exportTargets(request);
  if (!targets) {
    std::fprintf(stderr, "vela voice export: %s\n", targets.error().message.c_str());
    return 2;
  }
  for (const audio::ExportTarget& target : *targets) {
    std::error_code error;
    fs::create_directories(target.folder, error);
    if (error) {
      std::fprintf(stderr, "vela: cannot create %s: %s\n", target.folder.c_str(), error.message().c_str());
      return 1;
    }
  }
  const audio::Voice voice{options.voices};
  std::size_t total = 0;
  std::size_t written = 0;
  for (const std::string& name : tools::promptInventory(options.language.tag, options.language.mode)) {
    ++total;
    if (exportPrompt(voice, name, *targets, options)) ++written;
  }
  for (const audio::ExportTarget& target : *targets)
    std::fprintf(out, "%zu of %zu prompts in %s (*%s)\n", written, total, target.folder.c_str(),
                 target.extension.c_str());
  return written == total ? 0 : 1;
}

int runVoiceImport(const VoiceOptions& options, std::FILE* out) {
  if (options.positional.size() != 2 || options.positional[0] != "asterisk") {
    std::fprintf(
        stderr,
        "vela voice import: usage: vela voice import asterisk -l ru|en [--sounds DIR] [--copy] DEST\n");
    return 2;
  }
  const std::vector<audio::AsteriskSound> rows = audio::asteriskSounds(options.language.tag);
  if (rows.empty()) {
    std::fprintf(stderr, "vela voice import: no map of Asterisk's sounds for \"%s\" (ru, en)\n",
                 options.language.tag.c_str());
    return 2;
  }
  const std::string sounds =
      options.sounds.empty() ? "/usr/share/asterisk/sounds/" + options.language.tag : options.sounds;
  const fs::path dest = options.positional[1];
  std::error_code error;
  fs::create_directories(dest, error);
  if (error) {
    std::fprintf(stderr, "vela: cannot create %s: %s\n", dest.c_str(), error.message().c_str());
    return 1;
  }
  const std::set<std::string> inventory = tools::promptInventory(options.language.tag, 0);
  std::set<std::string> imported;
  for (const audio::AsteriskSound& row : rows) {
    const std::optional<std::string> name = audio::promptNameOfStem(row.prompt);
    if (!name || inventory.count(*name) == 0) continue;  // a prompt the language no longer says
    const std::optional<std::string> source = soundFile(sounds + "/" + row.sound);
    if (!source) {
      std::fprintf(stderr, "vela: no %s.wav (or another kind of recording) in %s\n", row.sound.c_str(),
                   sounds.c_str());
      continue;
    }
    const audio::Checked<audio::Sound> sound = audio::readRecording(*source);
    if (!sound) {
      std::fprintf(stderr, "vela: %s\n", sound.error().message.c_str());
      continue;
    }
    const fs::path target = dest / (row.prompt + fs::path(*source).extension().string());
    fs::remove(target, error);
    if (options.copy) {
      fs::copy_file(*source, target, error);
    } else {
      fs::create_symlink(fs::absolute(*source), target, error);
    }
    if (error) {
      std::fprintf(stderr, "vela: cannot write %s: %s\n", target.c_str(), error.message().c_str());
      continue;
    }
    imported.insert(*name);
  }
  std::fprintf(out, "%zu of %zu prompts from %s in %s; still to record (%zu):\n", imported.size(),
               inventory.size(), sounds.c_str(), dest.c_str(), inventory.size() - imported.size());
  for (const std::string& name : inventory) {
    if (imported.count(name) == 0) std::fprintf(out, "%s\n", shownName(options.language, name).c_str());
  }
  return imported.empty() ? 1 : 0;
}

}  // namespace vela::cli
