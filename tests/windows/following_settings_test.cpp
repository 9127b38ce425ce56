// Whatever the settings or the profile feed is shown anew everywhere at once. Every window that can
// stand open meanwhile is opened, one setting after the other is changed as a user changes it, and
// what the windows then show is compared with what they show when all of them are opened anew.
//
// The settings dialog and the dialog of the day are where the changes are made; nothing else can be
// changed while they are up.
#include <gtest/gtest.h>
#include <memory>

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QTabWidget>
#include <QTableView>

#include "core/frame/arrangement.h"
#include "core/frame/main_window.h"
#include "days/browser_dialog.h"
#include "days/day_settings.h"
#include "days/open_day.h"
#include "days/settings.h"
#include "days/take_over_dialog.h"
#include "days/wizard_dialog.h"
#include "food/food_details_dialog.h"
#include "food/import/food_import_dialog.h"
#include "food/import/table_files.h"
#include "food/new_food_dialog.h"
#include "keeping/backup_dialog.h"
#include "language/choose_language.h"
#include "language/language_file.h"
#include "nutrition/totals.h"
#include "output/export_dialog.h"
#include "platform/qt/text.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/record_file.h"
#include "support/test_program.h"
#include "windows/carrying_windows.h"
#include "windows/days_read.h"

namespace kelvora {
namespace {

// 85 grams are 2.99 oz, shown as 3; 937 kilojoules, 224 kilocalories.
constexpr FoodLine kOats{.product = "Oats",
                         .unit = "1 bowl",
                         .gram = "85",
                         .kj = "937",
                         .kcal = "224",
                         .protein = "11",
                         .fat_u = "5",
                         .fat_s = "2",
                         .carbs = "56",
                         .sodium = "0.004"};

// All windows at once, as after the opening of a day.
class Windows {
 public:
  explicit Windows(Program& program) : main_(program) {
    main_.resize(1024, 748);
    main_.Set_Taal();
    main_.show();
    ApplyChosenArrangement(program);
    main_.OpenWindow(WindowId::diary);
    main_.OpenWindow(WindowId::day_summary);
    main_.OpenWindow(WindowId::comparison);
    program.windows.comparison->TakeFood(CompareBox::first, "add-" + LineOf(kOats) + "\xBE");
    main_.OpenWindow(WindowId::multi_day);
    main_.UpdateCommands();
    browser_ = std::make_unique<BrowserDialog>(program, &main_);
    browser_->Open();
    wizard_ = std::make_unique<WizardDialog>(program, &main_);
    details_ = std::make_unique<FoodDetailsDialog>(program, "custom", LineOf(kOats), &main_);
    new_food_ = std::make_unique<NewFoodDialog>(program, &main_);
    export_ = std::make_unique<ExportDaysDialog>(program, &main_);
    export_->Open();
    take_over_ = std::make_unique<TakeOverDialog>(program, std::nullopt, std::string(), &main_);
    take_over_->show();
    backup_ = std::make_unique<BackupDialog>(program, &main_);
    restore_ = ReadBackupWindow(program, BackupOfAll(program));
    import_ = std::make_unique<FoodImportDialog>(program, &main_);
    import_->Choose(Table(program));
    import_->show();
    for (QWidget* const dialog :
         std::initializer_list<QWidget*>{wizard_.get(), details_.get(), new_food_.get()}) {
      dialog->show();
    }
    Refresh_Totalen(program);
    Settle();
  }

  void Settle() const { EXPECT_TRUE(DaysAreRead(main_)); }

  [[nodiscard]] QStringList Shown() const {
    QStringList shown;
    for (const auto& [name, window] : {std::pair<const char*, const QWidget*>{"main", &main_},
                                       {"browser", browser_.get()},
                                       {"wizard", wizard_.get()},
                                       {"details", details_.get()},
                                       {"new food", new_food_.get()},
                                       {"export", export_.get()},
                                       {"take over", take_over_.get()},
                                       {"backup", backup_.get()},
                                       {"restore", restore_.get()},
                                       {"import", import_.get()}}) {
      Describe(QLatin1String(name), *window, shown);
    }
    return shown;
  }

