// Taking over what was eaten on another day: which days are offered, what they hold, what is added.
#include "days/take_over.h"

#include <filesystem>
#include <fstream>

#include "days/browser_fixture.h"
#include "nutrition/totals.h"
#include "support/file_faults.h"

namespace kelvora {
namespace {

constexpr FoodLine kTea{.product = "Tea", .unit = "1 cup", .kj = "10,5", .kcal = "2.5"};
constexpr FoodLine kSoup{.product = "Soup", .unit = "1 bowl", .kj = "400", .kcal = "95"};

class TakingOver : public Browser {
 protected:
  TakingOver() { test.OpenDay("Anna", "open.kvf"); }

  void AddEatenDay(const std::string& name, std::initializer_list<FoodLine> morning,
                   std::initializer_list<FoodLine> evening = {}) {
    AddDay(name, {.date = "04-03-04"});
    const std::string path = program.paths.FilesPath + name;
    auto record = ReadFirstRecord<Rec_DayFile>(path).value();
    for (const FoodLine& food : morning) record[DayFileField::Morning] += LineOf(food) + kLineEnd;
    for (const FoodLine& food : evening) record[DayFileField::Evening] += LineOf(food) + kLineEnd;
    WriteRecord(path, record);
  }
  DayFoods FoodsOf(const std::string& name) {
    return FoodsOfDay(program, program.paths.FilesPath + name);
  }
  void Fill(DayPart part, std::size_t lines) {
    while (program.store.ListOf(part).Count() < lines) {
      program.store.ListOf(part).Add(LineOf(kSoup));
    }
  }
};

OtherDays AllDays(Program& program) {
  OtherDays days(program);
  while (days.Read()) {
  }
  return days;
}

std::vector<Text> DatesOf(const OtherDays& days) {
  std::vector<Text> dates;
  for (const OtherDay& day : days.Days()) dates.push_back(day.date);
  return dates;
}

// The open day of the tests is of 05-03-04.

TEST_F(TakingOver, TheDaysComeNewestFirstAndBeginWithTheOneBeforeTheOpenDay) {
  AddDay("a.kvf", {.date = "01-02-04"});
  AddDay("b.kvf", {.date = "06-03-04"});
  AddDay("c.kvf", {.date = "04-03-04"});
  AddDay("d.kvf", {.date = "31-12-03"});
  const OtherDays days = AllDays(program);
  EXPECT_EQ(DatesOf(days), (std::vector<Text>{"06-03-04", "04-03-04", "01-02-04", "31-12-03"}));
  EXPECT_EQ(days.First(), 1u);
}

TEST_F(TakingOver, WithoutADayBeforeItTheFirstOfTheListIsTheBeginning) {
  EXPECT_FALSE(AllDays(program).First());
  AddDay("a.kvf", {.date = "05-03-04"});  // another one of the same date
  AddDay("b.kvf", {.date = "06-03-04"});
  EXPECT_EQ(AllDays(program).First(), 0u);
}

TEST_F(TakingOver, ADayTellsWeekdayAndEnergyInTheSettingsOfTheUser) {
  AddDay("a.kvf", {.date = "04-03-04", .weekday = "Thursday"});  // 20.4 kJ, 30.5 kcal
  const OtherDays kcal = AllDays(program);
  EXPECT_EQ(kcal.Days()[0].weekday, "Thursday");
  EXPECT_EQ(kcal.Days()[0].energy, "31");
  EXPECT_EQ(EnergyHeading(program), "Kcal");
  program.profile[ProfileField::type_prioriteit] = "4";
  program.settings[Setting::opt_system] = "1";
  const OtherDays kj = AllDays(program);
  EXPECT_EQ(kj.Days()[0].energy, "20");
  EXPECT_EQ(kj.Days()[0].date, "03-04-04");
  EXPECT_EQ(EnergyHeading(program), "Kj ");
}

TEST_F(TakingOver, TheFileOfTheOpenDayIsNotOffered) {
  AddDay("open.kvf", {.date = "05-03-04"});
  AddDay("a.kvf", {.date = "04-03-04"});
  EXPECT_EQ(DatesOf(AllDays(program)), std::vector<Text>{"04-03-04"});
}

TEST_F(TakingOver, AFileWithoutARecordIsARowThatNobodyBeginsWith) {
  AddDay("a.kvf", {.date = "01-03-04"});
  std::ofstream(program.paths.FilesPath + "empty.kvf");
  const OtherDays days = AllDays(program);
  EXPECT_EQ(DatesOf(days), (std::vector<Text>{"01-03-04", "empty.kvf"}));
  EXPECT_EQ(days.First(), 0u);
  EXPECT_EQ(FoodsOf("empty.kvf"), DayFoods());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(TakingOver, WhatCannotBeReadIsNamedInOneBox) {
  AddDay("a.kvf", {.date = "04-03-04"});
  std::filesystem::create_symlink("nowhere", program.paths.FilesPath + "b.kvf");
  std::filesystem::create_symlink("nowhere", program.paths.FilesPath + "c.kvf");
  EXPECT_EQ(AllDays(program).Days().size(), 1u);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_NE(test.boxes.shown[0].text.find("b.kvf"), Text::npos);
  EXPECT_NE(test.boxes.shown[0].text.find("c.kvf"), Text::npos);
  EXPECT_TRUE(LastBoxEndsWith("#F20-0"));
}

TEST_F(TakingOver, EqualFoodsAreOneRowWithTheEnergyOfAll) {
  AddEatenDay("a.kvf", {kTea, kSoup, kTea}, {kSoup});
  const DayFoods foods = FoodsOf("a.kvf");
  ASSERT_EQ(foods[0].size(), 2u);
  EXPECT_EQ(foods[0][0].product, "Tea");
  EXPECT_EQ(foods[0][0].count, 2u);
  EXPECT_EQ(foods[0][0].unit, "1 cup");
  EXPECT_EQ(foods[0][0].energy, "5");  // 2 x 2.5
  EXPECT_EQ(foods[0][1].energy, "95");
  EXPECT_TRUE(foods[1].empty());
  EXPECT_EQ(foods[2][0].line, LineOf(kSoup));
}

TEST_F(TakingOver, ADayThatIsGoneSaysSo) {
  EXPECT_EQ(FoodsOf("gone.kvf"), DayFoods());
  EXPECT_TRUE(LastBoxEndsWith("#F20-1"));
}

TEST_F(TakingOver, FoodsGoToTheirOwnPartsBehindWhatIsThere) {
  AddEatenDay("a.kvf", {kTea, kSoup, kTea}, {kSoup});
  program.store.L_ochtend.Add(LineOf(kSoup));
  Refresh_Totalen(program);
  SetFileChanged(program, false);
  EXPECT_TRUE(TakeOver(program, FoodsOf("a.kvf")));
  const TextList& morning = program.store.L_ochtend;
  EXPECT_EQ(std::vector<Text>(morning.begin(), morning.end()),
            (std::vector<Text>{LineOf(kSoup), LineOf(kTea), LineOf(kTea), LineOf(kSoup)}));
  EXPECT_TRUE(program.store.L_middag.Empty());
  EXPECT_EQ(program.store.L_avond.Count(), 1u);
  EXPECT_TRUE(program.day.FileChanged);
  // 2 x 400 + 2 x 10.5 + 400 kilojoules
  EXPECT_EQ(FieldOf(program.store.txt_trenddata, 1), "1221");
  // One change.
  EXPECT_TRUE(program.day.undo.Undo(program.store));
  EXPECT_EQ(program.store.L_ochtend.Count(), 1u);
  EXPECT_TRUE(program.store.L_avond.Empty());
}

TEST_F(TakingOver, NothingIsAddedWhereOnePartWouldHaveTooMany) {
  AddEatenDay("a.kvf", {kTea}, {kTea, kSoup});
  Fill(DayPart::evening, 49);
  EXPECT_FALSE(TakeOver(program, FoodsOf("a.kvf")));
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(program.store.L_ochtend.Empty());
  EXPECT_FALSE(program.day.FileChanged);
  // A part that gets nothing may be as full as it is; up to the limit is not beyond it.
  DayFoods chosen = FoodsOf("a.kvf");
  chosen[2].pop_back();
  EXPECT_TRUE(TakeOver(program, chosen));
  EXPECT_EQ(program.store.L_avond.Count(), 50u);
  chosen[2].clear();
  Fill(DayPart::evening, 51);
  EXPECT_TRUE(TakeOver(program, chosen));
}

TEST_F(TakingOver, NothingChosenChangesNothing) {
  EXPECT_FALSE(TakeOver(program, DayFoods()));
  EXPECT_FALSE(program.day.FileChanged);
}

}  // namespace
}  // namespace kelvora
