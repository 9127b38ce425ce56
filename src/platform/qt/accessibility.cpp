#include "platform/qt/accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>
#include <QToolButton>

#include "core/drawn_text.h"

namespace kelvora {
namespace {

constexpr const char* kSilent = "kelvora_silent";

class SilentPicture : public QAccessibleWidget {
 public:
  explicit SilentPicture(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Graphic) {}

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.invisible = true;
    return state;
  }
  // The toolkit would take the title of the group that the picture stands in.
  [[nodiscard]] QString text(QAccessible::Text) const override { return {}; }
};

bool IsPicture(const QObject& object) {
  if (const auto* label = qobject_cast<const QLabel*>(&object)) {
    return !label->pixmap(Qt::ReturnByValue).isNull() && label->accessibleName().isEmpty();
  }
  const auto* button = qobject_cast<const QToolButton*>(&object);
  return button != nullptr && button->inherits("QLineEditIconButton") &&
         button->toolTip().isEmpty();
}

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  auto* const widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr || !(widget->property(kSilent).toBool() || IsPicture(*widget))) {
    return nullptr;
  }
  return new SilentPicture(widget);  // the toolkit owns it
}

}  // namespace

void KeepDecorationSilent() {
  QAccessible::installFactory(MakeInterface);
}

void MakeSilent(QWidget& widget) {
  widget.setProperty(kSilent, true);
}

void HideWhileEmpty(QLabel& label) {
  QSizePolicy policy = label.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  label.setSizePolicy(policy);
  label.setVisible(!label.text().isEmpty());
}

void NameValue(QLabel& value, const QLabel& caption) {
  const bool joined = value.text().startsWith(QLatin1Char(':'));
  const QString words = caption.text() + (joined ? QString() : QStringLiteral(" ")) + value.text();
  value.setAccessibleName(words.trimmed().left(kDrawnCharacters));
}

}  // namespace kelvora
