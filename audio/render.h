// Recordings of prompts, and answers rendered from them in the formats phone
// platforms play. `vela say`, the voice check, the export and the HTTP service
// all go through these functions, so they agree on every file.
//
// Prompt names are Windows-1251 bytes, as the library returns them; file names,
// paths and messages are UTF-8.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vela::audio {

// ---------------------------------------------------------------- errors

// Why a prompt cannot be played.
enum class Fault {
  missing,      // no file for the prompt in any folder of the voice
  notAFile,     // a FIFO, device, directory or socket, or a symbolic link loop
  unreadable,   // cannot be opened, or not audio that libsndfile (or the extension) reads
  empty,        // a zero-length file, or a header with no frames
  truncated,    // the data ends before the header says
  outOfBounds,  // rate, channels or length beyond the limits below
  tooLong,      // the answer would last longer than kMaxAnswerSeconds, or hold more
                // than kMaxRecordingSamples samples
  cannotWrite,  // the output cannot be written
};

// A short word for a fault ("missing", "not-a-file", ...), as the check prints it.
std::string_view faultName(Fault fault);

// An error at the module's edge: what went wrong, for which prompt and file,
// in a message a user can act on ("voice/один.wav: the data ends after 56 of
// the 2000 bytes its header declares").
struct Error {
  Fault fault = Fault::unreadable;
  std::string prompt;  // the prompt name in UTF-8, or empty
  std::string path;    // the file at fault, or empty
  std::string message;
};

// A value or the error that prevented it.
template <typename T>
class Checked {
 public:
  Checked(T value) : value_(std::move(value)) {}      // NOLINT(google-explicit-constructor)
  Checked(Error error) : error_(std::move(error)) {}  // NOLINT(google-explicit-constructor)
  explicit operator bool() const { return value_.has_value(); }
  const T& operator*() const { return *value_; }
  T& operator*() { return *value_; }
  const T* operator->() const { return &*value_; }
  T* operator->() { return &*value_; }
  const Error& error() const { return error_; }

 private:
  std::optional<T> value_;
  Error error_;
};

// ---------------------------------------------------------------- limits

// Sizes read from a file's header are checked against these before they size
// anything. A prompt is a word or a short phrase.
inline constexpr int kMinRate = 1000;
inline constexpr int kMaxRate = 384000;
inline constexpr int kMaxChannels = 16;
inline constexpr int kMaxRecordingSeconds = 600;
inline constexpr long long kMaxRecordingSamples = 64LL << 20;  // frames x channels
inline constexpr int kMaxAnswerSeconds = 3600;
inline constexpr int kMaxPauseMs = 60000;

// ---------------------------------------------------------------- recordings

// A voice: folders searched in order; the first folder that holds a file for
// a prompt gives its recording (a partial real voice with a demo voice behind it).
struct Voice {
  std::vector<std::string> folders;
};

// The kinds of recording file, in the order they are tried within a folder:
// ".wav" (anything libsndfile reads: PCM, float, mu-law, A-law at any rate and
// channel count), ".flac", then the headerless telephony files ".sln16" (16 kHz
// signed 16-bit little-endian), ".sln" (8 kHz), ".ulaw" and ".alaw" (8 kHz).
inline constexpr std::array<std::string_view, 6> kRecordingExtensions = {".wav", ".flac", ".sln16",
                                                                         ".sln", ".ulaw", ".alaw"};

// Text converted with iconv; nullopt when a character has no counterpart in the
// target encoding or the input is malformed.
std::optional<std::string> convertText(std::string_view text, const char* to, const char* from);

// Windows-1251 bytes as UTF-8; the one byte the code page leaves undefined
// (0x98) becomes U+FFFD.
std::string utf8FromCp1251(std::string_view bytes);

// The file name of a prompt without its extension: the name in UTF-8, with each
// byte a file system dislikes written as "%" and two hexadecimal digits of its
// Windows-1251 value: control bytes, / \ : * ? " < > |, "%" itself, the
// undefined 0x98, and a "." at the start of the name.
std::string promptFileStem(std::string_view name);

// The prompt name of a file stem (the reverse of promptFileStem), or nullopt
// when the stem is not one promptFileStem writes.
std::optional<std::string> promptNameOfStem(std::string_view stem);

