#include "core/frame/commands.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "core/frame/arrangement.h"
#include "language/built_in_texts.h"
#include "language/main_texts.h"
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

// The four states a program can be in, in the order of growth; `never` is none of them: this
// version has no window to serve the command.
enum class State { empty, user, day, changed_day, never };
constexpr std::array kStates = {State::empty, State::user, State::day, State::changed_day};

void Enter(TestProgram& test, State state) {
  if (state == State::user) test.program.paths.UserName = "Anna";
  if (state >= State::day) test.OpenDay("Anna");
  if (state == State::changed_day) SetFileChanged(test.program, true);
}

// Each command with the first state in which it is enabled, as an item and as a button. Written
// from the rules of the main window and from what this version has, not from the program's own
// table.
struct EnableRow {
  Command command;
  State item;
  State button;
};
constexpr std::array kEnableRows = {
    EnableRow{Command::mnu_startupwizzard, State::empty, State::empty},
    EnableRow{Command::mnu_new, State::empty, State::empty},
    EnableRow{Command::mnu_browse, State::empty, State::empty},
    EnableRow{Command::mnu_bestand_opslaan, State::day, State::changed_day},
    EnableRow{Command::mnu_exporteer_html, State::user, State::user},
    EnableRow{Command::mnu_exporteer_xml, State::user, State::user},
    EnableRow{Command::mnu_exporteer_dta, State::user, State::user},
    EnableRow{Command::mnu_properties, State::empty, State::empty},
    EnableRow{Command::mnu_file_properties, State::day, State::day},
    EnableRow{Command::mnu_print_dag, State::day, State::day},
    EnableRow{Command::mnu_print_reis, State::day, State::day},
    EnableRow{Command::mnu_bestand_sluiten, State::empty, State::empty},
    EnableRow{Command::mnu_in_ochtend, State::day, State::day},
    EnableRow{Command::mnu_in_middag, State::day, State::day},
    EnableRow{Command::mnu_in_avond, State::day, State::day},
    EnableRow{Command::mnu_in_notities, State::day, State::day},
    EnableRow{Command::mnu_item_info, State::user, State::user},
    EnableRow{Command::mnu_item_voegtoe, State::user, State::user},
    EnableRow{Command::mnu_item_del, State::user, State::user},
    EnableRow{Command::mnu_item_favo, State::user, State::user},
    EnableRow{Command::mnu_uit_daguittreksel, State::day, State::day},
    EnableRow{Command::mnu_uit_meerdaagsuittreksel, State::user, State::user},
    EnableRow{Command::mnu_voedingswaarde_tabel, State::user, State::user},
    EnableRow{Command::mnu_weegschaal, State::empty, State::user},
    EnableRow{Command::mnu_website_Etenlijn, State::empty, State::empty},
    EnableRow{Command::mnu_reset_taal, State::empty, State::empty},
    EnableRow{Command::mnu_diagnose, State::empty, State::empty},
    EnableRow{Command::mnu_backup, State::empty, State::empty},
    EnableRow{Command::mnu_restore, State::empty, State::empty},
    EnableRow{Command::mnu_import_foods, State::empty, State::empty},
    EnableRow{Command::mnu_help_index, State::empty, State::empty},
    EnableRow{Command::mnu_about, State::empty, State::empty},
    EnableRow{Command::mnu_website, State::empty, State::empty},
    EnableRow{Command::mnu_check_updates, State::empty, State::empty},
    EnableRow{Command::mnu_lijst_standaard, State::user, State::user},
    EnableRow{Command::mnu_lijst_eigen, State::user, State::user},
    EnableRow{Command::mnu_lijst_favo, State::user, State::user},
    EnableRow{Command::mnu_lijst_internet, State::user, State::user},
    EnableRow{Command::print_drop_down, State::day, State::day},
    EnableRow{Command::consumptions_drop_down, State::day, State::day},
    EnableRow{Command::quick_default, State::day, State::day},
    EnableRow{Command::quick_all, State::day, State::day},
    EnableRow{Command::quick_reset, State::empty, State::empty},
};

