// What the tests of the dialog for a new food share: the open dialog, and hands that find its
// controls.
#pragma once

#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include "core/frame/commands.h"
#include "core/frame/main_window.h"
#include "food/new_food_dialog.h"
#include "language/built_in_texts.h"
#include "platform/qt/text.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/test_program.h"

namespace kelvora {

class NewFoodWindow : public testing::Test {
 protected:
  NewFoodWindow() {
    test.OpenDay("Anna");
    Stored(Setting::chk_addinternet) = "0";
  }

  void Open() {
    dialog = std::make_unique<NewFoodDialog>(test.program, nullptr);
    dialog->show();
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }

  template <class Widget = QWidget>
  Widget* Find(const QString& name) {
    Widget* const found = dialog->findChild<Widget*>(name);
    if (found == nullptr) throw std::runtime_error(name.toStdString());
    return found;
  }
  QString Shown(const char* box) { return Find<QLineEdit>(box)->text(); }
  QString Unit() { return Find<QComboBox>("combo_dEenheid")->currentText(); }
  // The seven calculated values, joined.
  QString Values(const char* stem) {
    QStringList values;
    for (std::size_t i = 0; i < FoodValue::kCount; ++i) {
      values << Find<QLineEdit>(QStringLiteral("%1_%2").arg(stem).arg(i))->text();
    }
    return values.join(' ');
  }
  // Types into a box in the place of what it holds, and stays there.
  void TypeOnly(const char* name, const QString& keys) {
    auto* const box = Find<QWidget>(name);
    box->setFocus();
    if (auto* const combo = qobject_cast<QComboBox*>(box)) {
      combo->lineEdit()->selectAll();
    } else {
      Find<QLineEdit>(name)->selectAll();
    }
    if (keys.isEmpty()) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
    QTest::keyClicks(QApplication::focusWidget(), keys);
  }
  void Type(const char* name, const QString& keys) {
    TypeOnly(name, keys);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  void Paste(const char* name, const QString& text) {
    QApplication::clipboard()->setText(text);
    auto* const box = Find<QLineEdit>(name);
    box->setFocus();
    box->clear();
    box->paste();
  }
  void Click(const char* button) {
    QTest::mouseClick(Find<QAbstractButton>(button), Qt::LeftButton, {}, QPoint(8, 8));
  }
  void FillIn(const char* name = "Soup") {
    Type("txt_s_0", "1000");
    Type("txt_s_1", "240");
    Type("txt_dNaam", name);
    Type("combo_dEenheid", "1 plate");
    Type("txt_dGram", "35");
  }
  void KnowAServer() { test.program.servers.submission = "http://localhost:1/"; }
  Text& Stored(Setting setting) { return test.program.settings[setting]; }
  const TextList& OwnList() { return test.program.store.Custom_list; }

  TestProgram test;
  std::unique_ptr<NewFoodDialog> dialog;
};

}  // namespace kelvora
