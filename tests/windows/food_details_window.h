// What the tests of the food details share: the open dialog, and hands that find its controls.
#pragma once

#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <QTimer>

#include "food/food_details_dialog.h"
#include "language/built_in_texts.h"
#include "platform/qt/text.h"
#include "storage/folders.h"
#include "support/test_program.h"

namespace kelvora {

inline const Text kBread = LineOf({.product = "Bread",
                                   .unit = "2 slices",
                                   .gram = "50",
                                   .kj = "500",
                                   .kcal = "120",
                                   .protein = "4",
                                   .fat_u = "1",
                                   .fat_s = "0.5",
                                   .carbs = "22.5",
                                   .sodium = "0.2",
                                   .group = "Bakery",
                                   .remark = "Brood",
                                   .db = "5.dat"});

inline constexpr std::array kPortionNames = {"bVar_3", "bVar_4", "bVar_5", "bVar_6",
                                             "bVar_7", "bVar_8", "bVar_9"};
inline constexpr std::array kPer100Names = {"oVar_0", "oVar_1", "oVar_2", "oVar_3",
                                            "oVar_4", "oVar_5", "oVar_6"};
inline constexpr std::array kDescriptionNames = {"bVar_0", "bVar_1", "bVar_10", "bVar_11"};

class FoodDetailsWindow : public testing::Test {
 protected:
  FoodDetailsWindow() {
    MakeUserFolders(test.program.paths, "Anna");
    SetCurrentUser(test.program, "Anna");
  }

  void Open(std::string_view line = kBread, std::string_view tag = "zoeken") {
    dialog = std::make_unique<FoodDetailsDialog>(test.program, tag, line, nullptr);
    dialog->show();
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  void OpenInDutch() {
    Make_Taal_Dutch(test.program.texts);
    test.locale.separator = test.program.StartSeparator = ",";
    Open();
  }
  void OpenForEditing() {
    Open();
    ShowTab(1);
    Click("cmd_bewerk");
  }

  template <class Widget = QWidget>
  Widget* Find(const char* name) {
    Widget* const found = dialog->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(name);
    return found;
  }
  QLineEdit* Box(const char* name) { return Find<QLineEdit>(name); }
  template <std::size_t N>
  QStringList Texts(const std::array<const char*, N>& names) {
    QStringList texts;
    for (const char* name : names) texts << Box(name)->text();
    return texts;
  }
  QString Label(const char* name) { return Find<QLabel>(name)->text(); }
  QString Words(const char* name) { return Find<QAbstractButton>(name)->text(); }
  bool Enabled(const char* name) { return Find(name)->isEnabled(); }
  void ShowTab(int tab) {
    auto* const bar = Find<QTabWidget>("TabStrip")->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
  }
  void Click(const char* button) {
    QTest::mouseClick(Find<QAbstractButton>(button), Qt::LeftButton, {}, QPoint(8, 10));
  }
  // Types into a box in the place of what it holds, and leaves it.
  void Type(const char* name, const QString& keys) {
    Box(name)->setFocus();
    Box(name)->selectAll();
    keys.isEmpty() ? QTest::keyClick(Box(name), Qt::Key_Delete) : QTest::keyClicks(Box(name), keys);
    QTest::keyClick(Box(name), Qt::Key_Tab);
  }
  void Paste(const char* name, const QString& text) {
    QApplication::clipboard()->setText(text);
    Box(name)->setFocus();
    Box(name)->selectAll();
    Box(name)->paste();
  }
  Text Said() { return test.boxes.shown.empty() ? Text() : test.boxes.shown.back().text; }
  TextList& Own() { return test.program.store.Custom_list; }

  TestProgram test;
  std::unique_ptr<FoodDetailsDialog> dialog;
};

}  // namespace kelvora
