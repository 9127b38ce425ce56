#include "analysis/day_summary.h"

#include <gtest/gtest.h>
#include <memory>

#include "food/consumption.h"
#include "language/built_in_texts.h"
#include "nutrition/totals.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr FoodLine kBread{.product = "Bread", .unit = "1 slice", .gram = "35", .kcal = "82"};
constexpr FoodLine kThickBread{.product = "Bread", .unit = "1 slice", .gram = "50", .kcal = "117"};
constexpr FoodLine kApple{.product = "Apple", .gram = "150", .kj = "330", .kcal = "78"};

// Passes on what the day summary's window would.
struct SummaryWindow : DaySummaryView {
  explicit SummaryWindow(OpenWindows& open) : windows(open) { windows.day_summary = this; }
  ~SummaryWindow() override { windows.day_summary = nullptr; }
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Daguittreksel() override { summary->Refresh_Daguittreksel(); }
  void Maak_Voedingsbehoefte(const DayTotals& totals) override {
    summary->Sheet().Maak_Voedingsbehoefte(totals);
  }
  OpenWindows& windows;
  std::unique_ptr<DaySummary> summary;
};

class DaySummaryOfADay : public testing::Test {
 protected:
  DaySummaryOfADay() {
    test.OpenDay("Anna");
    program.profile[ProfileField::type_prioriteit] = "1";
    for (std::size_t i = 0; i < 7; ++i) {
      program.profile.strings[static_cast<std::size_t>(ProfileField::txt_kj) + i] = "100";
    }
    Header(HeaderRow::kAge, "40");
    Header(HeaderRow::kGender, "Man");
  }
  void Header(std::size_t row, const Text& text) { program.store.L_gegevens.Replace(row, text); }
  void Eat(DayPart part, const FoodLine& food) { program.store.ListOf(part).Add(LineOf(food)); }
  DaySummary& Open() {
    window.summary = std::make_unique<DaySummary>(program);
    Refresh_Totalen(program);
    return *window.summary;
  }
  Text Cell(std::size_t row, SummaryColumn column) {
    return (*window.summary->Sheet().Rows())[row][column];
  }

  TestProgram test;
  Program& program = test.program;
  SummaryWindow window{program.windows};
};

TEST_F(DaySummaryOfADay, MergesOneFoodOfThreeDayParts) {
  for (const DayPart part : kDayParts) Eat(part, kBread);
  Open();
  ASSERT_EQ(window.summary->Sheet().Rows()->size(), 1u);
  EXPECT_EQ(Cell(0, SummaryColumn::count), "3");
  EXPECT_EQ(Cell(0, SummaryColumn::weight), "105");
  EXPECT_EQ(Cell(0, SummaryColumn::kcal), "246");
}

TEST_F(DaySummaryOfADay, KeepsPortionsApartInTheOrderOfTheDay) {
  Eat(DayPart::evening, kBread);
  Eat(DayPart::afternoon, kThickBread);
  Eat(DayPart::afternoon, kApple);
  Eat(DayPart::morning, kApple);
  Open();
  ASSERT_EQ(window.summary->Sheet().Rows()->size(), 3u);
  EXPECT_EQ(Cell(0, SummaryColumn::food), "Apple");
  EXPECT_EQ(Cell(0, SummaryColumn::count), "2");
  EXPECT_EQ(Cell(1, SummaryColumn::weight), "50");
  EXPECT_EQ(Cell(2, SummaryColumn::weight), "35");
}

TEST_F(DaySummaryOfADay, LeavesTheDistinctLinesAndTheirCountsInTheStore) {
  Eat(DayPart::morning, kApple);
  Eat(DayPart::evening, kApple);
  Open();
  EXPECT_EQ(program.store.Dupe_list.Count(), 1u);
  EXPECT_EQ(program.store.Dupe_list_teller[0], "2");
}

