#include "core/commands.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "core/arrangement.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// A window that does nothing but note that it was closed.
struct NotedWindow : ConsumptionView {
  OpenWindows& windows;
  DayPart part;
  std::vector<DayPart>& closed;
  NotedWindow(OpenWindows& all, DayPart which, std::vector<DayPart>& log)
      : windows(all), part(which), closed(log) {
    windows.Consumption(part) = this;
  }
  void CloseWindow() override {
    windows.Consumption(part) = nullptr;
    closed.push_back(part);
  }
  void Set_Taal() override {}
  void Refresh_Consumpties() override {}
  void ShowTotals(const ConsumptionTotals&) override {}
};

TEST(Commands, WithoutUserAndDayOnlyWhatNeedsNeitherWorks) {
  TestProgram test;
  std::vector<std::string_view> enabled;
  for (const MenuRow& row : MainMenu()) {
    if (CommandEnabled(test.program, row.command)) enabled.push_back(row.name);
  }
  EXPECT_EQ(enabled, (std::vector<std::string_view>{"mnu_startupwizzard", "mnu_new", "mnu_browse",
                                                    "mnu_properties", "mnu_bestand_sluiten",
                                                    "mnu_reset_taal", "mnu_about"}));
  EXPECT_TRUE(MenuEnabled(test.program, "mnu_bestand"));
  for (const char* menu :
       {"mnu_consumpties", "mnu_opties", "mnu_resultaten", "mnu_tabellen", "mnu_exporteer"}) {
    EXPECT_FALSE(MenuEnabled(test.program, menu)) << menu;
  }
}

TEST(Commands, AUserWithoutADayOpensTheFoodListsOnly) {
  TestProgram test;
  test.program.paths.UserName = "Anna";
  EXPECT_TRUE(CommandEnabled(test.program, Command::mnu_voedingswaarde_tabel));
  EXPECT_FALSE(CommandEnabled(test.program, Command::mnu_in_ochtend));
  EXPECT_TRUE(MenuEnabled(test.program, "mnu_tabellen"));
  EXPECT_FALSE(MenuEnabled(test.program, "mnu_consumpties"));
}

TEST(Commands, SaveFollowsTheUnsavedChanges) {
  TestProgram test;
  test.OpenDay("Anna");
  EXPECT_FALSE(CommandEnabled(test.program, Command::mnu_bestand_opslaan));
  SetFileChanged(test.program, true);
  EXPECT_TRUE(CommandEnabled(test.program, Command::mnu_bestand_opslaan));
  EXPECT_EQ(test.core.updates, 1);
  RunCommand(test.program, Command::mnu_bestand_opslaan);
  EXPECT_FALSE(CommandEnabled(test.program, Command::mnu_bestand_opslaan));
}

TEST(Commands, ADisabledCommandDoesNothing) {
  TestProgram test;
  RunCommand(test.program, Command::mnu_in_ochtend);
  EXPECT_TRUE(test.core.opened.empty());
}

TEST(Commands, TheWizardAndAboutComeUp) {
  TestProgram test;
  RunCommand(test.program, Command::mnu_startupwizzard);
  EXPECT_EQ(test.core.opened, std::vector<WindowId>{WindowId::wizard});
  EXPECT_EQ(test.core.abouts, 0);
  RunCommand(test.program, Command::mnu_about);
  EXPECT_EQ(test.core.abouts, 1);
  EXPECT_EQ(test.core.opened.size(), 1u);
}

TEST(Commands, AToggleOpensAClosedWindowAndClosesAnOpenOne) {
  TestProgram test;
  test.OpenDay("Anna");
  RunCommand(test.program, Command::mnu_in_middag);
  EXPECT_EQ(test.core.opened, std::vector<WindowId>{WindowId::afternoon});
  EXPECT_FALSE(CommandIsDown(test.program, Command::consumptions_drop_down));

  std::vector<DayPart> closed;
  NotedWindow window(test.program.windows, DayPart::afternoon, closed);
  EXPECT_TRUE(CommandIsDown(test.program, Command::mnu_in_middag));
  EXPECT_TRUE(CommandIsDown(test.program, Command::consumptions_drop_down));
  RunCommand(test.program, Command::mnu_in_middag);
  EXPECT_EQ(closed, std::vector<DayPart>{DayPart::afternoon});
  EXPECT_EQ(test.core.opened.size(), 1u);
}

TEST(Commands, DefaultScreensCloseEverythingInOrderAndRememberTheChoice) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.settings[Setting::chk_all_screens] = "1";
  std::vector<DayPart> closed;
  NotedWindow evening(test.program.windows, DayPart::evening, closed);
  NotedWindow morning(test.program.windows, DayPart::morning, closed);
  RunCommand(test.program, Command::quick_default);
  EXPECT_EQ(closed, (std::vector<DayPart>{DayPart::morning, DayPart::evening}));
  EXPECT_EQ(test.core.opened, (std::vector<WindowId>{WindowId::morning, WindowId::afternoon,
                                                     WindowId::evening, WindowId::lists}));
  EXPECT_EQ(test.program.windows.geometry, DefaultGeometry(test.core.size));
  const auto saved = ReadFirstRecord<Rec_Settings>(test.program.paths.SettingsFile);
  ASSERT_TRUE(saved.has_value());
  EXPECT_EQ((*saved)[Setting::chk_all_screens], "0");
}

