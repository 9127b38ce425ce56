// The windows around the start: the wizard and About, as a user meets them.
#include <gtest/gtest.h>
#include <memory>

#include <QTest>
#include <QTimer>

#include "core/frame/main_window.h"
#include "days/day_dialogs.h"
#include "days/popup_window.h"
#include "days/wizard_dialog.h"
#include "language/built_in_texts.h"
#include "storage/record_file.h"
#include "support/test_program.h"
#include "windows/find_in.h"

namespace kelvora {
namespace {

// Every visible label and button of an open window has room for its text.
void ExpectNothingClipped(const QWidget& window) {
  int seen = 0;
  for (const auto* label : window.findChildren<QLabel*>()) {
    if (!label->isVisible()) continue;
    ++seen;
    if (label->wordWrap()) {
      EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    } else {
      EXPECT_GE(label->width(), label->sizeHint().width()) << label->objectName().toStdString();
      EXPECT_GE(label->height(), label->sizeHint().height()) << label->objectName().toStdString();
    }
  }
  for (const auto* button : window.findChildren<QAbstractButton*>()) {
    if (!button->isVisible()) continue;
    ++seen;
    EXPECT_GE(button->width(), button->sizeHint().width()) << button->objectName().toStdString();
  }
  EXPECT_GE(seen, 8);
}

constexpr std::array kLanguages = {&Make_Taal_English, &Make_Taal_Dutch};

// A main window that can't open days, and notes the commands that it is given.
struct ChoosyCore : RecordingCore {
  std::vector<Command> given;
  bool CommandEnabled(Command command) const override { return command != Command::mnu_browse; }
  void GiveCommand(Command command) override { given.push_back(command); }
};

class WizardWindow : public testing::Test {
 protected:
  void Open() {
    dialog = std::make_unique<WizardDialog>(test.program, nullptr);
    dialog->show();
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  template <class Widget>
  Widget* Find(const char* name) {
    return FindIn<Widget>(*dialog, QLatin1String(name));
  }
  QString TextOf(const char* button) { return Find<QAbstractButton>(button)->text(); }
  void Click(const char* button) {
    auto* const found = Find<QAbstractButton>(button);
    // A radio button or a checkbox is hit at its mark, not in the empty space behind its words.
    QTest::mouseClick(found, Qt::LeftButton, {}, QPoint(10, found->height() / 2));
  }
  Text SavedTick() {
    if (!FileExists(test.program.paths.SettingsFile)) return "nothing saved";
    const auto saved = ReadFirstRecord<Rec_Settings>(test.program.paths.SettingsFile);
    return saved ? (*saved)[Setting::chk_wiz] : "no record";
  }

  TestProgram test;
  ChoosyCore choosy;
  std::unique_ptr<WizardDialog> dialog;
};

TEST_F(WizardWindow, ShowsItsTextsInBothLanguages) {
  Open();
  EXPECT_EQ(dialog->objectName(), "KV_wizzard");
  EXPECT_EQ(dialog->windowTitle(), "Kelvora FOOD wizard");
  EXPECT_EQ(Find<QLabel>("lbl_welcome")->text(),
            "Welcome to Kelvora FOOD, select an option below or press close to exit the wizard.");
  EXPECT_EQ(Find<QGroupBox>("frame_choice")->title(), "Make a choice:");
  EXPECT_EQ(TextOf("Option1"), "Start a new day");
  EXPECT_EQ(TextOf("Option2"), "Open a day");
  EXPECT_EQ(TextOf("Option3"), "Settings");
  EXPECT_EQ(TextOf("Option4"), "Manual (Help)");
  EXPECT_EQ(Find<QLabel>("lbl_1")->text(), "Start a new day and fill in your consumptions.");
  EXPECT_EQ(Find<QLabel>("lbl_4")->text(), "Start the manual of Kelvora FOOD");
  EXPECT_EQ(TextOf("chk_wiz"), "Show the start-up wizard when Kelvora starts.");
  EXPECT_EQ(TextOf("cmd_opslaan"), " OK ");
  EXPECT_EQ(Find<QWidget>("cmd_opslaan")->toolTip(), "Save changes and start selected");
  EXPECT_EQ(TextOf("cmd_annuleer"), "Close");
  EXPECT_EQ(Find<QWidget>("cmd_annuleer")->toolTip(), "Closes this window");
  for (const char* name : {"Pic_1", "Pic_2", "Pic_3", "Pic_4"}) {
    EXPECT_FALSE(Find<QLabel>(name)->pixmap().isNull()) << name;
  }
  Make_Taal_Dutch(test.program.texts);
  dialog->Set_Taal();
  EXPECT_EQ(dialog->windowTitle(), "Wizard van Kelvora FOOD");
  EXPECT_EQ(TextOf("Option2"), "Open een dag");
  EXPECT_EQ(TextOf("cmd_annuleer"), "Sluiten");
}

TEST_F(WizardWindow, EveryControlHasANameForAssistiveTools) {
  Open();
  for (const auto* button : dialog->findChildren<QAbstractButton*>()) {
    EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
  }
  EXPECT_EQ(Find<QWidget>("Option2")->accessibleDescription(),
            "Open an existing day to edit or view.");
}

TEST_F(WizardWindow, TheFirstOptionIsChosenAndTheTickIsThatOfTheSettings) {
  for (const char* setting : {"1", "0"}) {
    test.program.settings[Setting::chk_wiz] = setting;
    Open();
    EXPECT_EQ(Find<QCheckBox>("chk_wiz")->isChecked(), Text(setting) == "1");
    EXPECT_TRUE(Find<QAbstractButton>("Option1")->isChecked());
    EXPECT_TRUE(Find<QAbstractButton>("Option1")->hasFocus());
    for (const char* option : {"Option2", "Option3", "Option4"}) {
      EXPECT_FALSE(Find<QAbstractButton>(option)->isChecked()) << option;
    }
  }
}

TEST_F(WizardWindow, EnterAloneStartsANewDay) {
  Open();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(test.core.opened, std::vector<WindowId>{WindowId::day_settings});
}

// The picture, the caption, the line and what is empty behind them.
TEST_F(WizardWindow, TheWholeRowOfAnOptionChoosesIt) {
  Open();
  for (const int option : {3, 2, 4, 1}) {
    const QString number = QString::number(option);
    const auto* const button = FindIn<QAbstractButton>(*dialog, QStringLiteral("Option") + number);
    const QWidget* const row = button->parentWidget();
    auto* const other = Find<QAbstractButton>(option == 1 ? "Option2" : "Option1");
    const auto place_of = [&](const QString& name, QPoint inside) {
      return FindIn<QWidget>(*dialog, name + number)->mapTo(dialog.get(), inside);
    };
    for (const QPoint place :
         {row->mapTo(dialog.get(), QPoint(row->width() - 3, 3)),
          row->mapTo(dialog.get(), QPoint(2, row->height() - 3)),
          place_of(QStringLiteral("Pic_"), {5, 5}), place_of(QStringLiteral("lbl_"), {5, 5}),
          place_of(QStringLiteral("Option"), {button->width() - 2, 5})}) {
      other->setChecked(true);
      QWidget* const hit = dialog->childAt(place);
      ASSERT_NE(hit, nullptr);
      QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(dialog.get(), place));
      EXPECT_TRUE(button->isChecked()) << option << ": " << place.x() << ", " << place.y();
      EXPECT_FALSE(other->isChecked());
    }
  }
}

TEST_F(WizardWindow, OpensInTheMiddleOfTheScreen) {
  Open();
  const QPoint apart =
      dialog->frameGeometry().center() - dialog->screen()->availableGeometry().center();
  EXPECT_LE(apart.manhattanLength(), 4);
  // Over a main window that does not fill the screen: in the middle of that.
  QWidget main;
  main.setGeometry(200, 150, 700, 500);
  main.show();
  WizardDialog over(test.program, &main);
  over.show();
  QApplication::processEvents();
  EXPECT_LE((over.frameGeometry().center() - main.frameGeometry().center()).manhattanLength(), 4);
}

TEST_F(WizardWindow, AnOptionThatCannotBeGivenIsDisabledWithItsLine) {
  test.program.windows.core = &choosy;
  Open();
  for (const int option : {1, 2, 3, 4}) {
    const QString number = QString::number(option);
    const bool enabled = option != 2;
    EXPECT_EQ(FindIn<QWidget>(*dialog, QStringLiteral("Option") + number)->isEnabled(), enabled);
    EXPECT_EQ(FindIn<QWidget>(*dialog, QStringLiteral("lbl_") + number)->isEnabled(), enabled);
  }
}

// It stands in front of the menu that has this key.
TEST_F(WizardWindow, TheKeyThatEndsTheProgramReachesTheMainWindow) {
  test.program.windows.core = &choosy;
  Open();
  QTest::keyClick(dialog.get(), Qt::Key_Q, Qt::ControlModifier);
  EXPECT_EQ(choosy.given, std::vector<Command>{Command::mnu_bestand_sluiten});
}

// None can be chosen while none can be given.
TEST_F(WizardWindow, OkWithoutAnOptionSavesTheTickAndCloses) {
  test.program.windows.core = nullptr;
  Open();
  Click("chk_wiz");
  Click("cmd_opslaan");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(test.program.windows.wizard, nullptr);
  EXPECT_EQ(SavedTick(), "0");
  EXPECT_TRUE(test.core.opened.empty());
}

TEST_F(WizardWindow, CloseAndEscapeKeepTheOldSetting) {
  for (const bool escape : {false, true}) {
    Open();
    Click("chk_wiz");
    EXPECT_FALSE(Find<QCheckBox>("chk_wiz")->isChecked());
    if (escape) {
      QTest::keyClick(dialog.get(), Qt::Key_Escape);
    } else {
      Click("cmd_annuleer");
    }
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(test.program.windows.wizard, nullptr);
    EXPECT_EQ(test.program.settings[Setting::chk_wiz], "1");
    EXPECT_EQ(SavedTick(), "nothing saved");
  }
}

TEST_F(WizardWindow, TheKeyboardChoosesAnOptionAndEnterRunsIt) {
  Open();
  Find<QWidget>("Option1")->setFocus();
  QTest::keyClick(Find<QWidget>("Option1"), Qt::Key_Space);
  QTest::keyClick(Find<QWidget>("Option1"), Qt::Key_Down);
  EXPECT_TRUE(Find<QAbstractButton>("Option2")->isChecked());
  EXPECT_FALSE(Find<QAbstractButton>("Option1")->isChecked());
  QTest::keyClick(Find<QWidget>("Option2"), Qt::Key_Return);
  EXPECT_EQ(test.core.opened, std::vector<WindowId>{WindowId::browser});
}

TEST_F(WizardWindow, TheSettingsDialogMovesTheTick) {
  Open();
  test.program.windows.wizard->SetShowAtStart(false);
  EXPECT_FALSE(Find<QCheckBox>("chk_wiz")->isChecked());
  test.program.windows.wizard->SetShowAtStart(true);
  EXPECT_TRUE(Find<QCheckBox>("chk_wiz")->isChecked());
}

TEST_F(WizardWindow, NothingIsClippedInEitherLanguage) {
  for (const auto make : kLanguages) {
    make(test.program.texts);
    Open();
    QApplication::processEvents();
    EXPECT_LE(dialog->width(), 1000);
    EXPECT_LE(dialog->height(), 720);
    ExpectNothingClipped(*dialog);
  }
}

// Each window that takes over closes the wizard first, and the wizard is gone when it is done.
TEST_F(WizardWindow, TheDayDialogAndTheBrowserTakeOver) {
  MainWindow window(test.program);
  window.Set_Taal();
  window.show();
  for (const auto& [option, taking_over] :
       {std::pair{"Option1", "KV_bestand"}, std::pair{"Option2", "KV_browsefiles"}}) {
    bool wizard_was_modal = false, wizard_was_gone = false;
    QString came_up;
    QTimer::singleShot(0, [&, option = option] {
      QWidget* const wizard = QApplication::activeModalWidget();
      ASSERT_NE(wizard, nullptr);
      wizard_was_modal = wizard->objectName() == "KV_wizzard";
      FindIn<QAbstractButton>(*wizard, QLatin1String(option))->click();
      QTimer::singleShot(0, [&] {
        QWidget* const next = QApplication::activeModalWidget();
        ASSERT_NE(next, nullptr);
        came_up = next->objectName();
        wizard_was_gone = test.program.windows.wizard == nullptr;
        next->close();
      });
      FindIn<QAbstractButton>(*wizard, QStringLiteral("cmd_opslaan"))->click();
    });
    RunCommand(test.program, Command::mnu_startupwizzard);
    EXPECT_TRUE(wizard_was_modal);
    EXPECT_EQ(came_up, QLatin1String(taking_over));
    EXPECT_TRUE(wizard_was_gone);
    EXPECT_EQ(test.program.windows.wizard, nullptr);
  }
}

class AboutWindow : public testing::Test {
 protected:
  void Open() {
    dialog = std::make_unique<PopupWindow>(test.program, kAboutMode, nullptr);
    dialog->show();
    QApplication::processEvents();
    ASSERT_TRUE(dialog->isVisible());
  }
  QString Label(const char* name) { return FindIn<QLabel>(*dialog, QLatin1String(name))->text(); }

