// Text as this program holds it: Windows-1252, one byte a character, in std::string.
//
// Lengths, prefixes and the two terminators are plain byte matters this way, and a file is loaded
// without conversion. Source files are UTF-8; their literals become Windows-1252 at compile time
// through ""_w. On disk and towards the desktop, names are UTF-8: TextFromUtf8 and Utf8FromText
// are the way there and back (platform/qt/text.h does the same for QString).
//
// This file knows characters only: nothing of fields, lines or numbers.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kelvora {

using Text = std::string;

// The bytes 0x80 to 0x9F of Windows-1252. The five that the code page leaves open stand for the
// control characters of the same number, so that every byte survives a round trip.
inline constexpr std::array<char32_t, 32> kUpperControlCodes = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// The Unicode character that a Windows-1252 byte stands for.
[[nodiscard]] constexpr char32_t CodePointOf(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code >= 0x80 && code < 0xA0 ? kUpperControlCodes[code - 0x80u] : char32_t{code};
}

// The Windows-1252 byte of a Unicode character; nothing if the code page lacks it.
[[nodiscard]] constexpr std::optional<char> ByteOf(char32_t code_point) {
  if (code_point < 0x80 || (code_point >= 0xA0 && code_point < 0x100)) {
    return static_cast<char>(code_point);
  }
  for (std::size_t i = 0; i < kUpperControlCodes.size(); ++i) {
    if (kUpperControlCodes[i] == code_point) return static_cast<char>(0x80 + i);
  }
  return std::nullopt;
}

// One character of UTF-8 text and the number of bytes it took; a byte that begins no valid
// character counts as U+FFFD of length 1.
struct Utf8Character {
  char32_t code_point;
  std::size_t length;
};

[[nodiscard]] constexpr Utf8Character DecodeUtf8(std::string_view text, std::size_t position) {
  const auto byte = [&](std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0u;
  };
  const unsigned lead = byte(position);
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
  if (length == 0 || lead > 0xF4) return {0xFFFD, 1};
  char32_t code_point = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const unsigned next = byte(position + i);
    if ((next & 0xC0u) != 0x80u) return {0xFFFD, 1};
    code_point = (code_point << 6) | (next & 0x3Fu);
  }
  return {code_point, length};
}

// UTF-8 to Windows-1252; a character that the code page lacks becomes "?".
[[nodiscard]] Text TextFromUtf8(std::string_view utf8);

// Windows-1252 to UTF-8; never loses anything.
[[nodiscard]] std::string Utf8FromText(std::string_view text);

// The lower case of every byte by the letters of Windows-1252, accented ones included.
inline constexpr auto kLowerCase = [] {
  std::array<char, 256> lower{};
  for (std::size_t code = 0; code < lower.size(); ++code) {
    // The accented capitals stand from 0xC0 on; 0xD7 is the multiplication sign.
    const bool capital =
        (code >= 'A' && code <= 'Z') || (code >= 0xC0 && code <= 0xDE && code != 0xD7);
    lower[code] = static_cast<char>(capital ? code + 0x20 : code);
  }
  lower[0x8A] = static_cast<char>(0x9A);  // S with caron
  lower[0x8C] = static_cast<char>(0x9C);  // OE
  lower[0x8E] = static_cast<char>(0x9E);  // Z with caron
  lower[0x9F] = static_cast<char>(0xFF);  // Y with diaeresis
  return lower;
}();
[[nodiscard]] constexpr char LowerCaseOf(char byte) {
  return kLowerCase[static_cast<unsigned char>(byte)];
}
[[nodiscard]] Text LowerCase(std::string_view text);

// `text` with every occurrence of `what`, found from the left, replaced by `with`.
[[nodiscard]] Text ReplaceAll(std::string_view text, std::string_view what, std::string_view with);

// A literal's bytes in Windows-1252, made at compile time; a character that the code page lacks
// does not compile.
template <std::size_t N>
struct TextLiteral {
  char bytes[N]{};
  std::size_t size = 0;

  consteval TextLiteral(const char (&utf8)[N]) {
    const std::string_view source(utf8, N - 1);
    for (std::size_t i = 0; i < source.size();) {
      const auto [code_point, length] = DecodeUtf8(source, i);
      bytes[size++] = ByteOf(code_point).value();
      i += length;
    }
  }
};

template <TextLiteral Literal>
[[nodiscard]] consteval std::string_view operator""_w() {
  return {Literal.bytes, Literal.size};
}

// `text` without the blanks around it.
[[nodiscard]] std::string_view Trimmed(std::string_view text);

}  // namespace kelvora
