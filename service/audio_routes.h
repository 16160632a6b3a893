// The routes that answer with sound or with where sound lies: /v1/audio,
// /v1/files and /v1/recordings/<lang>/<file>.
#pragma once

#include <boost/json/object.hpp>
#include <string>

#include "audio/render.h"
#include "service/routes.h"

namespace vela::service {

// GET /v1/audio[.EXT]?lang=&text=[&rate=8000][&encoding=pcm16|ulaw|alaw][&format=wav|raw][&pause=MS]
Response handleAudio(Service& service, const Target& target, const Request& request);
// GET /v1/files?lang=&text=&layout=asterisk|urls
Response handleFiles(Service& service, const Target& target, const Request& request);
// GET /v1/recordings/<lang>/<file>.<ext>[?latin=1&rate=&encoding=]
Response handleRecording(Service& service, const Target& target, const Request& request);

// "present", "missing", or the fault of the recording of `name`; puts the
// file found (name only) into entry["file"].
std::string recordingState(const audio::Voice& voice, const std::string& name, boost::json::object& entry);

// True when an If-None-Match header value names `etag` (or is "*").
bool etagMatches(std::string_view ifNoneMatch, std::string_view etag);

}  // namespace vela::service
