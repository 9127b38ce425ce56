#include "platform/qt/text_box.h"

#include <QScopedValueRollback>
#include <QValidator>

#include "platform/qt/entry_hint.h"
#include "platform/qt/text.h"

namespace kelvora {

// Asked after each change and before anybody hears of it.
class TextBox::Validator : public QValidator {
 public:
  explicit Validator(TextBox* box) : QValidator(box), box_(*box) {}
  State validate(QString& text, int& cursor) const override {
    return box_.Hold(text, cursor) ? Acceptable : Invalid;
  }

 private:
  TextBox& box_;
};

TextBox::TextBox(QWidget* parent, const QString& object_name, const EntryContext& context,
                 const EntryRule& rule)
    : QLineEdit(parent), context_(context), rule_(rule) {
  setObjectName(object_name);
  setValidator(new Validator(this));  // the box owns it
}

void TextBox::ShowText(std::string_view text) {
  const auto most = static_cast<std::size_t>(maxLength());
  shows_all_ = text.size() <= most;
  const QString shown = ToQtWhole(text.substr(0, most));
  if (this->text() == shown) return;
  const QScopedValueRollback whole(showing_, true);
  QLineEdit::setText(shown);
}

Text TextBox::Entered() const {
  return FromQt(text());
}

bool TextBox::Hold(QString& changed, int& cursor) {
  if (showing_) held_ = changed;
  if (changed == held_) return true;
  const HeldChange change = HoldChange(rule_, context_, held_, changed, cursor);
  EntryHint::Tell(*this, change.left_out, context_.texts);
  if (change.refused) return false;
  held_ = change.Whole();
  if (held_ == changed) return true;
  changed = held_;
  cursor = static_cast<int>(change.before.size() + change.taken.size());
  return true;
}

}  // namespace kelvora
