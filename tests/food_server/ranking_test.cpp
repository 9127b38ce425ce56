#include "food_server/ranking.h"

#include <gtest/gtest.h>

#include "core/store.h"
#include "core/text.h"

namespace kelvora::server {
namespace {

std::string Food(std::string_view name, std::string_view remark = {}) {
  std::string line = TextFromUtf8(name) + kFieldEnd;
  for (int field = 1; field < 11; ++field) line += kFieldEnd;
  return line + TextFromUtf8(remark) + kFieldEnd;
}

std::vector<std::string> NamesInOrder(const char* term, const std::vector<std::string>& foods,
                                      std::size_t most = 200) {
  const std::vector<std::string_view> lines(foods.begin(), foods.end());
  std::vector<std::string> names;
  for (const std::string_view line : RankFoods(FoldTerm(term), lines, most)) {
    names.push_back(Utf8FromText(FieldOf(line, 0)));
  }
  return names;
}

using Names = std::vector<std::string>;

TEST(Ranking, WholeNamesThenBeginningsOfWordsThenTheRest) {
  EXPECT_EQ(
      NamesInOrder("rice", {Food("Licorice"), Food("Brown rice"), Food("Rice"), Food("Bread")}),
      (Names{"Rice", "Brown rice", "Licorice"}));
}

TEST(Ranking, ShorterNamesFirstThenTheAlphabet) {
  EXPECT_EQ(NamesInOrder("rice", {Food("Rice, wild"), Food("Rice cake"), Food("Rice bran")}),
            (Names{"Rice bran", "Rice cake", "Rice, wild"}));
}

TEST(Ranking, BothLanguagesCountAlike) {
  EXPECT_EQ(NamesInOrder("ei", {Food("Eiderdown"), Food("Egg", "ei, kippenei"), Food("Leisure")}),
            (Names{"Egg", "Eiderdown"}));
}

TEST(Ranking, WordsMayStandInAnyOrder) {
  EXPECT_EQ(NamesInOrder("bread bro",
                         {Food("Brown bread"), Food("Bread, white"), Food("Breadcrumbs, brown")}),
            (Names{"Brown bread", "Breadcrumbs, brown"}));
}

TEST(Ranking, ShortWordsCountAtTheBeginningOfWordsOnly) {
  EXPECT_EQ(NamesInOrder("ch", {Food("Cheese"), Food("Sandwich")}), Names{"Cheese"});
  EXPECT_EQ(NamesInOrder("wich c", {Food("Sandwich"), Food("Sandwich, cheese")}),
            Names{"Sandwich, cheese"});
}

TEST(Ranking, CaseAndAccentsDontCount) {
  EXPECT_EQ(NamesInOrder("CRÈME", {Food("Crème"), Food("creme"), Food("Crépe")}),
            (Names{"Crème", "creme"}));
}

TEST(Ranking, NoWordFindsNothing) {
  EXPECT_EQ(NamesInOrder(" - ", {Food("-"), Food("Rice")}), Names{});
}

TEST(Ranking, NoMoreThanAreWanted) {
  EXPECT_EQ(NamesInOrder("r", {Food("Rice"), Food("Raw"), Food("Rib")}, 2), (Names{"Raw", "Rib"}));
}

}  // namespace
}  // namespace kelvora::server
