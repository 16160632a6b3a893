// Plays prompt names into one WAV file: the recordings one after another,
// with a short silence between two.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vela::tools {

// Writes the recordings of `names` (files in `voiceDir`, named by
// recordingFileName) to `outPath`, in order, with `pauseMs` milliseconds of
// silence between two. All recordings must share their sample rate and
// channel count; the output has them, and the sample format of the first.
// Returns nullopt on success, or a message naming the file at fault; on
// failure `outPath` is left as it was.
std::optional<std::string> renderPrompts(const std::vector<std::string>& names, const std::string& voiceDir,
                                         const std::string& outPath, int pauseMs);

}  // namespace vela::tools
