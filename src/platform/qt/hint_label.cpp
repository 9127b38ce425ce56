#include "platform/qt/hint_label.h"

#include <algorithm>
#include <cmath>

#include <QEvent>
#include <QScopedValueRollback>

namespace kelvora {
namespace {

constexpr double kLeastContrast = 4.5;

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

}  // namespace

double ContrastOf(const QColor& one, const QColor& other) {
  // As a list: of two temporaries minmax would give references.
  const auto [darker, lighter] = std::minmax({LuminanceOf(one), LuminanceOf(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor HintColour(const QColor& letters, const QColor& ground) {
  for (int percent = 99; percent > 0; --percent) {
    const QColor grey(Between(letters.red(), ground.red(), percent),
                      Between(letters.green(), ground.green(), percent),
                      Between(letters.blue(), ground.blue(), percent));
    if (ContrastOf(grey, ground) >= kLeastContrast) return grey;
  }
  return letters;
}

HintLabel::HintLabel(QWidget* parent, const QString& object_name) : QLabel(parent) {
  setObjectName(object_name);
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setForegroundRole(QPalette::WindowText);
  TakeColour();
}

void HintLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && !taking_colour_) TakeColour();
}

void HintLabel::TakeColour() {
  const QScopedValueRollback taking(taking_colour_, true);
  const QWidget& under = *parentWidget();
  QPalette grey;
  grey.setColor(QPalette::WindowText, HintColour(under.palette().color(under.foregroundRole()),
                                                 under.palette().color(under.backgroundRole())));
  setPalette(grey);
}

}  // namespace kelvora