TEST_F(DaySummaryOfADay, OfAnEmptyDayHasNoRowAndTheNotice) {
  Open();
  EXPECT_TRUE(window.summary->Sheet().Rows()->empty());
  ASSERT_TRUE(window.summary->Sheet().Pie().lbl_leeg.has_value());
  EXPECT_NE(window.summary->Sheet().Pie().lbl_leeg->find("There are only 0 food items"),
            Text::npos);
}

TEST_F(DaySummaryOfADay, HasTheDayInItsTitle) {
  Header(HeaderRow::kWeekday, "Friday");
  Open();
  EXPECT_EQ(window.summary->Title(), "Summary of Friday 05-03-04");
  program.settings[Setting::opt_system] = "1";
  EXPECT_EQ(window.summary->Title(), "Summary of Friday 03-05-04");
  Make_Taal_Dutch(program.texts);
  EXPECT_EQ(window.summary->Title(), "Daguittreksel van Friday 03-05-04");
}

TEST_F(DaySummaryOfADay, OpensOnTheRequirementsWithBothStatusTextsAndNoMenu) {
  const DaySummary& summary = Open();
  EXPECT_EQ(summary.Sheet().View(), AnalysisView::requirements);
  EXPECT_FALSE(summary.Sheet().EnabledMenu().has_value());
  EXPECT_EQ(summary.Sheet().Status()[0], "Rec. nutrition");
  EXPECT_EQ(summary.Sheet().Status()[1], "Recommended nutrition's  with changed nutrition");
  EXPECT_EQ(program.analysis.gekozen_stof, 1);
}

TEST_F(DaySummaryOfADay, EnablesTheMenuOfTheButtonThatWasClicked) {
  DaySummary& summary = Open();
  Eat(DayPart::morning, kApple);
  summary.Refresh_Daguittreksel();
  struct Case {
    AnalysisView view;
    const char* first;
    const char* second;
  };
  for (const Case& row : {Case{AnalysisView::top5, "Top 5", "Top 5 diagram for energy in Kcal"},
                          Case{AnalysisView::consumptions, "Summary of this day ", "Food items: 1"},
                          Case{AnalysisView::bmi, "BMI", "Body Mass index (BMI)"},
                          Case{AnalysisView::requirements, "Rec. nutrition",
                               "Recommended nutrition's  with changed nutrition"}}) {
    summary.Sheet().ClickButton(row.view);
    EXPECT_EQ(summary.Sheet().View(), row.view);
    EXPECT_EQ(summary.Sheet().EnabledMenu(), row.view);
    EXPECT_EQ(summary.Sheet().Status()[0], row.first);
    EXPECT_EQ(summary.Sheet().Status()[1], row.second);
  }
}

TEST_F(DaySummaryOfADay, KeepsTheStatusTextUntilTheNextClickAfterAChoiceOfAge) {
  DaySummary& summary = Open();
  summary.Sheet().ClickButton(AnalysisView::requirements);
  const Text before = summary.Sheet().Status()[1];
  summary.ClickEntry(2);
  summary.ClickEntry(5);
  EXPECT_EQ(summary.Sheet().Status()[1], before);
  // The bars follow at once: a woman of 16 to 19.
  EXPECT_EQ(summary.Sheet().Bars()[0].requirement_text, "Recommended:10300 Kj, 100%");
  summary.Sheet().ClickButton(AnalysisView::requirements);
  EXPECT_EQ(summary.Sheet().Status()[1], "Recommended nutrition's for woman between 16 - 19");
}

TEST_F(DaySummaryOfADay, TakesEachPositionOfTheMenuOfRequirements) {
  DaySummary& summary = Open();
  summary.Sheet().ClickButton(AnalysisView::requirements);
  struct Case {
    int position, gender, age;
  };
  for (const Case& row :
       {Case{2, 1, 6}, Case{4, 1, 0}, Case{5, 1, 1}, Case{6, 1, 2}, Case{7, 1, 3}, Case{8, 1, 4},
        Case{9, 1, 5}, Case{3, 1, 5}, Case{10, 1, 5}, Case{1, 0, 5}, Case{11, 0, 6}}) {
    summary.ClickEntry(row.position);
    EXPECT_EQ(summary.Sheet().Requirement().geslacht_index, row.gender) << row.position;
    EXPECT_EQ(summary.Sheet().Requirement().leeftijd_index, row.age) << row.position;
  }
  EXPECT_EQ(program.analysis.gekozen_stof, 1);
}

