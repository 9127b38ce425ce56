#include "analysis/multi_day.h"

#include "analysis/several_days.h"
#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using Texts = std::vector<Text>;

TEST(MultiDayButtons, StandInTheirOrderWithTheirTexts) {
  TestProgram test;
  struct Row {
    const char* panel;
    const char* caption;
    const char* tip;
    const char* status;
    Texts menu;
  };
  const Texts ages = {
      "Man",         "Woman",       "-",           "Age 13 - 16", "Age 16 - 19",      "Age 19 - 22",
      "Age 22 - 50", "Age 50 - 65", "Age 65 - 99", "-",           "Changed nutrition"};
  const Texts nutrients = {"Energy, Kj", "Energy, Kcal", "Fats, unsaturated", "Fats, saturated",
                           "Protein",    "Sodium",       "Carbohydrates"};
  const std::array rows = {
      Row{"Pic_grafiekbox",
          "Trend line           ",
          "Generate a trend line for the current user",
          "Trend line",
          {"Time line per file", "Time line per date"}},
      Row{"Pic_Behoefte", "Rec. nutrition    ", "Recommended nutrition's", "Rec. nutrition", ages},
      Row{"Pic_top5", "Top 5 diagram  ", "Top 5 consumptions", "Top 5", nutrients},
      Row{"Pic_uittreksel",
          "Consumption list",
          "Summary of all consumptions",
          "Consumption list",
          {}},
  };
  const auto buttons = MultiDayButtons();
  const TextTables& texts = test.program.texts;
  ASSERT_EQ(buttons.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(buttons[i].panel, rows[i].panel);
    EXPECT_EQ(texts[buttons[i].caption], rows[i].caption);
    EXPECT_EQ(texts[buttons[i].tip], rows[i].tip);
    EXPECT_EQ(texts[buttons[i].status], rows[i].status);
    Texts menu;
    for (const auto& entry : buttons[i].menu) menu.push_back(entry ? texts[*entry] : "-");
    EXPECT_EQ(menu, rows[i].menu);
  }
}

TEST_F(SeveralDays, OpenOnTheTrendWithBothStatusTextsAndNoMenu) {
  Eat("", "");
  days.emplace(program);
  EXPECT_EQ(Sheet().View(), AnalysisView::trend);
  EXPECT_FALSE(Sheet().EnabledMenu().has_value());
  EXPECT_EQ(Sheet().Status(), (std::array<Text, 2>{"Trend line", "Trend line of Anna"}));
  EXPECT_EQ(days->TijdlijnStand(), 0);
  EXPECT_TRUE(days->Working());
  EXPECT_TRUE(days->Days().series.keys.empty());
}

TEST_F(SeveralDays, TellTheirStagesOneAfterTheOther) {
  Eat("Tea|~", "Milk|~");
  days.emplace(program);
  Texts titles;
  do {
    const Text title = days->Title();
    if (titles.empty() || titles.back() != title) titles.push_back(title);
    EXPECT_EQ(days->StageText(), title);
    EXPECT_LT(days->HowFar().done, days->HowFar().of);
  } while (days->Work());
  EXPECT_EQ(titles, (Texts{"Reading data ...", "Sorting data ...", "Reading files ...",
                           "Converting percentages ...", "(1/3) Building summary",
                           "(2/3) Filling summary", "(3/3) Building top 5 diagram"}));
  EXPECT_EQ(days->Title(), "Trend");
  EXPECT_EQ(days->StageText(), "");
  EXPECT_FALSE(days->Work());
}

TEST_F(SeveralDays, TellTheirStagesInTheLanguageOfTheMoment) {
  Eat("", "");
  days.emplace(program);
  Make_Taal_Dutch(program.texts);
  EXPECT_EQ(days->Title(), "Gegevens lezen ...");
  days->Set_Taal();
  EXPECT_EQ(Sheet().Status(), (std::array<Text, 2>{"Trendlijn", "Trendlijn van Anna"}));
}

