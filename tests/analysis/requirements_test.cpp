#include "analysis/requirements.h"

#include <charconv>
#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "oracles/table.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr PanelWidths kWidths{8380, 2000};

// By hand, row by row of the recommendations.
TEST(RequirementTables, HoldTheAmountsOfSixAgeGroups) {
  RequirementState state;
  const Rec_Profile none;
  const std::array<Requirements, 6> men = {{{11100, 2700, 95, 30, 2, 70, 370},
                                            {12500, 3000, 100, 35, 2, 81, 410},
                                            {12200, 2900, 105, 35, 2, 79, 400},
                                            {11100, 2700, 95, 30, 2, 71, 370},
                                            {10100, 2400, 90, 30, 1, 64, 330},
                                            {8800, 2100, 75, 25, 1, 56, 290}}};
  const std::array<Requirements, 6> women = {{{10000, 2400, 90, 30, 2, 65, 330},
                                              {10300, 2500, 90, 30, 2, 65, 340},
                                              {9300, 2200, 80, 25, 2, 60, 310},
                                              {8700, 2100, 75, 25, 2, 55, 290},
                                              {8200, 2000, 70, 25, 1, 52, 280},
                                              {7800, 1900, 65, 20, 1, 52, 260}}};
  for (state.leeftijd_index = 0; state.leeftijd_index < 6; ++state.leeftijd_index) {
    const auto age = static_cast<std::size_t>(state.leeftijd_index);
    Behoefte_Man(state, none);
    EXPECT_EQ(state.behoefte, men[age]) << age;
    Behoefte_Vrouw(state, none);
    EXPECT_EQ(state.behoefte, women[age]) << age;
  }
}

class RequirementsOfADay : public testing::Test {
 protected:
  RequirementsOfADay() {
    test.OpenDay("Anna");
    OwnAmounts({"9000", "2143", "80", "27", "1", "60", "300"});
    program.store.L_gegevens.Replace(HeaderRow::kAge, "40");
  }
  void OwnAmounts(const std::array<Text, 7>& amounts) {
    for (std::size_t i = 0; i < amounts.size(); ++i) {
      program.profile.strings[static_cast<std::size_t>(ProfileField::txt_kj) + i] = amounts[i];
    }
  }
  void Header(std::size_t row, const Text& text) { program.store.L_gegevens.Replace(row, text); }
  void Choose(AnalysisWindow window = AnalysisWindow::day_summary) {
    Bepaal_Profiel(program, window, state);
  }
  void Make(const DayTotals& used, AnalysisWindow window = AnalysisWindow::day_summary) {
    Maak_Voedingsbehoefte(program, window, state, used, kWidths, rows);
  }

  TestProgram test;
  Program& program = test.program;
  RequirementState state;
  RequirementRows rows;
};

TEST_F(RequirementsOfADay, TakeTheNutrientThatTheUserGivesPriority) {
  constexpr std::array<float, 6> kNutrients = {0, 1, 2, 3, 6, 4};
  for (std::size_t priority = 0; priority < kNutrients.size(); ++priority) {
    program.profile[ProfileField::type_prioriteit] = std::to_string(priority);
    Choose();
    EXPECT_EQ(program.analysis.gekozen_stof, kNutrients[priority]) << priority;
  }
  // Several days leave it alone.
  program.analysis.gekozen_stof = 5;
  Choose(AnalysisWindow::multi_day);
  EXPECT_EQ(program.analysis.gekozen_stof, 5);
}

TEST_F(RequirementsOfADay, BeginWithTheUsersOwnAmounts) {
  Header(HeaderRow::kGender, "Woman");
  Choose();
  EXPECT_EQ(state.leeftijd_index, 6);
  EXPECT_EQ(state.geslacht_index, 1);
  Make({});
  EXPECT_EQ(state.behoefte, (Requirements{9000, 2143, 80, 27, 1, 60, 300}));
}

