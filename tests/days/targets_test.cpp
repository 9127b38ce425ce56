// The sliders of the daily targets, their boxes, and the presets of the age groups.
#include "days/targets.h"

#include <gtest/gtest.h>

#include "days/good_form.h"
#include "language/built_in_texts.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// Minimum, maximum, large step, small step.
TEST(Targets, EachSliderHasItsRangeAndSteps) {
  struct Range {
    std::string_view name, box;
    std::array<int, 4> numbers;
  };
  constexpr std::array<Range, 6> kRanges = {{{"Slider_kj", "txt_kj", {20, 300, 10, 1}},
                                             {"Slider_ovet", "txt_ovet", {1, 600, 5, 1}},
                                             {"Slider_vvet", "txt_vvet", {1, 600, 5, 1}},
                                             {"Slider_nat", "txt_nat", {1, 20, 5, 1}},
                                             {"Slider_ew", "txt_ew", {1, 1500, 10, 1}},
                                             {"Slider_kdr", "txt_kdr", {10, 3000, 5, 1}}}};
  for (std::size_t i = 0; i < kRanges.size(); ++i) {
    const TargetSlider& slider = TargetSliders()[i];
    EXPECT_EQ(slider.name, kRanges[i].name);
    EXPECT_EQ(slider.box_name, kRanges[i].box);
    const std::array<int, 4> numbers = {slider.minimum, slider.maximum, slider.large_step,
                                        slider.small_step};
    EXPECT_EQ(numbers, kRanges[i].numbers) << slider.name;
  }
}

TEST(Targets, KilojoulesAreHundredfoldAndKilocaloriesFollow) {
  struct Figure {
    int position;
    std::string_view kj, kcal;
  };
  // Divided by 4.2 with an independent tool.
  for (const Figure& figure :
       {Figure{20, "2000", "476"}, Figure{21, "2100", "500"}, Figure{80, "8000", "1905"},
        Figure{85, "8500", "2024"}, Figure{90, "9000", "2143"}, Figure{299, "29900", "7119"},
        Figure{300, "30000", "7143"}}) {
    DayForm form;
    MoveSlider(form, Target::kj, figure.position);
    EXPECT_EQ(form.txt_kj, figure.kj);
    EXPECT_EQ(form.txt_kcal, figure.kcal);
    EXPECT_EQ(PositionOf(form, Target::kj), figure.position);
  }
}

TEST(Targets, TheOtherBoxesHoldThePosition) {
  DayForm form = GoodForm();
  DayForm expected = form;
  MoveSlider(form, Target::ovet, 81);
  MoveSlider(form, Target::vvet, 28);
  MoveSlider(form, Target::nat, 20);
  MoveSlider(form, Target::ew, 1500);
  MoveSlider(form, Target::kdr, 3000);
  expected.txt_ovet = "81";
  expected.txt_vvet = "28";
  expected.txt_nat = "20";
  expected.txt_ew = "1500";
  expected.txt_kdr = "3000";
  EXPECT_EQ(form, expected);
}

TEST(Targets, AStoredValueStandsAtTheNearestPosition) {
  struct Stored {
    Target target;
    std::string_view text;
    int position;
  };
  // Halves go to the even position: 89.5 to 90, 80.5 to 80.
  for (const Stored& stored : {Stored{Target::kj, "8050", 80},
                               Stored{Target::kj, "9000", 90},
                               Stored{Target::kj, "9099", 91},
                               Stored{Target::kj, "8950", 90},
                               Stored{Target::kj, "1999", 20},
                               Stored{Target::kj, "2000", 20},
                               Stored{Target::kj, "30000", 300},
                               Stored{Target::kj, "30100", 300},
                               Stored{Target::kj, "", 20},
                               Stored{Target::kj, "-5", 20},
                               Stored{Target::ovet, "80,9", 81},
                               Stored{Target::ovet, "0", 1},
                               Stored{Target::ovet, "600", 600},
                               Stored{Target::ovet, "601", 600},
                               Stored{Target::vvet, "27.5", 28},
                               Stored{Target::nat, "20", 20},
                               Stored{Target::nat, "21", 20},
                               Stored{Target::ew, "1501", 1500},
                               Stored{Target::kdr, "9", 10},
                               Stored{Target::kdr, "10", 10},
                               Stored{Target::kdr, "99999999999999999999", 3000}}) {
    DayForm form;
    form.*TargetSliders()[static_cast<std::size_t>(stored.target)].box = stored.text;
    EXPECT_EQ(PositionOf(form, stored.target), stored.position) << stored.text;
  }
}

TEST(Targets, SettlingBringsTheBoxesInStepWithTheSliders) {
  DayForm form;
  form.txt_kj = "8555";
  form.txt_kcal = "9";
  form.txt_ovet = "70,5";
  form.txt_vvet = "x";
  form.txt_nat = "99";
  form.txt_ew = "55";
  form.txt_kdr = "1";
  SettleSliders(form);
  // 85.55 is nearest to 86, and 8600 / 4.2 is 2047.6; 70.5 goes to the even 70.
  EXPECT_EQ(form.txt_kj, "8600");
  EXPECT_EQ(form.txt_kcal, "2048");
  EXPECT_EQ(form.txt_ovet, "70");
  EXPECT_EQ(form.txt_vvet, "1");
  EXPECT_EQ(form.txt_nat, "20");
  EXPECT_EQ(form.txt_ew, "55");
  EXPECT_EQ(form.txt_kdr, "10");
}

TEST(Targets, AnAgeGroupSetsThemAll) {
  // Kilojoules, kilocalories, the two fats, sodium, protein, carbohydrates.
  const std::array<std::array<Text, 7>, 6> kGroups = {{
      {"10500", "2500", "60", "30", "1", "70", "350"},
      {"11500", "2738", "62", "30", "1", "75", "400"},
      {"10000", "2381", "70", "32", "1", "70", "350"},
      {"9000", "2143", "80", "27", "1", "60", "300"},
      {"8500", "2024", "79", "26", "1", "55", "290"},
      {"8000", "1905", "47", "22", "1", "54", "270"},
  }};
  ASSERT_EQ(AgeGroups().size(), kGroups.size());
  for (std::size_t i = 0; i < kGroups.size(); ++i) {
    DayForm form = GoodForm();
    SetTargetsOf(form, AgeGroups()[i]);
    const std::array<Text, 7> shown = {form.txt_kj,  form.txt_kcal, form.txt_ovet, form.txt_vvet,
                                       form.txt_nat, form.txt_ew,   form.txt_kdr};
    EXPECT_EQ(shown, kGroups[i]) << i;
    EXPECT_EQ(form.pg_8, "42");
  }
}

TEST(Targets, GroupsAndOptionsBearTheirWords) {
  TestProgram test;
  const std::array<Text, 6> groups = {"13 - 16 Year", "16 - 19 Year", "19 - 22 Year",
                                      "22 - 50 Year", "50 - 65 Year", "65 and older"};
  const std::array<Text, 6> options = {"Energy, Kj",     "Energy, Kcal",  "Unsaturated fats",
                                       "Saturated fats", "Carbohydrates", "Proteins"};
  ASSERT_EQ(PriorityOptions().size(), options.size());
  for (std::size_t i = 0; i < groups.size(); ++i) {
    EXPECT_EQ(test.program.texts[AgeGroups()[i].caption], groups[i]);
    EXPECT_EQ(test.program.texts[PriorityOptions()[i]], options[i]);
  }
}

}  // namespace
}  // namespace kelvora
