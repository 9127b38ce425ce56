#include "core/text.h"

#include <algorithm>

namespace kelvora {
namespace {

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
  for (char& byte : lower) byte = LowerCaseOf(byte);
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

std::string_view Trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

}  // namespace kelvora
