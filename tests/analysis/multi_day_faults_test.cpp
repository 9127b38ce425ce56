// Several days of which too few, too many or broken ones are there, and work that is left undone.
#include "analysis/several_days.h"

namespace kelvora {
namespace {

TEST_F(SeveralDays, OfTooFewFilesStayEmpty) {
  AddDay("a.kvf", {.trend = "1|2|", .morning = "Tea|~"});
  Open();
  EXPECT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(days->Title(), "Trend");
  EXPECT_TRUE(Sheet().Rows()->empty());
  EXPECT_EQ(Sheet().Bars()[0].requirement_text, "");
  EXPECT_TRUE(Sheet().Pie().Graph_pie.empty());
  EXPECT_TRUE(days->Days().series.keys.empty());
  // Choices change nothing of that.
  Press(AnalysisView::requirements);
  days->ClickEntry(4);
  Press(AnalysisView::top5);
  days->ClickEntry(3);
  days->Refresh_Meerdaagsuittreksel();
  Finish();
  EXPECT_EQ(Sheet().Bars()[0].requirement_text, "");
  EXPECT_EQ(test.boxes.shown.size(), 1u);
}

TEST_F(SeveralDays, MayBeGivenUpAfterEveryStep) {
  EatTenFoods();
  for (int steps = 0; steps < 25; ++steps) {
    days.emplace(program);
    for (int i = 0; i < steps; ++i) days->Work();
    days->GiveUp();
    EXPECT_FALSE(days->Working());
    EXPECT_FALSE(days->Work());
    EXPECT_FALSE(test.pointer.waiting);
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(SeveralDays, AnswerClicksWhileTheyAreRead) {
  EatTenFoods();
  for (int steps = 0; steps < 25; ++steps) {
    days.emplace(program);
    for (int i = 0; i < steps; ++i) days->Work();
    for (const AnalysisButton& button : MultiDayButtons()) {
      Press(button.view);
      days->ClickEntry(2);
    }
    days->Sheet().ClickColumn(SummaryColumn::kj);
    days->Resize();
    days->Set_Taal();
    days->Refresh_Meerdaagsuittreksel();
    Finish();
    EXPECT_EQ(Sheet().Rows()->size(), 10u) << steps;
    EXPECT_EQ(Sheet().Pie().lst_waarden.size(), 10u) << steps;
  }
}

TEST_F(SeveralDays, OfWhichTheUserIsDeletedMeanwhileNameWhatIsGone) {
  for (const char* file : {"a.kvf", "b.kvf", "c.kvf"}) AddDay(file, {.trend = "1|"});
  days.emplace(program);
  for (int i = 0; i < 2; ++i) days->Work();
  DeleteUserFolder(program.paths, program.paths.UsersPath + "Anna/");
  Finish();
  EXPECT_EQ(days->Days().series.keys.size(), 1u);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nNo such file or directory: b.kvf, c.kvf\nBrelux CODE:#F12-15");
}

TEST_F(SeveralDays, ReportAnAverageThatNoNumberHolds) {
  const Text huge = "0|9" + Text(38, '0') + "|";
  AddDay("a.kvf", {.date = "01-03-04", .trend = huge});
  AddDay("b.kvf", {.date = "02-03-04", .trend = "0|1|"});
  Open();
  // 9E38 is a double but no single.
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#F12-8"));
  EXPECT_EQ(days->Days().series.L_data_2[1].size(), 2u);
}

TEST_F(SeveralDays, ReportARequirementOfZero) {
  program.profile[ProfileField::txt_kcal] = "0";
  AddDay("a.kvf", {.date = "01-03-04", .trend = "0|1|1|"});
  AddDay("b.kvf", {.date = "02-03-04", .trend = "0|1|1|"});
  Open();
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#F12-9"));
  EXPECT_EQ(Sheet().Bars()[0].use_text, "Used:1 Kj, 1%");
  EXPECT_EQ(Sheet().Bars()[2].use_text, "");
}

TEST_F(SeveralDays, TakeAHundredThousandFoods) {
  Text lines;
  for (int i = 0; i < 50'000; ++i)
    lines += Packed("Food " + std::to_string(i) + "|x|1|") + kLineEnd;
  Rec_DayFile record;
  record[DayFileField::Header] = Packed("Anna~~~~~~~~~01-03-04~");
  record[DayFileField::Morning] = lines;
  record[DayFileField::Evening] = ReplaceAll(lines, "Food", "Dish");
  WriteRecord(PathOf("a.kvf"), record);
  WriteRecord(PathOf("b.kvf"), record);
  Open();
  EXPECT_EQ(Sheet().Rows()->size(), 100'000u);
  EXPECT_EQ(Cell(99'999, SummaryColumn::food), "Dish 49999");
  EXPECT_EQ(Cell(99'999, SummaryColumn::count), "2");
  EXPECT_TRUE(test.boxes.shown.empty());
}

}  // namespace
}  // namespace kelvora
