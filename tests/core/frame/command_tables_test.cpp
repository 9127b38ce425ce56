#include <gtest/gtest.h>

#include "core/frame/commands.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

TEST(CommandTables, TheMenuHasItsItemsAndSeparatorsInOrder) {
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
                                                  "mnu_bar_50",
                                                  "mnu_lijst_standaard",
                                                  "mnu_lijst_eigen",
                                                  "mnu_lijst_favo",
                                                  "mnu_lijst_internet",
                                                  "mnu_extra",
                                                  "mnu_weegschaal",
                                                  "mnu_website_Etenlijn",
                                                  "mnu_bar_60",
                                                  "mnu_reset_taal",
                                                  "mnu_bar_61",
                                                  "mnu_diagnose",
                                                  "mnu_bar_62",
                                                  "mnu_quick_default",
                                                  "mnu_quick_all",
                                                  "mnu_quick_reset",
                                                  "mnu_backup",
                                                  "mnu_restore",
                                                  "mnu_import_foods",
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

TEST(CommandTables, TheToolbarsHaveTheirButtonsByIndex) {
  std::vector<int> indexes;
  for (const ButtonRow& row : MenuToolbar()) indexes.push_back(row.index);
  EXPECT_EQ(indexes, (std::vector<int>{2, 3, 4, 5, 7, 8, 10, 11, 13, 14, 15, 16, 18, 19, 20, 22}));
  indexes.clear();
  for (const ButtonRow& row : QuickToolbar()) indexes.push_back(row.index);
  EXPECT_EQ(indexes, (std::vector<int>{2, 3, 5}));
}

TEST(CommandTables, TheKeysOfACommandAreThoseOfItsMenuItem) {
  EXPECT_EQ(KeysOf(Command::mnu_new), "Ctrl+N");
  EXPECT_EQ(KeysOf(Command::mnu_lijst_eigen), "Alt+2");
  EXPECT_EQ(KeysOf(Command::quick_default), "Alt+7");
  EXPECT_EQ(KeysOf(Command::quick_all), "Alt+8");
  EXPECT_EQ(KeysOf(Command::quick_reset), "Alt+9");
  EXPECT_EQ(KeysOf(Command::mnu_about), "");
  EXPECT_EQ(KeysOf(Command::print_drop_down), "");
  EXPECT_EQ(KeysOf(Command::none), "");
}

// The captions of the buttons end in blanks.
TEST(CommandTables, TheItemsOfTheListsBearTheWordsOfTheirButtons) {
  TestProgram test;
  std::vector<Text> captions;
  for (const MenuRow& row : MainMenu()) {
    if (row.name.starts_with("mnu_lijst_")) captions.push_back(CaptionOf(test.program, row));
  }
  EXPECT_EQ(captions, (std::vector<Text>{"Standard list", "My own list", "Favourites list",
                                         "Internet list"}));
}

TEST(CommandTables, DropDownMenusHaveTheirEntriesInOrder) {
  TestProgram test;
  const auto captions = [&](Command drop_down) {
    std::vector<Text> found;
    for (const DropDownRow& row : RowsOfDropDown(drop_down)) {
      found.push_back(test.program.texts[row.caption]);
    }
    return found;
  };
  EXPECT_EQ(captions(Command::print_drop_down),
            (std::vector<Text>{"Print summary of this day", "Print travel form"}));
  std::vector<Command> toggles;
  for (const DropDownRow& row : RowsOfDropDown(Command::consumptions_drop_down)) {
    toggles.push_back(row.command);
  }
  EXPECT_EQ(toggles, (std::vector<Command>{Command::mnu_in_ochtend, Command::mnu_in_middag,
                                           Command::mnu_in_avond}));
  EXPECT_TRUE(RowsOfDropDown(Command::mnu_new).empty());
}

}  // namespace
}  // namespace kelvora