TEST_F(RequirementsOfADay, ReadTheOwnAmountsWithAPointOnly) {
  OwnAmounts({"9000,5", "2143.5", " 80 g", "27", "1,5", "60", "300"});
  Choose();
  Make({});
  EXPECT_EQ(state.behoefte, (Requirements{9000, 2143.5F, 80, 27, 1, 60, 300}));
}

TEST_F(RequirementsOfADay, WithoutAnAgeStayOnTheFirstGroupOfMen) {
  Header(HeaderRow::kAge, "");
  Header(HeaderRow::kGender, "Woman");
  Choose();
  EXPECT_EQ(state.leeftijd_index, 0);
  EXPECT_EQ(state.geslacht_index, 0);
  Make({});
  EXPECT_EQ(state.behoefte[0], 11100);
}

TEST_F(RequirementsOfADay, WithoutAnAgeKeepWhatWasChosen) {
  Header(HeaderRow::kAge, "");
  state.leeftijd_index = 4;
  state.geslacht_index = 1;
  Choose();
  EXPECT_EQ(state.leeftijd_index, 4);
  EXPECT_EQ(state.geslacht_index, 1);
  // Several days go to the own amounts before they look for an age.
  Choose(AnalysisWindow::multi_day);
  EXPECT_EQ(state.leeftijd_index, 6);
  EXPECT_EQ(state.geslacht_index, 1);
}

TEST_F(RequirementsOfADay, TellTheGenderByTheTextsOfTheLanguage) {
  struct Case {
    bool dutch;
    const char* gender;
    int of_day, of_several;
  };
  // A gender that is neither text leaves the one before, here that of a woman.
  for (const Case& row :
       {Case{false, "Man", 0, 0}, Case{false, "Woman", 1, 1}, Case{false, "Vrouw", 1, 1},
        Case{true, "Man", 0, 0}, Case{true, "Vrouw", 1, 1}, Case{true, "Woman", 1, 1}}) {
    (row.dutch ? Make_Taal_Dutch : Make_Taal_English)(program.texts);
    Header(HeaderRow::kGender, row.gender);
    for (const auto& [window, expected] : {std::pair{AnalysisWindow::day_summary, row.of_day},
                                           std::pair{AnalysisWindow::multi_day, row.of_several}}) {
      state.geslacht_index = 1;
      Choose(window);
      EXPECT_EQ(state.geslacht_index, expected) << row.dutch << row.gender;
    }
  }
}

// A day written in Dutch and read in English: only the window of several days knows the woman.
TEST_F(RequirementsOfADay, ReadInTheOtherLanguageCountAsThoseOfAMan) {
  Header(HeaderRow::kGender, "Vrouw");
  Choose();
  EXPECT_EQ(state.geslacht_index, 0);
  Choose(AnalysisWindow::multi_day);
  EXPECT_EQ(state.geslacht_index, 1);
}

TEST_F(RequirementsOfADay, WithoutFoodFillTheRowsWithTheRequirement) {
  Choose();
  Make({});
  // 8380 - 120 - 2000.
  for (const RequirementRow& row : rows) {
    EXPECT_FLOAT_EQ(row.requirement_width, 6260);
    EXPECT_EQ(row.use_width, 0);
  }
  EXPECT_EQ(rows[0].use_text, "Used: Kj, 0%");
  EXPECT_EQ(rows[6].use_text, "Used: Gram 0%");
  EXPECT_EQ(rows[6].use_tip, "Carbohydrates used: 0 Gram 0%");
}

