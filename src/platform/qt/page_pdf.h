// A page as a PDF of one sheet: its texts are texts in embedded fonts, its lines lines.
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/printing.h"

namespace kelvora {

// Throws std::system_error if the toolkit can't make one.
[[nodiscard]] QByteArray PdfOf(const PrintedPage& page, const Sheet& sheet, const QString& title);

}  // namespace kelvora
