// What the tests of adding a food share: a user, a form that passes every test, and eyes for the
// boxes.
#pragma once

#include <algorithm>
#include <gtest/gtest.h>

#include "core/common.h"
#include "food/adding.h"
#include "language/built_in_texts.h"
#include "language/new_food_texts.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"
#include "support/file_faults.h"
#include "support/test_program.h"

namespace kelvora {

class AddingAFood : public testing::Test {
 protected:
  AddingAFood() {
    test.OpenDay("Anna");
    program.settings[Setting::chk_addinternet] = "0";
  }

  // A form that passes every test: 35 of the 100 grams that the package tells of.
  NewFoodForm GoodForm() {
    NewFoodForm good;
    good.txt_dNaam = "Soup";
    good.combo_dEenheid = "1 dish";
    good.printed_weight = {"100", "100", "3.5"};
    good.portion_weight = {"35", "35", "1.2"};
    good.txt_s = {"1000", "240", "2", "4.4", "8", "40", "1.2"};
    CalculateFood(program, good);
    return good;
  }
  // Adds the form; the boxes shown by it, each as "title|text".
  std::vector<Text> Add() {
    const std::size_t before = test.boxes.shown.size();
    const AddedFood result = AddNewFood(program, form, submission, [this] { ++sent; });
    sending = result.sending;
    added = result.added;
    look_at = result.look_at;
    std::vector<Text> shown;
    for (std::size_t i = before; i < test.boxes.shown.size(); ++i) {
      shown.push_back(test.boxes.shown[i].title + "|" + test.boxes.shown[i].text);
    }
    return shown;
  }
  // Nothing was added, the form is as it was, and this box is to blame.
  void ExpectRefused(const std::vector<Text>& boxes, NewFoodBox box) {
    const NewFoodForm before = form;
    const Text list = PackBlock(program.store.Custom_list);
    EXPECT_EQ(Add(), boxes);
    EXPECT_FALSE(added);
    EXPECT_EQ(look_at, box);
    EXPECT_EQ(form, before);
    EXPECT_EQ(PackBlock(program.store.Custom_list), list);
    EXPECT_FALSE(FileExists(Path()));
    EXPECT_EQ(test.boxes.shown.back().icon, BoxIcon::error);
  }
  std::string Path() { return CustomFile(program.paths, "Anna"); }

  TestProgram test;
  Program& program = test.program;
  NewFoodForm form = GoodForm();
  FoodSubmission submission{test.program};
  bool added = false;
  bool sending = false;
  int sent = 0;
  std::optional<NewFoodBox> look_at;
};

using Kind = NewFoodBox::Kind;

// The box for something that is missing in the box of that caption.
inline std::vector<Text> Incomplete(std::string_view caption) {
  return {
      "Kelvora FOOD|You did not enter all the required nutritional values. \n"
      "Please enter the missing values and press 'Add' again.\n\n"
      "Look at the box \"" +
      Text(caption) + "\"."};
}
inline constexpr std::string_view kSavedBox =
    "Kelvora FOOD|The food item has been saved in the 'own food list'.";

}  // namespace kelvora