static_assert(kEnableRows.size() == static_cast<std::size_t>(Command::quick_reset));

// Lists with a row in focus that allows all there is.
struct ListsWithARow : FoodListsView {
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Toon_Standaardlijst() override {}
  void Populate_Food_List_Custom() override {}
  void Populate_Food_List_Favo() override {}
  static constexpr FoodMenu kMenu{.del = true, .info = true, .favourite = true};
};

TEST(Commands, EachIsEnabledFromItsStateOn) {
  for (const State state : kStates) {
    TestProgram test;
    Enter(test, state);
    ListsWithARow lists;
    test.program.windows.lists = &lists;
    test.program.windows.lists_menu = ListsWithARow::kMenu;
    for (const EnableRow& row : kEnableRows) {
      const auto where = [&] {
        return "command " + std::to_string(static_cast<int>(row.command)) + ", state " +
               std::to_string(static_cast<int>(state));
      };
      EXPECT_EQ(CommandEnabled(test.program, row.command), state >= row.item) << where();
      EXPECT_EQ(ButtonEnabled(test.program, row.command), state >= row.button) << where();
    }
    EXPECT_FALSE(CommandEnabled(test.program, Command::none));
    EXPECT_FALSE(ButtonEnabled(test.program, Command::none));
  }
}

TEST(Commands, WithoutARowTheItemsOfFoodsWouldDoNothingButAdding) {
  TestProgram test;
  test.OpenDay("Anna");
  const auto enabled = [&] {
    Text which;
    for (const Command command : {Command::mnu_item_del, Command::mnu_item_voegtoe,
                                  Command::mnu_item_info, Command::mnu_item_favo}) {
      which += CommandEnabled(test.program, command) ? '1' : '0';
    }
    return which;
  };
  EXPECT_EQ(enabled(), "0100");
  ListsWithARow lists;
  FoodMenu& menu = test.program.windows.lists_menu;
  test.program.windows.lists = &lists;
  menu = ListsWithARow::kMenu;
  EXPECT_EQ(enabled(), "1111");
  menu = {.info = true};
  EXPECT_EQ(enabled(), "0110");
  menu = {};
  EXPECT_EQ(enabled(), "0100");
  menu = ListsWithARow::kMenu;
  test.program.windows.lists = nullptr;
  EXPECT_EQ(enabled(), "0100");
}

// The food menu that stands open for a row decides for its four items and for nothing else.
TEST(Commands, TheOpenFoodMenuDecidesForItsItems) {
  TestProgram test;
  test.OpenDay("Anna");
  const auto enabled = [&](Command command) { return CommandEnabled(test.program, command); };
  test.program.windows.food_menu = FoodMenu{.info = true, .favourite = true};
  EXPECT_FALSE(enabled(Command::mnu_item_del));
  EXPECT_TRUE(enabled(Command::mnu_item_favo));
  EXPECT_TRUE(enabled(Command::mnu_new));
  test.program.windows.food_menu = FoodMenu{.del = true};
  EXPECT_TRUE(enabled(Command::mnu_item_del));
  EXPECT_FALSE(enabled(Command::mnu_item_favo));
  test.program.windows.food_menu = FoodMenu{};
  EXPECT_FALSE(enabled(Command::mnu_item_info));
  EXPECT_FALSE(enabled(Command::mnu_item_voegtoe));
  test.program.windows.food_menu.reset();
  EXPECT_FALSE(enabled(Command::mnu_item_favo));
  EXPECT_TRUE(enabled(Command::mnu_item_voegtoe));
}

