// A text box of many lines, which takes what text_box.h says, line breaks and tabs besides.
#pragma once

#include <QPlainTextEdit>

#include "platform/qt/entering.h"

namespace kelvora {

class TextArea : public QPlainTextEdit {
  Q_OBJECT

 public:
  TextArea(QWidget* parent, const QString& object_name, const EntryContext& context,
           const EntryRule& rule);

  // Shows a stored text, which isn't held to the rule.
  void ShowText(std::string_view text);
  // Every line break as LF, blanks of every kind as they are.
  [[nodiscard]] Text Entered() const;

  // The text would count as entered.
  void setPlainText(const QString&) = delete;

 signals:
  // Somebody has changed the text; the box already shows what was taken.
  void Edited();
  // What was entered had no room at its end; comes behind Edited.
  void Cut();

 private:
  void Hold();
  void Replace(int begin, int end, const QString& text);

  EntryContext context_;
  EntryRule rule_;
  QString held_;
  bool showing_ = false;  // the program's own text is being put in
};

}  // namespace kelvora