TEST_F(DaySummaryOfADay, TakesEachPositionOfTheMenuOfNutrients) {
  DaySummary& summary = Open();
  summary.Sheet().ClickButton(AnalysisView::top5);
  const std::array<const char*, 7> texts = {"energy in Kj",   "energy in Kcal", "unsaturated fats",
                                            "saturated fats", "protein",        "sodium",
                                            "carbohydrates"};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    summary.ClickEntry(static_cast<int>(i) + 1);
    EXPECT_EQ(program.analysis.gekozen_stof, static_cast<float>(i));
    EXPECT_EQ(ChosenNutrient(program.analysis), static_cast<int>(i) + 1);
    EXPECT_EQ(summary.Sheet().Status()[1], Text("Top 5 diagram for ") + texts[i]);
  }
  for (const int nothing : {0, 8, 9, 11}) {
    summary.ClickEntry(nothing);
    EXPECT_EQ(program.analysis.gekozen_stof, 6);
  }
  EXPECT_EQ(summary.Sheet().Requirement().leeftijd_index, 6);
}

TEST_F(DaySummaryOfADay, TakesNoChoiceWhereTheButtonHasNoMenu) {
  DaySummary& summary = Open();
  for (const AnalysisView view : {AnalysisView::consumptions, AnalysisView::bmi}) {
    summary.Sheet().ClickButton(view);
    summary.ClickEntry(4);
    EXPECT_EQ(summary.Sheet().Requirement().leeftijd_index, 6);
    EXPECT_EQ(program.analysis.gekozen_stof, 1);
  }
}

TEST_F(DaySummaryOfADay, MarksTheChoicesThatHold) {
  DaySummary& summary = Open();
  EXPECT_EQ(ChosenRequirements(summary.Sheet().Requirement()), (std::array{1, 11}));
  summary.Sheet().ClickButton(AnalysisView::requirements);
  summary.ClickEntry(2);
  summary.ClickEntry(9);
  EXPECT_EQ(ChosenRequirements(summary.Sheet().Requirement()), (std::array{2, 9}));
}

TEST_F(DaySummaryOfADay, NamesEveryAgeInItsStatusText) {
  DaySummary& summary = Open();
  Make_Taal_Dutch(program.texts);
  const std::array<const char*, 6> ages = {"van 13 tot 16 jaar", "van 16 tot 19 jaar",
                                           "van 19 tot 22 jaar", "van 22 tot 50 jaar",
                                           "van 50 tot 65 jaar", "van 65 tot 99 jaar"};
  for (std::size_t i = 0; i < ages.size(); ++i) {
    summary.Sheet().ClickButton(AnalysisView::requirements);
    summary.ClickEntry(4 + static_cast<int>(i));
    summary.Sheet().ClickButton(AnalysisView::requirements);
    EXPECT_EQ(summary.Sheet().Status()[1], Text("Aanbevolen voeding voor een man ") + ages[i]);
  }
}

TEST_F(DaySummaryOfADay, FollowsAnotherLanguage) {
  DaySummary& summary = Open();
  summary.Sheet().ClickButton(AnalysisView::bmi);
  Make_Taal_Dutch(program.texts);
  summary.Set_Taal();
  EXPECT_EQ(summary.Sheet().Status()[0], "BMI");
  EXPECT_EQ(summary.Sheet().Status()[1], "Body Mass Index (BMI)");
  EXPECT_EQ(summary.Sheet().Bars()[0].requirement_text, "Aanbevolen:100 Kj, 100%");
  EXPECT_EQ(summary.Sheet().Pie().lbl_soort, "Taartdiagram voor: (Energie, Kcal)");
  EXPECT_NE(summary.Sheet().Pie().lbl_leeg->find("Deze dag telt maar 0"), Text::npos);
  summary.Sheet().ClickButton(AnalysisView::consumptions);
  EXPECT_EQ(summary.Sheet().Status()[1], "Voedingsmiddelen: 0");
}

