// What the tests of the settings dialog share: the open dialog, and hands that find its controls.
#pragma once

#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include "core/frame/commands.h"
#include "core/frame/main_window.h"
#include "days/day_dialogs.h"
#include "days/settings_dialog.h"
#include "language/language_file.h"
#include "language/main_texts.h"
#include "platform/qt/text.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/test_program.h"

namespace kelvora {

struct NotedWizard : WizardView {
  void CloseWindow() override {}
  void Set_Taal() override {}
  void SetShowAtStart(bool on) override { shown.push_back(on); }
  std::vector<bool> shown;
};

class SettingsWindow : public testing::Test {
 protected:
  SettingsWindow() {
    Check_Language_Files(test.program);
    LoadChosenLanguage(test.program);
    test.printers.names = {"Laser", "Ink"};
  }

  void Open() {
    dialog = std::make_unique<SettingsDialog>(test.program, nullptr);
    dialog->show();
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  void OpenInLanguage(const char* file) {
    test.program.settings[Setting::Combo_taal] = file;
    LoadChosenLanguage(test.program);
    Open();
  }

  template <class Widget = QWidget>
  Widget* Find(const char* name) {
    Widget* const found = dialog->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(name);
    return found;
  }
  void ShowPageOf(const QWidget* control) {
    auto* const tabs = Find<QTabWidget>("TabStrip1");
    for (int i = 0; i < tabs->count(); ++i) {
      if (tabs->widget(i)->isAncestorOf(control)) tabs->setCurrentIndex(i);
    }
  }
  // Clicks where a button has its words.
  void Click(const char* name) {
    auto* const button = Find<QAbstractButton>(name);
    ShowPageOf(button);
    ASSERT_TRUE(button->isVisible()) << name;
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, button->height() / 2));
  }
  void Choose(const char* list, const char* entry) {
    auto* const combo = Find<QComboBox>(list);
    combo->setFocus();
    const int steps = combo->findText(entry) - combo->currentIndex();
    for (int i = 0; i < std::abs(steps); ++i) {
      QTest::keyClick(combo, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
    }
    ASSERT_EQ(combo->currentText(), entry);
  }
  bool Ticked(const char* name) { return Find<QAbstractButton>(name)->isChecked(); }
  bool Enabled(const char* name) { return Find(name)->isEnabled(); }
  QString Words(const char* name) { return Find<QAbstractButton>(name)->text(); }
  QString Label(const char* name) { return Find<QLabel>(name)->text(); }
  Text& Stored(Setting setting) { return test.program.settings[setting]; }
  bool Saved() { return FileExists(test.program.paths.SettingsFile); }

  TestProgram test;
  std::unique_ptr<SettingsDialog> dialog;
};

}  // namespace kelvora
