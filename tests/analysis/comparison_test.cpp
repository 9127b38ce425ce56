// The comparison of two foods. Values per 100 grams by hand: the portion's value over its weight,
// times 100; ounces are grams x 0.035274.
#include "analysis/comparison.h"

#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// A food as it comes from a list, with the end of its line.
Text Line(const FoodLine& food) {
  return LineOf(food) + kLineEnd;
}

class Comparison : public testing::Test {
 protected:
  void Drop(std::string_view payload, CompareBox box = CompareBox::first) {
    DropOnBox(test.program, box, payload, foods[static_cast<std::size_t>(box)]);
  }
  [[nodiscard]] const ComparedFood& First() const { return foods[0]; }
  [[nodiscard]] const ComparedFood& Second() const { return foods[1]; }
  [[nodiscard]] bool ShownCode(std::string_view code) const {
    return !test.boxes.shown.empty() && test.boxes.shown.back().text.ends_with(code);
  }

  TestProgram test;
  std::array<ComparedFood, 2> foods;
};

constexpr FoodLine kBread{.product = "Bread",
                          .unit = "1 slice, for",
                          .gram = "250",
                          .kj = "1000",
                          .kcal = "238,5",
                          .protein = "8.5",
                          .fat_u = "2.25",
                          .fat_s = "1",
                          .carbs = "40.125",
                          .sodium = "0.5",
                          .group = "bread",
                          .remark = "brown",
                          .db = "Bread.dat"};

using Values = std::array<Text, kComparedRows>;

const Values kPerPortion = {"250", "1 slice, for", "1000", "238,5", "2.25",
                            "1",   "0.5",          "8.5",  "40.125"};
const Values kPer100 = {"100", "", "400", "95", "0.90", "0.40", "0.200", "3.40", "16.05"};

TEST_F(Comparison, ShowsAFoodPerPortionAndPer100Grams) {
  Drop("add-" + Line(kBread));
  EXPECT_EQ(First().txt_Voedingsmiddel, "Bread");
  EXPECT_EQ(First().var_na, kPerPortion);
  // 238.5 / 2.5 is 95.4; 40.125 / 2.5 is 16.05.
  EXPECT_EQ(First().var_nb, kPer100);
  EXPECT_EQ(First().ounces_a, "8.8");  // 8.8185
  EXPECT_EQ(First().ounces_b, "3.5");  // 3.5274
  EXPECT_EQ(First().temp_lst.Count(), 13u);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Comparison, HasItsRowsAndTheirWords) {
  struct Row {
    const char* caption;
    const char* unit;
    std::size_t field;
    const char* pattern;
  };
  const Row rows[] = {{"Weight:", "Gram", 2, ""},
                      {"Unit:", "", 1, ""},
                      {"Energy:", "Kj ", 3, "#####"},
                      {"Energy:", "Kcal", 4, "#####"},
                      {"Fat(u)", "Gram", 6, "##0.00"},
                      {"Fat(s)", "Gram", 7, "##0.00"},
                      {"Sodium", "Gram", 9, "#0.000"},
                      {"Protein", "Gram", 5, "##0.00"},
                      {"Carbohydrates", "Gram", 8, "##0.00"}};
  for (std::size_t i = 0; i < kComparedRows; ++i) {
    SCOPED_TRACE(i);
    const ComparedRow& row = ComparedRows()[i];
    EXPECT_EQ(test.program.texts[row.caption], rows[i].caption);
    EXPECT_EQ(row.unit ? test.program.texts[*row.unit] : Text(), rows[i].unit);
    EXPECT_EQ(row.field, rows[i].field);
    EXPECT_EQ(row.pattern, rows[i].pattern);
  }
  EXPECT_EQ(OuncesLabel(test.program.texts, "8.8"), "(8.8 oz )");
  EXPECT_EQ(OuncesLabel(test.program.texts, ""), "");
}

TEST_F(Comparison, TakesAFoodOfTheCalorieProgram) {
  Text line = Line(kBread);
  Drop("NVITEM-" + line);
  EXPECT_EQ(First().var_na, kPerPortion);
  line.pop_back();  // without the end of the line, as that program sends it
  Drop("NVITEM-" + line, CompareBox::second);
  EXPECT_EQ(Second().var_na, kPerPortion);
  EXPECT_EQ(Second().var_nb, kPer100);
}

TEST_F(Comparison, KeepsTheBoxesApart) {
  Drop("add-" + Line(kBread), CompareBox::second);
  EXPECT_EQ(Second().txt_Voedingsmiddel, "Bread");
  EXPECT_EQ(Second().var_nb, kPer100);
  EXPECT_EQ(First().txt_Voedingsmiddel, "");
  EXPECT_EQ(First().var_nb, Values());
}

TEST_F(Comparison, RefusesSeveralFoods) {
  Drop("add-" + Line(kBread));
  Drop("add-" + Line({.product = "Milk"}) + Line({.product = "Tea"}));
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "You have selected to many food items.\n"
            "You can only drag and drop 1 food item per box.");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::warning);
  EXPECT_EQ(First().txt_Voedingsmiddel, "Bread");
  EXPECT_EQ(First().var_nb, kPer100);
}

