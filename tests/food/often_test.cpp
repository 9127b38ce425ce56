// What was eaten often: which days count and in which order the foods come.
#include "food/often.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "food/food_lists.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class Often : public testing::Test {
 protected:
  Often() {
    MakeUserFolders(program.paths, "Anna");
    SetCurrentUser(program, "Anna");
    test.OpenDay("Anna");  // of 05-03-04
  }

  // A day file; each part of the day as names with blanks between them.
  void AddDay(std::string_view date, const std::array<std::string_view, 3>& parts,
              std::string_view unit = "1 piece") {
    TextList header;
    for (std::size_t row = 0; row < HeaderRow::kCount; ++row) {
      header.Add(row == HeaderRow::kDate ? date : std::string_view());
    }
    Rec_DayFile record;
    record[DayFileField::Header] = PackBlock(header);
    constexpr std::array kBlocks = {DayFileField::Morning, DayFileField::Afternoon,
                                    DayFileField::Evening};
    for (std::size_t part = 0; part < parts.size(); ++part) {
      std::string_view names = parts[part];
      while (!names.empty()) {
        const std::size_t end = std::min(names.find(' '), names.size());
        record[kBlocks[part]] += LineOf({.product = names.substr(0, end), .unit = unit}) + kLineEnd;
        names.remove_prefix(std::min(end + 1, names.size()));
      }
    }
    WriteRecord(program.paths.FilesPath + std::to_string(++files_) + ".kvf", record);
  }

  std::vector<Text> Foods(DayPart part) {
    OftenEaten often(program);
    while (often.Read()) {
    }
    std::vector<Text> names;
    for (const std::string_view line : often.Foods(part)) names.emplace_back(FieldOf(line, 0));
    return names;
  }

  TestProgram test;
  Program& program = test.program;

 private:
  int files_ = 0;
};

TEST_F(Often, TheDayHasThreeParts) {
  const auto part = [](int hour) { return PartOfTime({.hour = hour, .minute = 59}); };
  EXPECT_EQ(part(0), DayPart::morning);
  EXPECT_EQ(part(11), DayPart::morning);
  EXPECT_EQ(part(12), DayPart::afternoon);
  EXPECT_EQ(part(17), DayPart::afternoon);
  EXPECT_EQ(part(18), DayPart::evening);
  EXPECT_EQ(part(23), DayPart::evening);
}

TEST_F(Often, SixtyDaysBeforeTheOpenOneCount) {
  AddDay("05-03-04", {"Today", "", ""});
  AddDay("06-03-04", {"Tomorrow", "", ""});
  AddDay("04-03-04", {"Yesterday", "", ""});
  AddDay("05-01-04", {"Sixty", "", ""});  // 2004 is a leap year: 26 + 29 + 5 days
  AddDay("04-01-04", {"Sixty-one", "", ""});
  EXPECT_EQ(Foods(DayPart::morning), (std::vector<Text>{"Yesterday", "Sixty"}));
}

TEST_F(Often, ThoseOfThisTimeOfDayComeFirstThenTheMostPortions) {
  AddDay("04-03-04", {"Bread Bread Egg", "Soup Soup Soup Bread", "Tea"});
  AddDay("03-03-04", {"Bread", "", "Tea Wine Egg"});
  // Bread 3 + 1, Soup 0 + 3, Tea 2 in the evening, Egg 1 + 1 as often here as there, Wine 1
  EXPECT_EQ(Foods(DayPart::morning), (std::vector<Text>{"Bread", "Egg", "Soup", "Tea", "Wine"}));
  EXPECT_EQ(Foods(DayPart::afternoon), (std::vector<Text>{"Soup", "Bread", "Egg", "Tea", "Wine"}));
  EXPECT_EQ(Foods(DayPart::evening), (std::vector<Text>{"Egg", "Tea", "Wine", "Bread", "Soup"}));
}

TEST_F(Often, OfEquallyManyTheLatestComesFirstThenTheName) {
  AddDay("01-03-04", {"Cake Apple", "", ""});
  AddDay("03-03-04", {"Banana", "", ""});
  EXPECT_EQ(Foods(DayPart::morning), (std::vector<Text>{"Banana", "Apple", "Cake"}));
}

