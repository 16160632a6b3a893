# Writes OUTPUT, a C++ unit that holds the bytes of INPUT as
# vela::service::playgroundPage(): the page is part of the binary, with no
# file to install and nothing to fetch.
file(READ "${INPUT}" bytes HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
string(REGEX REPLACE "(0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,0x..,)"
       "\\1\n" bytes "${bytes}")
file(WRITE "${OUTPUT}" "// Generated from playground.html by embed.cmake.\n"
  "#include \"service/playground.h\"\n\nnamespace vela::service {\nnamespace {\n"
  "const unsigned char kPage[] = {\n${bytes}};\n}  // namespace\n\n"
  "std::string_view playgroundPage() {\n"
  "  return {reinterpret_cast<const char*>(kPage), sizeof kPage};\n}\n\n}  // namespace vela::service\n")
