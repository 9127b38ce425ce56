// The desktop's palette, with what keeps every text readable on it: the greys of hints and of what
// is disabled, the ground of what is chosen, and the letters that a theme has left unset.
#pragma once

#include <QPalette>

class QApplication;

namespace kelvora {

// What can be read on `desktop` as it is stays so.
[[nodiscard]] QPalette ReadablePalette(const QPalette& desktop);

// A grey on the way from letters to their ground that can be read there, and on the shades that the
// style gives to pages and buttons in that palette.
[[nodiscard]] QColor QuietColour(const QPalette& palette, QPalette::ColorRole letters,
                                 QPalette::ColorRole ground);

// Gives the application that palette, now and each time the desktop's own has changed.
void KeepTextsReadable(QApplication& application);

}  // namespace kelvora
