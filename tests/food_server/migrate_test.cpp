// Copying a store into another.
#include "food_server/migrate.h"

#include "food_server/any_store.h"

namespace kelvora::server {
namespace {

using CopiedStore = AnyStore;
INSTANTIATE_TEST_SUITE_P(Stores, CopiedStore, testing::Values("sqlite", "postgres"),
                         [](const auto& each) { return std::string(each.param); });

TEST_P(CopiedStore, IsCopiedIntoAStoreOfEitherKind) {
  Put(ManyFoods(3000), "the state");
  Become(Add("Rye bread"), SubmissionState::accepted);
  Become(Add("Ham"), SubmissionState::refused);
  Add("Jam");
  for (const char* const kind : {"sqlite", "postgres"}) {
    const auto target = OpenStore(NewName(kind), StoreOptions());
    const StoreContents copied = Migrate(*store_, *target, false);
    EXPECT_EQ(copied.foods, 3000U);
    EXPECT_EQ(copied.submissions, 3U);
    EXPECT_EQ(ContentsOf(*target), ContentsOf(*store_));
    EXPECT_EQ(target->StateOfFoods(), "the state");
    EXPECT_EQ(target->Counts(), store_->Counts());
    for (const char* const term : {"cheese", "rye", "ham", "ch"}) {
      EXPECT_EQ(target->Search(FoldTerm(term), 200), Search(term)) << kind << term;
    }
    EXPECT_THROW(Migrate(*store_, *target, false), StoreFailure);
    EXPECT_EQ(Migrate(*store_, *target, true), copied);
  }
  // Into itself, which is the only way to lose anything.
  const StoreContents before = ContentsOf(*store_);
  EXPECT_EQ(Migrate(*store_, *Open(), true), before);
}

TEST_P(CopiedStore, DifferencesInContentsShowInTheChecksum) {
  Put({Line("Bread")});
  const Submission added = Add("Ham");
  const StoreContents before = ContentsOf(*store_);
  Become(added, SubmissionState::refused);
  const StoreContents refused = ContentsOf(*store_);
  EXPECT_NE(refused.checksum, before.checksum);
  Put({Line("Breac")});
  EXPECT_NE(ContentsOf(*store_).checksum, refused.checksum);
}

}  // namespace
}  // namespace kelvora::server
