// What a new food must have: the tests in their order, and the box that each leads to. Expected
// values are worked out by hand.
#include "food/adding_fixture.h"

namespace kelvora {
namespace {

TEST_F(AddingAFood, RefusesWhatIsMissingAndNamesItsBox) {
  struct Case {
    const char* what;
    void (*spoil)(NewFoodForm&);
    NewFoodBox box;
    const char* caption;
  };
  const Case cases[] = {
      {"no name", [](NewFoodForm& f) { f.txt_dNaam.clear(); }, {Kind::name}, "Name"},
      {"blanks", [](NewFoodForm& f) { f.txt_dNaam = "   "; }, {Kind::name}, "Name"},
      {"no unit", [](NewFoodForm& f) { f.combo_dEenheid.clear(); }, {Kind::unit}, "Unit"},
      {"no portion",
       [](NewFoodForm& f) { f.portion_weight = {}; },
       {Kind::portion_gram},
       "Weight (gram)"},
      {"a portion of 0",
       [](NewFoodForm& f) { f.portion_weight.weight = "0"; },
       {Kind::portion_gram},
       "Weight (gram)"},
      {"12.5 grams",
       [](NewFoodForm& f) { f.portion_weight.weight = "12.5"; },
       {Kind::portion_gram},
       "Weight (gram)"},
      {"12,5 grams",
       [](NewFoodForm& f) { f.portion_weight.weight = "12,5"; },
       {Kind::portion_gram},
       "Weight (gram)"},
      {"12. grams",
       [](NewFoodForm& f) { f.portion_weight.weight = "12."; },
       {Kind::portion_gram},
       "Weight (gram)"},
      {"half an ounce",
       [](NewFoodForm& f) { f.portion_weight.oz = ".5"; },
       {Kind::portion_oz},
       "Weight (oz)"},
      {"values for nothing",
       [](NewFoodForm& f) { f.printed_weight = {}; },
       {Kind::printed_gram},
       "These values are for (gram)"},
      {"values for 0 grams",
       [](NewFoodForm& f) { f.printed_weight.weight = "000"; },
       {Kind::printed_gram},
       "These values are for (gram)"},
      {"values for 1..5 oz",
       [](NewFoodForm& f) { f.printed_weight.oz = "1..5"; },
       {Kind::printed_oz},
       "These values are for (oz)"},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    form = GoodForm();
    row.spoil(form);
    ExpectRefused(Incomplete(row.caption), row.box);
  }
}

// What was typed counts. The calculation would make 0 or 1 of each of these, and a number that can
// be read of that.
TEST_F(AddingAFood, RefusesEachTypedValueThatIsNoNumber) {
  constexpr std::array kCaptions = {"Kilojoules",      "Kilocalories", "Saturated fat",
                                    "Unsaturated fat", "Protein",      "Carbohydrates",
                                    "Sodium"};
  for (std::size_t i = 0; i < FoodValue::kCount; ++i) {
    for (const char* value : {".5", ",5", "5.", "5,", "1..5", "1,,5", "1.2.3", ".", ","}) {
      SCOPED_TRACE(std::to_string(i) + " " + value);
      form = GoodForm();
      TypeValue(form, i, value);
      LeaveValue(program, form, i);
      ExpectRefused(Incomplete(kCaptions[i]), {Kind::value, i});
    }
  }
}

TEST_F(AddingAFood, AnEmptyValueCountsAsZero) {
  for (std::size_t i = 0; i < FoodValue::kCount; ++i) TypeValue(form, i, "");
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
  EXPECT_EQ(program.store.Custom_list[0],
            Packed("Soup|1 dish|35|0|0|0.00|0.00|0.00|0.00|0.000|0||"));
}

TEST_F(AddingAFood, ValuesTypedWhileThePackageHadNoWeightAreCounted) {
  TypeWeight(form.printed_weight, WeightUnit::gram, "0");
  LeaveWeight(program, form, &NewFoodForm::printed_weight, WeightUnit::gram);
  TypeValue(form, FoodValue::kSodium, "0.1");
  TypeValue(form, FoodValue::kKj, "2000");
  LeaveValue(program, form, FoodValue::kKj);
  const NewFoodForm typed = form;
  ExpectRefused(Incomplete("These values are for (gram)"), {Kind::printed_gram});
  form = typed;
  // Enter adds from within the box, before anything is calculated.
  form.printed_weight.weight = "50";
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
  EXPECT_EQ(FieldOf(program.store.Custom_list[0], FoodField::kKj), "1400");  // 2000 x 35 / 50
}

TEST_F(AddingAFood, AValueThatNoNumberHoldsAddsNothing) {
  TypeValue(form, FoodValue::kKj, Text(400, '9'));
  const std::vector<Text> shown = Add();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_TRUE(shown[0].ends_with("Brelux CODE:#F1-2"));
  EXPECT_FALSE(added);
  EXPECT_TRUE(program.store.Custom_list.Empty());
}

TEST_F(AddingAFood, RefusesTheTwoTerminators) {
  const std::vector<Text> refused = {
      "Kelvora FOOD|Some fields contain 'illegal' characters.\n"
      "The characters half and three-quarter and other 'exotic' characters can not be used.\n"
      "Remove the 'illegal' characters and try again.\n\nLook at the box \"Name\"."};
  const std::vector<Text> refused_unit = {
      Text(refused[0]).replace(refused[0].rfind("Name"), 4, "Unit")};
  for (const std::string_view character : {"½"_w, "¾"_w}) {
    form = GoodForm();
    form.txt_dNaam.append(character);
    ExpectRefused(refused, {Kind::name});
    form = GoodForm();
    form.combo_dEenheid.insert(0, character);
    ExpectRefused(refused_unit, {Kind::unit});
  }
  form = GoodForm();
  form.txt_dNaam = "¼ of a pie"_w;
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
}

// "Soup-1 dish-35-350-84-2.80-1.54-0.70-14.00-0.420-0--" has 5+7+3+4+3+5+5+5+6+6+2+1 = 52
// characters, 4 of them the name.
TEST_F(AddingAFood, TakesNineHundredCharactersAndNoMore) {
  const std::vector<Text> refused = {
      "Kelvora FOOD|The food item contains to much data.\nPlease use a shorter description.\n\n"
      "Look at the box \"Name\"."};
  form.txt_dNaam = Text(853, 'a');
  ExpectRefused(refused, {Kind::name});
  form.txt_dNaam = Text(5000, 'a');
  ExpectRefused(refused, {Kind::name});
  form = GoodForm();
  form.combo_dEenheid = Text(6 + 849, 'a');  // the unit as the long one
  ExpectRefused({Text(refused[0]).replace(refused[0].rfind("Name"), 4, "Unit")}, {Kind::unit});

  form = GoodForm();
  form.txt_dNaam = "  " + Text(852, 'a') + "   ";  // blanks around it don't count
  EXPECT_EQ(Add(), std::vector<Text>{Text(kSavedBox)});
  EXPECT_EQ(program.store.Custom_list[0].size(), 900u);
}

TEST_F(AddingAFood, TellsTheFirstFaultOnly) {
  form.txt_s = {"..", "..", "..", "..", "..", "..", ".."};
  form.printed_weight = form.portion_weight = {};
  form.combo_dEenheid.clear();
  form.txt_dNaam.clear();
  const auto at = [&] { return CheckTyped(form)->box; };
  EXPECT_EQ(at(), NewFoodBox{Kind::name});
  form.txt_dNaam = Text(5000, kFieldEnd);
  EXPECT_EQ(at(), NewFoodBox{Kind::unit});
  form.combo_dEenheid = "1 dish";
  EXPECT_EQ(at(), NewFoodBox{Kind::portion_gram});
  form.portion_weight.weight = "35";
  EXPECT_EQ(at(), NewFoodBox{Kind::printed_gram});
  form.printed_weight.weight = "100";
  for (std::size_t i = 0; i < FoodValue::kCount; ++i) {
    EXPECT_EQ(at(), (NewFoodBox{Kind::value, i}));
    form.txt_s[i] = "1";
  }
  EXPECT_EQ(CheckTyped(form), std::nullopt);
  EXPECT_EQ(CheckLine(form)->error, NewFoodError::illegal_characters);
  form.txt_dNaam = Text(5000, 'a');
  EXPECT_EQ(CheckLine(form)->error, NewFoodError::too_long);
  form.txt_dNaam = "a";
  EXPECT_EQ(CheckLine(form), std::nullopt);
}

}  // namespace
}  // namespace kelvora