// What a recording holds, as its header says and its data confirms.
struct RecordingInfo {
  std::string path;
  int rate = 0;
  int channels = 0;
  std::int64_t frames = 0;
  int format = 0;  // libsndfile's SF_FORMAT_* (major type | subtype)
};

// "PCM 16-bit", "mu-law", "float", ...: the sample encoding of a libsndfile format.
std::string encodingName(int format);

// A decoded recording: interleaved samples in [-1, 1].
struct Sound {
  RecordingInfo info;
  std::vector<float> samples;
};

// The one answer to "is this file a recording we can play?". The file is
// opened without blocking and only if it is a regular file; it is read by
// libsndfile, or as headerless audio when its extension says so; its rate,
// channels and length are checked against the limits before anything is
// sized by them; and its data is decoded to the end, which must come where the
// header says. An empty file is an error.
Checked<Sound> readRecording(const std::string& path);

// The file for prompt `name` (Windows-1251) in the voice: each folder in turn,
// each extension of kRecordingExtensions in turn; the first entry that exists,
// whatever it is, wins (a broken file is reported, not skipped). nullopt when
// no folder has one.
std::optional<std::string> findRecording(const Voice& voice, std::string_view name);

// findRecording, then readRecording; Fault::missing when there is no file.
Checked<Sound> loadPrompt(const Voice& voice, std::string_view name);

// ---------------------------------------------------------------- output

enum class Encoding { pcm16, ulaw, alaw };
enum class Container { wav, raw };  // raw: headerless, little-endian for PCM

struct OutputFormat {
  int rate = 0;  // 0: the rate of the answer's first recording
  int channels = 1;
  Encoding encoding = Encoding::pcm16;
  Container container = Container::wav;
};

// "pcm16", "ulaw", "alaw" (also "mulaw", "pcmu", "pcma"); nullopt otherwise.
std::optional<Encoding> parseEncoding(std::string_view word);

// What an output file's extension implies: ".wav" a RIFF WAV file; ".ulaw",
// ".alaw" headerless 8 kHz mu-law or A-law; ".sln" headerless 8 kHz PCM;
// ".sln16" 16 kHz; ".raw" headerless. Fields the extension does not fix are
// left as in `base`. nullopt for any other extension.
std::optional<OutputFormat> formatForFileName(std::string_view fileName, OutputFormat base = {});

// The MIME type of rendered bytes: "audio/wav", "audio/basic" (headerless
// mu-law), "audio/x-alaw-basic", or "application/octet-stream" (headerless PCM).
std::string_view contentType(const OutputFormat& format);

struct RenderOptions {
  OutputFormat format;
  int pauseMs = 150;             // silence between two recordings, at most kMaxPauseMs
  std::optional<double> trimDb;  // cut what is quieter than this (dBFS, e.g. -45) at both ends of
                                 // each recording; one quieter throughout is kept whole
};

// An answer rendered into memory.
struct Rendered {
  std::string bytes;          // the whole file, or empty when errors is not
  OutputFormat format;        // with the rate resolved
  std::string fingerprint;    // as fingerprintPrompts gives it
  std::vector<Error> errors;  // one per prompt that could not be read; then nothing is rendered
  bool ok() const { return errors.empty(); }
};

// Renders the recordings of `names` (Windows-1251 prompt names) one after
// another, with options.pauseMs of silence between two, into one file in
// options.format. Recordings of other rates or channel counts are converted
// (libsoxr, high quality; channels mixed down). Every recording is read first:
// when any is missing or is not a recording we can play, `errors` names each
// and no bytes are produced. An empty list of names is an error too.
Rendered renderPrompts(const Voice& voice, const std::vector<std::string>& names,
                       const RenderOptions& options);

// A fingerprint of the answer renderPrompts would give, cheap enough to answer
// a conditional request without rendering: 16 hexadecimal digits over the
// options and the file name and bytes of each recording used (the same
// recordings give the same fingerprint on any machine). Fault::missing,
// notAFile or unreadable when a recording cannot be found or opened.
Checked<std::string> fingerprintPrompts(const Voice& voice, const std::vector<std::string>& names,
                                        const RenderOptions& options);

}  // namespace vela::audio