TEST(Commands, TheInternetListIsForThoseWhoUseTheInternet) {
  TestProgram test;
  test.OpenDay("Anna");
  for (const char* internet : {"1", "0"}) {
    test.program.settings[Setting::chk_internet] = internet;
    EXPECT_EQ(CommandEnabled(test.program, Command::mnu_lijst_internet), *internet == '1');
    EXPECT_TRUE(CommandEnabled(test.program, Command::mnu_lijst_favo));
  }
}

struct NotedLists : ListsWithARow {
  Text given;
  void CORE_Del_Item() override { given += "del "; }
  void CORE_Add_To_Favo() override { given += "favo "; }
  void ChooseView(FoodView view) override {
    given += "view " + std::to_string(static_cast<int>(view)) + " ";
  }
};

TEST(Commands, TheItemsOfFoodsGoToTheOpenFoodLists) {
  TestProgram test;
  test.OpenDay("Anna");
  NotedLists lists;
  RunCommand(test.program, Command::mnu_item_del);
  test.program.windows.lists = &lists;
  test.program.windows.lists_menu = ListsWithARow::kMenu;
  RunCommand(test.program, Command::mnu_item_del);
  RunCommand(test.program, Command::mnu_item_favo);
  EXPECT_EQ(lists.given, "del favo ");
}

TEST(Commands, TheItemsOfTheListsChooseThem) {
  TestProgram test;
  test.program.windows.core = &test.core;
  test.program.settings[Setting::chk_internet] = "1";
  test.OpenDay("Anna");
  NotedLists lists;
  test.program.windows.lists = &lists;
  for (const Command command : {Command::mnu_lijst_internet, Command::mnu_lijst_standaard,
                                Command::mnu_lijst_eigen, Command::mnu_lijst_favo}) {
    RunCommand(test.program, command);
  }
  EXPECT_EQ(lists.given, "view 3 view 0 view 1 view 2 ");
  EXPECT_TRUE(test.core.opened.empty());
  // Closed, they are opened first.
  test.program.windows.lists = nullptr;
  RunCommand(test.program, Command::mnu_lijst_eigen);
  EXPECT_EQ(test.core.opened, std::vector<WindowId>{WindowId::lists});
}

TEST(Commands, MenusNeedAUserOrADay) {
  for (const State state : kStates) {
    TestProgram test;
    Enter(test, state);
    for (const char* menu : {"mnu_opties", "mnu_resultaten", "mnu_tabellen", "mnu_exporteer"}) {
      EXPECT_EQ(MenuEnabled(test.program, menu), state >= State::user) << menu;
    }
    EXPECT_EQ(MenuEnabled(test.program, "mnu_consumpties"), state >= State::day);
    for (const char* menu : {"mnu_bestand", "mnu_printen", "mnu_extra", "mnu_informatie"}) {
      EXPECT_TRUE(MenuEnabled(test.program, menu)) << menu;
    }
  }
}

TEST(Commands, SavingTakesTheChangesToTheDiskAndItsButtonDown) {
  TestProgram test;
  test.OpenDay("Anna");
  SetFileChanged(test.program, true);
  EXPECT_EQ(test.core.updates, 1);
  RunCommand(test.program, Command::mnu_bestand_opslaan);
  EXPECT_FALSE(test.program.day.FileChanged);
  EXPECT_FALSE(ButtonEnabled(test.program, Command::mnu_bestand_opslaan));
}

TEST(Commands, TheThreeFormatsOpenTheSameDialog) {
  TestProgram test;
  const std::array formats = {Command::mnu_exporteer_html, Command::mnu_exporteer_xml,
                              Command::mnu_exporteer_dta};
  for (const Command format : formats) RunCommand(test.program, format);
  EXPECT_EQ(test.core.exports_opened, 0);  // without a user
  SetCurrentUser(test.program, "Anna");
  for (const Command format : formats) RunCommand(test.program, format);
  EXPECT_EQ(test.core.exports_opened, 3);
}