TEST_F(RequirementsOfADay, PrintWholeAmountsAndTheShare) {
  OwnAmounts({"9000", "2400", "95", "30", "2", "60", "300"});
  Choose();
  Make({9000, 800, 100, 12.345F, 1.5F, 0.4F, 3703.7F});
  // Equal amounts have bars of the same length, half of 6260.
  EXPECT_FLOAT_EQ(rows[0].requirement_width, 3130);
  EXPECT_FLOAT_EQ(rows[0].use_width, 3130);
  const std::array<std::array<const char*, 4>, 7> expected = {{
      {"Recommended:9000 Kj, 100%", "Energy, Kj: 9000 Kj, 100%", "Used:9000 Kj, 100%",
       "Energy, Kj used: 9000 Kj, 100%"},
      {"Recommended:2400 Kcal, 100%", "Energy, Kcal: 2400 Kcal, 100%", "Used:800 Kcal, 33.33%",
       "Energy, Kcal used: 800 Kcal, 33.33%"},
      {"Recommended:95 Gram, 100%", "Unsaturated fats: 95 Gram, 100%", "Used:100 Gram 105.2%",
       "Unsaturated fat used: 100 Gram 105.2%"},
      {"Recommended:30 Gram, 100%", "Saturated fats: 30 Gram, 100%", "Used:12 Gram 41.15%",
       "Saturated fat used: 12.345 Gram 41.15%"},
      {"Recommended:2 Gram, 100%", "Sodium: 2 Gram, 100%", "Used:2 Gram 75%",
       "Sodium used: 1.5 Gram 75%"},
      {"Recommended:60 Gram, 100%", "Protein: 60 Gram, 100%", "Used: Gram 0.666%",
       "Protein used: 0.4 Gram 0.666%"},
      {"Recommended:300 Gram, 100%", "Carbohydrates: 300 Gram, 100%", "Used:3704 Gram 1234.%",
       "Carbohydrates used: 3703.7 Gram 1234.%"},
  }};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(rows[i].requirement_text, expected[i][0]);
    EXPECT_EQ(rows[i].requirement_tip, expected[i][1]);
    EXPECT_EQ(rows[i].use_text, expected[i][2]);
    EXPECT_EQ(rows[i].use_tip, expected[i][3]);
  }
}

TEST_F(RequirementsOfADay, AreWrittenWithTheSeparatorOfTheSystemInDutch) {
  Make_Taal_Dutch(program.texts);
  test.locale.separator = ",";
  OwnAmounts({"9000", "2143.5", "80", "27", "2", "60", "300"});
  Choose();
  Make({3000, 1, 1, 1, 1.5F, 1, 1});
  EXPECT_EQ(rows[0].use_text, "Gebruikt:3000 Kj, 33,33%");
  EXPECT_EQ(rows[1].requirement_text, "Aanbevolen:2143,5 Kcal, 100%");
  EXPECT_EQ(rows[4].use_tip, "Gebruikt natrium: 1,5 Gram 75%");
}

TEST_F(RequirementsOfADay, SpellTheUnitsOfSeveralDaysAsThatWindowDoes) {
  Choose(AnalysisWindow::multi_day);
  Make({1, 1, 1, 1, 1, 1, 1}, AnalysisWindow::multi_day);
  EXPECT_EQ(rows[0].requirement_text, "Recommended:9000 Kj, 100%");
  EXPECT_EQ(rows[1].requirement_text, "Recommended:2143 kcal, 100%");
  EXPECT_EQ(rows[1].requirement_tip, "Energy, Kcal: 2143 Kcal, 100%");
  EXPECT_EQ(rows[2].requirement_text, "Recommended:80 Gram, 100%");
  EXPECT_EQ(rows[2].requirement_tip, "Unsaturated fats: 80 gram, 100%");
  EXPECT_EQ(rows[1].use_text, "Used:1 Kcal, 0.046%");
}

