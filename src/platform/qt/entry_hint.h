// A line of words beside a box, for what became of what was entered there. It never takes the focus
// nor the pointer, goes by itself after some seconds, and is told to assistive tools.
#pragma once

#include <QLabel>
#include <QPointer>

#include "platform/qt/entering.h"

namespace kelvora {

class EntryHint : public QLabel {
  Q_OBJECT

 public:
  // Says what a box has left out, if it has; what it left out just before is named with it. Stands
  // above the box, where nobody is going to type next, or below it where there is no room. Takes
  // the place of a hint that stands in the same window.
  static void Tell(QWidget& box, LeftOut left_out, const TextTables& texts);
  // Says these words of a box, in the same way.
  static void Say(QWidget& box, const QString& words);
  ~EntryHint() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  EntryHint(QWidget& box, const QString& words, std::u32string characters);
  void Place();

  QPointer<QWidget> box_;
  std::u32string characters_;
  QString description_before_;
};

}  // namespace kelvora
