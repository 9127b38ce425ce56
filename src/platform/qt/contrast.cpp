#include "platform/qt/contrast.h"

#include <algorithm>
#include <cmath>

namespace kelvora {
namespace {

// The relative luminance of WCAG 2, section "relative luminance".
double LuminanceOf(const QColor& colour) {
  const auto linear = [](double share) {
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

int Between(int from, int to, int percent) {
  return from + (to - from) * percent / 100;
}

QColor Between(const QColor& from, const QColor& to, int percent) {
  return {Between(from.red(), to.red(), percent), Between(from.green(), to.green(), percent),
          Between(from.blue(), to.blue(), percent)};
}

}  // namespace

double ContrastOf(const QColor& one, const QColor& other) {
  // As a list: of two temporaries minmax would give references.
  const auto [darker, lighter] = std::minmax({LuminanceOf(one), LuminanceOf(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor HintColour(const QColor& letters, std::initializer_list<QColor> grounds, double contrast) {
  for (int percent = 99; percent > 0; --percent) {
    const QColor grey = Between(letters, *grounds.begin(), percent);
    const bool readable = std::ranges::all_of(
        grounds, [&](const QColor& ground) { return ContrastOf(grey, ground) >= contrast; });
    if (readable) return grey;
  }
  return letters;
}

QColor LettersOn(const QColor& ground) {
  const QColor white(Qt::white), black(Qt::black);
  return ContrastOf(white, ground) >= ContrastOf(black, ground) ? white : black;
}

QColor GroundUnder(const QColor& letters, const QColor& ground, double contrast) {
  const QColor away = LettersOn(letters);
  for (int percent = 0; percent < 100; ++percent) {
    const QColor moved = Between(ground, away, percent);
    if (ContrastOf(letters, moved) >= contrast) return moved;
  }
  return away;
}

}  // namespace kelvora
