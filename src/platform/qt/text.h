// Between the program's Windows-1252 text and Qt's strings.
#pragma once

#include <QString>

#include "core/text.h"

namespace kelvora {

// Never loses anything.
[[nodiscard]] QString ToQt(std::string_view text);

// A character that Windows-1252 lacks becomes "?".
[[nodiscard]] Text FromQt(const QString& text);

}  // namespace kelvora
