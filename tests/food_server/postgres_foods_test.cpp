#include "food_server/postgres_foods.h"

#include <gtest/gtest.h>

namespace kelvora::server {
namespace {

FoldedFood Food(const std::string& name, const std::string& rest = "") {
  return {.name = name, .names = {name}, .text = rest.empty() ? name : name + " " + rest};
}

TEST(PostgresFoods, WordsStandOnceAndNamesAsAWhole) {
  FoldedFood food = Food("milk whole", "milk melk");
  food.names.push_back("volle melk");
  EXPECT_EQ(WordsAsVector(food), "'melk' 'milk' 'whole' '=milk whole' '=volle melk' ");
}

TEST(PostgresFoods, WordsAreCutWhereTermsEnd) {
  const std::string word(201, 'x');
  // The name is too long for any term.
  EXPECT_EQ(WordsAsVector(Food(word)), "'" + std::string(200, 'x') + "' ");
}

TEST(PostgresFoods, TermsBecomeQueries) {
  const FoldedTerm term = FoldTerm("Whole MILK");
  EXPECT_EQ(BeginningsQuery(term.words), "'whole':* & 'milk':*");
  EXPECT_EQ(WholeNameQuery(term), "'=whole milk'");
  EXPECT_EQ(ForTrigrams("35% fat"), "35zqz fat");
}

TEST(CommonBeginnings, AreThoseThatManyFoodsHave) {
  CommonBeginnings beginnings;
  const std::vector<FoldedFood> foods{Food("cheese", "raw"), Food("chicken", "raw"), Food("chives"),
                                      Food("cream", "raw"), Food("cheese")};
  for (const FoldedFood& food : foods) beginnings.Count(food);
  beginnings.Choose(3);
  for (std::uint32_t place = 1; place <= foods.size(); ++place) {
    beginnings.List(foods[place - 1], place);
  }
  const std::map<std::string, std::vector<std::uint32_t>> expected{{"c", {1, 2, 3, 4, 5}},
                                                                   {"ch", {1, 2, 3, 5}},
                                                                   {"r", {1, 2, 4}},
                                                                   {"ra", {1, 2, 4}},
                                                                   {"raw", {1, 2, 4}}};
  EXPECT_EQ(beginnings.Lists(), expected);
}

TEST(CommonBeginnings, ListAFoodOnceAndTheFirstOnesOnly) {
  CommonBeginnings beginnings;
  const FoldedFood food = Food("rye raw", "raisin");
  for (int i = 0; i < 500; ++i) beginnings.Count(food);
  beginnings.Choose(500);
  for (std::uint32_t place = 1; place <= 500; ++place) beginnings.List(food, place);
  std::vector<std::uint32_t> first(kListedFoods);
  for (std::size_t i = 0; i < first.size(); ++i) first[i] = static_cast<std::uint32_t>(i + 1);
  EXPECT_EQ(beginnings.Lists().at("r"), first);
  EXPECT_EQ(beginnings.Lists().at("ra"), first);
}

TEST(PostgresFoods, RowsAreWhatCopyReads) {
  std::string rows;
  AppendFoodRow(rows, 3, Food("ham"), "H\xE2m\\\xBD\n");
  AppendBeginningRow(rows, "ha", std::vector<std::uint32_t>{3, 17});
  EXPECT_EQ(rows, "3\t'ham' '=ham' \tham\t\\\\x48e26d5cbd0a\nha\t{3,17}\n");
}

TEST(PostgresFoods, LinesAreOrderedByTheirNamesAndStandOnce) {
  const std::vector<std::string_view> lines{"Rye bread\xBD", "Ham\xBD", "\xC4gg\xBD", "Ham\xBD",
                                            "Ham\xBD"
                                            "1"};
  CommonBeginnings beginnings;
  const auto ordered = InOrder(lines, beginnings, [] { return true; });
  ASSERT_TRUE(ordered);
  EXPECT_EQ(*ordered, (std::vector<std::string_view>{"\xC4gg\xBD", "Ham\xBD",
                                                     "Ham\xBD"
                                                     "1",
                                                     "Rye bread\xBD"}));
  EXPECT_EQ(InOrder(lines, beginnings, [] { return false; }), std::nullopt);
}

}  // namespace
}  // namespace kelvora::server