TEST_F(DaySummaryOfADay, SortsItsRowsUntilTheyAreBuiltAnew) {
  Eat(DayPart::morning, kBread);
  Eat(DayPart::morning, kApple);
  DaySummary& summary = Open();
  EXPECT_FALSE(summary.Sheet().ShownOrder().has_value());
  const auto before = summary.Sheet().Rows();
  summary.Sheet().ClickColumn(SummaryColumn::kcal);
  EXPECT_EQ(Cell(0, SummaryColumn::food), "Apple");
  EXPECT_EQ(*summary.Sheet().ShownOrder(), (ColumnOrder{6, SortOrder::ascending}));
  // Whoever draws the rows of before still has them.
  EXPECT_EQ((*before)[0][SummaryColumn::food], "Bread");
  summary.Sheet().ClickColumn(SummaryColumn::key);
  EXPECT_EQ(*summary.Sheet().ShownOrder(), (ColumnOrder{6, SortOrder::ascending}));
  summary.Refresh_Daguittreksel();
  EXPECT_EQ(Cell(0, SummaryColumn::food), "Bread");
  EXPECT_FALSE(summary.Sheet().ShownOrder().has_value());
  // The direction of the next click outlives it.
  summary.Sheet().ClickColumn(SummaryColumn::kcal);
  EXPECT_EQ(Cell(0, SummaryColumn::food), "Bread");
}

TEST_F(DaySummaryOfADay, FollowsEveryChangeOfTheDay) {
  DaySummary& summary = Open();
  EXPECT_EQ(summary.Sheet().Bars()[1].use_text, "Used: Kcal, 0%");
  // As a drop on an open morning window does it.
  const auto change = [this](auto edit) {
    edit();
    RefreshDaySummary(program);
    Refresh_Totalen(program);
  };
  change([this] { DropOnDayPart(program, DayPart::morning, "add-" + LineOf(kApple) + kLineEnd); });
  EXPECT_EQ(Cell(0, SummaryColumn::food), "Apple");
  EXPECT_EQ(summary.Sheet().Bars()[1].use_text, "Used:78 Kcal, 78%");
  change([this] { Item_Plus_Een(program, DayPart::morning, "Apple"); });
  EXPECT_EQ(Cell(0, SummaryColumn::count), "2");
  EXPECT_EQ(summary.Sheet().Bars()[1].use_text, "Used:156 Kcal, 156%");
  change([this] { program.store.L_ochtend.Clear(); });
  EXPECT_TRUE(summary.Sheet().Rows()->empty());
}

TEST_F(DaySummaryOfADay, KeepsTheChosenAgeOverARefresh) {
  DaySummary& summary = Open();
  summary.Sheet().ClickButton(AnalysisView::requirements);
  summary.ClickEntry(4);
  summary.Refresh_Daguittreksel();
  EXPECT_EQ(summary.Sheet().Requirement().leeftijd_index, 0);
  // A new window asks the profile again.
  EXPECT_EQ(Open().Sheet().Requirement().leeftijd_index, 6);
}

TEST_F(DaySummaryOfADay, WorksItsBarsOutAnewForAnotherWidth) {
  Eat(DayPart::morning, kApple);
  DaySummary& summary = Open();
  EXPECT_TRUE(summary.Sheet().ResizeBars({8380, 2000}));
  EXPECT_FLOAT_EQ(summary.Sheet().Bars()[2].requirement_width, 6260);
  EXPECT_TRUE(summary.Sheet().ResizeBars({4120, 2000}));
  EXPECT_FLOAT_EQ(summary.Sheet().Bars()[2].requirement_width, 2000);
  // 78 of 100: 100 / 178 and 78 / 178 of 2000.
  EXPECT_NEAR(summary.Sheet().Bars()[1].requirement_width, 1123.5955, 0.001);
  EXPECT_NEAR(summary.Sheet().Bars()[1].use_width, 876.4045, 0.001);
  EXPECT_FALSE(summary.Sheet().ResizeBars({4120, 2000}));
}

