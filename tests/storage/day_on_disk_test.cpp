// What comes before a save that would replace a file that somebody else has written to.
#include <filesystem>
#include <gtest/gtest.h>

#include "days/open_day.h"
#include "days/users_folder.h"
#include "storage/day_file.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "05032004140709.kvf";

struct OpenedDay : testing::Test {
  OpenedDay() {
    test.OpenDay("Anna");
    test.program.store.L_ochtend.Add(LineOf({.product = "Bread"}));
    SaveDay(test.program);
    path = PathOfDay(test.program);
    LoadDay(test.program, test.program.paths.FilesPath, kName);
    AfterOpenDay(test.program);
    test.program.store.L_ochtend.Add(LineOf({.product = "Soup"}));
    SetFileChanged(test.program, true);
  }

  // The day with other words in its diary.
  void WriteFromOutside(const Text& diary) {
    Rec_DayFile day = *ReadFirstRecord<Rec_DayFile>(path);
    day[DayFileField::Notes] = diary;
    WriteRecord(path, day);
  }
  Text DiaryOnDisk() { return (*ReadFirstRecord<Rec_DayFile>(path))[DayFileField::Notes]; }

  TestProgram test;
  std::string path;
};

using DayOnDiskTest = OpenedDay;

TEST_F(DayOnDiskTest, AnUntouchedFileIsSavedWithoutAQuestion) {
  EXPECT_TRUE(SaveDay(test.program));
  test.program.store.L_ochtend.Add(LineOf({.product = "Salad"}));
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(DayOnDiskTest, AFileChangedByAnotherIsAskedAboutAndNoKeepsBoth) {
  WriteFromOutside("from the other computer");
  EXPECT_FALSE(SaveDay(test.program));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "The file of this day has changed on the disk since it was opened.\n"
            "Saving now replaces what is in it.\n\nDo you want to replace it?");
  EXPECT_EQ(test.boxes.shown[0].buttons, BoxButtons::yes_no);
  EXPECT_EQ(DiaryOnDisk(), "from the other computer");
  EXPECT_TRUE(test.program.day.FileChanged);
  EXPECT_EQ(test.program.store.L_ochtend.Count(), 2u);
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(DayOnDiskTest, YesSavesAndTheNextSaveAsksNothing) {
  WriteFromOutside("from the other computer");
  test.boxes.answers = {BoxAnswer::yes};
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_EQ(DiaryOnDisk(), "");
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

TEST_F(DayOnDiskTest, AFilePutBackAsItWasIsNoChange) {
  const std::string bytes = ReadFile(path);
  WriteFromOutside("from the other computer");
  WriteFileAnew(path, bytes);
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(DayOnDiskTest, AFileThatHasGoneIsWrittenAnewWithoutAQuestion) {
  fs::remove(path);
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(DayOnDiskTest, ANewDayAsksBeforeItReplacesOneOfTheSameSecond) {
  CloseDay(test.program);
  test.OpenDay("Anna");
  test.program.store.L_ochtend.Add(LineOf({.product = "Cake"}));
  EXPECT_FALSE(SaveDay(test.program));
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ((*ReadFirstRecord<Rec_DayFile>(path))[DayFileField::Morning],
            LineOf({.product = "Bread"}) + kLineEnd);
}

TEST_F(DayOnDiskTest, AFolderInItsPlaceFailsInTheSystemsWords) {
  fs::remove(path);
  fs::create_directory(path);
  EXPECT_FALSE(SaveDay(test.program));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text, "An error occured.\n\nIs a directory\nBrelux CODE:#FF1-9");
}

TEST_F(DayOnDiskTest, WhatWasAgreedToForAnotherUsersFolderIsNotAskedAgain) {
  const std::string elsewhere = test.folders.home.Path("elsewhere/");
  fs::create_directories(elsewhere + "Anna/Files");
  Rec_DayFile other = *ReadFirstRecord<Rec_DayFile>(path);
  other[DayFileField::Notes] = "another day of the same second";
  WriteRecord(elsewhere + "Anna/Files/" + kName, other);
  test.boxes.answers = {BoxAnswer::yes};
  ASSERT_TRUE(ChangeUsersFolder(test.program, elsewhere));
  const std::size_t told = test.boxes.shown.size();
  EXPECT_TRUE(SaveDay(test.program));
  EXPECT_EQ(test.boxes.shown.size(), told);
  path = elsewhere + "Anna/Files/" + kName;
  EXPECT_EQ(DiaryOnDisk(), "");
}

}  // namespace
}  // namespace kelvora
