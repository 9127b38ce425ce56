#include "core/frame/data_members.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "support/test_program.h"

namespace kelvora {
namespace {

const DataMember& Member(std::string_view name) {
  return *std::ranges::find(DataMembers(), name, &DataMember::name);
}

TEST(DataMembers, NameEveryListAndTextOfTheStore) {
  std::vector<std::string_view> names;
  for (const DataMember& member : DataMembers()) names.push_back(member.name);
  EXPECT_EQ(names, (std::vector<std::string_view>{
                       "L_gegevens",          "L_ochtend",      "L_middag",         "L_avond",
                       "txt_notities",        "txt_trenddata",  "KV_bestand",       "Default_list",
                       "Custom_list",         "Favorites_list", "lst_categorien",   "database_lst",
                       "lst_data_dir",        "lst_files",      "tmp_filter",       "temp_filter",
                       "var_filter",          "Dupe_list",      "Dupe_list_teller", "txt_testdata",
                       "txt_internetzoekdata"}));
}

TEST(DataMembers, ReadListsByLineAndTextsAsOneLine) {
  TestProgram test;
  KV_data& store = test.program.store;
  EXPECT_EQ(LineCount(store, Member("L_avond")), 0u);
  EXPECT_EQ(LineCount(store, Member("txt_notities")), 0u);
  store.L_avond.Add("a");
  store.L_avond.Add("b");
  store.txt_notities = "two\nlines";
  EXPECT_EQ(LineCount(store, Member("L_avond")), 2u);
  EXPECT_EQ(LineAt(store, Member("L_avond"), 1), "b");
  EXPECT_EQ(LineAt(store, Member("L_avond"), 2), "");
  EXPECT_EQ(LineCount(store, Member("txt_notities")), 1u);
  EXPECT_EQ(LineAt(store, Member("txt_notities"), 0), "two\nlines");
  EXPECT_EQ(LineAt(store, Member("txt_notities"), 1), "");
}

TEST(DataMembers, OnlyLinesOfFoodsAreToldInABox) {
  TestProgram test;
  KV_data& store = test.program.store;
  std::vector<std::string_view> telling;
  for (const DataMember& member : DataMembers()) {
    if (member.list != nullptr) (store.*member.list).Add(member.name);
    const std::size_t before = test.boxes.shown.size();
    TellLine(test.program, member, 0);
    TellLine(test.program, member, 1);
    if (test.boxes.shown.size() == before + 1) telling.push_back(member.name);
  }
  EXPECT_EQ(telling,
            (std::vector<std::string_view>{"L_ochtend", "L_middag", "L_avond", "Default_list",
                                           "Custom_list", "Favorites_list"}));
  EXPECT_EQ(test.boxes.shown.size(), telling.size());
  EXPECT_EQ(test.boxes.shown[0].text, "L_ochtend");
}

}  // namespace
}  // namespace kelvora