TEST_F(SeveralDays, ListTheFirstPortionOfEachFood) {
  Eat("Bread|slice|35|300|72|~Tea|cup|150|0|0|~", "Bread|slice|35|300|72|~Bread|loaf|800|~");
  AddDay("c.kvf", {.date = "03-03-04", .evening = "Bread|slice|35|300|72|~"});
  Open();
  ASSERT_EQ(Sheet().Rows()->size(), 2u);
  EXPECT_EQ(Cell(0, SummaryColumn::key), "2");
  EXPECT_EQ(Cell(0, SummaryColumn::food), "Bread");
  EXPECT_EQ(Cell(0, SummaryColumn::count), "3");
  EXPECT_EQ(Cell(0, SummaryColumn::unit), "slice");
  EXPECT_EQ(Cell(0, SummaryColumn::weight), "105");
  EXPECT_EQ(Cell(0, SummaryColumn::kj), "900");
  EXPECT_EQ(Cell(1, SummaryColumn::key), "4");
  EXPECT_EQ(Cell(1, SummaryColumn::food), "Tea");
}

TEST_F(SeveralDays, ReadAmountsWithCommas) {
  Eat("Bread|slice|35,5|300,2|~", "Bread|slice|35.5|300.2|~");
  Open();
  // With the points in both they are equal lines.
  EXPECT_EQ(Cell(0, SummaryColumn::count), "2");
  EXPECT_EQ(Cell(0, SummaryColumn::weight), "71");
}

TEST_F(SeveralDays, WeighInOuncesOnceTheSettingsSaySo) {
  Eat("Bread|slice|85|~", "");
  Open();
  program.settings[Setting::opt_gramoz] = "1";
  days->Refresh_Meerdaagsuittreksel();
  Finish();
  // 85 grams are 2.998 ounces of 28.3495 grams.
  EXPECT_EQ(Cell(0, SummaryColumn::weight), "3");
}

TEST_F(SeveralDays, SortByAHeadingUntilTheyAreRebuilt) {
  Eat("Apple|1|~Cake|1|~Bread|1|~", "Bread|1|~");
  Open();
  days->Sheet().ClickColumn(SummaryColumn::food);
  EXPECT_EQ(Cell(0, SummaryColumn::food), "Cake");
  days->Sheet().ClickColumn(SummaryColumn::food);
  EXPECT_EQ(Cell(0, SummaryColumn::food), "Apple");
  days->Sheet().ClickColumn(SummaryColumn::count);
  EXPECT_EQ(Cell(2, SummaryColumn::food), "Bread");
  days->Refresh_Meerdaagsuittreksel();
  Finish();
  EXPECT_EQ(Cell(1, SummaryColumn::food), "Cake");
  EXPECT_FALSE(Sheet().ShownOrder().has_value());
}

TEST_F(SeveralDays, SetTheAverageDayAgainstTheRequirements) {
  AddDay("a.kvf", {.date = "01-03-04", .trend = "0|3000|10|20|30|40|50|60|70|"});
  AddDay("b.kvf", {.date = "02-03-04", .trend = "0|0|0|0|0|0|0|0|0|"});
  Open();
  // The user's own 100 of each.
  EXPECT_EQ(Sheet().Bars()[0].use_text, "Used:1500 Kj, 1500%");
  EXPECT_EQ(Sheet().Bars()[1].use_text, "Used:5 Kcal, 5%");
  EXPECT_EQ(Sheet().Bars()[1].requirement_text, "Recommended:100 kcal, 100%");
  EXPECT_EQ(Sheet().Bars()[2].use_text, "Used:10 Gram 10%");
  EXPECT_EQ(Sheet().Bars()[4].use_text, "Used:30 Gram 30%");  // sodium
  EXPECT_EQ(Sheet().Bars()[5].use_text, "Used:25 Gram 25%");  // protein
  EXPECT_EQ(Sheet().Bars()[6].use_text, "Used:20 Gram 20%");  // carbohydrates
  EXPECT_EQ(Sheet().Bars()[6].requirement_tip, "Carbohydrates: 100 gram, 100%");
}

