// The export dialog as its user sees it: what it opens with, what is exported, when it closes, and
// what happens while it is filled.
#include <QTimer>

#include "core/frame/commands.h"
#include "core/frame/main_window.h"
#include "windows/export_window.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

TEST_F(ExportWindow, OpensWithAllDaysSelectedAndEverythingTicked) {
  AddDays(3);
  Open();
  EXPECT_EQ(program.windows.export_html, window.get());
  EXPECT_EQ(Selected(), "0 1 2");
  EXPECT_EQ(Cell(0, ExportColumn::kDate), "03-03-04");
  EXPECT_EQ(Cell(2, ExportColumn::kDate), "01-03-04");
  EXPECT_EQ(Cell(0, ExportColumn::kWeight), "80.50 Kg");
  for (const char* on :
       {"opt_soort_0", "opt_seletie_1", "chk_grafieken", "chk_notities", "chk_close"}) {
    EXPECT_TRUE(Ticked(on)) << on;
  }
  for (const char* off : {"opt_soort_1", "opt_soort_2", "opt_seletie_0"}) {
    EXPECT_FALSE(Ticked(off)) << off;
  }
  EXPECT_TRUE(List()->hasFocus());
  EXPECT_TRUE(Find<QPushButton>("cmd_export")->isDefault());
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(ExportWindow, HasItsTextsInBothLanguages) {
  struct Words {
    void (*make)(TextTables&);
    QString title;
    QStringList frames, formats, selection;
    QStringList headings;
    QString graphs, diary, close, run, cancel;
  };
  for (const Words& words :
       {Words{&Make_Taal_English,
              "Export days to HTML, XML or DTA",
              {"Select the days:", "Saved days:", "Options:", "Export to:"},
              {".HTML file for email", ".DTA file for internet websites", ".XML file for email"},
              {"Select all days", "Make your own selection"},
              {" ", "Filenamefull", "Filename", "Date", "Day", "Weight"},
              "Export the graphs",
              "Export the diary",
              "Close this window after exporting",
              "Export",
              "Cancel"},
        Words{&Make_Taal_Dutch,
              "Dagen exporteren naar HTML, XML of DTA",
              {"Kies de dagen:", "Opgeslagen dagen:", "Opties:", "Exporteren naar:"},
              {".HTML-bestand voor e-mail", ".DTA-bestand voor websites op internet",
               ".XML-bestand voor e-mail"},
              {"Alle dagen selecteren", "Zelf dagen selecteren"},
              {" ", "Volledige bestandsnaam", "Bestandsnaam", "Datum", "Dag", "Gewicht"},
              "Exporteer de grafieken",
              "Exporteer het dagboek",
              ToQt(program.texts[TextId{TextTable::taal_day_settings, 110}]),
              "Exporteren",
              "Annuleren"}}) {
    words.make(program.texts);
    Open();
    EXPECT_EQ(window->windowTitle(), words.title);
    EXPECT_EQ(Find<QLabel>("lbl_info")->text(),
              ToQt(program.texts[TextId{TextTable::taal_export_form, 1}]));
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(FindIn<QGroupBox>(*window, QStringLiteral("Frame_%1").arg(i + 1))->title(),
                words.frames[i]);
    }
    const auto caption = [this](const QString& name) {
      return FindIn<QAbstractButton>(*window, name)->text();
    };
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(caption(QStringLiteral("opt_soort_%1").arg(i)), words.formats[i]);
    }
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ(caption(QStringLiteral("opt_seletie_%1").arg(i)), words.selection[i]);
    }
    EXPECT_EQ(caption("chk_grafieken"), words.graphs);
    EXPECT_EQ(caption("chk_notities"), words.diary);
    EXPECT_EQ(caption("cmd_export"), words.run);
    EXPECT_EQ(caption("cmd_annuleer"), words.cancel);
    for (int i = 0; i < 6; ++i) {
      EXPECT_EQ(List()->model()->headerData(i, Qt::Horizontal).toString(), words.headings[i]);
      EXPECT_EQ(List()->isColumnHidden(i), i < 3);
    }
  }
  EXPECT_EQ(Find<QCheckBox>("chk_close")->text(),
            ToQt(program.texts[TextId{TextTable::taal_day_settings, 110}]));
}

