#include "platform/qt/look.h"

#include <QFont>
#include <QLabel>
#include <QWidget>

#include "platform/qt/text.h"

// Outside of any namespace, as the macro wants. A static library's resources register only when
// they are asked for.
static bool RegisterIcons() {
  Q_INIT_RESOURCE(kelvora);
  return true;
}

namespace kelvora {

QIcon IconNamed(std::string_view name) {
  [[maybe_unused]] static const bool registered = RegisterIcons();
  return QIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name.data(), name.size())));
}

void NameWidget(QWidget* widget, const char* object_name) {
  widget->setObjectName(QLatin1String(object_name));
}

QLabel* NewLabel(QWidget* parent, const QString& object_name) {
  auto* const label = new QLabel(parent);
  label->setObjectName(object_name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

int RowHeight(const QWidget& widget) {
  return widget.fontMetrics().height() + 6;
}

void UseSmallLetters(QWidget* widget) {
  constexpr double kShare = 0.9;
  QFont font = widget->font();
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * kShare);
  } else {  // a desktop font whose size is given in pixels
    font.setPixelSize(qRound(font.pixelSize() * kShare));
  }
  widget->setFont(font);
}

void SetActionTexts(QAction* action, std::string_view caption, std::string_view tip) {
  // "&" is a letter of our texts, not the mark of a shortcut.
  action->setText(ToQt(caption).replace('&', QStringLiteral("&&")));
  action->setToolTip(ToQt(tip.empty() ? caption : tip));
}

}  // namespace kelvora
