// The settings as a user meets them: through names, keys and clicks.
#include "windows/settings_window.h"

namespace kelvora {
namespace {

TEST_F(SettingsWindow, ShowsItsPagesGroupsAndControlsInEnglish) {
  Open();
  EXPECT_EQ(test.program.windows.properties, dialog.get());
  EXPECT_EQ(dialog->windowTitle(), "Kelvora FOOD settings");
  EXPECT_EQ(Label("lbl_info"),
            "Here you'll find all the important settings of Kelvora FOOD. Press the save button "
            "after changing the settings.");
  auto* const tabs = Find<QTabWidget>("TabStrip1");
  ASSERT_EQ(tabs->count(), 3);
  EXPECT_EQ(tabs->currentIndex(), 0);
  EXPECT_EQ(tabs->tabText(0) + "|" + tabs->tabText(1) + "|" + tabs->tabText(2),
            "General settings|Display|Internet");
  EXPECT_EQ(tabs->tabToolTip(0) + "|" + tabs->tabToolTip(1) + "|" + tabs->tabToolTip(2),
            "General settings|Display and system|Internet options");

  QStringList groups;
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(tabs->widget(i)->objectName(), QStringLiteral("ChoiceFrame_%1").arg(i + 1));
    for (const auto* group : tabs->widget(i)->findChildren<QGroupBox*>()) groups << group->title();
  }
  EXPECT_EQ(groups.join('|'),
            "Startup settings:|Language and printer:|Select an (empty) folder for user data:|"
            "Display options:|Metric or Imperial (US\\UK):|Display food items:|"
            "Internet:|Food item internet server:");

