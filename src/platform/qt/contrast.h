// Which colours can be read on which.
#pragma once

#include <initializer_list>

#include <QColor>

namespace kelvora {

// What a text needs against its ground.
inline constexpr double kLeastContrast = 4.5;

// The contrast of two colours, 1 to 21, by their relative luminance.
[[nodiscard]] double ContrastOf(const QColor& one, const QColor& other);

// The quietest grey on the way from `letters` to the first of `grounds` that can be read on all of
// them; `letters` themselves where they can't be read well either.
[[nodiscard]] QColor HintColour(const QColor& letters, std::initializer_list<QColor> grounds,
                                double contrast = kLeastContrast);
[[nodiscard]] inline QColor HintColour(const QColor& letters, const QColor& ground) {
  return HintColour(letters, {ground});
}

// Black or white, whichever reads better on the ground.
[[nodiscard]] QColor LettersOn(const QColor& ground);

// The ground, as far darker or lighter as `letters` need to be read on it.
[[nodiscard]] QColor GroundUnder(const QColor& letters, const QColor& ground,
                                 double contrast = kLeastContrast);

}  // namespace kelvora
