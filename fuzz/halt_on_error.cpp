// The fuzz targets stop on the first UndefinedBehaviorSanitizer report (the
// build also passes -fno-sanitize-recover=all); UBSAN_OPTIONS can still add to these.
extern "C" const char* __ubsan_default_options() {  // NOLINT(bugprone-reserved-identifier)
  return "halt_on_error=1:print_stacktrace=1";
}
