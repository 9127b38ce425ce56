// The import without a window, argument by argument.
#include "food/import/command.h"

#include <gtest/gtest.h>

#include "food/import/mapping_file.h"
#include "food/import/table_files.h"

namespace kelvora {
namespace {

using Strings = std::vector<std::string>;

class ImportCommand : public testing::Test, public TableFiles {
 protected:
  CommandResult Run(const Strings& arguments) {
    return RunImportCommand(arguments, {folders, "2026-11-22", [this] { return go_on; }});
  }
  bool go_on = true;
  std::string table = Write("sr.tsv", std::string(kSrHeader) + SrRow("Fruit", "Apple") +
                                          SrRow("Bread", "Rye") + SrRow("Bread", ""));
};

TEST_F(ImportCommand, ImportsATableAndSaysWhat) {
  const CommandResult result = Run({table});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(
      result.errors,
      "USDA SR: 2 foods in 2 categories\n"
      "1 row passed over: 1 no name\n"
      "The rows passed over are listed in " +
          folders.of_user +
          "USDA SR.skipped.txt\n"
          "Source: U.S. Department of Agriculture, Agricultural Research Service, Nutrient Data "
          "Laboratory. USDA National Nutrient Database for Standard Reference.\n"
          "Licence: public domain\n");
  EXPECT_EQ(Lines("USDA SR: Fruit.dat").size(), 1u);
  EXPECT_EQ(Run({"-q", table}).errors, "");
}

TEST_F(ImportCommand, ADryRunCountsAndWritesNothing) {
  for (const char* option : {"-n", "--dry-run"}) {
    const CommandResult result = Run({table, option});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "1\tFruit\n1\tBread\n");
    EXPECT_TRUE(result.errors.starts_with("UTF-8, \"TAB\"\nUSDA SR: 2 foods in 2 categories\n"))
        << result.errors;
    EXPECT_TRUE(Names().empty());
  }
}

TEST_F(ImportCommand, ListsAndRemovesSets) {
  EXPECT_EQ(Run({"--list"}).out, "");
  Run({table});
  EXPECT_EQ(Run({"-l"}).out, "USDA SR\t2\t2026-11-22\tsr.tsv\n");
  EXPECT_EQ(Run({"--remove=Ciqual"}).status, 1);
  EXPECT_EQ(Run({"--remove", "USDA SR"}).errors, "USDA SR: removed, 2 foods\n");
  EXPECT_TRUE(Names().empty());
}

TEST_F(ImportCommand, TakesTheChosenGroupsAndPortions) {
  Run({"-g", "fruit", "--portion=100g", table});
  EXPECT_EQ(Names(), (Strings{"USDA SR.set.txt", "USDA SR: Fruit.dat"}));
  EXPECT_EQ(OnlyLine("USDA SR: Fruit.dat")[2], "100");
  Run({"-gBREAD", "--group=Fruit", "-p", "serving", table});
  EXPECT_EQ(OnlyLine("USDA SR: Bread.dat")[2], "200");
  EXPECT_EQ(OnlyLine("USDA SR: Fruit.dat")[2], "200");
}

TEST_F(ImportCommand, KeepsTheFoodsInAnotherFolder) {
  EXPECT_EQ(Run({"-d", folder.Path("elsewhere"), table}).status, 0);
  EXPECT_TRUE(Names().empty());
  EXPECT_TRUE(FileExists(folder.Path("elsewhere/USDA SR: Fruit.dat")));
}

TEST_F(ImportCommand, TakesTheColumnsThatWereSavedOrThatAFileTells) {
  const std::string own = Write("own.csv", "Product;Salt;Energy\nRye;1;200\n");
  EXPECT_EQ(Run({own}).status, 1);
  const std::string columns = Write("my.columns",
                                    "set: Kitchen\nname: 1 Product\nkilocalories: 3 Energy\n"
                                    "salt: 2 Salt\n");
  EXPECT_EQ(Run({"--columns=" + columns, own}).status, 0);
  // 200 x 4.2 = 840; 1 x 0.4 = 0.4.
  const std::vector<Text> rye = {"Rye", "100 gram", "100", "840", "200", "0",
                                 "0",   "0",        "0",   "0.4", "",    ""};
  EXPECT_EQ(OnlyLine("Kitchen: other.dat"), rye);
  EXPECT_EQ(Run({"-m", "Kitchen", own}).status, 1);
  SaveMapping(folders.of_user, *MappingFrom(ReadFile(columns)));
  EXPECT_EQ(Run({"-m", "Kitchen", own}).status, 0);
  EXPECT_EQ(Run({own}).status, 0);
  EXPECT_EQ(Run({"-m", "Kitchen", table}).status, 1);  // other columns
}

TEST_F(ImportCommand, SaysWhatKeepsItFromImporting) {
  EXPECT_EQ(Run({folder.Path("missing")}).errors,
            "kelvora-food-import: " + folder.Path("missing") + ": No such file or directory\n");
  const CommandResult zip = Run({Write("foods.zip", "PK\x03\x04")});
  EXPECT_EQ(zip.status, 1);
  EXPECT_NE(zip.errors.find("this is an archive or a workbook"), std::string::npos);
  go_on = false;
  const CommandResult given_up = Run({table});
  EXPECT_EQ(given_up.status, 1);
  EXPECT_EQ(given_up.errors, "kelvora-food-import: " + table + ": given up; nothing has changed\n");
}

TEST_F(ImportCommand, HelpsAndTellsItsVersion) {
  EXPECT_TRUE(Run({"--help"}).out.starts_with("Usage: kelvora-food-import [OPTION]... TABLE\n"));
  EXPECT_EQ(Run({"--version"}).out, "kelvora-food-import (Kelvora FOOD) 2.24\n");
}

TEST_F(ImportCommand, RefusesWrongArgumentsWithTwo) {
  const std::vector<std::pair<Strings, std::string>> rows = {
      {{}, "missing operand"},
      {{"a", "b"}, "extra operand 'b'"},
      {{"--colour", table}, "unrecognized option '--colour'"},
      {{"-x", table}, "invalid option -- 'x'"},
      {{"--group"}, "option '--group' requires an argument"},
      {{"--list=5"}, "option '--list' doesn't allow an argument"},
      {{"-p", "200g", table}, "invalid argument '200g' for '-p'"},
      {{"--completeness=2", table}, "invalid argument '2' for '--completeness'"},
      {{"-C", "x", table}, "invalid argument 'x' for '-C'"}};
  for (const auto& [arguments, problem] : rows) {
    const CommandResult result = Run(arguments);
    EXPECT_EQ(result.status, 2) << problem;
    EXPECT_EQ(result.errors, "kelvora-food-import: " + problem +
                                 "\nTry 'kelvora-food-import --help' for more information.\n");
  }
  EXPECT_TRUE(Names().empty());
}

TEST_F(ImportCommand, TakesWhatFollowsTwoDashesForATable) {
  EXPECT_EQ(Run({"--", "-x"}).errors, "kelvora-food-import: -x: No such file or directory\n");
}

TEST(MappingFile, ReadsBackWhatItWrites) {
  constexpr std::string_view kName = "Zoë's"_w;
  constexpr std::string_view kHeader = "Prôduct: x"_w;
  const TableMapping mapping{.name = Text(kName),
                             .columns = {{TableField::name, Text(kHeader), 1, 0},
                                         {TableField::kcal, "kcal", 1, 4},
                                         {TableField::sodium, "Na mg", 0.001, 2},
                                         {TableField::remark, "", 1, 7}},
                             .of_portion = true,
                             .has_header = false};
  EXPECT_EQ(MappingFrom(MappingText(mapping)), mapping);
  for (const char* bad :
       {"", "name: 1 x\n", "set: a/b\n", "set: x\nname: x\n", "set: x\nname: 0\n",
        "set: x\nweight: 1\n", "set: x\nkilojoules: 1 x0\n", "set: x\nrubbish\n"}) {
    EXPECT_FALSE(MappingFrom(bad)) << bad;
  }
}

TEST_F(ImportCommand, AMappingGoesByTheHeaderAndElseByTheNumberOfTheColumn) {
  const std::string moved = Write("moved.csv", "Energy;Product\n200;Rye\n");
  const std::string columns =
      Write("my.columns", "set: K\nname: 1 Product\nkilocalories: 3 Energy\n");
  EXPECT_EQ(Run({"-m", columns, moved}).status, 0);
  EXPECT_EQ(OnlyLine("K: other.dat")[0], "Rye");
  const std::string bare = Write("bare.csv", "Rye;200\nOats;300\n");
  const std::string places =
      Write("places.columns", "set: P\nheader: no\nname: 1\nkilocalories: 2\n");
  EXPECT_EQ(Run({"-m", places, bare}).status, 0);
  EXPECT_EQ(Lines("P: other.dat").size(), 2u);
}

TEST_F(ImportCommand, AmountsOfThePortionAreKeptAndScaledToWholeGrams) {
  const std::string own = Write("own.csv", "n,g,kcal,p\nRye,12.5,50,5\nOats,,80,6\n");
  const std::string columns = Write("my.columns",
                                    "set: P\namounts: portion\nname: 1 n\nportion grams: 2 g\n"
                                    "kilocalories: 3 kcal\nprotein: 4 p\n");
  ASSERT_EQ(Run({"-m", columns, own}).status, 0);
  const auto lines = Lines("P: other.dat");
  ASSERT_EQ(lines.size(), 2u);
  // 13 of 12.5 grams: 50 x 1.04 = 52.
  EXPECT_EQ(FieldOf(lines[0], 2), "13");
  EXPECT_EQ(FieldOf(lines[0], 4), "52");
  EXPECT_EQ(FieldOf(lines[0], 5), "5.2");
  EXPECT_EQ(FieldOf(lines[1], 4), "80");
}

}  // namespace
}  // namespace kelvora
