// Whether every text that a window shows comes from the text tables: a language file in which each
// entry is its own place in the tables is chosen, and then nothing else may be seen.
#include <gtest/gtest.h>
#include <set>

#include <QLabel>
#include <QRegularExpression>
#include <QTest>

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
#include "food/new_food_dialog.h"
#include "food/other_amount_dialog.h"
#include "internet/update_window.h"
#include "keeping/backup_dialog.h"
#include "language/choose_language.h"
#include "language/language_file.h"
#include "language/own_texts.h"
#include "output/export_dialog.h"
#include "platform/qt/text.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/profile_file.h"
#include "support/test_program.h"
#include "windows/carrying_windows.h"
#include "windows/days_read.h"
#include "windows/shown_texts.h"
#include "windows/written_days.h"

namespace kelvora {
namespace {

constexpr std::array kTableNames = {
    "sections", "properties",  "main",     "new_food",  "export_form", "popup",  "day_settings",
    "browse",   "day_summary", "food",     "update",    "lists",       "diary",  "trend",
    "compare",  "wizard",      "evening",  "afternoon", "morning",     "common", "print",
    "export",   "reserved",    "messages", "empty",     "info"};

// Fills every entry with its own place: "main[3]" with "[]" as brackets.
TextTables NumberedTexts(std::string_view brackets) {
  TextTables texts;
  for (std::size_t table = 0; table < kTextTableCount; ++table) {
    for (std::size_t index = 0; index < 201; ++index) {
      texts.entries[table][index] =
          kTableNames[table] + Text(1, brackets[0]) + std::to_string(index) + Text(1, brackets[1]);
    }
  }
  for (int id = 0; id < kOwnTextCount; ++id) {
    texts.own.push_back(Text("own") + brackets[0] + std::to_string(id) + brackets[1]);
  }
  return texts;
}

// What of a text does not come from the tables; the data of these tests is numbers only.
QString Foreign(QString text, const char* token) {
  text.remove(QLatin1Char('&'));  // the keyboard letter of a menu
  // The keys behind a tip are worded by the toolkit.
  text.remove(QRegularExpression(QStringLiteral(" \\(((Ctrl|Alt)\\+)?[A-Z]?\\d*\\)$")));
  text.remove(QRegularExpression(QLatin1String(token)));
  text.remove(QRegularExpression(QStringLiteral("[0-9\\s&:;.,/()'+=-]")));
  return text;
}
constexpr const char* kSquare = "[a-z_]+\\[\\d+\\]";
constexpr const char* kCurly = "[a-z_]+\\{\\d+\\}";

// The words that a window writes around a number by itself, as it is meant to.
bool IsUnitOfATotal(const Shown& shown, const char* token) {
  static const std::set<QString> kUnits = {QStringLiteral("KjKcal"), QStringLiteral("g")};
  return shown.where.startsWith(QStringLiteral("lbl_nfo_")) &&
         kUnits.contains(Foreign(shown.text, token));
}
bool IsShareOfABar(const Shown& shown) {
  return shown.where.startsWith(QStringLiteral("pBar_")) &&
         Foreign(shown.text, kSquare) == QStringLiteral("[%]");
}
bool IsPartOfTheDaySummary(const Shown& shown) {
  static const std::set<QString> kParts = {QStringLiteral("Pic_gt_"), QStringLiteral("pic_g_"),
                                           QStringLiteral("Pic_Behoefte")};
  const auto holds = [&](const QString& part) { return shown.where.startsWith(part); };
  return std::ranges::any_of(kParts, holds) &&
         Foreign(shown.text, kSquare).remove('%').remove(QRegularExpression(kCurly)).isEmpty();
}
bool IsNameOfTheProgram(const Shown& shown) {
  return shown.text.startsWith(QStringLiteral("Kelvora FOOD"));
}

// Each text is made of table entries and numbers; returns how many were looked at.
std::size_t ExpectFromTables(const QWidget& root, const char* token) {
  const auto shown = AllTexts(root);
  for (const Shown& one : shown) {
    if (IsUnitOfATotal(one, token) || IsShareOfABar(one) || IsPartOfTheDaySummary(one) ||
        IsNameOfTheProgram(one))
      continue;
    EXPECT_EQ(Foreign(one.text, token).toStdString(), "")
        << one.where.toStdString() << ": " << one.text.toStdString();
  }
  return shown.size();
}

class WindowTexts : public testing::Test {
 protected:
  WindowTexts() {
    Choose("square.lsf", "[]");
    program.store.lst_categorien.Add("5.dat");
    program.store.Default_list.Add(Packed("1|2|3|4|5|6|7|8|9|10|11|12|5.dat|"));
    program.profile[ProfileField::name] = "7";
    program.profile[ProfileField::type_prioriteit] = "1";
    program.profile[ProfileField::gender] = program.texts[{TextTable::taal_day_settings, 0}];
    window.resize(1024, 748);
    window.show();
  }

  void Choose(const char* file, std::string_view brackets) {
    program.texts = NumberedTexts(brackets);
    Save_Language_File(program, program.paths.LanguagePath + file);
    program.texts = {};
    ChooseLanguage(program, file);
  }