TEST_F(Often, AFoodIsListedOnceAsItWasEatenLast) {
  AddDay("03-03-04", {"Bread", "", ""}, "1 new slice");
  AddDay("01-03-04", {"Bread Bread", "", ""}, "1 old slice");
  OftenEaten often(program);
  while (often.Read()) {
  }
  const TextList foods = often.Foods(DayPart::morning);
  ASSERT_EQ(foods.Count(), 1u);
  EXPECT_EQ(foods[0], LineOf({.product = "Bread", .unit = "1 new slice"}));
}

TEST_F(Often, NoMoreThanAHundredAreListed) {
  Text names;
  for (int i = 0; i < 130; ++i) names += "Food" + std::to_string(i) + " ";
  AddDay("04-03-04", {names, "", ""});
  EXPECT_EQ(Foods(DayPart::morning).size(), 100u);
}

TEST_F(Often, WhatCannotBeReadOrHasNoDateCountsNothingAndSaysNothing) {
  AddDay("no date", {"Nowhen", "", ""});
  AddDay("31-02-04", {"Never", "", ""});
  AddDay("04-03-04", {"Bread", "", ""});
  std::filesystem::create_symlink("nowhere", program.paths.FilesPath + "0.kvf");
  WriteFileAnew(program.paths.FilesPath + "00.kvf", "x");
  EXPECT_EQ(Foods(DayPart::morning), std::vector<Text>{"Bread"});
  EXPECT_TRUE(test.boxes.shown.empty());
  program.store.L_gegevens.Replace(HeaderRow::kDate, "some day");
  EXPECT_TRUE(Foods(DayPart::morning).empty());
}

// In the food lists.

class OftenListed : public testing::Test {
 protected:
  OftenListed() {
    for (const char* name : {"Apple", "Bread", "Tea"}) {
      program.store.Default_list.Add(LineOf({.product = name, .db = "All.dat"}));
    }
    program.store.lst_categorien.Add("All.dat");
    program.store.Custom_list.Add(LineOf({.product = "Bread of mine"}));
    for (const char* name : {"Tea", "Bread of mine", "Bagel"}) {
      eaten.Add(LineOf({.product = name}));
    }
  }
  std::vector<Text> Shown() {
    std::vector<Text> names;
    for (std::size_t row = 0; row < lists.Count(FoodView::standard); ++row) {
      names.push_back(lists.Cell(FoodView::standard, row, 1));
    }
    return names;
  }
  TestProgram test;
  Program& program = test.program;
  TextList eaten;
  FoodLists lists{program};
};

TEST_F(OftenListed, StandInTheirOrderAndAreSearchedUntilTheBoxIsEmptied) {
  lists.ShowOften(eaten);
  EXPECT_EQ(Shown(), (std::vector<Text>{"Tea", "Bread of mine", "Bagel"}));
  lists.SearchPrefix("b");
  EXPECT_EQ(Shown(), (std::vector<Text>{"Bread of mine", "Bagel"}));
  EXPECT_FALSE(lists.SearchAgain());
  lists.SearchPrefix("apple");
  EXPECT_TRUE(Shown().empty());
  EXPECT_FALSE(lists.NothingOften());
  (void)lists.Toon_Standaardlijst();
  lists.SearchPrefix("b");
  EXPECT_EQ(Shown(), (std::vector<Text>{"Bread", "Bread of mine"}));
}

TEST_F(OftenListed, EndWithASearchThroughEverything) {
  lists.ShowOften(eaten);
  lists.Zoek_In_Lijsten("app");
  EXPECT_EQ(Shown(), std::vector<Text>{"Apple"});
  lists.SearchPrefix("bread");
  EXPECT_EQ(Shown(), (std::vector<Text>{"Bread", "Bread of mine"}));
}

TEST_F(OftenListed, MayBeNone) {
  lists.ShowOften({});
  EXPECT_TRUE(Shown().empty());
  EXPECT_TRUE(lists.NothingOften());
  (void)lists.Toon_Standaardlijst();
  EXPECT_FALSE(lists.NothingOften());
}

}  // namespace
}  // namespace kelvora