TEST(Commands, TheProfileCommandOpensTheDialogForTheOpenDay) {
  TestProgram test;
  test.OpenDay("Anna");
  RunCommand(test.program, Command::mnu_file_properties);
  EXPECT_EQ(test.program.day.DayDialogMode, DayDialogMode::day_settings);
  EXPECT_EQ(test.core.opened, std::vector<WindowId>{WindowId::day_settings});
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(Commands, TheProfileCommandWarnsAboutADayWithAnEmptyHeader) {
  TestProgram test;
  test.OpenDay("Anna");
  test.program.store.L_gegevens.Clear();
  RunCommand(test.program, Command::mnu_file_properties);
  EXPECT_EQ(test.program.day.DayDialogMode, DayDialogMode::new_day);
  EXPECT_TRUE(test.core.opened.empty());
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::warning);
  EXPECT_EQ(test.boxes.shown[0].title, "Kelvora FOOD");
  EXPECT_EQ(test.boxes.shown[0].text,
            "There is no file opened yet.\nMake a new file or open an existing file.");
}

TEST(Commands, ANewFoodNeedsAUserButNoDay) {
  TestProgram test;
  RunCommand(test.program, Command::mnu_item_voegtoe);
  EXPECT_EQ(test.core.new_foods_opened, 0);
  test.program.paths.UserName = "Anna";
  RunCommand(test.program, Command::mnu_item_voegtoe);
  EXPECT_EQ(test.core.new_foods_opened, 1);
}

TEST(Commands, ThePrintButtonItselfPointsToItsMenu) {
  TestProgram test;
  test.OpenDay("Anna");
  RunCommand(test.program, Command::print_drop_down);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::information);
  EXPECT_EQ(test.boxes.shown[0].text,
            "Select a print option with the 'pull down' menu.\nSeveral options are available.");
}

TEST(Commands, TheFoodServerIsCalledByTheNameOfTheChosenService) {
  TestProgram test;
  const auto row = std::ranges::find(MainMenu(), "mnu_website_Etenlijn", &MenuRow::name);
  EXPECT_EQ(CaptionOf(test.program, *row), "Etenlijn");
  test.program.settings[Setting::opt_server] = "1";
  EXPECT_EQ(CaptionOf(test.program, *row), "Bitewell");
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
  RunCommand(test.program, Command::mnu_check_updates);
  EXPECT_EQ(test.core.updates_opened, std::vector<UpdateMode>{UpdateMode::shown});
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

TEST(Commands, TheOtherArrangementAddsTheSmallSummaryAndRemembersTheChoice) {
  TestProgram test;
  test.OpenDay("Anna");
  RunCommand(test.program, Command::quick_all);
  EXPECT_EQ(test.core.opened,
            (std::vector<WindowId>{WindowId::morning, WindowId::afternoon, WindowId::evening,
                                   WindowId::lists, WindowId::day_summary}));
  EXPECT_EQ(test.program.windows.geometry, GeometryWithSummary(test.core.size));
  const auto saved = ReadFirstRecord<Rec_Settings>(test.program.paths.SettingsFile);
  ASSERT_TRUE(saved.has_value());
  EXPECT_EQ((*saved)[Setting::chk_all_screens], "1");
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

TEST(Commands, NothingBeginsInAProgramThatEnds) {
  TestProgram test;
  EndProgram(test.program);
  EXPECT_EQ(test.events.ends, 1);
  RunCommand(test.program, Command::mnu_browse);
  RunCommand(test.program, Command::mnu_properties);
  RunCommand(test.program, Command::mnu_about);
  EXPECT_TRUE(test.core.opened.empty());
  EXPECT_EQ(test.core.settings_opened + test.core.abouts, 0);
}

TEST(Commands, StatusBarTellsVersionAndUser) {
  TestProgram test;
  test.program.paths.UserName = "Anna";
  EXPECT_EQ(ProgramPanelText(), "Kelvora FOOD 2.24");
  EXPECT_EQ(UserPanelText(test.program), "Current user: Anna");
}

}  // namespace
}  // namespace kelvora
