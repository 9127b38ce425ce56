#include "platform/qt/text_area.h"

#include <QScopedValueRollback>
#include <QTextCursor>

#include "platform/qt/entry_hint.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

// What the box holds, blanks of every kind as they are and each line break as "\n".
QString TextIn(const QTextDocument& document) {
  return document.toRawText()
      .replace(QChar::ParagraphSeparator, QLatin1Char('\n'))
      .replace(QChar::LineSeparator, QLatin1Char('\n'));
}

}  // namespace

TextArea::TextArea(QWidget* parent, const QString& object_name, const EntryContext& context,
                   const EntryRule& rule)
    : QPlainTextEdit(parent), context_(context), rule_(rule) {
  setObjectName(object_name);
  connect(this, &QPlainTextEdit::textChanged, this, &TextArea::Hold);
}

void TextArea::ShowText(std::string_view text) {
  const QScopedValueRollback whole(showing_, true);
  QPlainTextEdit::setPlainText(ToQtWhole(text));
}

Text TextArea::Entered() const {
  return FromQt(TextIn(*document()));
}

void TextArea::Hold() {
  const QString changed = TextIn(*document());
  if (showing_) held_ = changed;
  if (changed == held_) return;
  const int cursor = textCursor().position();
  const HeldChange change = HoldChange(rule_, context_, held_, changed, cursor);
  held_ = change.Whole();
  // Comes here again, with what the box may hold.
  if (held_ != changed) Replace(static_cast<int>(change.before.size()), cursor, change.taken);
  EntryHint::Tell(*this, change.left_out, context_.texts);
  if (!change.refused) emit Edited();
  if (change.cut) emit Cut();
}

// As one step with what was just done, to be undone with it.
void TextArea::Replace(int begin, int end, const QString& text) {
  QTextCursor place(document());
  place.joinPreviousEditBlock();
  place.setPosition(begin);
  place.setPosition(end, QTextCursor::KeepAnchor);
  place.insertText(text);
  place.endEditBlock();
}

}  // namespace kelvora
