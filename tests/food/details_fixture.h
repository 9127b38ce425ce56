// What the tests of the food details share: a user with empty lists, and a food.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>

#include "food/details.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {

// 100 grams, so that the values per 100 grams are those of the portion.
inline constexpr FoodLine kBread{.product = "Bread",
                                 .unit = "2 slices",
                                 .gram = "100",
                                 .kj = "1000",
                                 .kcal = "239",
                                 .protein = "8.5",
                                 .fat_u = "2",
                                 .fat_s = "1",
                                 .carbs = "45",
                                 .sodium = "0.4"};
// The same as the dialog prints it.
inline const Text kSavedBread =
    Packed("Bread|2 slices|100|1000|239|8.50|2.00|1.00|45.00|0.400|0||");
// With the weight changed to 200.
inline const Text kTwiceBread =
    Packed("Bread|2 slices|200|2000|478|17.00|4.00|2.00|90.00|0.800|0||");

inline FoodLine OfCategory(FoodLine food) {
  food.db = "Bakery.dat";
  return food;
}

class Details : public testing::Test {
 protected:
  Details() {
    MakeUserFolders(program.paths, "Anna");
    SetCurrentUser(program, "Anna");
  }

  FoodDetails Open(std::string_view line, std::string_view tag = "custom") {
    return OpenDetails(program, tag, line);
  }
  TextList& Own() { return program.store.Custom_list; }
  TextList& Favourites() { return program.store.Favorites_list; }
  std::string OwnFile() { return CustomFile(program.paths, "Anna"); }
  std::string FavouriteFile() { return FavoritesFile(program.paths, "Anna"); }
  static TextList Stored(const std::string& path) {
    TextList lines;
    AppendFoodLines(ReadFile(path), {}, lines);
    return lines;
  }
  static TextList Lines(std::initializer_list<std::string_view> lines) {
    TextList list;
    for (const std::string_view line : lines) list.Add(line);
    return list;
  }
  // The words of the only box that was shown.
  Text Said() {
    EXPECT_EQ(test.boxes.shown.size(), 1u);
    return test.boxes.shown.empty() ? Text() : test.boxes.shown.back().text;
  }
  // The codes of the failures that were shown, in order.
  Text Codes() {
    Text codes;
    for (const Box& box : test.boxes.shown) codes += box.text.substr(box.text.rfind(':'));
    return codes;
  }

  TestProgram test;
  Program& program = test.program;
};

}  // namespace kelvora