 private:
  // Of foods to bring in.
  static std::string Table(const Program& program) {
    std::string path = program.platform.folders.Documents() + "/table.tsv";
    WriteFileAnew(path, std::string(kSrHeader) + SrRow("Bread", "Rye") + SrRow("", "Ham"));
    return path;
  }
  static void DescribeTable(const QString& name, const QTableView& table, QStringList& shown) {
    const QAbstractItemModel& model = *table.model();
    for (int column = 0; column < model.columnCount(); ++column) {
      for (const int role : {Qt::DisplayRole, Qt::ToolTipRole}) {
        shown << QStringLiteral("%1 heading %2: %3")
                     .arg(name)
                     .arg(column)
                     .arg(model.headerData(column, Qt::Horizontal, role).toString());
      }
      for (int row = 0; row < model.rowCount(); ++row) {
        shown << QStringLiteral("%1 cell %2 %3: %4")
                     .arg(name)
                     .arg(row)
                     .arg(column)
                     .arg(model.index(row, column).data().toString());
      }
    }
  }
  // Texts, tips, names for assistive tools, ticks, and what is shown and enabled.
  static void Describe(const QString& window_name, const QWidget& window, QStringList& shown) {
    QList<const QWidget*> widgets = {&window};
    // Parts of the toolkit's own widgets, and parts of those, are made with their words for good.
    const auto of_toolkit = [](const QObject* part) {
      return part != nullptr && part->objectName().startsWith("qt_");
    };
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
      if (widget->window() != &window) continue;
      if (!of_toolkit(widget) && !of_toolkit(widget->parent())) widgets << widget;
    }
    for (const QWidget* widget : widgets) {
      if (widget->objectName().isEmpty() && widget != &window) continue;
      const QString parent = widget->parentWidget() ? widget->parentWidget()->objectName() : "";
      const QString name = window_name + ' ' + parent + '/' + widget->objectName();
      shown << name + (widget->isVisibleTo(&window) ? " shown" : " hidden") +
                   (widget->isEnabledTo(&window) ? " enabled" : " disabled");
      shown << name + " tip: " + widget->toolTip();
      shown << name + " accessible: " + widget->accessibleName();
      shown << name + " title: " + widget->windowTitle();
      if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        shown << name + ": " + label->text();
      } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        shown << name + ": " + button->text() + (button->isChecked() ? " on" : " off");
      } else if (const auto* box = qobject_cast<const QLineEdit*>(widget)) {
        shown << name + ": " + box->text();
      } else if (const auto* combo = qobject_cast<const QComboBox*>(widget)) {
        shown << name + ": " + combo->currentText();
      } else if (const auto* table = qobject_cast<const QTableView*>(widget)) {
        DescribeTable(name, *table, shown);
      } else if (const auto* tabs = qobject_cast<const QTabWidget*>(widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab) shown << name + ": " + tabs->tabText(tab);
      } else if (const auto* list = qobject_cast<const QListWidget*>(widget)) {
        for (int row = 0; row < list->count(); ++row)
          shown << name + ": " + list->item(row)->text();
      }
    }
    for (const QAction* action : window.findChildren<QAction*>()) {
      if (action->objectName().isEmpty()) continue;
      shown << window_name + " action " + action->objectName() + ": " + action->text() + "|" +
                   action->toolTip() + (action->isVisible() ? " shown" : " hidden") +
                   (action->isEnabled() ? " enabled" : " disabled");
    }
    shown.sort();
  }

  MainWindow main_;
  std::unique_ptr<BrowserDialog> browser_;
  std::unique_ptr<WizardDialog> wizard_;
  std::unique_ptr<FoodDetailsDialog> details_;
  std::unique_ptr<NewFoodDialog> new_food_;
  std::unique_ptr<ExportDaysDialog> export_;
  std::unique_ptr<TakeOverDialog> take_over_;
  std::unique_ptr<BackupDialog> backup_;
  std::unique_ptr<RestoreDialog> restore_;
  std::unique_ptr<FoodImportDialog> import_;
};

