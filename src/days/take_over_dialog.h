// The dialog that takes over what was eaten on another day: the days on the left, the foods of the
// chosen one with their boxes on the right. A picture: it draws what take_over.h gives it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QTreeWidget>

#include "core/views.h"
#include "days/take_over.h"
#include "platform/qt/text_table_model.h"

namespace kelvora {

class TakeOverDialog : public QDialog, public WindowView {
  Q_OBJECT

 public:
  // Ticks the foods of one part of the day, or all of them without one. Begins with the day of that
  // path, if it is in the list.
  TakeOverDialog(Program& program, std::optional<DayPart> part, std::string path, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void FollowSettings() override;
  void done(int result) override;

 private:
  void Build();
  // Reads the days while the time lasts; goes on from the event loop.
  void ReadDays(int milliseconds);
  void ShowDays();
  void ShowFoods();
  void SetDayColumns();
  void SetFoodColumns();
  void EnableButtons();
  void TakeTicked();
  void TakeWholeDay();
  void Take(const DayFoods& foods);
  [[nodiscard]] DayFoods TickedFoods() const;

  Program& program_;
  const std::optional<DayPart> part_;
  std::string path_;  // of the chosen day
  OpenFlag<WindowView> open_flag_;
  std::optional<OtherDays> days_;
  DayFoods foods_;
  QTimer reading_;
  TextTableModel model_;
  QLabel* lbl_days_;
  QTableView* LV_other_days_;
  QLabel* lbl_foods_;
  QTreeWidget* tree_foods_;
  QPushButton* cmd_whole_day_;
  QPushButton* cmd_take_over_;
  QPushButton* cmd_annuleer_;
};

}  // namespace kelvora
