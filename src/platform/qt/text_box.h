// A text box of one line. What somebody types, pastes, drops or composes there becomes text at
// once: what text can't hold is left out, and a hint beside the box says so. What the program shows
// there stays as it is stored.
#pragma once

#include <QLineEdit>

#include "platform/qt/entering.h"

namespace kelvora {

class TextBox : public QLineEdit {
  Q_OBJECT

 public:
  TextBox(QWidget* parent, const QString& object_name, const EntryContext& context,
          const EntryRule& rule = {});

  // Shows a stored text, which isn't held to the rule. A box that shows it already keeps its
  // cursor.
  void ShowText(std::string_view text);
  [[nodiscard]] Text Entered() const;
  // False while a stored text is longer than any box shows; edited there, its end would be lost.
  [[nodiscard]] bool ShowsAll() const { return shows_all_; }

  // The text would count as entered.
  void setText(const QString&) = delete;

 private:
  class Validator;
  // Makes of a change what the box may hold; false if nothing may change.
  bool Hold(QString& changed, int& cursor);

  EntryContext context_;
  EntryRule rule_;
  QString held_;
  bool shows_all_ = true;
  bool showing_ = false;  // the program's own text is being put in
};

}  // namespace kelvora
