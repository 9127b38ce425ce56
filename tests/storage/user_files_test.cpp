// The files of a user and of the installation: profile, own lists, category databases, settings.
#include <filesystem>
#include <gtest/gtest.h>

#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

std::vector<Text> Lines(const TextList& list) {
  return {list.begin(), list.end()};
}

class CategoryFiles : public testing::Test {
 protected:
  CategoryFiles() { std::filesystem::create_directories(folder); }
  void Write(const std::string& name, std::string_view block) {
    WriteRecord(folder + name, Rec_ListLine{{Packed(block)}});
  }
  TestProgram test;
  const std::string folder = test.program.paths.ProgramPath + "Databases/";
};

TEST_F(CategoryFiles, LoadInOrderOfNameAndEachLineGetsItsFileAsLastField) {
  Write("Fruit.dat", "Apple|1 piece|~Pear|1 piece|~");
  Write("bread.dat", "Rye|1 slice|~");
  Write("notes.txt", "no|~");
  Load_Databases(test.program);
  EXPECT_EQ(Lines(test.program.store.Default_list),
            (std::vector<Text>{Packed("Rye|1 slice|bread.dat|"), Packed("Apple|1 piece|Fruit.dat|"),
                               Packed("Pear|1 piece|Fruit.dat|")}));
  EXPECT_EQ(Lines(test.program.store.lst_categorien),
            (std::vector<Text>{"bread.dat", "Fruit.dat"}));
}

TEST_F(CategoryFiles, LoadingAgainClearsTheFoodsButNotTheCategories) {
  Write("Fruit.dat", "Apple|~");
  Load_Databases(test.program);
  std::filesystem::remove(folder + "Fruit.dat");
  Write("Nuts.dat", "Almond|~");
  Load_Databases(test.program);
  EXPECT_EQ(Lines(test.program.store.Default_list), std::vector<Text>{Packed("Almond|Nuts.dat|")});
  EXPECT_EQ(Lines(test.program.store.lst_categorien), (std::vector<Text>{"Fruit.dat", "Nuts.dat"}));
}

TEST_F(CategoryFiles, AFileWithoutARecordAddsNothingAndAnUnclosedLineIsNotLoaded) {
  Write("a.dat", "Apple|~lost|");
  WriteFileAnew(folder + "b.dat", std::string(4, '\0'));
  Load_Databases(test.program);
  EXPECT_EQ(Lines(test.program.store.Default_list), std::vector<Text>{Packed("Apple|a.dat|")});
}

TEST_F(CategoryFiles, EqualLinesOfTwoFilesStayTwoThatDifferInTheirCategory) {
  Write("a.dat", "Apple|1 piece|~");
  Write("b.dat", "Apple|1 piece|~");
  Load_Databases(test.program);
  EXPECT_EQ(Lines(test.program.store.Default_list),
            (std::vector<Text>{Packed("Apple|1 piece|a.dat|"), Packed("Apple|1 piece|b.dat|")}));
}

TEST_F(CategoryFiles, AListLongerThanAPlainLengthHoldsIsReadWhole) {
  std::string block;
  for (int i = 0; i < 10000; ++i) block += "Apple " + std::to_string(i) + "|1 piece|~";
  Write("Fruit.dat", block);
  Load_Databases(test.program);
  EXPECT_EQ(test.program.store.Default_list.Count(), 10000u);
  EXPECT_EQ(test.program.store.Default_list[9999], Packed("Apple 9999|1 piece|Fruit.dat|"));
}

class CategoryFilesOfTheUser : public CategoryFiles {
 protected:
  CategoryFilesOfTheUser() { std::filesystem::create_directories(of_user); }
  void WriteOfUser(const std::string& name, std::string_view block) {
    WriteRecord(of_user + name, Rec_ListLine{{Packed(block)}});
  }
  const std::string of_user = test.program.paths.UserDatabases;
};

TEST_F(CategoryFilesOfTheUser, LieInTheDataFolderOfTheUser) {
  EXPECT_EQ(of_user, test.folders.home.Path(".local/share/kelvora-food/Databases/"));
}

TEST_F(CategoryFilesOfTheUser, AreReadBehindThoseOfTheProgram) {
  Write("Fruit.dat", "Apple|~");
  WriteOfUser("Bread.dat", "Rye|~");
  Load_Databases(test.program);
  EXPECT_EQ(Lines(test.program.store.Default_list),
            (std::vector<Text>{Packed("Apple|Fruit.dat|"), Packed("Rye|Bread.dat|")}));
  EXPECT_EQ(Lines(test.program.store.lst_categorien),
            (std::vector<Text>{"Fruit.dat", "Bread.dat"}));
  EXPECT_EQ(Lines(test.program.store.database_lst), (std::vector<Text>{"Fruit.dat", "Bread.dat"}));
}

TEST_F(CategoryFilesOfTheUser, CountAloneOverOnesOfTheProgramOfTheSameName) {
  Write("Fruit.DAT", "Apple|~");
  Write("fruit.dat", "Plum|~");
  WriteOfUser("Fruit.dat", "Pear|~");
  Load_Databases(test.program);
  EXPECT_EQ(Lines(test.program.store.Default_list),
            (std::vector<Text>{Packed("Plum|fruit.dat|"), Packed("Pear|Fruit.dat|")}));
}

