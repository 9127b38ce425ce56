// Every window of the program with all its pages, one after the other, with a day in it and words
// of each language: what holds for all of them is looked at here.
#pragma once

#include <functional>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMdiSubWindow>
#include <QTabWidget>

#include "core/frame/arrangement.h"
#include "core/frame/main_window.h"
#include "days/browser_dialog.h"
#include "days/day_settings_dialog.h"
#include "days/popup_window.h"
#include "days/settings_dialog.h"
#include "days/take_over_dialog.h"
#include "days/wizard_dialog.h"
#include "food/food_details_dialog.h"
#include "food/import/food_import_dialog.h"
#include "food/import/table_files.h"
#include "food/new_food_dialog.h"
#include "food/other_amount_dialog.h"
#include "internet/update_window.h"
#include "keeping/backup_dialog.h"
#include "output/export_dialog.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/pseudo_language.h"
#include "support/test_program.h"
#include "windows/carrying_windows.h"
#include "windows/days_read.h"
#include "windows/written_days.h"

namespace kelvora {

struct TestLanguage {
  const char* name;
  void (*make)(TextTables&);
};
inline constexpr std::array kTestLanguages = {TestLanguage{"English", &Make_Taal_English},
                                              TestLanguage{"Dutch", &Make_Taal_Dutch},
                                              TestLanguage{"lengthened", &Make_Taal_Pseudo}};

class EveryWindow : public testing::Test {
 protected:
  // Sees one page of a window.
  using Look = std::function<void(QWidget& window)>;

  EveryWindow() {
    program.store.lst_categorien.Add("Bread.dat");
    for (const char* name : {"Bread, brown", "Bread, white", "Rusk"}) {
      program.store.Default_list.Add(LineOf({.product = name,
                                             .unit = "1 slice",
                                             .gram = "35",
                                             .kj = "343",
                                             .kcal = "82",
                                             .protein = "1",
                                             .fat_u = "0.2",
                                             .fat_s = "3",
                                             .carbs = "15",
                                             .sodium = "0.15",
                                             .remark = "brood",
                                             .db = "Bread.dat"}));
    }
    program.store.Custom_list.Add(LineOf({.product = "Soup of Anna", .kj = "100"}));
    program.profile[ProfileField::type_prioriteit] = "1";
    for (std::size_t i = 0; i < 7; ++i) {
      program.profile.strings[static_cast<std::size_t>(ProfileField::txt_kj) + i] = "100";
    }
    std::filesystem::create_directories(program.paths.ProgramPath);
    WriteFileAnew(program.paths.ProgramPath + "servers.conf",
                  "update = http://up.example\nenglish = http://food.example\n");
  }

  // The main window with the windows of a day, and those that are opened over them.
  void LookAtMainWindow(QSize size, const Look& look) {
    MainWindow window(program);
    window.resize(size);
    window.Set_Taal();
    window.show();
    look(window);
    test.OpenDay("Anna");
    for (const std::string_view food : {"Bread, brown", "Rusk"}) {
      program.store.L_ochtend.Add(LineOf({.product = food, .gram = "35", .kj = "343"}));
    }
    WriteDays(program, 2);
    ApplyChosenArrangement(program);
    window.UpdateCommands();
    LookAt(window, look);
    for (auto* const combine : window.findChildren<QAction*>("Toolbar_2_action"))
      combine->trigger();
    LookAt(window, look);
    LookAtViews(window, "KV_tb_lijsten", look);
    for (const WindowId id : {WindowId::diary, WindowId::comparison}) window.OpenWindow(id);
    for (const CompareBox box : kCompareBoxes) {
      program.windows.comparison->TakeFood(box,
                                           "add-" + Text(program.store.Default_list[0]) + "\xBE");
    }
    LookAt(window, look);
    window.OpenWindow(WindowId::day_summary);
    LookAtViews(window, "KV_tb_daguittreksel", look);
    window.OpenWindow(WindowId::multi_day);
    EXPECT_TRUE(DaysAreRead(window));
    LookAtViews(window, "KV_tb_meerdaags", look);
    ShowScreensWithSummary(program);
    LookAtViews(window, "KV_tb_daguittreksel", look);
    CloseDay(program);
  }

  void LookAtDialogs(const Look& look) {
    for (const auto mode : {DayDialogMode::new_day, DayDialogMode::day_settings}) {
      for (const char* system : {"0", "1"}) {
        program.day.DayDialogMode = mode;
        program.settings[Setting::opt_system] = system;
        DaySettingsDialog dialog(program, nullptr);
        LookAt(dialog, look);
      }
    }
    program.settings[Setting::opt_system] = "0";
    MakeUserFolders(program.paths, "Anna");
    WriteRecord(ProfileFile(program.paths, "Anna"), program.profile);
    BrowserDialog browser(program, nullptr);
    browser.Open();
    LookAt(browser, look);
    ExportDaysDialog days(program, nullptr);
    days.Open();
    LookAt(days, look);
    SettingsDialog settings(program, nullptr);
    LookAt(settings, look);
    WizardDialog wizard(program, nullptr);
    LookAt(wizard, look);
    PopupWindow about(program, kAboutMode, nullptr);
    LookAt(about, look);
    PopupWindow splash(program, kSplashMode, nullptr);
    LookAt(splash, look);
    FoodDetailsDialog details(program, "zoeken", program.store.Default_list[0], nullptr);
    LookAt(details, look);
    NewFoodDialog new_food(program, nullptr);
    LookAt(new_food, look);
    OtherAmountDialog amount(program, "Bread, brown", "150 g", {}, nullptr);
    LookAt(amount, look);
    TakeOverDialog other_days(program, DayPart::morning, {}, nullptr);
    LookAt(other_days, look);
    BackupDialog backup(program, nullptr);
    LookAt(backup, look);
    const auto restore = ReadBackupWindow(program, BackupOfAll(program));
    LookAt(*restore, look);
    FoodImportDialog food_import(program, nullptr);
    LookAt(food_import, look);
    const std::string table = test.folders.home.Path("table");
    WriteFileAnew(table, std::string(kSrHeader) + SrRow("Bread", "Rye"));
    food_import.Choose(table);
    LookAt(food_import, look);
    WriteFileAnew(table, "Product;Energy;Na\nMuesli;380;50\n");
    food_import.Choose(table);
    LookAt(food_import, look);
    UpdateWindow update(program, UpdateMode::shown, nullptr);
    LookAt(update, look);
    test.transfers.Complete({"3.00\xBD"});
    LookAt(update, look);
  }

  // Each tab of a window.
  static void LookAt(QWidget& window, const Look& look) {
    window.show();
    QApplication::processEvents();
    const auto all_tabs = window.findChildren<QTabWidget*>();
    if (all_tabs.isEmpty()) return look(window);
    for (QTabWidget* const tabs : all_tabs) {
      for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        QApplication::processEvents();
        look(window);
      }
    }
  }

  // Each of the four views of a child window.
  static void LookAtViews(QWidget& window, const char* child, const Look& look) {
    auto* const content = window.findChild<QWidget*>(QLatin1String(child));
    ASSERT_NE(content, nullptr);
    for (int view = 1; view <= 4; ++view) {
      content->findChild<QAbstractButton*>(QStringLiteral("Toolbar_%1").arg(view))->click();
      QApplication::processEvents();
      look(window);
    }
  }

  TestProgram test;
  Program& program = test.program;
};

}  // namespace kelvora
