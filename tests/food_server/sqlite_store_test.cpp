// What only the embedded store has: its file, its slots and its places.
#include "food_server/sqlite_store.h"

#include <gtest/gtest.h>
#include <thread>

#include "core/store.h"
#include "food_server/ranking.h"
#include "food_server/sqlite.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora::server {
namespace {

std::string Food(const std::string& name) {
  std::string line = name + kFieldEnd;
  for (int field = 1; field < 12; ++field) line += kFieldEnd;
  return line;
}

constexpr auto kOn = [] { return true; };

class SqliteFile : public testing::Test {
 protected:
  [[nodiscard]] std::unique_ptr<Store> Open() const { return OpenStore("sqlite:" + path_, {}); }

  TemporaryFolder folder_;
  std::string path_ = folder_.Path() + "/foods.db";
};

TEST_F(SqliteFile, IsTheSameForEveryProcess) {
  const auto one = Open(), other = Open();
  const std::string food = Food("Rice");
  const std::vector<std::string_view> foods{food};
  EXPECT_TRUE(one->ReplaceFoods(foods, "1", kOn));
  EXPECT_EQ(other->Search(FoldTerm("rice"), 9), std::vector{food});
  EXPECT_EQ(other->StateOfFoods(), "1");
}

TEST_F(SqliteFile, TakesNoFileOfAnotherProgram) {
  WriteFileAnew(path_, "no database at all, but long enough to be looked at as if it were one\n");
  EXPECT_THROW((void)Open(), StoreFailure);
  WriteFileAnew(path_, "");
  {
    Connection other(path_, Access::read_write, 100);
    other.Run("CREATE TABLE theirs (x)");
  }
  const std::string before = ReadFile(path_);
  EXPECT_THROW((void)Open(), StoreFailure);
  EXPECT_EQ(ReadFile(path_), before);
}

TEST_F(SqliteFile, TakesNoFileOfANewerVersion) {
  (void)Open();
  {
    Connection newer(path_, Access::read_write, 100);
    newer.Run("PRAGMA user_version = 99");
  }
  EXPECT_THROW((void)Open(), StoreFailure);
}

TEST_F(SqliteFile, FailsInAFolderThatIsNotThere) {
  EXPECT_THROW((void)OpenStore("sqlite:/nowhere/foods.db", {}), StoreFailure);
}

TEST_F(SqliteFile, AcceptedFoodsStandInTheirPlacesAmongTheOthers) {
  const auto store = Open();
  std::vector<std::string> foods;
  for (char letter = 'a'; letter <= 'z'; ++letter)
    foods.push_back(Food(std::string("Rice ") + letter));
  foods.push_back(Food("Rice pudding"));
  const std::vector<std::string_view> lines(foods.begin(), foods.end());
  ASSERT_TRUE(store->ReplaceFoods(lines, "1", kOn));
  // More of one place than there is room between two foods, in an order that is not theirs.
  std::vector<std::string> all = foods;
  std::int64_t number = 0;
  for (int i = 40; i > 0; --i) {
    const std::string food = Food("Rice k" + std::string(static_cast<std::size_t>(i % 20), 'k'));
    all.push_back(food);
    ASSERT_EQ(store->AddSubmission({.food = food}, {}), Added::yes);
    const Submission submission = store->FindSubmission(++number).value();
    Submission accepted = submission;
    accepted.state = SubmissionState::accepted;
    ASSERT_TRUE(store->ChangeSubmission(submission, accepted));
  }
  const std::vector<std::string_view> all_lines(all.begin(), all.end());
  const auto expected = RankFoods(FoldTerm("rice"), all_lines, 200);
  const auto found = store->Search(FoldTerm("rice"), 200);
  ASSERT_EQ(found.size(), expected.size());
  EXPECT_TRUE(std::equal(found.begin(), found.end(), expected.begin()));
  EXPECT_EQ(store->Counts().foods, all.size());
}

TEST_F(SqliteFile, AFillingThatWasKilledIsBegunAnew) {
  const auto store = Open();
  const std::string rice = Food("Rice"), bread = Food("Bread");
  const std::vector<std::string_view> first{rice}, second{rice, bread};
  ASSERT_TRUE(store->ReplaceFoods(first, "1", kOn));
  int asked = 0;
  EXPECT_FALSE(store->ReplaceFoods(second, "2", [&asked] { return ++asked < 2; }));
  EXPECT_TRUE(store->Search(FoldTerm("bread"), 9).empty());
  EXPECT_EQ(store->StateOfFoods(), "1");
  EXPECT_TRUE(store->ReplaceFoods(second, "2", kOn));
  EXPECT_EQ(store->Search(FoldTerm("bread"), 9), std::vector{bread});
}

}  // namespace
}  // namespace kelvora::server
