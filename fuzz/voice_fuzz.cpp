// Fuzz target for the voice path: the input becomes a recording file (its
// first byte picks the extension and how the answer is rendered), which is
// then read, measured as the voice check measures it, rendered and
// fingerprinted as `vela say` and the HTTP service do. A malformed file must
// give an error, never a crash, a hang or a sanitizer report.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>

#include "audio/analysis.h"
#include "audio/render.h"

namespace {

// A folder of its own for the process's recording file, removed at exit.
char gFolder[] = "/tmp/vela-voice-fuzz-XXXXXX";

void removeFolder() { rmdir(gFolder); }

const std::string& scratchFolder() {
  static const std::string folder = [] {
    if (mkdtemp(gFolder) == nullptr) std::abort();
    std::atexit(removeFolder);
    return std::string(gFolder);
  }();
  return folder;
}

vela::audio::RenderOptions optionsFrom(uint8_t choice) {
  static const int kRates[] = {0, 8000, 16000, 44100};
  vela::audio::RenderOptions options;
  options.format.rate = kRates[choice & 3];
  options.format.encoding = static_cast<vela::audio::Encoding>((choice >> 2) % 3);
  options.format.container = (choice & 0x10) != 0 ? vela::audio::Container::raw : vela::audio::Container::wav;
  options.format.channels = (choice & 0x20) != 0 ? 2 : 1;
  if ((choice & 0x40) != 0) options.trimDb = -40.0;
  options.pauseMs = (choice & 0x80) != 0 ? 0 : 20;
  return options;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 2) return 0;
  const std::string_view extension =
      vela::audio::kRecordingExtensions[data[0] % vela::audio::kRecordingExtensions.size()];
  const vela::audio::RenderOptions options = optionsFrom(data[1]);
  const std::string path = scratchFolder() + "/x" + std::string(extension);
  {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(data + 2), static_cast<std::streamsize>(size - 2));
  }
  const vela::audio::Checked<vela::audio::Sound> sound = vela::audio::readRecording(path);
  if (sound) {
    const vela::audio::Measures measures = vela::audio::measureRecording(*sound, -50.0);
    if (measures.leadingSilence < 0 || measures.clippedSamples < 0) std::abort();
  }
  const vela::audio::Voice voice{{scratchFolder()}};
  const vela::audio::Rendered answer = vela::audio::renderPrompts(voice, {"x", "x"}, options);
  // The recording check and the renderer agree on every file.
  if (static_cast<bool>(sound) != answer.ok()) std::abort();
  // Nothing is rendered on an error; a WAV answer has at least its header (a
  // headerless one of recordings shorter than one output frame may be empty).
  if (!answer.ok() && !answer.bytes.empty()) std::abort();
  if (answer.ok() && answer.format.container == vela::audio::Container::wav && answer.bytes.empty())
    std::abort();
  const auto print = vela::audio::fingerprintPrompts(voice, {"x", "x"}, options);
  if (answer.ok() && (!print || *print != answer.fingerprint)) std::abort();
  unlink(path.c_str());
  return 0;
}