  struct Row {
    int page;
    const char* name;
    const char* words;
  };
  for (const Row& row : {
           Row{0, "chk_wiz", "Show the start-up wizard when Kelvora starts."},
           Row{0, "chk_profiel", "Display user profile while browsing files."},
           Row{0, "cmd_reset", "Reset all language files"},
           Row{0, "chk_map", "Select a folder (other then default) to save user data."},
           Row{0, "cmd_browse", "Browse ..."},
           Row{1, "chk_apply", "Apply profile changes automatically."},
           Row{1, "chk_export", "Close export window (HTML\\XML\\DTA) automatically."},
           Row{1, "chk_all_screens", "Dispay summary of day below fooditem list."},
           Row{1, "chk_help", "Display help buttons and text under icons."},
           Row{1, "opt_system_0", "Metric (Kilogram, meters, dd-mm-yy)"},
           Row{1, "opt_system_1", "Imperial US (Lbs, Feet and inches, mm-dd-yy)"},
           Row{1, "opt_system_2", "Imperial UK (Stones, Feet and inches, dd-mm-yy)"},
           Row{1, "opt_gramoz_0", "Display food weight in grams."},
           Row{1, "opt_gramoz_1", "Display food weight in oz (converted)."},
           Row{2, "chk_internet", "Yes, I want to use the internet food item databases."},
           Row{2, "chk_addinternet", "Add new food items (also) to the internet database."},
           Row{2, "opt_server_0", "Etenlijn (The Netherlands)"},
           Row{2, "opt_server_1", "Bitewell (United Kingdom)"},
       }) {
    EXPECT_EQ(Words(row.name), row.words);
    EXPECT_TRUE(tabs->widget(row.page)->isAncestorOf(Find(row.name))) << row.name;
    EXPECT_FALSE(Find(row.name)->accessibleName().isEmpty()) << row.name;
  }
  EXPECT_EQ(Label("lbl_Combo_taal"), "Select a language:");
  EXPECT_EQ(Label("lbl_combo_printer"), "Select a printer:");
  EXPECT_EQ(Label("lbl_folder"), "Select a folder to save all user data.");
  for (const char* name : {"TabStrip1", "Combo_taal", "combo_printer", "txt_map"}) {
    EXPECT_FALSE(Find(name)->accessibleName().isEmpty()) << name;
  }
  EXPECT_EQ(Find("Combo_taal")->accessibleName(), "Select a language:");
  EXPECT_EQ(Find("combo_printer")->accessibleName(), "Select a printer:");
  EXPECT_EQ(Words("cmd_opslaan"), "Save");
  EXPECT_EQ(Find("cmd_opslaan")->toolTip(), "Save settings and check for newer version");
  EXPECT_EQ(Words("cmd_annuleer"), "Cancel");
  EXPECT_EQ(Find("cmd_annuleer")->toolTip(), "Cancel, close this window");
}

TEST_F(SettingsWindow, ShowsTheSettingsOfTheMoment) {
  Stored(Setting::chk_profiel) = "0";
  Stored(Setting::opt_system) = "2";
  Stored(Setting::opt_gramoz) = "1";
  Stored(Setting::combo_printer) = "Ink";
  Stored(Setting::txt_map) = "/data/Zo\xEB/";
  Stored(Setting::chk_all_screens) = "1";
  Open();
  EXPECT_TRUE(Ticked("chk_wiz"));
  EXPECT_FALSE(Ticked("chk_profiel"));
  EXPECT_TRUE(Ticked("chk_all_screens"));
  EXPECT_TRUE(Ticked("opt_system_2"));
  EXPECT_FALSE(Ticked("opt_system_0"));
  EXPECT_TRUE(Ticked("opt_gramoz_1"));
  EXPECT_TRUE(Ticked("opt_server_0"));
  EXPECT_EQ(Find<QComboBox>("Combo_taal")->currentText(), "default.lsf");
  EXPECT_EQ(Find<QComboBox>("Combo_taal")->count(), 3);
  EXPECT_EQ(Find<QComboBox>("combo_printer")->currentText(), "Ink");
  EXPECT_EQ(Find<QLineEdit>("txt_map")->text(), QString::fromUtf8("/data/Zoë/"));
  EXPECT_FALSE(Enabled("cmd_browse"));
}

TEST_F(SettingsWindow, WithoutAChosenPrinterNoneIsSelected) {
  Open();
  EXPECT_EQ(Find<QComboBox>("combo_printer")->currentIndex(), -1);
  EXPECT_EQ(Find<QComboBox>("combo_printer")->count(), 2);
  EXPECT_EQ(Find<QComboBox>("combo_printer")->placeholderText(), "No printer has been chosen yet.");
  EXPECT_TRUE(Enabled("combo_printer"));
}

TEST_F(SettingsWindow, AComputerWithoutPrintersSaysSo) {
  test.printers.names.clear();
  Open();
  EXPECT_EQ(Find<QComboBox>("combo_printer")->count(), 0);
  EXPECT_EQ(Find<QComboBox>("combo_printer")->placeholderText(),
            "There is no printer on this computer.");
}

// The chosen printer stays, whatever becomes of the list.
TEST_F(SettingsWindow, PrintersThatCantBeListedAreToldAndTheChosenOneStays) {
  Stored(Setting::combo_printer) = "Ink";
  test.printers.no_names =
      std::make_exception_ptr(std::system_error(std::make_error_code(std::errc::timed_out)));
  Open();
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nConnection timed out\nBrelux CODE:#F8-3");
  EXPECT_EQ(Find<QComboBox>("combo_printer")->count(), 1);
  EXPECT_EQ(Find<QComboBox>("combo_printer")->currentText(), "Ink");
}

TEST_F(SettingsWindow, EveryTickAndOptionIsSaved) {
  struct Row {
    const char* name;
    Setting setting;
    const char* saved;
  };
  // Each is clicked once; the defaults stand in the other state.
  for (const Row& row : {
           Row{"chk_wiz", Setting::chk_wiz, "0"},
           Row{"chk_profiel", Setting::chk_profiel, "0"},
           Row{"chk_apply", Setting::chk_apply, "0"},
           Row{"chk_export", Setting::chk_export, "0"},
           Row{"chk_all_screens", Setting::chk_all_screens, "1"},
           Row{"chk_help", Setting::chk_help, "0"},
           Row{"opt_system_1", Setting::opt_system, "1"},
           Row{"opt_system_2", Setting::opt_system, "2"},
           Row{"opt_system_0", Setting::opt_system, "0"},
           Row{"opt_gramoz_1", Setting::opt_gramoz, "1"},
           Row{"opt_gramoz_0", Setting::opt_gramoz, "0"},
           Row{"opt_server_1", Setting::opt_server, "1"},
           Row{"opt_server_0", Setting::opt_server, "0"},
           Row{"chk_addinternet", Setting::chk_addinternet, "0"},
           Row{"chk_internet", Setting::chk_internet, "0"},
       }) {
    Open();
    Click(row.name);
    Click("cmd_opslaan");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(Stored(row.setting), row.saved) << row.name;
    const auto file = ReadFirstRecord<Rec_Settings>(test.program.paths.SettingsFile);
    EXPECT_EQ(file, test.program.settings) << row.name;
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(SettingsWindow, OptionsAndTicksFollowTheKeyboard) {
  Open();
  auto* const wizard = Find<QCheckBox>("chk_wiz");
  EXPECT_TRUE(wizard->hasFocus());
  QTest::keyClick(wizard, Qt::Key_Space);
  Find<QTabWidget>("TabStrip1")->setCurrentIndex(1);
  Find("opt_system_0")->setFocus();
  QTest::keyClick(Find("opt_system_0"), Qt::Key_Down);
  EXPECT_TRUE(Ticked("opt_system_1"));
  QTest::keyClick(Find("opt_system_1"), Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(Stored(Setting::chk_wiz), "0");
  EXPECT_EQ(Stored(Setting::opt_system), "1");
}

TEST_F(SettingsWindow, ThePrinterIsSaved) {
  Open();
  Choose("combo_printer", "Ink");
  Click("cmd_opslaan");
  EXPECT_EQ(Stored(Setting::combo_printer), "Ink");
}

TEST_F(SettingsWindow, WithoutTheInternetItsControlsAreOutOfReach) {
  Open();
  Click("chk_internet");
  EXPECT_FALSE(Ticked("chk_addinternet"));
  EXPECT_FALSE(Enabled("chk_addinternet") || Enabled("opt_server_0") || Enabled("opt_server_1"));
  Click("chk_internet");
  EXPECT_FALSE(Ticked("chk_addinternet"));
  EXPECT_TRUE(Enabled("chk_addinternet") && Enabled("opt_server_0") && Enabled("opt_server_1"));
  Click("chk_internet");
  Click("cmd_opslaan");
  Open();
  EXPECT_FALSE(Ticked("chk_internet"));
  EXPECT_FALSE(Enabled("chk_addinternet") || Enabled("opt_server_0") || Enabled("opt_server_1"));
}

TEST_F(SettingsWindow, AnotherFolderIsBrowsedForAndNotTyped) {
  Open();
  Click("chk_map");
  EXPECT_TRUE(Enabled("cmd_browse"));
  auto* const folder = Find<QLineEdit>("txt_map");
  QTest::keyClicks(folder, "/tmp");
  EXPECT_EQ(folder->text(), "");
  Click("cmd_opslaan");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(Saved());
  EXPECT_TRUE(folder->hasFocus());

  test.folder_chooser.answer = test.folders.home.Path("My Data");
  Click("cmd_browse");
  EXPECT_EQ(folder->text(), ToQt(test.folders.home.Path("My Data/")));
  Click("cmd_opslaan");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(test.program.paths.UsersPath, test.folders.home.Path("My Data/"));

  Open();
  EXPECT_TRUE(Enabled("cmd_browse"));
  Click("chk_map");
  EXPECT_FALSE(Enabled("cmd_browse"));
}

TEST_F(SettingsWindow, ALanguageTakesEffectOnSight) {
  Open();
  Choose("Combo_taal", "Nederlands.lsf");
  EXPECT_EQ(dialog->windowTitle(), "Instellingen van Kelvora FOOD");
  EXPECT_EQ(Words("cmd_opslaan"), "Opslaan");
  EXPECT_EQ(Label("lbl_Combo_taal"), "Kies een taal:");
  EXPECT_EQ(Find<QTabWidget>("TabStrip1")->tabText(1), "Weergave");
  EXPECT_EQ(Words("opt_server_1"), "Bitewell (Verenigd Koninkrijk)");
  EXPECT_EQ(Stored(Setting::Combo_taal), "Nederlands.lsf");
  EXPECT_FALSE(Saved());
  Click("cmd_annuleer");
  EXPECT_EQ(test.program.texts[main_text::kFile], "Bestand");
  EXPECT_FALSE(Saved());
}

TEST_F(SettingsWindow, LettersChooseNoLanguage) {
  Open();
  auto* const list = Find<QComboBox>("Combo_taal");
  list->setFocus();
  QTest::keyClicks(list, "Ned");
  EXPECT_EQ(list->currentText(), "default.lsf");
  EXPECT_EQ(dialog->windowTitle(), "Kelvora FOOD settings");
}

TEST_F(SettingsWindow, AResetMakesTheLanguageFilesAnewAndFillsTheList) {
  Open();
  std::remove((test.program.paths.LanguagePath + "English.lsf").c_str());
  WriteFileAnew(test.program.paths.LanguagePath + "My own.lsf", "");
  test.boxes.answers = {BoxAnswer::yes};
  Click("cmd_reset");
  EXPECT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(FileExists(test.program.paths.LanguagePath + "English.lsf"));
  auto* const list = Find<QComboBox>("Combo_taal");
  EXPECT_EQ(list->count(), 4);
  EXPECT_EQ(list->itemText(2), "My own.lsf");
  EXPECT_EQ(list->currentText(), "default.lsf");
}

TEST_F(SettingsWindow, TheHelpTextsAndAnOpenWizardFollowOnSight) {
  NotedWizard wizard;
  test.program.windows.wizard = &wizard;
  Open();
  EXPECT_TRUE(wizard.shown.empty());
  EXPECT_EQ(test.core.toolbar_texts_set, 0);
  Click("chk_wiz");
  Click("chk_help");
  EXPECT_EQ(wizard.shown, std::vector<bool>{false});
  EXPECT_EQ(test.core.toolbar_texts_set, 1);
  EXPECT_EQ(Stored(Setting::chk_help), "0");
  EXPECT_EQ(Stored(Setting::chk_wiz), "1");
  Click("cmd_annuleer");
  EXPECT_EQ(Stored(Setting::chk_help), "0");
  EXPECT_EQ(Stored(Setting::chk_wiz), "1");
  EXPECT_FALSE(Saved());
}

TEST_F(SettingsWindow, CancelAndEscapeCopyNothing) {
  const Rec_Settings before = test.program.settings;
  for (const bool escape : {false, true}) {
    Open();
    for (const char* name : {"chk_profiel", "chk_map", "opt_system_1", "chk_internet"}) Click(name);
    Choose("combo_printer", "Ink");
    if (escape) {
      QTest::keyClick(dialog.get(), Qt::Key_Escape);
    } else {
      Click("cmd_annuleer");
    }
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(test.program.windows.properties, nullptr);
    EXPECT_EQ(test.program.settings, before);
    EXPECT_FALSE(Saved());
  }
}

TEST_F(SettingsWindow, TabGoesInReadingOrder) {
  Open();
  Click("chk_map");
  const std::array<QString, 3> expected = {
      "chk_wiz chk_profiel Combo_taal cmd_reset combo_printer chk_map txt_map cmd_browse "
      "cmd_opslaan cmd_annuleer",
      "chk_apply chk_export chk_all_screens chk_help opt_system_0 opt_gramoz_0 "
      "cmd_opslaan cmd_annuleer",
      "chk_internet chk_addinternet opt_server_0 cmd_opslaan cmd_annuleer"};
  const std::array first = {"chk_wiz", "chk_apply", "chk_internet"};
  for (std::size_t page = 0; page < expected.size(); ++page) {
    Find<QTabWidget>("TabStrip1")->setCurrentIndex(static_cast<int>(page));
    Find(first[page])->setFocus();
    QStringList order;
    for (int i = 0; i <= expected[page].count(' '); ++i) {
      order << QApplication::focusWidget()->objectName();
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order.join(' '), expected[page]);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "qt_tabwidget_tabbar");
  }
}

TEST_F(SettingsWindow, NothingIsClippedInEitherLanguage) {
  test.printers.names.clear();  // the words for that take the most room
  for (const char* file : {"English.lsf", "Nederlands.lsf"}) {
    OpenInLanguage(file);
    int seen = 0;
    for (int page = 0; page < 3; ++page) {
      Find<QTabWidget>("TabStrip1")->setCurrentIndex(page);
      QApplication::processEvents();
      EXPECT_LE(dialog->width(), 1000);
      EXPECT_LE(dialog->height(), 720);
      for (const auto* label : dialog->findChildren<QLabel*>()) {
        if (!label->isVisible()) continue;
        ++seen;
        if (label->wordWrap()) {
          EXPECT_GE(label->height(), label->heightForWidth(label->width()));
        } else {
          EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
        }
      }
      for (const auto* button : dialog->findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || button->text().isEmpty()) continue;
        ++seen;
        EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
        EXPECT_GE(button->height(), button->sizeHint().height()) << button->text().toStdString();
      }
    }
    const auto* printers = Find<QComboBox>("combo_printer");
    EXPECT_GT(printers->width(),
              printers->fontMetrics().horizontalAdvance(printers->placeholderText()) + 30);
    // 18 controls with words, six labels and notes on the first page, one and two on the others,
    // and the three widgets below and above the tabs on each.
    EXPECT_GE(seen, 18 + 5 + 1 + 2 + 3 * 3);
  }
}

TEST_F(SettingsWindow, TheMainWindowOpensItOnceAndFollowsTheHelpTexts) {
  MainWindow window(test.program);
  window.Set_Taal();
  window.show();
  bool was_modal = false;
  Qt::ToolButtonStyle style{};
  QTimer::singleShot(0, [&] {
    const QWidget* const shown = QApplication::activeModalWidget();
    was_modal = shown != nullptr && shown->objectName() == "KV_properties";
    window.OpenSettings();  // comes back at once: it is open
    if (was_modal) {
      shown->findChild<QCheckBox*>("chk_help")->click();
      style = window.findChild<QToolBar*>("menu_toolbar")->toolButtonStyle();
    }
    // Never leave the test waiting for a window that did not go.
    if (test.program.windows.properties != nullptr) test.program.windows.properties->CloseWindow();
  });
  RunCommand(test.program, Command::mnu_properties);
  EXPECT_TRUE(was_modal);
  EXPECT_EQ(style, Qt::ToolButtonIconOnly);
  EXPECT_EQ(test.program.windows.properties, nullptr);
}

}  // namespace
}  // namespace kelvora
