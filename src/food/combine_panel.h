// `Pic_SP` of a consumption window: name and unit of the one food that all others become. Enter in
// a box is as good as the button; Escape asks to be closed.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include "food/combining.h"
#include "platform/qt/text_box.h"

namespace kelvora {

class CombinePanel : public QWidget {
  Q_OBJECT

 public:
  CombinePanel(const EntryContext& entry, QWidget* parent);

  void SetCaptions(const TextTables& texts, TextTable table);
  [[nodiscard]] Text Name() const;
  [[nodiscard]] Text Unit() const;
  void Clear();
  void GoTo(CombineBox box);

 signals:
  void SavePressed();
  void CloseAsked();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLabel* txt_8_;
  TextBox* txt_nfo_8_;  // name
  QLabel* txt_7_;
  TextBox* txt_nfo_7_;  // unit
  QPushButton* cmd_opslaan_;
};

}  // namespace kelvora