TEST_F(ExportWindow, TheFormatsStandInTheOrderHtmlXmlDta) {
  Open();
  const auto top = [this](const char* name) { return Find<QWidget>(name)->y(); };
  EXPECT_LT(top("opt_soort_0"), top("opt_soort_2"));
  EXPECT_LT(top("opt_soort_2"), top("opt_soort_1"));
}

TEST_F(ExportWindow, TheSettingTicksTheBoxThatClosesAndAClickChangesItAtOnce) {
  for (const auto& [stored, ticked] : {std::pair{"0", false}, std::pair{"1", true}}) {
    program.settings[Setting::chk_export] = stored;
    Open();
    EXPECT_EQ(Ticked("chk_close"), ticked);
  }
  Click("chk_close");
  EXPECT_EQ(program.settings[Setting::chk_export], "0");
  const auto saved = ReadFirstRecord<Rec_Settings>(program.paths.SettingsFile);
  ASSERT_TRUE(saved.has_value());
  EXPECT_EQ((*saved)[Setting::chk_export], "0");
}

TEST_F(ExportWindow, EachFormatIsExportedByItsButton) {
  AddDays(2);
  test.folder_chooser.answer = program.paths.ReportsPath;
  const std::vector<std::string> expected = {"Anna (02-03-04 till 01-03-04).dta",
                                             "Anna (02-03-04 till 01-03-04).xml",
                                             "Anna (2 days from 02-03-04 till 01-03-04).html"};
  for (const char* format : {"opt_soort_0", "opt_soort_1", "opt_soort_2"}) {
    Open();
    Click(format);
    Click("cmd_export");
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(program.windows.export_html, nullptr);
  }
  EXPECT_EQ(Reports(), expected);
  EXPECT_EQ(test.opener.opened.size(), 2u);
  EXPECT_EQ(test.boxes.shown.size(), 1u);  // where the DTA file lies
}

TEST_F(ExportWindow, TheTicksSayWhatIsInThePage) {
  AddDays(1);
  struct Case {
    const char* unticked;
    bool diary, graphs;
  };
  for (const Case& row : {Case{nullptr, true, true}, Case{"chk_notities", false, true},
                          Case{"chk_grafieken", true, false}}) {
    Open();
    if (row.unticked != nullptr) Click(row.unticked);
    Click("cmd_export");
    const Text page = ReadFile(program.paths.ReportsPath + Reports().front());
    EXPECT_EQ(page.find("Slept.") != Text::npos, row.diary);
    EXPECT_EQ(page.find("class=\"tdG1\"") != Text::npos, row.graphs);
  }
}

TEST_F(ExportWindow, StaysOpenWhenThatIsChosenAndExportsAgain) {
  AddDays(2);
  program.settings[Setting::chk_export] = "0";
  Open();
  QTest::keyClick(List(), Qt::Key_Return);  // the default button
  EXPECT_TRUE(window->isVisible());
  ClickRow(1);
  Click("cmd_export");
  EXPECT_EQ(Reports(),
            (std::vector<std::string>{"Anna (1 days from 01-03-04 till 01-03-04).html",
                                      "Anna (2 days from 02-03-04 till 01-03-04).html"}));
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ExportWindow, AFailedExportLeavesItOpenAndTheSelectionAsItWas) {
  AddDays(3);
  fs::remove(program.paths.ReportsPath);
  Open();
  ClickRow(1);
  Click("cmd_export");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#F5-1"));
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Selected(), "1");
  EXPECT_TRUE(test.opener.opened.empty());
}

TEST_F(ExportWindow, AUserWithoutDaysIsToldWhatToDo) {
  Open();
  EXPECT_EQ(List()->model()->rowCount(), 0);
  Click("cmd_export");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.starts_with("You did not select any days!\n"));
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ExportWindow, DaysThatCannotBeReadAreNamedOnceTheOthersCanBeSeen) {
  AddDays(2);
  fs::create_symlink("nowhere", PathOf("lost.kvf"));
  Open();
  EXPECT_EQ(Selected(), "0 1");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nNo such file or directory: lost.kvf\nBrelux CODE:#F5-0");
}

TEST_F(ExportWindow, CancelAndEscapeCloseItAndMenusFollow) {
  AddDays(1);
  for (const bool by_key : {false, true}) {
    Open();
    const int updates = test.core.updates;
    if (by_key) {
      QTest::keyClick(List(), Qt::Key_Escape);
    } else {
      Click("cmd_annuleer");
    }
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(program.windows.export_html, nullptr);
    EXPECT_GT(test.core.updates, updates);
  }
  EXPECT_TRUE(Reports().empty());
}

