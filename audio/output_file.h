// Output files written completely or not at all.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "audio/render.h"

namespace vela::audio {

// Writes `bytes` to `path`: first beside it as PATH.partial-PID, then renamed
// over it, so `path` is either left as it was or holds all of `bytes`. "-"
// writes to standard output. The temporary file is removed on every failure,
// and when SIGINT, SIGTERM or SIGHUP arrives while it exists (the signal then
// takes its default course). Returns Fault::cannotWrite with a message on failure.
std::optional<Error> writeOutputFile(const std::string& path, std::string_view bytes);

}  // namespace vela::audio