TEST(Commands, TheOtherArrangementAddsTheSmallSummary) {
  TestProgram test;
  test.program.settings[Setting::chk_all_screens] = "1";
  ApplyChosenArrangement(test.program);
  EXPECT_EQ(test.core.opened,
            (std::vector<WindowId>{WindowId::morning, WindowId::afternoon, WindowId::evening,
                                   WindowId::lists, WindowId::day_summary}));
  EXPECT_EQ(test.program.windows.geometry.SummarySmall, 1);
}

TEST(Commands, EndingAsksOnlyAboutUnsavedChangesAndNoCancels) {
  TestProgram test;
  EXPECT_TRUE(MayEndProgram(test.program));
  EXPECT_TRUE(test.boxes.shown.empty());
  test.OpenDay("Anna");
  SetFileChanged(test.program, true);
  test.boxes.answers = {BoxAnswer::no, BoxAnswer::yes};
  EXPECT_FALSE(MayEndProgram(test.program));
  EXPECT_TRUE(MayEndProgram(test.program));
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_EQ(test.boxes.shown[0].title, "Exit Kelvora FOOD");
  EXPECT_EQ(test.boxes.shown[0].text,
            "The current file has not been saved yet.\n"
            "Are you sure that you want to exit Kelvora FOOD?");
  EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no);
}

TEST(Commands, TheMenuHasItsItemsAndSeparatorsInOrder) {
  const std::vector<std::string_view> expected = {"mnu_bestand",
                                                  "mnu_startupwizzard",
                                                  "mnu_bar_10",
                                                  "mnu_new",
                                                  "mnu_browse",
                                                  "mnu_bestand_opslaan",
                                                  "mnu_bar_11",
                                                  "mnu_exporteer",
                                                  "mnu_exporteer_html",
                                                  "mnu_exporteer_xml",
                                                  "mnu_exporteer_dta",
                                                  "mnu_bar_12",
                                                  "mnu_properties",
                                                  "mnu_file_properties",
                                                  "mnu_bar_13",
                                                  "mnu_printen",
                                                  "mnu_print_dag",
                                                  "mnu_print_reis",
                                                  "mnu_bestand_sluiten",
                                                  "mnu_consumpties",
                                                  "mnu_in_ochtend",
                                                  "mnu_in_middag",
                                                  "mnu_in_avond",
                                                  "mnu_bar_20",
                                                  "mnu_in_notities",
                                                  "mnu_opties",
                                                  "mnu_item_info",
                                                  "mnu_item_voegtoe",
                                                  "mnu_item_del",
                                                  "mnu_bar_30",
                                                  "mnu_item_favo",
                                                  "mnu_resultaten",
                                                  "mnu_uit_daguittreksel",
                                                  "mnu_uit_meerdaagsuittreksel",
                                                  "mnu_tabellen",
                                                  "mnu_voedingswaarde_tabel",
                                                  "mnu_extra",
                                                  "mnu_weegschaal",
                                                  "mnu_website_Etenlijn",
                                                  "mnu_bar_60",
                                                  "mnu_reset_taal",
                                                  "mnu_bar_61",
                                                  "mnu_diagnose",
                                                  "mnu_informatie",
                                                  "mnu_help_index",
                                                  "mnu_about",
                                                  "mnu_bar_70",
                                                  "mnu_website",
                                                  "mnu_check_updates"};
  std::vector<std::string_view> names;
  for (const MenuRow& row : MainMenu()) {
    if (row.kind != MenuKind::end_of_menu) names.push_back(row.name);
  }
  EXPECT_EQ(names, expected);
}

TEST(Commands, TheToolbarsHaveTheirButtonsByIndex) {
  std::vector<int> indexes;
  for (const ButtonRow& row : MenuToolbar()) indexes.push_back(row.index);
  EXPECT_EQ(indexes, (std::vector<int>{2, 3, 4, 5, 7, 8, 10, 11, 13, 14, 15, 16, 18, 19, 20, 22}));
  indexes.clear();
  for (const ButtonRow& row : QuickToolbar()) indexes.push_back(row.index);
  EXPECT_EQ(indexes, (std::vector<int>{2, 3, 5}));
}

TEST(Commands, StatusBarTellsVersionAndUser) {
  TestProgram test;
  test.program.paths.UserName = "Anna";
  EXPECT_EQ(ProgramPanelText(), "Kelvora FOOD 2.24");
  EXPECT_EQ(UserPanelText(test.program), "Current user: Anna");
}

}  // namespace
}  // namespace kelvora
