// KV_data, the programmers' look into the store: its members on the left, the lines of the chosen
// one on the right. Stays on top, shows names instead of captions, and changes nothing.
#pragma once

#include <QDialog>
#include <QListWidget>
#include <QTableView>

#include "core/frame/data_members.h"
#include "platform/qt/text_table_model.h"

namespace kelvora {

class DataWindow : public QDialog {
  Q_OBJECT

 public:
  DataWindow(Program& program, QWidget* parent);

 protected:
  // What changed meanwhile is seen when the window is activated again.
  void changeEvent(QEvent* event) override;

 private:
  void ShowMember();
  void FillMembers();

  Program& program_;
  TextTableModel model_;
  QListWidget* lst_members_;
  QTableView* lst_lines_;
};

// Shows the window; the one that is open comes to the front.
void ShowDataWindow(Program& program, QWidget* parent);

}  // namespace kelvora