TEST_F(CategoryFilesOfTheUser, ThatCannotBeReadAreNamedAndHideNoOthers) {
  Write("Fruit.dat", "Apple|~");
  std::filesystem::create_symlink("/nowhere/at/all", of_user + "Bread.dat");
  Load_Databases(test.program);
  EXPECT_EQ(Lines(test.program.store.Default_list), std::vector<Text>{Packed("Apple|Fruit.dat|")});
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_NE(test.boxes.shown[0].text.find("Bread.dat"), Text::npos);
}

TEST_F(CategoryFiles, AMissingFolderYieldsNoFoodsAndNoMessage) {
  std::filesystem::remove_all(folder);
  Load_Databases(test.program);
  EXPECT_TRUE(test.program.store.Default_list.Empty());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(UserLists, SurviveTheFileAndAMissingFileChangesNothing) {
  TestProgram test;
  MakeUserFolders(test.program.paths, "Anna");
  const std::string path = CustomFile(test.program.paths, "Anna");
  test.program.store.Custom_list.Add(LineOf({.product = "Own soup"}));
  Load_Custom(test.program, path);
  EXPECT_EQ(test.program.store.Custom_list.Count(), 1u);
  Save_Custom(test.program, path);
  test.program.store.Custom_list.Add("other");
  Load_Custom(test.program, path);
  EXPECT_EQ(Lines(test.program.store.Custom_list),
            std::vector<Text>{LineOf({.product = "Own soup"})});
}

TEST(UserLists, EachWriterReportsByItsOwnCode) {
  TestProgram test;
  Save_Custom(test.program, "/no/such/folder/Custom.dat");
  Save_Favorites(test.program, "/no/such/folder/Favorites.dat");
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#FF1-5"));
  EXPECT_TRUE(test.boxes.shown[1].text.ends_with("#FF1-4"));
}

TEST(Profile, SurvivesTheFileAndTheSpareStringsStayEmpty) {
  TestProgram test;
  MakeUserFolders(test.program.paths, "Zoë"_w);
  const std::string path = ProfileFile(test.program.paths, "Zoë"_w);
  EXPECT_TRUE(path.ends_with("/My Users/Zoë/Profile/Profile.usr"));
  test.program.profile = DefaultsOfNewUser();
  test.program.profile[ProfileField::name] = "Zoë"_w;
  test.program.profile.strings[25] = "spare";
  Save_Profile(test.program, path);
  const auto written = ReadFirstRecord<Rec_Profile>(path);
  ASSERT_TRUE(written.has_value());
  EXPECT_EQ(written->strings[0], "Zo\xEB");
  EXPECT_EQ(written->strings[14], "1");
  EXPECT_EQ(written->strings[15], "9000");
  EXPECT_EQ(written->strings[16], "2143");
  EXPECT_EQ(written->strings[21], "300");
  EXPECT_EQ(written->strings[25], "");
  test.program.profile = {};
  Load_Profile(test.program, path);
  EXPECT_EQ(test.program.profile[ProfileField::txt_ew], "60");
}

TEST(Profile, OneWithoutARecordLeavesThePreviousUsersCopy) {
  TestProgram test;
  MakeUserFolders(test.program.paths, "Anna");
  const std::string path = ProfileFile(test.program.paths, "Anna");
  test.program.profile[ProfileField::name] = "Anna";
  Save_Profile(test.program, path);
  Load_Profile(test.program, path);
  WriteFileAnew(path, std::string(4, '\0'));
  Load_Profile(test.program, path);
  EXPECT_EQ(test.program.profile[ProfileField::name], "Anna");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(Profile, OneWithoutARecordKeepsEvenWhatWasNeverInAFile) {
  TestProgram test;
  MakeUserFolders(test.program.paths, "Anna");
  const std::string path = ProfileFile(test.program.paths, "Anna");
  Save_Profile(test.program, path);
  Load_Profile(test.program, path);
  test.program.profile[ProfileField::txt_kj] = "changed since";
  WriteFileAnew(path, std::string(4, '\0'));
  Load_Profile(test.program, path);
  EXPECT_EQ(test.program.profile[ProfileField::txt_kj], "changed since");
}

TEST(Profile, AFailingWriteShowsItsCode) {
  TestProgram test;
  Save_Profile(test.program, "/no/such/folder/Profile.usr");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#FF1-7"));
}

TEST(Settings, ReservedAndSpareFieldsAreWrittenAsTheyWereRead) {
  TestProgram test;
  Rec_Settings settings;
  settings.strings[5] = "five";
  settings.strings[50] = "last";
  WriteRecord(test.program.paths.SettingsFile, settings);
  EXPECT_TRUE(ReadSettingsFile(test.program));
  Apply_Default_Settings(test.program);
  Save_Settings(test.program);
  const auto saved = ReadFirstRecord<Rec_Settings>(test.program.paths.SettingsFile);
  ASSERT_TRUE(saved.has_value());
  EXPECT_EQ(saved->strings[5], "five");
  EXPECT_EQ(saved->strings[50], "last");
  EXPECT_EQ(saved->strings[22], "0");
}

TEST(Settings, AFailingWriteShowsItsCodeAndMemoryStays) {
  TestProgram test;
  test.program.paths.SettingsFile = "/no/such/folder/kvfset.dat";
  Save_Settings(test.program);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#FF1-0"));
  EXPECT_EQ(test.program.settings[Setting::chk_help], "1");
}

}  // namespace
}  // namespace kelvora
