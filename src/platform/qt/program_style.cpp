#include "platform/qt/program_style.h"

#include <array>

#include <QPainter>
#include <QStyleOptionTitleBar>

#include "platform/qt/contrast.h"

namespace kelvora {
namespace {

enum class Sign { minimise, maximise, restore, close };

struct TitleButton {
  QStyle::SubControl control;
  Sign sign;
};
constexpr std::array kTitleButtons = {
    TitleButton{QStyle::SC_TitleBarMinButton, Sign::minimise},
    TitleButton{QStyle::SC_TitleBarMaxButton, Sign::maximise},
    TitleButton{QStyle::SC_TitleBarNormalButton, Sign::restore},
    TitleButton{QStyle::SC_TitleBarCloseButton, Sign::close},
};
constexpr std::array kMenuBarButtons = {
    TitleButton{QStyle::SC_MdiMinButton, Sign::minimise},
    TitleButton{QStyle::SC_MdiNormalButton, Sign::restore},
    TitleButton{QStyle::SC_MdiCloseButton, Sign::close},
};

// Whether a title bar has that button now.
bool HasButton(const QStyleOptionTitleBar& bar, Sign sign) {
  const bool minimised = (bar.titleBarState & Qt::WindowMinimized) != 0;
  const bool maximised = (bar.titleBarState & Qt::WindowMaximized) != 0;
  const bool may_minimise = bar.titleBarFlags.testFlag(Qt::WindowMinimizeButtonHint);
  const bool may_maximise = bar.titleBarFlags.testFlag(Qt::WindowMaximizeButtonHint);
  switch (sign) {
    case Sign::minimise:
      return may_minimise && !minimised;
    case Sign::maximise:
      return may_maximise && !maximised;
    case Sign::restore:
      return (may_minimise && minimised) || (may_maximise && maximised);
    case Sign::close:
      return bar.titleBarFlags.testFlag(Qt::WindowSystemMenuHint);
  }
  return false;
}

// A sign of thin lines in the middle of its button; a pressed or touched button has a ground.
void DrawButton(QPainter& painter, const QRect& place, Sign sign, const QColor& letters,
                bool touched) {
  constexpr double kHalf = 4;
  constexpr float kTouched = 0.22F;
  if (touched) {
    QColor ground = letters;
    ground.setAlphaF(kTouched);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(place, 2, 2);
  }
  const QPointF middle = QRectF(place).center();
  const QRectF sign_place(middle - QPointF(kHalf, kHalf), QSizeF(2 * kHalf, 2 * kHalf));
  painter.setPen(QPen(letters, 1.4));
  painter.setBrush(Qt::NoBrush);
  switch (sign) {
    case Sign::minimise:
      painter.drawLine(sign_place.bottomLeft(), sign_place.bottomRight());
      break;
    case Sign::maximise:
      painter.drawRect(sign_place);
      painter.drawLine(sign_place.topLeft() + QPointF(0, 1), sign_place.topRight() + QPointF(0, 1));
      break;
    case Sign::restore:
      painter.drawRect(sign_place.adjusted(0, 2.5, -2.5, 0));
      painter.drawPolyline(QPolygonF({sign_place.topLeft() + QPointF(2.5, 0), sign_place.topRight(),
                                      sign_place.bottomRight() - QPointF(0, 2.5)}));
      break;
    case Sign::close:
      painter.drawLine(sign_place.topLeft(), sign_place.bottomRight());
      painter.drawLine(sign_place.topRight(), sign_place.bottomLeft());
      break;
  }
}

}  // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  painter->save();
  const auto* const bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
  if (control == CC_TitleBar && bar != nullptr) {
    DrawTitleBar(*bar, *painter, widget);
  } else if (control == CC_MdiControls) {
    DrawButtonsInMenuBar(*option, *painter, widget);
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
  painter->restore();
}

void ProgramStyle::DrawTitleBar(const QStyleOptionTitleBar& bar, QPainter& painter,
                                const QWidget* widget) const {
  constexpr int kInactiveShade = 106;
  constexpr int kMargin = 3;
  const bool active = (bar.titleBarState & State_Active) != 0;
  const QPalette& palette = bar.palette;
  const QColor ground = active ? palette.color(QPalette::Active, QPalette::Highlight)
                               : palette.color(QPalette::Window).darker(kInactiveShade);
  QColor letters =
      palette.color(QPalette::Active, active ? QPalette::HighlightedText : QPalette::WindowText);
  if (ContrastOf(letters, ground) < kLeastContrast) letters = LettersOn(ground);
  painter.fillRect(bar.rect, ground);
  painter.setPen(palette.color(QPalette::Window).darker(150));
  painter.drawLine(bar.rect.bottomLeft(), bar.rect.bottomRight());

  const auto place = [&](SubControl control) {
    return proxy()->subControlRect(CC_TitleBar, &bar, control, widget);
  };
  const QRect title = place(SC_TitleBarLabel).adjusted(kMargin, 0, -kMargin, 0);
  painter.setPen(letters);
  painter.drawText(title, Qt::AlignCenter | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(bar.text, Qt::ElideRight, title.width()));
  if (bar.subControls & SC_TitleBarSysMenu) {
    const int size = proxy()->pixelMetric(PM_SmallIconSize, &bar, widget);
    QRect icon(0, 0, size, size);
    icon.moveCenter(place(SC_TitleBarSysMenu).center());
    bar.icon.paint(&painter, icon);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  for (const auto& [control, sign] : kTitleButtons) {
    if (!(bar.subControls & control) || !HasButton(bar, sign)) continue;
    DrawButton(painter, place(control), sign, letters,
               bar.activeSubControls.testFlag(control) &&
                   (bar.state & (State_MouseOver | State_Sunken)) != 0);
  }
}

void ProgramStyle::DrawButtonsInMenuBar(const QStyleOptionComplex& bar, QPainter& painter,
                                        const QWidget* widget) const {
  painter.setRenderHint(QPainter::Antialiasing);
  for (const auto& [control, sign] : kMenuBarButtons) {
    if (!(bar.subControls & control)) continue;
    DrawButton(painter, proxy()->subControlRect(CC_MdiControls, &bar, control, widget), sign,
               bar.palette.color(QPalette::WindowText), bar.activeSubControls.testFlag(control));
  }
}

}  // namespace kelvora