class FollowingSettings : public testing::Test {
 protected:
  FollowingSettings() {
    MakeUser("Bert", "3");
    MakeUser("Anna", "1");
    test.OpenDay("Anna");
    ChooseUser(program, UserNamed("Anna"));
    program.store.lst_categorien.Add("Bread.dat");
    FoodLine bread = kOats;
    bread.product = "Oat bread";
    bread.db = "Bread.dat";
    program.store.Default_list.Add(LineOf(bread));
    program.store.L_ochtend.Add(LineOf(kOats));
    program.store.L_middag.Add(LineOf(kOats));
    program.store.L_avond.Add(LineOf(bread));
    Check_Language_Files(program);
    program.settings[Setting::Combo_taal] = "English.lsf";
    WriteFileAnew(program.paths.ProgramPath + "servers.conf", "dutch = http://localhost:1\n");
    SaveSettings([](SettingsForm&) {});
  }

  void MakeUser(const Text& name, const Text& priority) {
    std::filesystem::create_directories(program.paths.ProgramPath);
    MakeUserFolders(program.paths, name);
    Rec_Profile profile;
    for (std::size_t i = 0; i < kProfileFieldsInUse; ++i) profile.strings[i] = "1";
    profile[ProfileField::name] = name;
    profile[ProfileField::type_prioriteit] = priority;
    WriteRecord(ProfileFile(program.paths, name), profile);
    Rec_DayFile day;
    day[DayFileField::Trend] = Packed("10|20|30|1|2|3|4|0.5|80.5|");
    day[DayFileField::Header] = Packed(name + "~~~~~1.80~80.5~Male~42~05-03-04~75~Friday~~~~");
    day[DayFileField::Morning] = LineOf(kOats) + kLineEnd;
    WriteRecord(UserFolder(program.paths, name) + "Files/day.kvf", day);
    day[DayFileField::Header] = Packed(name + "~~~~~1.80~80.5~Male~42~07-03-04~75~Sunday~~~~");
    WriteRecord(UserFolder(program.paths, name) + "Files/other day.kvf", day);
    FoodLine food = kOats;
    WriteRecord(CustomFile(program.paths, name), Rec_ListLine{{LineOf(food) + kLineEnd}});
    WriteRecord(FavoritesFile(program.paths, name), Rec_ListLine{{LineOf(food) + kLineEnd}});
  }

  // Makes a change in the settings dialog and saves it.
  template <class Change>
  void SaveSettings(Change change) {
    SettingsForm form = FormOfSettings(program);
    change(form);
    ASSERT_TRUE(Save_From_Form(program, form));
  }

  // Makes the change with every window open, and opens all windows anew. Those are open for the
  // next change.
  template <class Change>
  void ExpectFollowed(const char* what, Change change) {
    SCOPED_TRACE(what);
    if (windows == nullptr) windows = std::make_unique<Windows>(program);
    before = windows->Shown();
    change();
    windows->Settle();
    const QStringList followed = windows->Shown();
    windows.reset();
    windows = std::make_unique<Windows>(program);
    const QStringList expected = windows->Shown();
    changed = followed != before;
    ASSERT_EQ(followed.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i) {
      if (IsNutrientOfThePie(expected[i])) continue;
      EXPECT_EQ(followed[i].toStdString(), expected[i].toStdString());
    }
  }

  // The profile chooses the nutrient of the pie when the window opens; from then on its menu does.
  static bool IsNutrientOfThePie(const QString& line) {
    for (const char* heading : {"main panels/Pic_top5 accessible:", "main Pic_top5/lbl_soort:",
                                "main Pic_top5/Graph_pie accessible:"}) {
      if (line.startsWith(QLatin1String(heading)) && line.contains(": (")) return true;
    }
    return false;
  }

  TestProgram test;
  Program& program = test.program;
  std::unique_ptr<Windows> windows;
  QStringList before;
  bool changed = false;
};

