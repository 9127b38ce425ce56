// What every store finds, and what replacing its foods does.
#include <algorithm>
#include <atomic>
#include <thread>

#include "food_server/any_store.h"

namespace kelvora::server {
namespace {

using FoodStore = AnyStore;
INSTANTIATE_TEST_SUITE_P(Stores, FoodStore, testing::Values("sqlite", "postgres"),
                         [](const auto& each) { return std::string(each.param); });

TEST_P(FoodStore, FindsNothingBeforeFoodsAreThere) {
  EXPECT_EQ(Search("bread"), std::vector<std::string>());
  EXPECT_EQ(store_->StateOfFoods(), std::nullopt);
  EXPECT_EQ(store_->Counts(), StoreCounts());
}

TEST_P(FoodStore, FindsWholeNamesBeforeBeginningsBeforeTheRest) {
  const std::string bread = Line("Bread"), brown = Line("Brown bread"),
                    crumbs = Line("Breadcrumbs");
  const std::string short_bread = Line("Shortbread"), dutch = Line("Wholemeal", "bread, volkoren");
  Put({short_bread, brown, crumbs, dutch, bread});
  EXPECT_EQ(Search("BREAD"), (std::vector{bread, dutch, crumbs, brown, short_bread}));
  EXPECT_EQ(Search("bread", 2), (std::vector{bread, dutch}));
}

TEST_P(FoodStore, FindsWithoutCaseAndAccents) {
  const std::string food = Line("Crème fraîche, 35%", "zure room");
  Put({food});
  for (const char* const term :
       {"creme FRAICHE", "cr\xE8me", "crème", "RAIC", "35%", "5%", "zure", "zu ro", "ch fr"}) {
    const bool is_there = std::string_view(term) != "5%" && std::string_view(term) != "ch fr";
    EXPECT_EQ(Search(term).size(), is_there ? 1U : 0U) << term;
  }
}

TEST_P(FoodStore, AnswersAsTheRulesDoAmongManyFoods) {
  const std::vector<std::string> lines = ManyFoods(3000);
  Put(lines);
  std::vector<std::string> terms{
      "c",        "ch", "che",     "cheese", "cheese raw", "of", "o",    "raw of cheese", "heese",
      "eese raw", "es", "hick ra", "cr",     "5",          "59", "2999", "chicken 2999",  "aw chee",
      "r c o"};
  std::mt19937 dice(3);
  for (int i = 0; i < 25; ++i) {
    const std::string folded = FoldFood(lines[dice() % lines.size()]).text;
    terms.push_back(folded.substr(dice() % folded.size(), 1 + dice() % 9));
  }
  for (const std::string& term : terms) {
    std::vector<std::string> expected = Expected(term, lines, 200);
    EXPECT_EQ(Search(term), expected) << term;
    expected.resize(std::min<std::size_t>(expected.size(), 7));
    EXPECT_EQ(Search(term, 7), expected) << term;
  }
}

TEST_P(FoodStore, TakesSignsOfAnyLanguageForPartsOfWords) {
  Put({Line("Bread"), Line("O'Brien's \"best\" 'bread' & <b>ham</b>; DROP TABLE foods_a -- %_\\")});
  for (const char* const term : {"'",
                                 "\"",
                                 "''",
                                 "bread' OR '1'='1",
                                 "bread\" OR bread",
                                 "bread*",
                                 "bread:*",
                                 "-bread",
                                 "^bread",
                                 "NEAR(bread ham)",
                                 "bread AND",
                                 "AND",
                                 "NOT bread",
                                 "(bread",
                                 "{bread}",
                                 "%",
                                 "_",
                                 "%%%",
                                 "b%d",
                                 "bre_d",
                                 "\\",
                                 "'; DROP TABLE submission; --",
                                 "&",
                                 "|",
                                 "!",
                                 "<->",
                                 "\x80\xFF",
                                 "\xC3",
                                 "\xBD\xBE\xBC",
                                 "$1",
                                 "${1}",
                                 "?1",
                                 ":a",
                                 "word_a:bread",
                                 "   "}) {
    EXPECT_NO_THROW(static_cast<void>(Search(term))) << term;
  }
  EXPECT_EQ(Search("bread drop table").size(), 1U);
  EXPECT_EQ(Search("bread").size(), 2U);
  EXPECT_EQ(Search("b%d").size(), 0U);
  EXPECT_EQ(Search("bre_q").size(), 0U);
}

TEST_P(FoodStore, CutsNoWordShortThatATermCanHold) {
  const std::string longest = Line(std::string(200, 'x')), longer = Line(std::string(3000, 'x'));
  Put({longer, longest});
  EXPECT_EQ(Search(std::string(200, 'x')), (std::vector{longest, longer}));
  EXPECT_EQ(Search(std::string(201, 'x')), (std::vector{longest, longer}));
}

TEST_P(FoodStore, KeepsEveryByteOfAFood) {
  std::string line = Line("Bytes");
  for (int code = 1; code < 256; ++code) {
    if (code < 0xBC || code > 0xBE) line += static_cast<char>(code);
  }
  line += "\xBD";
  Put({line});
  EXPECT_EQ(Search("bytes"), std::vector{line});
}

TEST_P(FoodStore, ReplacesAllFoodsAndCountsEqualLinesOnce) {
  Put({Line("Old bread"), Line("Old ham")}, "one");
  Put({Line("New bread"), Line("New bread"), Line("New ham"), Line("Jam")}, "two\x01\xBD");
  EXPECT_EQ(Search("bread"), std::vector{Line("New bread")});
  EXPECT_EQ(Search("old"), std::vector<std::string>());
  EXPECT_EQ(store_->Counts().foods, 3U);
  EXPECT_EQ(store_->StateOfFoods(), "two\x01\xBD");
  Put({}, "");
  EXPECT_EQ(Search("bread"), std::vector<std::string>());
  EXPECT_EQ(store_->StateOfFoods(), "");
  Put({Line("Bread")}, "four");
  EXPECT_EQ(Search("bread").size(), 1U);
}

TEST_P(FoodStore, KeepsTheOldFoodsWhereReplacingIsGivenUp) {
  Put({Line("Old bread")}, "old");
  const std::vector<std::string> lines = ManyFoods(5000);
  // Given up at each of the first looks, which lie in different steps.
  for (int last : {0, 1, 3, 6, 10, 11, 12, 13}) {
    int looks = 0;
    if (store_->ReplaceFoods(Views(lines), "new", [&] { return ++looks <= last; })) {
      Put({Line("Old bread")}, "old");
    }
    EXPECT_EQ(Search("bread"), std::vector{Line("Old bread")}) << last;
    EXPECT_EQ(store_->StateOfFoods(), "old") << last;
  }
  Put(lines, "new");
  EXPECT_EQ(store_->Counts().foods, lines.size());
}

TEST_P(FoodStore, IsFilledByOneProcessAtATime) {
  Put({Line("Old bread")});
  const auto other = Open();
  bool asked = false;
  const std::vector<std::string> lines{Line("New bread")};
  EXPECT_TRUE(store_->ReplaceFoods(Views(lines), "new", [&] {
    if (!asked) {
      EXPECT_FALSE(other->ReplaceFoods(Views(lines), "other", kOn));
      EXPECT_EQ(other->Search(FoldTerm("bread"), 10), std::vector{Line("Old bread")});
    }
    return asked = true;
  }));
  EXPECT_TRUE(asked);
  EXPECT_EQ(other->StateOfFoods(), "new");
  EXPECT_EQ(other->Search(FoldTerm("bread"), 10), lines);
  EXPECT_TRUE(other->ReplaceFoods({}, "empty", kOn));
}

TEST_P(FoodStore, AnswersFromTheOldOrTheNewFoodsAndFromNothingBetween) {
  const std::vector<std::string> odd{Line("Bread 1"), Line("Bread 3"), Line("Bread 5")};
  const std::vector<std::string> even{Line("Bread 2"), Line("Bread 4")};
  Put(odd);
  std::atomic<bool> is_over = false;
  std::atomic<int> answers = 0;
  std::vector<std::thread> searching;
  for (int i = 0; i < 3; ++i) {
    searching.emplace_back([&] {
      while (!is_over) {
        const auto found = Search("bread");
        EXPECT_TRUE(found == odd || found == even) << found.size();
        ++answers;
      }
    });
  }
  for (int round = 0; round < 10; ++round) {
    const int before = answers;
    Put(round % 2 == 0 ? even : odd);
    while (answers < before + 5) std::this_thread::yield();
  }
  is_over = true;
  for (std::thread& thread : searching) thread.join();
}

TEST_P(FoodStore, IsEmptyWhenCleared) {
  Put({Line("Bread")});
  Become(Add("Rye bread"), SubmissionState::accepted);
  store_->Clear();
  EXPECT_EQ(Search("bread").size(), 0U);
  EXPECT_EQ(store_->Counts(), StoreCounts());
  EXPECT_EQ(store_->StateOfFoods(), std::nullopt);
  Put({Line("Bread")});
  EXPECT_EQ(Search("bread").size(), 1U);
}

}  // namespace
}  // namespace kelvora::server
