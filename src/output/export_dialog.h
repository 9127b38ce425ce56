// KV_export_html, the dialog that exports days to HTML, XML or DTA. A picture: it draws what
// export_list.h gives it and passes on what is chosen.
#pragma once

#include <array>
#include <vector>

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "core/views.h"
#include "output/export_table_panel.h"
#include "output/exporting.h"

namespace kelvora {

class ExportDaysDialog : public QDialog, public WindowView {
  Q_OBJECT

 public:
  ExportDaysDialog(Program& program, QWidget* parent);

  // Shows the window and fills it: the days are read while it can be seen.
  void Open();

  void CloseWindow() override;
  void Set_Taal() override;
  void FollowSettings() override;
  void done(int result) override;

 private:
  QGroupBox* BuildFormats();
  QGroupBox* BuildSelection();
  QGroupBox* BuildOptions();
  QGroupBox* BuildDays();
  void SetCaptions();
  void Refresh_Export_List();
  void SelectDays(bool all);
  void Export();

  Program& program_;
  OpenFlag<WindowView> open_flag_;
  // Tells a reading that was overtaken while events ran: by another one, or by the window's end.
  int readings_ = 0;
  // What the days in the list are shown by.
  struct ShownBy {
    Text opt_system;
    std::string folder;
    bool operator==(const ShownBy&) const = default;
  };
  [[nodiscard]] ShownBy ShownNow() const;
  ShownBy shown_by_;
  QLabel* lbl_info_;
  std::array<QGroupBox*, 4> frames_{};
  std::array<QRadioButton*, 3> opt_soort_{};    // as ReportFormat
  std::array<QRadioButton*, 2> opt_seletie_{};  // all days, own selection
  QCheckBox* chk_grafieken_;
  QCheckBox* chk_notities_;
  QCheckBox* chk_close_;
  ExportTable* LV_user_files_;
  QPushButton* cmd_export_;
  QPushButton* cmd_annuleer_;
};

// Shows KV_export_html over `parent` and returns when it is closed.
void ShowExportDialog(Program& program, QWidget* parent);

}  // namespace kelvora