TEST_F(FollowingSettings, EachSettingReachesEveryWindowAtOnce) {
  struct Case {
    const char* what;
    void (*change)(SettingsForm&);
    bool shows;  // whether any window shows it
  };
  for (const Case& row : {
           Case{"ounces", [](SettingsForm& f) { f.opt_gramoz = "1"; }, true},
           Case{"grams", [](SettingsForm& f) { f.opt_gramoz = "0"; }, true},
           Case{"imperial US", [](SettingsForm& f) { f.opt_system = "1"; }, true},
           Case{"imperial UK", [](SettingsForm& f) { f.opt_system = "2"; }, true},
           Case{"metric", [](SettingsForm& f) { f.opt_system = "0"; }, true},
           Case{"no internet", [](SettingsForm& f) { f.chk_internet = false; }, true},
           Case{"the internet", [](SettingsForm& f) { f.chk_internet = true; }, true},
           Case{"adding to it", [](SettingsForm& f) { f.chk_addinternet = true; }, true},
           Case{"the English server", [](SettingsForm& f) { f.opt_server = "1"; }, true},
           Case{"the Dutch server", [](SettingsForm& f) { f.opt_server = "0"; }, true},
           Case{"the profile pane", [](SettingsForm& f) { f.chk_profiel = !f.chk_profiel; }, true},
           Case{"large texts", [](SettingsForm& f) { f.chk_help = !f.chk_help; }, true},
           Case{"the wizard", [](SettingsForm& f) { f.chk_wiz = !f.chk_wiz; }, true},
           Case{"applying at once", [](SettingsForm& f) { f.chk_apply = !f.chk_apply; }, false},
           Case{"the export", [](SettingsForm& f) { f.chk_export = !f.chk_export; }, true},
           Case{"a printer", [](SettingsForm& f) { f.combo_printer = "Laser"; }, false},
       }) {
    ExpectFollowed(row.what, [&] { SaveSettings(row.change); });
    EXPECT_EQ(changed, row.shows) << row.what;
  }
}

TEST_F(FollowingSettings, TheLanguageReachesEveryWindowAtOnce) {
  for (const char* language : {"Nederlands.lsf", "English.lsf"}) {
    ExpectFollowed(language, [&] {
      SettingsForm form = FormOfSettings(program);
      TakeLanguage(program, form, language);
      ASSERT_TRUE(Save_From_Form(program, form));
    });
    EXPECT_TRUE(changed) << language;
  }
}

TEST_F(FollowingSettings, EachFieldOfTheProfileReachesEveryWindowAtOnce) {
  program.settings[Setting::chk_apply] = "1";
  struct Case {
    const char* what;
    Text DayForm::*part;
    const char* value;
    bool shows;
  };
  for (const Case& row : {
           Case{"kilojoules", &DayForm::type_prioriteit, "0", true},
           Case{"unsaturated fat", &DayForm::type_prioriteit, "2", true},
           Case{"saturated fat", &DayForm::type_prioriteit, "3", true},
           Case{"carbohydrates", &DayForm::type_prioriteit, "4", true},
           Case{"protein", &DayForm::type_prioriteit, "5", true},
           Case{"reference", &DayForm::pg_13, "R-2", true},
           Case{"height", &DayForm::pg_5, "1.90", true},
           Case{"weight", &DayForm::pg_6, "81", true},
           Case{"goal weight", &DayForm::pg_10, "71", true},
           Case{"gender", &DayForm::pg_7, "Female", true},
           Case{"age", &DayForm::pg_8, "43", true},
           Case{"city", &DayForm::pg_3, "Breda", false},
           Case{"target of kilojoules", &DayForm::txt_kj, "9500", false},
       }) {
    ExpectFollowed(row.what, [&] {
      DayEditing editing = OpenDayEditing(program);
      EditOpenDay(program, editing);
      editing.form.*row.part = row.value;
      ApplyAtOnce(program, editing);
    });
    // The form of an open day brings its other fields along, so something may show of any change.
    EXPECT_TRUE(changed || !row.shows) << row.what;
  }
}

TEST_F(FollowingSettings, WhatWasAppliedAtOnceIsTakenBackEverywhere) {
  program.settings[Setting::chk_apply] = "1";
  ExpectFollowed("taken back", [&] {
    DayEditing editing = OpenDayEditing(program);
    EditOpenDay(program, editing);
    editing.form.type_prioriteit = "4";
    ApplyAtOnce(program, editing);
    CancelDay(program, editing);
  });
  EXPECT_FALSE(changed);
}

TEST_F(FollowingSettings, AnotherUserReachesEveryWindowAtOnce) {
  ExpectFollowed("Bert", [&] {
    ChooseUser(program, UserNamed("Bert"));
    program.windows.browser->Refresh_Files();  // whoever switches the user does this
  });
  EXPECT_TRUE(changed);
}

}  // namespace
}  // namespace kelvora