TEST_F(SeveralDays, TakeAWomanByTheDutchWordInEveryLanguage) {
  AddDay("a.kvf", {.date = "01-03-04", .trend = "0|1|"});
  AddDay("b.kvf", {.date = "02-03-04", .trend = "0|1|"});
  test.OpenDay("Anna");
  program.store.L_gegevens.Replace(HeaderRow::kAge, "40");
  program.store.L_gegevens.Replace(HeaderRow::kGender, "Vrouw");
  Open();
  EXPECT_EQ(Sheet().Requirement().geslacht_index, kGenderWoman);
  program.store.L_gegevens.Replace(HeaderRow::kGender, "Woman");
  EXPECT_EQ(Open().Sheet().Requirement().geslacht_index, kGenderMan);
}

TEST_F(SeveralDays, ChooseRequirementsByPositionUntilTheNextRefresh) {
  AddDay("a.kvf", {.date = "01-03-04", .trend = "0|1|"});
  AddDay("b.kvf", {.date = "02-03-04", .trend = "0|1|"});
  Open();
  EXPECT_EQ(Sheet().Requirement().leeftijd_index, kOwnRequirements);
  Press(AnalysisView::requirements);
  EXPECT_EQ(Sheet().Status()[1], "Recommended nutrition's  with changed nutrition");
  days->ClickEntry(2);
  days->ClickEntry(9);
  // A woman from 65 on; the status bar lags until the next click.
  EXPECT_EQ(Sheet().Bars()[0].requirement_text, "Recommended:7800 Kj, 100%");
  EXPECT_EQ(Sheet().Status()[1], "Recommended nutrition's  with changed nutrition");
  Press(AnalysisView::requirements);
  EXPECT_EQ(Sheet().Status()[1], "Recommended nutrition's for woman between 65 - 99");
  days->ClickEntry(3);
  EXPECT_EQ(Sheet().Requirement().leeftijd_index, 5);
  days->Refresh_Meerdaagsuittreksel();
  Finish();
  EXPECT_EQ(Sheet().Requirement().leeftijd_index, kOwnRequirements);
  EXPECT_EQ(Sheet().Bars()[0].requirement_text, "Recommended:100 Kj, 100%");
}

TEST_F(SeveralDays, ChooseTheTimeLineByPosition) {
  Eat("", "");
  Open();
  Press(AnalysisView::trend);
  for (const auto& [position, stand] : {std::pair{2, 1}, {3, 1}, {1, 0}, {2, 1}}) {
    days->ClickEntry(position);
    EXPECT_EQ(days->TijdlijnStand(), static_cast<float>(stand));
    EXPECT_EQ(ChosenTimeLine(days->TijdlijnStand()), stand + 1);
  }
  EXPECT_EQ(Sheet().Status()[1], "Trend line of Anna");
  Press(AnalysisView::consumptions);
  days->ClickEntry(1);
  EXPECT_EQ(days->TijdlijnStand(), 1);
}

TEST_F(SeveralDays, WriteTheStatusOfEachView) {
  Eat("Tea|~Milk|~", "");
  Open();
  struct Case {
    AnalysisView view;
    const char* first;
    const char* second;
  };
  for (const Case& row : {Case{AnalysisView::requirements, "Rec. nutrition",
                               "Recommended nutrition's  with changed nutrition"},
                          Case{AnalysisView::top5, "Top 5", "Top 5 diagram for energy in Kj"},
                          Case{AnalysisView::consumptions, "Consumption list", "Food items: 2"},
                          Case{AnalysisView::trend, "Trend line", "Trend line of Anna"}}) {
    Press(row.view);
    EXPECT_EQ(Sheet().View(), row.view);
    EXPECT_EQ(Sheet().EnabledMenu(), row.view);
    EXPECT_EQ(Sheet().Status(), (std::array<Text, 2>{row.first, row.second}));
  }
}