  void OpenDay() {
    test.OpenDay("7");
    program.store.L_gegevens.Replace(HeaderRow::kGender, "0");
    program.store.L_gegevens.Replace(HeaderRow::kWeekday, "1");
    program.store.L_ochtend.Add(program.store.Default_list[0]);
    SaveDay(program);
    Save_Profile(program, ProfileFile(program.paths, "7"));
    WriteDays(program, 2);
    ApplyChosenArrangement(program);
    window.OpenWindow(WindowId::diary);
    window.OpenWindow(WindowId::day_summary);
    window.OpenWindow(WindowId::comparison);
    program.windows.comparison->TakeFood(CompareBox::first,
                                         "add-" + Text(program.store.Default_list[0]) + "\xBE");
    window.OpenWindow(WindowId::multi_day);
    window.UpdateCommands();
    window.UpdateStatusBar();
    EXPECT_TRUE(DaysAreRead(window));
  }

  TestProgram test;
  Program& program = test.program;
  MainWindow window{test.program};
};

TEST_F(WindowTexts, TheMainWindowAndItsChildWindowsShowNothingOfTheirOwn) {
  EXPECT_GT(ExpectFromTables(window, kSquare), 100u);
  OpenDay();
  EXPECT_GT(ExpectFromTables(window, kSquare), 200u);
}

TEST_F(WindowTexts, AnotherLanguageReachesEveryTextOfTheOpenWindows) {
  OpenDay();
  Choose("curly.lsf", "{}");
  QApplication::processEvents();
  EXPECT_GT(ExpectFromTables(window, kCurly), 200u);
}

TEST_F(WindowTexts, TheDialogsShowNothingOfTheirOwn) {
  OpenDay();
  for (const auto mode : {DayDialogMode::new_day, DayDialogMode::day_settings}) {
    for (const char* system : {"0", "1", "2"}) {
      program.day.DayDialogMode = mode;
      program.settings[Setting::opt_system] = system;
      const DaySettingsDialog day_settings(program, nullptr);
      EXPECT_GT(ExpectFromTables(day_settings, kSquare), 110u);
    }
  }
  program.settings[Setting::opt_system] = "0";
  BrowserDialog browser(program, nullptr);
  browser.Open();
  EXPECT_GT(ExpectFromTables(browser, kSquare), 35u);
  ExportDaysDialog days_to_export(program, nullptr);
  days_to_export.Open();
  EXPECT_GT(ExpectFromTables(days_to_export, kSquare), 20u);
  const TakeOverDialog other_days(program, std::nullopt, {}, nullptr);
  EXPECT_GT(ExpectFromTables(other_days, kSquare), 10u);
  const BackupDialog backup(program, nullptr);
  EXPECT_GT(ExpectFromTables(backup, kSquare), 6u);
  const auto restore = ReadBackupWindow(program, BackupOfAll(program));
  FindIn<QLabel>(*restore, QStringLiteral("lbl_file"))->clear();  // a path
  EXPECT_GT(ExpectFromTables(*restore, kSquare), 12u);
  const SettingsDialog settings(program, nullptr);
  EXPECT_GT(ExpectFromTables(settings, kSquare), 60u);
  const WizardDialog wizard(program, nullptr);
  EXPECT_GT(ExpectFromTables(wizard, kSquare), 20u);
  const FoodDetailsDialog details(program, "zoeken", program.store.Default_list[0], nullptr);
  EXPECT_GT(ExpectFromTables(details, kSquare), 60u);
  const PopupWindow about(program, kAboutMode, nullptr);
  EXPECT_GT(ExpectFromTables(about, kSquare), 8u);
  const NewFoodDialog new_food(program, nullptr);
  EXPECT_GT(ExpectFromTables(new_food, kSquare), 80u);
  const OtherAmountDialog amount(program, "1", "2", {}, nullptr);
  EXPECT_GT(ExpectFromTables(amount, kSquare), 6u);
  const FoodImportDialog food_import(program, nullptr);
  EXPECT_GT(ExpectFromTables(food_import, kSquare), 60u);
  const UpdateWindow update(program, UpdateMode::shown, nullptr);
  EXPECT_GT(ExpectFromTables(update, kSquare), 7u);
}

TEST_F(WindowTexts, TheSplashShowsNothingOfItsOwnWhileItRuns) {
  PopupWindow splash(program, kSplashMode, nullptr);
  auto* const ticks = splash.findChild<QTimer*>(QStringLiteral("Timer2"));
  ASSERT_NE(ticks, nullptr);
  auto* const loader = splash.findChild<QLabel*>(QStringLiteral("loader"));
  std::set<QString> told;
  for (int i = 0; i < 12; ++i) {
    QMetaObject::invokeMethod(ticks, "timeout");
    told.insert(loader->text());
    EXPECT_GT(ExpectFromTables(splash, kSquare), 5u);
  }
  EXPECT_EQ(told.size(), 5u);
}

TEST_F(WindowTexts, AnotherLanguageReachesEveryTextOfTheOpenSettings) {
  const SettingsDialog settings(program, nullptr);
  Choose("curly.lsf", "{}");
  EXPECT_GT(ExpectFromTables(settings, kCurly), 60u);
}

// A window with a word of its own is what these tests are there to find.
TEST_F(WindowTexts, AWordOfAWindowsOwnIsFound) {
  QLabel label(QStringLiteral("Total: main[3] 12"));
  label.setObjectName(QStringLiteral("lbl_total"));
  const auto shown = AllTexts(label);
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(Foreign(shown[0].text, kSquare), QStringLiteral("Total"));
}

}  // namespace
}  // namespace kelvora