TEST_F(DaySummaryOfADay, ChangesItsSizeAndShowsTheRequirements) {
  DaySummary& summary = Open();
  summary.Sheet().ClickButton(AnalysisView::bmi);
  EXPECT_EQ(summary.Stand(), Schermstand::normal);
  EXPECT_EQ(summary.ClickRescale({8500, 4800, 60, 100}), (WindowRecord{8500, 2400, 60, 2100}));
  EXPECT_EQ(program.windows.geometry.SummarySmall, 1);
  EXPECT_EQ(summary.Sheet().View(), AnalysisView::requirements);
  EXPECT_EQ(summary.Stand(), Schermstand::small);
  EXPECT_EQ(summary.ClickRescale({8500, 2400, 60, 100}), (WindowRecord{8500, 4400, 60, 0}));
  EXPECT_EQ(program.windows.geometry.SummarySmall, 0);
}

TEST_F(DaySummaryOfADay, TellsOnceOfAnAmountThatNoNumberCanHold) {
  const Text huge(400, '9');
  Eat(DayPart::morning, {.product = "Whale", .kj = huge});
  Eat(DayPart::morning, kApple);
  DaySummary& summary = Open();
  ASSERT_EQ(summary.Sheet().Rows()->size(), 2u);
  EXPECT_EQ(Cell(0, SummaryColumn::kj), "");
  // The re-totalling says so, and has no totals to give.
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#FF11-0"));
  EXPECT_EQ(summary.Sheet().Bars()[0].use_text, "");
}

TEST_F(DaySummaryOfADay, MergesADayOfFiveThousandLines) {
  for (int i = 0; i < 5000; ++i) {
    const Text name = "Food " + std::to_string(i % 2500);
    Eat(kDayParts[static_cast<std::size_t>(i % 3)], {.product = name, .kcal = "1"});
  }
  Open();
  EXPECT_EQ(window.summary->Sheet().Rows()->size(), 2500u);
  EXPECT_EQ(Cell(2499, SummaryColumn::key), "5000");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(DaySummaryButtons, StandInTheirOrderWithTheirTexts) {
  TestProgram test;
  const TextTables& texts = test.program.texts;
  struct Case {
    const char* panel;
    const char* caption;
    const char* tip;
    std::size_t entries;
  };
  const std::array expected = {
      Case{"Pic_Behoefte", "Rec. nutrition  ", "Recommended nutrition's", 11},
      Case{"Pic_top5", "Top 5 diagram", "Top 5 consumptions", 7},
      Case{"Pic_uittreksel", "Consumption list", "Today's consumptions", 0},
      Case{"Pic_BMI", "BMI Index       ", "Your BMI", 0}};
  const auto buttons = DaySummaryButtons();
  ASSERT_EQ(buttons.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(buttons[i].panel, expected[i].panel);
    EXPECT_EQ(texts[buttons[i].caption], expected[i].caption);
    EXPECT_EQ(texts[buttons[i].tip], expected[i].tip);
    EXPECT_EQ(buttons[i].menu.size(), expected[i].entries);
  }
  const auto entries = [&](std::size_t button) {
    std::vector<Text> all;
    for (const auto& id : buttons[button].menu) all.push_back(id ? texts[*id] : Text("-"));
    return all;
  };
  EXPECT_EQ(entries(0),
            (std::vector<Text>{"Man", "Woman", "-", "between 13 - 16", "between 16 - 19",
                               "between 19 - 22", "between 22 - 50", "between 50 - 65",
                               "between 65 - 99", "-", "with changed nutrition"}));
  EXPECT_EQ(entries(1),
            (std::vector<Text>{"Energy, Kj", "Energy, Kcal", "Unsaturated fats", "Saturated fats",
                               "Protein", "Sodium", "Carbohydrates"}));
}

}  // namespace
}  // namespace kelvora
