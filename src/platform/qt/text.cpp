#include "platform/qt/text.h"

namespace kelvora {

QString ToQt(std::string_view text) {
  QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  QChar* out = result.data();
  for (const char byte : text) *out++ = QChar(static_cast<char16_t>(CodePointOf(byte)));
  return result;
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
