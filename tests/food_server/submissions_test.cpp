// What every store does with submissions.
#include <atomic>
#include <thread>

#include "food_server/any_store.h"

namespace kelvora::server {
namespace {

using SubmissionStore = AnyStore;
INSTANTIATE_TEST_SUITE_P(Stores, SubmissionStore, testing::Values("sqlite", "postgres"),
                         [](const auto& each) { return std::string(each.param); });

TEST_P(SubmissionStore, KeepsSubmissionsAsTheyCame) {
  Submission first{.time = 5'000'000'000,
                   .food = Line("Zoë's bread"),
                   .sender = std::string("me\x80\xBD\xBE\xBC' \0end", 13),
                   .address = "2001:db8::1",
                   .query = "naam=\xFF%00&kj='"};
  ASSERT_EQ(store_->AddSubmission(first, {}), Added::yes);
  const Submission second = Add("Ham");
  const auto all = store_->Submissions(std::nullopt, 0, 10);
  ASSERT_EQ(all.size(), 2U);
  first.number = all[0].number;
  EXPECT_EQ(all[0], first);
  EXPECT_GE(first.number, 1);
  EXPECT_GT(second.number, first.number);
  EXPECT_EQ(store_->FindSubmission(second.number), second);
  EXPECT_EQ(store_->FindSubmission(second.number + 1), std::nullopt);
  EXPECT_EQ(store_->FindSubmission(0), std::nullopt);
  EXPECT_EQ(store_->FindSubmission(-1), std::nullopt);
  EXPECT_EQ(store_->Submissions(std::nullopt, first.number, 10), std::vector{second});
  EXPECT_EQ(store_->Submissions(std::nullopt, 0, 1), std::vector{first});
  EXPECT_EQ(Open()->Submissions(SubmissionState::unchecked, 0, 10).size(), 2U);
  EXPECT_EQ(Search("bread").size(), 0U);
}

TEST_P(SubmissionStore, FindsASubmissionWhileItIsAccepted) {
  Put({Line("Rye bread")});
  const Submission added = Add("Corn bread");
  Submission accepted = added;
  accepted.state = SubmissionState::accepted;
  accepted.food = Line("Maize bread", "maïsbrood");
  EXPECT_TRUE(store_->ChangeSubmission(added, accepted));
  EXPECT_EQ(Search("bread"), (std::vector{Line("Rye bread"), accepted.food}));
  EXPECT_EQ(Search("aisbroo"), std::vector{accepted.food});
  EXPECT_EQ(Search("maisbrood"), std::vector{accepted.food});
  EXPECT_EQ(Search("corn").size(), 0U);
  EXPECT_EQ(store_->Counts(), (StoreCounts{.foods = 2, .accepted = 1}));

  // It stays when the foods of the folders are read again.
  Put({Line("Oat bread")}, "again");
  EXPECT_EQ(Search("bread"), (std::vector{Line("Oat bread"), accepted.food}));

  // Two people at once: the later one changes nothing.
  EXPECT_FALSE(store_->ChangeSubmission(added, accepted));
  Submission refused = accepted;
  refused.state = SubmissionState::refused;
  EXPECT_TRUE(store_->ChangeSubmission(accepted, refused));
  EXPECT_EQ(Search("bread"), std::vector{Line("Oat bread")});
  EXPECT_EQ(store_->Counts(), (StoreCounts{.foods = 1, .refused = 1}));
  Submission unknown = refused;
  unknown.number += 1000;
  EXPECT_FALSE(store_->ChangeSubmission(unknown, accepted));
}

TEST_P(SubmissionStore, CountsTheLimitsOfAllServersTogether) {
  const SubmissionLimits limits{.of_address = 3, .since = 1000, .unchecked = 5};
  const auto add = [&](Store& store, std::int64_t time, const std::string& address) {
    return store.AddSubmission({.time = time, .food = Line("Ham"), .address = address}, limits);
  };
  const auto other = Open();
  EXPECT_EQ(add(*store_, 999, "192.0.2.1"), Added::yes);  // too old to count
  for (Store* const store : {store_.get(), other.get(), store_.get()}) {
    EXPECT_EQ(add(*store, 1000, "192.0.2.1"), Added::yes);
  }
  EXPECT_EQ(add(*other, 1001, "192.0.2.1"), Added::too_many_of_address);
  EXPECT_EQ(add(*other, 1001, "192.0.2.2"), Added::yes);
  EXPECT_EQ(add(*store_, 1001, "192.0.2.2"), Added::too_many_unchecked);
  // What is refused still counts for its sender.
  for (const Submission& each : store_->Submissions(std::nullopt, 0, 10)) {
    Become(each, SubmissionState::refused);
  }
  EXPECT_EQ(add(*store_, 1001, "192.0.2.1"), Added::too_many_of_address);
  EXPECT_EQ(add(*store_, 1001, "192.0.2.2"), Added::yes);
}

TEST_P(SubmissionStore, LetsNoMoreInThanTheLimitHoweverManyComeAtOnce) {
  const auto other = Open();
  std::atomic<int> taken = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&, i] {
      for (int n = 0; n < 5; ++n) {
        Store& store = i % 2 == 0 ? *store_ : *other;
        const Submission one{.time = 5, .food = Line("Ham"), .address = "192.0.2.1"};
        if (store.AddSubmission(one, {.of_address = 7}) == Added::yes) ++taken;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(taken, 7);
  EXPECT_EQ(store_->Counts().unchecked, 7U);
}

TEST_P(SubmissionStore, TakesSubmissionsOfAnotherStoreWithTheirNumbers) {
  Submission accepted{.number = 7, .state = SubmissionState::accepted, .food = Line("Rye bread")};
  const Submission refused{.number = 12, .state = SubmissionState::refused, .food = Line("Ham")};
  store_->CopySubmissions(std::vector{accepted, refused});
  EXPECT_EQ(Search("bread"), std::vector{accepted.food});
  EXPECT_GT(Add("Jam").number, 12);
  // One that is taken: none of them comes in.
  accepted.number = 12;
  EXPECT_THROW(store_->CopySubmissions(std::vector{Submission{.number = 50}, accepted}),
               StoreFailure);
  EXPECT_EQ(store_->Submissions(std::nullopt, 0, 100).size(), 3U);
}

}  // namespace
}  // namespace kelvora::server
