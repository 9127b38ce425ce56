#include "platform/qt/text.h"

#include <algorithm>

#include "core/drawn_text.h"

namespace kelvora {

QString ToQt(std::string_view text) {
  return ToQtWhole(DrawnText(text));
}

QString ToQtCell(std::string_view text) {
  return ToQtWhole(DrawnCell(text));
}

QString ToQtMessage(std::string_view text) {
  return ToQtWhole(DrawnMessage(text));
}

QString ToQtWhole(std::string_view text) {
  QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  QChar* out = result.data();
  for (const char byte : text) *out++ = QChar(static_cast<char16_t>(CodePointOf(byte)));
  return result;
}

bool TextHolds(const QString& text) {
  return std::ranges::all_of(text.toStdU32String(),
                             [](char32_t character) { return ByteOf(character).has_value(); });
}

Text FromQt(const QString& text) {
  Text result;
  result.reserve(static_cast<std::size_t>(text.size()));
  for (const char32_t code_point : text.toStdU32String()) {
    result += ByteOf(code_point).value_or('?');
  }
  return result;
}

}  // namespace kelvora
