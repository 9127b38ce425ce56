// Between the program's Windows-1252 text and Qt's strings.
#pragma once

#include <QString>

#include "core/text.h"

namespace kelvora {

// A text to be drawn in a label, a title or a tip, in the cell of a list, in a message: cut to what
// core/drawn_text.h says.
[[nodiscard]] QString ToQt(std::string_view text);
[[nodiscard]] QString ToQtCell(std::string_view text);
[[nodiscard]] QString ToQtMessage(std::string_view text);

// A text that must stay whole: in a box that can be saved, in what is dragged or compared. Never
// loses anything.
[[nodiscard]] QString ToQtWhole(std::string_view text);

// A character that text can't hold becomes "?". What somebody enters comes from boxes that have no
// such character; see text_box.h.
[[nodiscard]] bool TextHolds(const QString& text);
[[nodiscard]] Text FromQt(const QString& text);

}  // namespace kelvora
