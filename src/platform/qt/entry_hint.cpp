#include "platform/qt/entry_hint.h"

#include <algorithm>
#include <utility>

#include <QAccessible>
#include <QEvent>
#include <QTimer>

#include "language/own_texts.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kMillisecondsShown = 7000;
constexpr int kMargin = 6;
constexpr int kGap = 2;  // between the hint and its box
// More than these are summed up in a mark.
constexpr std::size_t kMostNamed = 12;

// A character as it can be seen: a combining mark on a circle, an invisible one as its number.
QString Visible(char32_t character) {
  if (QChar::isMark(character)) return QChar(0x25CC) + QString::fromUcs4(&character, 1);
  if (QChar::isPrint(character)) return QString::fromUcs4(&character, 1);
  return QStringLiteral("U+%1").arg(QString::number(character, 16).toUpper(), 4, QLatin1Char('0'));
}

QString WordsFor(const LeftOut& left_out, const TextTables& texts) {
  if (left_out.mark) return ToQt(OwnTextOf(texts, OwnText::whole_numbers_only));
  const std::u32string& characters = left_out.characters;
  const bool one = characters.size() == 1;
  QString words =
      ToQt(OwnTextOf(texts, one ? OwnText::character_left_out : OwnText::characters_left_out));
  for (const char32_t character : characters.substr(0, kMostNamed)) {
    words += QLatin1Char(' ') + Visible(character);
  }
  if (characters.size() > kMostNamed) words += QStringLiteral(" ") + QChar(0x2026);
  return words;
}

}  // namespace

void EntryHint::Tell(QWidget& box, LeftOut left_out, const TextTables& texts) {
  if (left_out.characters.empty() && !left_out.mark) return;
  auto* const before = box.window()->findChild<EntryHint*>(QString(), Qt::FindDirectChildrenOnly);
  if (before != nullptr && before->box_ == &box) {
    std::u32string all = before->characters_;
    for (const char32_t character : left_out.characters) {
      if (all.find(character) == std::u32string::npos) all += character;
    }
    left_out.characters = std::move(all);
  }
  delete before;
  const QString words = WordsFor(left_out, texts);
  new EntryHint(box, words, std::move(left_out.characters));  // its window owns it
}

void EntryHint::Say(QWidget& box, const QString& words) {
  delete box.window()->findChild<EntryHint*>(QString(), Qt::FindDirectChildrenOnly);
  new EntryHint(box, words, {});  // its window owns it
}

EntryHint::EntryHint(QWidget& box, const QString& words, std::u32string characters)
    : QLabel(box.window()),
      box_(&box),
      characters_(std::move(characters)),
      description_before_(box.accessibleDescription()) {
  setObjectName(QStringLiteral("entry_hint"));
  setTextFormat(Qt::PlainText);
  setText(words);
  setAccessibleName(words);
  setWordWrap(true);
  setMargin(kMargin);
  setFrameShape(QFrame::Box);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAutoFillBackground(true);
  // The two colours that every theme sets, since they are those of its text boxes.
  setBackgroundRole(QPalette::Base);
  setForegroundRole(QPalette::Text);
  box.setAccessibleDescription(words);
  // Where the box goes, the hint can't stay.
  for (QWidget* around = &box; around != parentWidget(); around = around->parentWidget()) {
    around->installEventFilter(this);
  }
  auto* const timer = new QTimer(this);
  timer->setSingleShot(true);
  connect(timer, &QTimer::timeout, this, &QObject::deleteLater);
  timer->start(kMillisecondsShown);
  Place();
  show();
  raise();
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

EntryHint::~EntryHint() {
  if (box_ != nullptr) box_->setAccessibleDescription(description_before_);
}

bool EntryHint::eventFilter(QObject*, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::Move || type == QEvent::Resize || type == QEvent::Hide) {
    hide();
    deleteLater();
  }
  return false;
}

void EntryHint::Place() {
  const QRect window = parentWidget()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const QRect box(box_->mapTo(parentWidget(), QPoint()), box_->size());
  const int one_line = fontMetrics().horizontalAdvance(text()) + 2 * (kMargin + frameWidth()) + 1;
  const int width = std::min(one_line, window.width());
  const int height = heightForWidth(width);
  const int left = std::clamp(box.left(), window.left(), window.right() + 1 - width);
  const int above = box.top() - kGap - height;
  const int below = std::min(box.bottom() + 1 + kGap, window.bottom() + 1 - height);
  setGeometry(left, above >= window.top() ? above : below, width, height);
}

}  // namespace kelvora
