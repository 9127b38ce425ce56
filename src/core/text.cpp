#include "core/text.h"

namespace kelvora {
namespace {

constexpr char LowerOf(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  if (byte >= 'A' && byte <= 'Z') return static_cast<char>(code + 0x20);
  // The accented capitals; 0xD7 is the multiplication sign and has no lower case.
  if (code >= 0xC0 && code <= 0xDE && code != 0xD7) return static_cast<char>(code + 0x20);
  switch (code) {
    case 0x8A:
      return static_cast<char>(0x9A);
    case 0x8C:
      return static_cast<char>(0x9C);
    case 0x8E:
      return static_cast<char>(0x9E);
    case 0x9F:
      return static_cast<char>(0xFF);
    default:
      return byte;
  }
}

constexpr auto kLower = [] {
  std::array<char, 256> table{};
  for (std::size_t i = 0; i < table.size(); ++i) table[i] = LowerOf(static_cast<char>(i));
  return table;
}();

void AppendUtf8(std::string& out, char32_t code_point) {
  const auto put = [&out](char32_t value) { out += static_cast<char>(value); };
  if (code_point < 0x80) {
    put(code_point);
  } else if (code_point < 0x800) {
    put(0xC0 | (code_point >> 6));
    put(0x80 | (code_point & 0x3F));
  } else {  // Windows-1252 holds nothing beyond three bytes
    put(0xE0 | (code_point >> 12));
    put(0x80 | ((code_point >> 6) & 0x3F));
    put(0x80 | (code_point & 0x3F));
  }
}

}  // namespace

Text TextFromUtf8(std::string_view utf8) {
  Text text;
  text.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const auto [code_point, length] = DecodeUtf8(utf8, i);
    text += ByteOf(code_point).value_or('?');
    i += length;
  }
  return text;
}

std::string Utf8FromText(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (const char byte : text) AppendUtf8(utf8, CodePointOf(byte));
  return utf8;
}

Text LowerCase(std::string_view text) {
  Text lower(text);
  for (char& byte : lower) byte = kLower[static_cast<unsigned char>(byte)];
  return lower;
}

Text ReplaceAll(std::string_view text, std::string_view what, std::string_view with) {
  Text result;
  result.reserve(text.size());
  std::size_t from = 0;
  for (std::size_t at; !what.empty() && (at = text.find(what, from)) != std::string_view::npos;) {
    result.append(text.substr(from, at - from)).append(with);
    from = at + what.size();
  }
  return result.append(text.substr(from));
}

}  // namespace kelvora
