// The program with an open day and all its windows, for tests that look at each of them.
#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>

#include "core/frame/arrangement.h"
#include "core/frame/data_window.h"
#include "core/frame/main_window.h"
#include "days/browser_dialog.h"
#include "days/day_settings_dialog.h"
#include "days/popup_window.h"
#include "days/settings_dialog.h"
#include "days/take_over_dialog.h"
#include "days/wizard_dialog.h"
#include "food/food_details_dialog.h"
#include "food/import/food_import_dialog.h"
#include "food/new_food_dialog.h"
#include "food/other_amount_dialog.h"
#include "keeping/backup_dialog.h"
#include "output/export_dialog.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/profile_file.h"
#include "support/test_program.h"
#include "windows/carrying_windows.h"
#include "windows/days_read.h"
#include "windows/find_in.h"
#include "windows/written_days.h"

namespace kelvora {

struct DialogKind {
  std::string name;
  std::function<std::unique_ptr<QWidget>(Program&)> make;  // shown and filled
};

inline const std::vector<DialogKind>& EveryDialog() {
  const auto shown = [](auto dialog) -> std::unique_ptr<QWidget> {
    dialog->show();
    return dialog;
  };
  static const std::vector<DialogKind> kinds = {
      {"KV_bestand",
       [shown](Program& program) {
         return shown(std::make_unique<DaySettingsDialog>(program, nullptr));
       }},
      {"KV_browsefiles",
       [](Program& program) -> std::unique_ptr<QWidget> {
         auto dialog = std::make_unique<BrowserDialog>(program, nullptr);
         dialog->Open();
         return dialog;
       }},
      {"KV_export_html",
       [](Program& program) -> std::unique_ptr<QWidget> {
         auto dialog = std::make_unique<ExportDaysDialog>(program, nullptr);
         dialog->Open();
         return dialog;
       }},
      {"KV_properties",
       [shown](Program& program) {
         return shown(std::make_unique<SettingsDialog>(program, nullptr));
       }},
      {"KV_wizzard",
       [shown](Program& program) {
         return shown(std::make_unique<WizardDialog>(program, nullptr));
       }},
      {"KV_foodpopup",
       [shown](Program& program) {
         return shown(std::make_unique<FoodDetailsDialog>(program, "zoeken",
                                                          program.store.Default_list[0], nullptr));
       }},
      {"KV_add_voedingsmiddel",
       [shown](Program& program) {
         return shown(std::make_unique<NewFoodDialog>(program, nullptr));
       }},
      {"KV_take_over",
       [shown](Program& program) {
         return shown(
             std::make_unique<TakeOverDialog>(program, std::nullopt, std::string(), nullptr));
       }},
      {"KV_backup",
       [shown](Program& program) {
         return shown(std::make_unique<BackupDialog>(program, nullptr));
       }},
      {"KV_restore",
       [shown](Program& program) {
         return shown(ReadBackupWindow(program, BackupOfAll(program)));
       }},
      {"KV_import_foods",
       [shown](Program& program) {
         return shown(std::make_unique<FoodImportDialog>(program, nullptr));
       }},
      {"other_amount",
       [shown](Program& program) {
         return shown(std::make_unique<OtherAmountDialog>(program, "Bread", "1",
                                                          OtherAmountDialog::Change(), nullptr));
       }},
      {"KV_popup",
       [shown](Program& program) {
         return shown(std::make_unique<PopupWindow>(program, kAboutMode, nullptr));
       }},
      {"KV_data",
       [](Program& program) -> std::unique_ptr<QWidget> {
         auto window = std::make_unique<DataWindow>(program, nullptr);
         window->setAttribute(Qt::WA_DeleteOnClose, false);  // the test deletes it
         window->show();
         return window;
       }},
  };
  return kinds;
}

// The dialog of that name, in front.
inline std::unique_ptr<QWidget> OpenDialog(const std::string& name, Program& program) {
  for (const DialogKind& kind : EveryDialog()) {
    if (kind.name != name) continue;
    std::unique_ptr<QWidget> dialog = kind.make(program);
    if (!QTest::qWaitForWindowActive(dialog.get(), 30000)) throw std::runtime_error(name);
    return dialog;
  }
  throw std::runtime_error(name);
}

class AllWindows {
 public:
  AllWindows() {
    program.store.lst_categorien.Add("Bread.dat");
    program.store.Default_list.Add(
        LineOf({.product = "Bread", .gram = "35", .kcal = "82", .db = "Bread.dat"}));
    program.profile[ProfileField::type_prioriteit] = "1";
    window.Set_Taal();
    window.resize(1024, 748);
    window.show();
  }

  // A day of a user, saved, with two other days beside it.
  void OpenDay() {
    test.OpenDay("Anna");
    SaveDay(program);
    Save_Profile(program, ProfileFile(program.paths, "Anna"));
    WriteDays(program, 2);
    ComputeDefaultGeometry(program);  // as an arrangement does, which comes with every day
    window.UpdateCommands();
  }

  // Opens a child window, or brings it to the front, when its work is done.
  QMdiSubWindow& OpenChild(WindowId id) {
    static const std::vector<std::pair<WindowId, QString>> kNames = {
        {WindowId::lists, "KV_tb_lijsten"},         {WindowId::morning, "KV_tb_vochtend"},
        {WindowId::afternoon, "KV_tb_vmiddag"},     {WindowId::evening, "KV_tb_vavond"},
        {WindowId::diary, "KV_tb_notities"},        {WindowId::day_summary, "KV_tb_daguittreksel"},
        {WindowId::comparison, "KV_tb_weegschaal"}, {WindowId::multi_day, "KV_tb_meerdaags"},
    };
    window.OpenWindow(id);
    if (id == WindowId::multi_day && !DaysAreRead(window)) throw std::runtime_error("days");
    for (const auto& [child, name] : kNames) {
      if (child != id) continue;
      auto& frame = *FindIn<QMdiSubWindow>(window, name + QStringLiteral("_frame"));
      Activate(window);
      frame.mdiArea()->setActiveSubWindow(&frame);
      QApplication::processEvents();
      return frame;
    }
    throw std::runtime_error("no child window");
  }

  static void Activate(QWidget& widget) {
    widget.activateWindow();
    if (!QTest::qWaitForWindowActive(&widget, 30000)) throw std::runtime_error("not active");
  }

  TestProgram test;
  Program& program = test.program;
  MainWindow window{test.program};
};

inline constexpr std::array kEveryChild = {
    WindowId::lists, WindowId::morning,     WindowId::afternoon,  WindowId::evening,
    WindowId::diary, WindowId::day_summary, WindowId::comparison, WindowId::multi_day};

}  // namespace kelvora