// At every moment at which events run while it is filled.
TEST_F(ExportWindow, MayBeClosedWhileTheDaysAreRead) {
  AddDays(5);
  Open();
  const int moments = test.events.yields;
  ASSERT_GE(moments, 15);
  for (int moment = 1; moment <= moments; ++moment) {
    test.events.yields = 0;
    test.events.at_yield = [&] {
      if (test.events.yields == moment) window->CloseWindow();
    };
    window = std::make_unique<ExportDaysDialog>(program, nullptr);
    window->Open();
    EXPECT_EQ(test.events.yields, moment);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(List()->model()->rowCount(), 0);
    EXPECT_FALSE(test.pointer.waiting);
  }
}

TEST_F(ExportWindow, CanBeUsedWhileTheDaysAreReadButExportsNothingYet) {
  AddDays(5);
  fs::create_symlink("nowhere", PathOf("lost.kvf"));
  test.events.at_yield = [this] {
    EXPECT_TRUE(program.windows.export_html != nullptr);
    EXPECT_EQ(List()->model()->rowCount(), 0);
    EXPECT_FALSE(Find<QPushButton>("cmd_export")->isEnabled());
    QTest::keyClick(List(), Qt::Key_Return);
    if (test.events.yields == 1) Click("opt_soort_2");
    if (test.events.yields == 2) Click("opt_seletie_0");
  };
  window = std::make_unique<ExportDaysDialog>(program, nullptr);
  window->Open();
  EXPECT_TRUE(Reports().empty());
  EXPECT_TRUE(Ticked("opt_soort_2"));
  EXPECT_TRUE(Ticked("opt_seletie_0"));
  EXPECT_EQ(Selected(), "0 1 2 3 4");
  EXPECT_TRUE(Find<QPushButton>("cmd_export")->isEnabled());
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

TEST_F(ExportWindow, AnotherUnitSystemShowsTheDaysAnew) {
  AddDays(2);
  Open();
  ClickRow(0);
  window->FollowSettings();
  EXPECT_EQ(Selected(), "0");  // nothing that it shows has changed
  program.settings[Setting::opt_system] = "1";
  program.settings[Setting::chk_export] = "0";
  window->FollowSettings();
  EXPECT_EQ(Cell(0, ExportColumn::kDate), "03-02-04");
  EXPECT_EQ(Cell(0, ExportColumn::kWeight), "177.47 Lbs");
  EXPECT_FALSE(Ticked("chk_close"));
  Make_Taal_Dutch(program.texts);
  window->Set_Taal();
  EXPECT_EQ(window->windowTitle(), "Dagen exporteren naar HTML, XML of DTA");
  EXPECT_EQ(Selected(), "0 1");
}

TEST_F(ExportWindow, TheThreeEntriesAndTheReportButtonShowItModallyWithHtmlChosen) {
  AddDays(1);
  MainWindow main(program);
  main.Set_Taal();
  main.show();
  main.UpdateCommands();
  int shown = 0;
  const auto look = [&] {
    QTimer::singleShot(0, [&] {
      QWidget* const dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr);
      EXPECT_EQ(dialog->objectName(), "KV_export_html");
      EXPECT_EQ(dialog->parentWidget(), &main);
      EXPECT_TRUE(FindIn<QRadioButton>(*dialog, "opt_soort_0")->isChecked());
      EXPECT_EQ(FindIn<QTableView>(*dialog, "LV_user_files")->model()->rowCount(), 1);
      ++shown;
      // Another one doesn't open while it stands.
      main.OpenExport();
      program.windows.export_html->CloseWindow();
    });
  };
  for (const char* entry :
       {"mnu_exporteer_html", "mnu_exporteer_xml", "mnu_exporteer_dta", "menu_toolbar_15"}) {
    look();
    if (auto* const action = main.findChild<QAction*>(QLatin1String(entry))) {
      action->trigger();
    } else {
      QTest::mouseClick(FindIn<QWidget>(main, QLatin1String(entry)), Qt::LeftButton);
    }
    EXPECT_EQ(program.windows.export_html, nullptr) << entry;
  }
  EXPECT_EQ(shown, 4);
}

}  // namespace
}  // namespace kelvora
