// Compile-time conversion of UTF-8 source literals to Windows-1251 bytes.
//
// Word tables and patterns are written in readable UTF-8; the binary holds only
// Windows-1251. "рубль"_cp is a pointer to a static, zero-terminated array of
// the bytes F0 F3 E1 EB FC, computed by the compiler. A character that has no
// Windows-1251 byte is a compile error, so no table can hold a silent '?'.
#pragma once

#include <array>
#include <cstddef>

namespace vela::cp1251 {

// Code points of the bytes 0x80..0xBF; 0 marks the one unassigned byte (0x98).
// 0xC0..0xFF are the contiguous letters А..я (U+0410..U+044F).
inline constexpr char32_t kHighHalf[64] = {
    0x0402, 0x0403, 0x201A, 0x0453, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x20AC, 0x2030, 0x0409, 0x2039, 0x040A, 0x040C, 0x040B, 0x040F,  // 88
    0x0452, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x0000, 0x2122, 0x0459, 0x203A, 0x045A, 0x045C, 0x045B, 0x045F,  // 98
    0x00A0, 0x040E, 0x045E, 0x0408, 0x00A4, 0x0490, 0x00A6, 0x00A7,  // A0
    0x0401, 0x00A9, 0x0404, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x0407,  // A8
    0x00B0, 0x00B1, 0x0406, 0x0456, 0x0491, 0x00B5, 0x00B6, 0x00B7,  // B0
    0x0451, 0x2116, 0x0454, 0x00BB, 0x0458, 0x0405, 0x0455, 0x0457,  // B8
};

// The Windows-1251 byte of a code point; throws (a compile error in a constant
// expression) when the code page has none.
constexpr unsigned char encodeCodePoint(char32_t cp) {
  if (cp < 0x80) return static_cast<unsigned char>(cp);
  if (cp >= 0x0410 && cp <= 0x044F) return static_cast<unsigned char>(0xC0 + (cp - 0x0410));
  for (unsigned i = 0; i < 64; ++i)
    if (kHighHalf[i] == cp && cp != 0) return static_cast<unsigned char>(0x80 + i);
  throw "character has no Windows-1251 byte";
}

// Decodes one UTF-8 sequence at s[i]; advances i.
constexpr char32_t decodeUtf8(const char* s, std::size_t& i) {
  auto b = static_cast<unsigned char>(s[i++]);
  if (b < 0x80) return b;
  int extra = (b >= 0xF0) ? 3 : (b >= 0xE0) ? 2 : (b >= 0xC0) ? 1 : -1;
  if (extra < 0) throw "invalid UTF-8 in a source literal";
  char32_t cp = b & (0x3F >> extra);
  for (int k = 0; k < extra; ++k) {
    auto c = static_cast<unsigned char>(s[i++]);
    if ((c & 0xC0) != 0x80) throw "invalid UTF-8 in a source literal";
    cp = (cp << 6) | (c & 0x3F);
  }
  return cp;
}

// A string literal usable as a template argument.
template <std::size_t N>
struct Utf8Literal {
  char bytes[N]{};
  consteval Utf8Literal(const char (&s)[N]) {
    for (std::size_t i = 0; i < N; ++i) bytes[i] = s[i];
  }
  consteval std::size_t encodedLength() const {
    std::size_t i = 0, n = 0;
    while (i + 1 < N) {
      decodeUtf8(bytes, i);
      ++n;
    }
    return n;
  }
};

template <Utf8Literal S>
struct Encoded {
  static constexpr std::size_t size = S.encodedLength();
  static constexpr std::array<char, size + 1> value = [] {
    std::array<char, size + 1> out{};
    std::size_t i = 0, n = 0;
    while (i + 1 < sizeof(S.bytes)) out[n++] = static_cast<char>(encodeCodePoint(decodeUtf8(S.bytes, i)));
    return out;
  }();
};

}  // namespace vela::cp1251

namespace vela {

// "рубль"_cp: the zero-terminated Windows-1251 bytes of a UTF-8 literal.
template <cp1251::Utf8Literal S>
constexpr const char* operator""_cp() {
  return cp1251::Encoded<S>::value.data();
}

}  // namespace vela