TEST_F(Comparison, RefusesConsumptions) {
  Drop("add-" + Line(kBread), CompareBox::second);
  Drop(Packed("kill-Milk|~"), CompareBox::second);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "Food items from the 'consumption' screens cannot be compared.\n"
            "Select a food item from a database and drag it on one of the boxes (1 or 2).");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::warning);
  EXPECT_EQ(Second().txt_Voedingsmiddel, "Bread");
}

// Several are too many first, whatever they are.
TEST_F(Comparison, CountsBeforeItLooksWhereFoodsComeFrom) {
  Drop(Packed("kill-Milk|~Tea|~"));
  EXPECT_TRUE(test.boxes.shown.at(0).text.starts_with("You have selected"));
}

TEST_F(Comparison, RefusesALoneMarkerOfConsumptions) {
  Drop("add-" + Line(kBread));
  Drop("kill-");
  EXPECT_TRUE(test.boxes.shown.at(0).text.starts_with("Food items from"));
  EXPECT_EQ(First().txt_Voedingsmiddel, "Bread");
}

TEST_F(Comparison, IsEmptiedByTextOfAnyOtherForm) {
  for (const Text& payload :
       {Text(), Text("add-"), Text("NVITEM-"), Text("Add-") + Line(kBread), Line(kBread),
        Text("\xBE"), Text("add-\xBE"), Text("add-Bread"), Text("https://example.org"),
        Text(1 << 20, 'x'), Text("add-") + Text(1 << 20, 'x')}) {
    Drop("add-" + Line(kBread));
    Drop(payload);
    SCOPED_TRACE(payload.substr(0, 20));
    EXPECT_EQ(First().txt_Voedingsmiddel, "");
    EXPECT_EQ(First().var_na, Values());
    EXPECT_EQ(First().var_nb, Values());
    EXPECT_EQ(First().ounces_a + First().ounces_b, "");
    EXPECT_TRUE(First().line.empty());
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Comparison, TakesAMegabyteAsAName) {
  const Text name(1 << 20, 'x');
  Drop("add-" + Line({.product = name, .gram = "50", .kj = "100"}));
  EXPECT_EQ(First().txt_Voedingsmiddel, name);
  EXPECT_EQ(First().var_nb[2], "200");
}

TEST_F(Comparison, KeepsTheValuesPer100GramsOfTheFoodBeforeAWeightlessOne) {
  Drop("add-" + Line(kBread));
  Drop("add-" + Line({.product = "Water", .gram = "0", .kj = "5"}));
  EXPECT_EQ(First().txt_Voedingsmiddel, "Water");
  EXPECT_EQ(First().var_na[2], "5");
  EXPECT_EQ(First().var_nb, kPer100);
  EXPECT_EQ(First().ounces_a, "8.8");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(Comparison, ShowsAShortLineAsFarAsItGoes) {
  Drop(Packed("add-Milk|1 glass|200|~"));
  EXPECT_EQ(First().var_na, (Values{"200", "1 glass"}));
  EXPECT_EQ(First().var_nb, (Values{"100", "", "", "", "0.00", "0.00", "0.000", "0.00", "0.00"}));
}

TEST_F(Comparison, PrintsInTheSystemsSeparator) {
  test.locale.separator = ",";
  Drop("add-" + Line(kBread));
  EXPECT_EQ(First().var_na[3], "238,5");
  EXPECT_EQ(First().var_na[4], "2.25");  // as the line has it
  EXPECT_EQ(First().var_nb[4], "0,90");
  EXPECT_EQ(First().ounces_a, "8,8");
}

TEST_F(Comparison, LeavesAWeightWithACommaAsItStands) {
  Drop("add-" + Line({.product = "Butter", .gram = "12,5", .kj = "375"}));
  EXPECT_EQ(First().var_na[0], "12,5");
  EXPECT_EQ(First().var_nb[2], "3000");
  EXPECT_EQ(First().ounces_a, "0.4");  // 0.4409
}

TEST_F(Comparison, TellsOfAValueThatNoSingleHolds) {
  const Text huge(50, '9');
  Drop("add-" + Line(kBread));
  Drop("add-" + Line({.product = "Star", .gram = "1", .kj = huge}));
  EXPECT_TRUE(ShownCode("#F16-2"));
  EXPECT_EQ(First().var_na[2], huge);
  EXPECT_EQ(First().var_nb, kPer100);
  Drop("add-" + Line({.product = "Star", .gram = huge}), CompareBox::second);
  EXPECT_TRUE(ShownCode("#F16-3"));
}

TEST_F(Comparison, OpensTheDetailsOfItsFood) {
  test.program.windows.core = &test.core;
  ShowComparedFood(test.program, First());
  EXPECT_TRUE(test.core.items_shown.empty());
  Drop("add-" + Line(kBread));
  ShowComparedFood(test.program, First());
  EXPECT_EQ(test.core.items_shown,
            (std::vector<std::pair<Text, Text>>{{"zoeken", LineOf(kBread)}}));
}

TEST_F(Comparison, LeavesTheDayAlone) {
  test.OpenDay("Anna");
  Drop("add-" + Line(kBread));
  EXPECT_FALSE(test.program.day.FileChanged);
}

}  // namespace
}  // namespace kelvora