TEST_F(SeveralDays, NameTheRestOfThePieInTheLanguage) {
  EatTenFoods();
  Open();
  EXPECT_EQ(Sheet().Pie().lbl_soort, "Pie chart for: (Energy, Kj)");
  EXPECT_TRUE(Sheet().Pie().lbl_piename[0].starts_with("A\n["));
  EXPECT_TRUE(Sheet().Pie().lbl_piename[5].starts_with("Remaining consumptions\n["));
  Make_Taal_Dutch(program.texts);
  days->Set_Taal();
  EXPECT_TRUE(Sheet().Pie().lbl_piename[5].starts_with("Overige consumpties\n["));
  EXPECT_EQ(Sheet().Pie().lbl_soort, "Taartdiagram voor: (Energie, Kj)");
}

TEST_F(SeveralDays, ShowTheNoticeForFewFoods) {
  Eat("Tea|~Milk|~", "");
  Open();
  EXPECT_EQ(Sheet().Pie().lbl_leeg,
            "BEWARE:\nThere are only 2 food items present.\n"
            "Kelvora FOOD can't generate a top 5.\n\nAdd more food items.");
}

// Protein is two grams for each of the ten, so that the pie of it has the order in which the values
// were collected: the rows as they stood, after the exchange sort.
TEST_F(SeveralDays, KeepTheValuesOfThePieUntilANutrientIsChosen) {
  EatTenFoods();
  program.analysis.gekozen_stof = 4;
  Open();
  const Texts first = Sheet().Pie().lst_naam;
  days->Sheet().ClickColumn(SummaryColumn::food);  // descending
  days->Resize();
  EXPECT_EQ(Sheet().Pie().lst_naam, first);
  Press(AnalysisView::top5);
  days->ClickEntry(5);
  EXPECT_EQ(program.analysis.gekozen_stof, 4);
  // Ten equal values are left as they are: the names stand as the rows do.
  EXPECT_EQ(Sheet().Pie().lst_naam.front(), "J");
  // From now on every pie takes the rows as they stand.
  days->Sheet().ClickColumn(SummaryColumn::food);
  days->Resize();
  EXPECT_EQ(Sheet().Pie().lst_naam.front(), "A");
}

TEST_F(SeveralDays, TakeTheValuesOfANutrientThatWasChosenElsewhere) {
  EatTenFoods();
  Open();
  EXPECT_EQ(Sheet().Pie().lst_waarden.front(), "1000");
  program.analysis.gekozen_stof = 4;
  days->Resize();
  EXPECT_EQ(Sheet().Pie().lbl_soort, "Pie chart for: (Protein)");
  EXPECT_EQ(Sheet().Pie().lst_waarden.front(), "2");
  Press(AnalysisView::top5);
  EXPECT_EQ(Sheet().Status()[1], "Top 5 diagram for protein");
}

TEST_F(SeveralDays, ChooseANutrientByPosition) {
  EatTenFoods();
  Open();
  Press(AnalysisView::top5);
  for (int position = 1; position <= 7; ++position) {
    days->ClickEntry(position);
    EXPECT_EQ(program.analysis.gekozen_stof, static_cast<float>(position - 1));
  }
  EXPECT_EQ(Sheet().Status()[1], "Top 5 diagram for carbohydrates");
  days->ClickEntry(8);
  EXPECT_EQ(program.analysis.gekozen_stof, 6);
}

TEST_F(SeveralDays, StartWithTheNutrientThatWasChosenLast) {
  EatTenFoods();
  program.profile[ProfileField::type_prioriteit] = "5";
  test.OpenDay("Anna");
  program.analysis.gekozen_stof = 2;
  Open();
  // The priority of the user is left to the window of a day.
  EXPECT_EQ(program.analysis.gekozen_stof, 2);
}

}  // namespace
}  // namespace kelvora