TEST_F(RequirementsOfADay, StopWhereAShareCantBeDivided) {
  Choose();
  Make({900, 1, 1, 1, 1, 1, 1});
  const RequirementRows before = rows;
  OwnAmounts({"9000", "0", "80", "27", "1", "60", "300"});
  Make({4500, 5, 2, 2, 2, 2, 2});
  EXPECT_EQ(rows[0].use_text, "Used:4500 Kj, 50%");
  // The bars of the second row have moved, its texts have not; the rows behind stay.
  EXPECT_EQ(rows[1].requirement_width, 0);
  EXPECT_FLOAT_EQ(rows[1].use_width, 6260);
  EXPECT_EQ(rows[1].use_text, before[1].use_text);
  EXPECT_EQ(rows[1].requirement_tip, before[1].requirement_tip);
  EXPECT_EQ(rows[2].use_width, before[2].use_width);
  EXPECT_EQ(rows[2].use_text, before[2].use_text);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#F9-8")) << test.boxes.shown[0].text;
}

TEST_F(RequirementsOfADay, StopWhereARowHasNoAmountsAtAll) {
  OwnAmounts({"9000", "2143", "0", "27", "1", "60", "300"});
  Choose(AnalysisWindow::multi_day);
  Make({1, 1, 0, 1, 1, 1, 1}, AnalysisWindow::multi_day);
  EXPECT_EQ(rows[1].use_text, "Used:1 Kcal, 0.046%");
  EXPECT_EQ(rows[2].requirement_width, 0);
  EXPECT_EQ(rows[2].use_text, "");
  EXPECT_EQ(rows[3].requirement_width, 0);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#F12-9"));
}

TEST_F(RequirementsOfADay, ReportAnAmountThatNoSingleCanHold) {
  OwnAmounts({Text(60, '9'), "1", "1", "1", "1", "1", "1"});
  Choose();
  Make({});
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("#F9-8"));
  EXPECT_EQ(rows[0].requirement_text, "");
}

TEST_F(RequirementsOfADay, AreNamedInTheirOrder) {
  const std::array<const char*, 7> names = {
      "Energy, Kj:", "Energy, Kcal:", "Unsaturated fats:", "Saturated fats:",
      "Sodium:",     "Protein:",      "Carbohydrates:"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    for (const auto window : {AnalysisWindow::day_summary, AnalysisWindow::multi_day}) {
      EXPECT_EQ(RequirementName(program.texts, window, i), names[i]);
    }
  }
}

Text WholeDecimal(float value) {
  std::array<char, 200> text;
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed).ptr;
  return {text.data(), end};
}

// The table is made by make_requirements.py.
TEST_F(RequirementsOfADay, AgreeWithTheTableOfSingles) {
  int failures = 0;
  for (const TableRow& row :
       ReadTable("requirements.tsv",
                 "required used panel text required_bar used_bar required_text used_text amount "
                 "percentage")) {
    const auto required = static_cast<float>(NumberOf(row[0]));
    const auto used = static_cast<float>(NumberOf(row[1]));
    OwnAmounts({"1", "1", WholeDecimal(required), "1", "1", "1", "1"});
    state.leeftijd_index = kOwnRequirements;
    rows = {};
    Maak_Voedingsbehoefte(program, AnalysisWindow::day_summary, state, {1, 1, used, 1, 1, 1, 1},
                          {std::stoi(row[2]), std::stoi(row[3])}, rows);
    const RequirementRow& made = rows[2];
    if (row[4] != "failure") {
      EXPECT_EQ(made.requirement_width, static_cast<float>(NumberOf(row[4]))) << row[0];
      EXPECT_EQ(made.use_width, static_cast<float>(NumberOf(row[5]))) << row[0];
    }
    if (row[9] == "failure") {
      ++failures;
      EXPECT_EQ(made.use_text, "");
      continue;
    }
    EXPECT_EQ(made.requirement_tip, "Unsaturated fats: " + row[6] + " Gram, 100%");
    EXPECT_EQ(made.use_tip, "Unsaturated fat used: " + row[7] + " Gram " + row[9] + "%");
    EXPECT_EQ(made.use_text, "Used:" + row[8] + " Gram " + row[9] + "%");
  }
  EXPECT_EQ(failures, 2);
  EXPECT_EQ(test.boxes.shown.size(), 2u);
}

}  // namespace
}  // namespace kelvora