  TestProgram test;
  std::unique_ptr<PopupWindow> dialog;
};

TEST_F(AboutWindow, TellsVersionAndUseAndShowsNothingOfTheSplash) {
  test.program.settings[Setting::StartCount] = "17";
  Open();
  EXPECT_EQ(dialog->objectName(), "KV_popup");
  EXPECT_EQ(dialog->windowTitle(), "About Kelvora FOOD");
  EXPECT_EQ(dialog->size(), QSize(431, 383));
  EXPECT_EQ(Label("lbl_txt1"), "Version:");
  EXPECT_EQ(Label("lbl_nfo_1"), "2.24 (Started 17 times)");
  EXPECT_EQ(Label("lbl_txt6"), "Internet:");
  EXPECT_EQ(Label("lbl_nfo_4"), "Searched: 0 Submitted: 0");
  EXPECT_EQ(Label("lbl_type"), "2.24 FOOD");
  for (const char* name : {"lbl_txt1", "lbl_nfo_1", "lbl_txt6", "lbl_nfo_4", "lbl_type",
                           "Pic_dankwoord", "cmd_annuleer"}) {
    EXPECT_TRUE(FindIn<QWidget>(*dialog, QLatin1String(name))->isVisible()) << name;
  }
  EXPECT_FALSE(FindIn<QLabel>(*dialog, "Pic_dankwoord")->pixmap().isNull());
  EXPECT_FALSE(FindIn<QWidget>(*dialog, "loader")->isVisible());
  EXPECT_FALSE(FindIn<QWidget>(*dialog, "ProgressBar")->isVisible());
  for (int i = 1; i <= 5; ++i) {
    for (int state : {0, 1}) {
      const QString name = QStringLiteral("Loadpic_%1_%2").arg(i).arg(state);
      EXPECT_FALSE(FindIn<QWidget>(*dialog, name)->isVisible()) << name.toStdString();
    }
  }
  for (const auto* timer : dialog->findChildren<QTimer*>()) EXPECT_FALSE(timer->isActive());
}

TEST_F(AboutWindow, AClickADoubleClickTheButtonAndEscapeCloseIt) {
  Open();
  QTest::mouseClick(dialog.get(), Qt::LeftButton);
  EXPECT_FALSE(dialog->isVisible());
  Open();
  QTest::mouseDClick(dialog.get(), Qt::LeftButton);
  EXPECT_FALSE(dialog->isVisible());
  Open();
  QTest::mouseClick(FindIn<QLabel>(*dialog, "Pic_dankwoord"), Qt::LeftButton);
  EXPECT_FALSE(dialog->isVisible());
  Open();
  QTest::mouseClick(FindIn<QPushButton>(*dialog, "cmd_annuleer"), Qt::LeftButton);
  EXPECT_FALSE(dialog->isVisible());
  Open();
  QTest::keyClick(dialog.get(), Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(AboutWindow, NothingIsClippedInEitherLanguage) {
  test.program.settings[Setting::StartCount] = "100000";
  test.program.settings[Setting::SearchCount] = "100000";
  test.program.settings[Setting::SubmitCount] = "100000";
  for (const auto make : kLanguages) {
    make(test.program.texts);
    Open();
    ExpectNothingClipped(*dialog);
  }
}

TEST_F(AboutWindow, ComesUpModallyByItsCommand) {
  MainWindow window(test.program);
  window.Set_Taal();
  window.show();
  QString came_up;
  QTimer::singleShot(0, [&] {
    QWidget* const shown = QApplication::activeModalWidget();
    ASSERT_NE(shown, nullptr);
    came_up = shown->windowTitle();
    shown->close();
  });
  FindIn<QAction>(window, "mnu_about")->trigger();
  EXPECT_EQ(came_up, "About Kelvora FOOD");
}

}  // namespace
}  // namespace kelvora
