#include "tools/cli/command.h"

namespace vela::cli {

bool Arguments::next() {
  if (next_ >= argc_) return false;
  current_ = argv_[next_++];
  if (current_ == "--" && !onlyTexts_) {
    onlyTexts_ = true;
    return next();
  }
  return true;
}

bool Arguments::isOption() const {
  if (onlyTexts_ || current_.size() < 2 || current_[0] != '-') return false;
  const char c = current_[1];
  return !((c >= '0' && c <= '9') || c == ',' || c == '.' || c == '|');
}

std::string Arguments::value() {
  const std::string option = current_;
  if (next_ >= argc_) throw UsageError{option + " needs a value"};
  current_ = argv_[next_++];
  return current_;
}

void Arguments::reject() const {
  if (isOption()) throw UsageError{"unknown option " + current_};
  throw UsageError{"unexpected argument \"" + current_ + "\""};
}

bool takeLanguageOption(Arguments& args, LanguageOptions& options) {
  const std::string& arg = args.current();
  if (!args.isOption()) return false;
  if (arg == "-l") {
    options.tag = args.value();
  } else if (arg == "-t") {
    options.mode = 1;
  } else if (arg == "--raw") {
    options.raw = true;
  } else {
    return false;
  }
  return true;
}

}  // namespace vela::cli
