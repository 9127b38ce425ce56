// The dialog that brings tables of foods into the standard list, and takes them out again. A
// picture: it draws what import_form.h holds and passes on what is chosen.
#pragma once

#include <array>

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>

#include "core/views.h"
#include "food/import/columns_panel.h"
#include "food/import/import_form.h"
#include "platform/qt/choice_list.h"
#include "platform/qt/long_label.h"
#include "platform/qt/text_box.h"

namespace kelvora {

class FoodImportDialog : public QDialog, public WindowView {
  Q_OBJECT

 public:
  FoodImportDialog(Program& program, QWidget* parent);

  // As if the user had chosen that file or folder.
  void Choose(const std::string& path);

  void CloseWindow() override;
  void Set_Taal() override;
  void FollowSettings() override;
  void done(int result) override;

 private:
  QWidget* BuildFoods();
  QWidget* BuildSets();
  void SetCaptions();
  void ChooseFile();
  void ChooseFolder();
  void ShowTable();
  void ShowGroups();
  void ShowSets();
  void UpdateButtons();
  void TakeChoice();
  void Count();
  void Import();
  void RemoveSet();
  // Runs long work; closing meanwhile waits for its end.
  template <class Work>
  void Run(Work work);

  Program& program_;
  OpenFlag<WindowView> open_flag_;
  ImportForm form_;
  bool running_ = false;  // long work, in which events run
  bool close_wanted_ = false;
  QPushButton* cmd_file_;
  QPushButton* cmd_folder_;
  LongLabel* lbl_path_;
  QLabel* lbl_taken_;
  QLabel* lbl_licence_;
  QTabWidget* pages_;
  QLabel* lbl_groups_;
  QListWidget* list_groups_;
  QLabel* lbl_portions_;
  ChoiceList* combo_portions_;
  QLabel* lbl_country_;
  TextBox* txt_country_;
  QLabel* lbl_complete_;
  ChoiceList* combo_complete_;
  QLabel* lbl_summary_;
  ColumnsPanel* columns_;
  QLabel* lbl_sets_;
  QListWidget* list_sets_;
  QPushButton* cmd_remove_;
  QProgressBar* progress_;
  QPushButton* cmd_count_;
  QPushButton* cmd_import_;
  QPushButton* cmd_stop_;
  QPushButton* cmd_close_;
};

// Shows the dialog over `parent` and returns when it is closed.
void ShowFoodImportDialog(Program& program, QWidget* parent);

}  // namespace kelvora
