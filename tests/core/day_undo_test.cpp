// What undoing goes over, by itself.
#include "core/day_undo.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

class Undoing : public testing::Test {
 protected:
  // A change of the morning that somebody tells of.
  void Eat(std::string_view line) {
    store.L_ochtend.Add(line);
    undo.Note(store);
  }
  [[nodiscard]] std::vector<Text> Morning() const {
    return {store.L_ochtend.begin(), store.L_ochtend.end()};
  }
  KV_data store;
  DayUndo undo;
};

TEST_F(Undoing, TheDayAsItWasOpenedIsNoChange) {
  Eat("a");
  EXPECT_FALSE(undo.CanUndo());
  EXPECT_FALSE(undo.Undo(store));
  EXPECT_FALSE(undo.Redo(store));
  EXPECT_EQ(Morning(), std::vector<Text>{"a"});
}

TEST_F(Undoing, GoesBackStepByStepAndForthAgain) {
  undo.Note(store);
  for (const char* line : {"a", "b", "c"}) Eat(line);
  EXPECT_TRUE(undo.Undo(store));
  EXPECT_EQ(Morning(), (std::vector<Text>{"a", "b"}));
  EXPECT_TRUE(undo.Undo(store));
  EXPECT_TRUE(undo.Undo(store));
  EXPECT_TRUE(store.L_ochtend.Empty());
  EXPECT_FALSE(undo.Undo(store));
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(undo.Redo(store));
  EXPECT_EQ(Morning(), (std::vector<Text>{"a", "b", "c"}));
  EXPECT_FALSE(undo.Redo(store));
}

TEST_F(Undoing, AllThreeListsGoTogether) {
  undo.Note(store);
  store.L_ochtend.Add("a");
  store.L_middag.Add("b");
  store.L_avond.Add("c");
  undo.Note(store);
  store.L_middag.Remove(0);
  store.L_avond.Replace(0, "d");
  undo.Note(store);
  undo.Undo(store);
  EXPECT_EQ(store.L_middag[0], "b");
  EXPECT_EQ(store.L_avond[0], "c");
  undo.Undo(store);
  EXPECT_TRUE(store.L_ochtend.Empty() && store.L_middag.Empty() && store.L_avond.Empty());
}

TEST_F(Undoing, TellingTwiceOfTheSameIsOneStep) {
  undo.Note(store);
  Eat("a");
  undo.Note(store);
  undo.Note(store);
  undo.Undo(store);
  undo.Note(store);  // as the re-totalling behind it does
  EXPECT_FALSE(undo.CanUndo());
  EXPECT_TRUE(undo.CanRedo());
}

TEST_F(Undoing, AnotherChangeEndsWhatCouldBeRedone) {
  undo.Note(store);
  Eat("a");
  undo.Undo(store);
  Eat("b");
  EXPECT_FALSE(undo.CanRedo());
  undo.Undo(store);
  EXPECT_TRUE(store.L_ochtend.Empty());
}

TEST_F(Undoing, ReachesAHundredChangesBackAndForgetsTheOldestOfTooMany) {
  undo.Note(store);
  constexpr std::size_t kChanges = DayUndo::kDepth + 20;
  for (std::size_t i = 0; i < kChanges; ++i) Eat(std::to_string(i));
  std::size_t steps = 0;
  while (undo.Undo(store)) ++steps;
  EXPECT_GE(steps, 100u);
  EXPECT_EQ(steps, DayUndo::kDepth);
  EXPECT_EQ(store.L_ochtend.Count(), 20u);
}

TEST_F(Undoing, ACloseEndsItAll) {
  undo.Note(store);
  Eat("a");
  undo.Clear();
  EXPECT_FALSE(undo.CanUndo());
  Eat("b");
  EXPECT_FALSE(undo.CanUndo());
}

}  // namespace
}  // namespace kelvora
