// What only a store over a network has: a database that goes away, and several servers before it.
#include "food_server/postgres_store.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

#include "food_server/postgres_process.h"

namespace kelvora::server {
namespace {

constexpr auto kOn = [] { return true; };
const std::string kBread =
    "Bread\xBD"
    "100 g\xBD"
    "100\xBD"
    "420\xBD"
    "100\xBD"
    "1\xBD"
    "2\xBD"
    "3\xBD"
    "4\xBD"
    "0\xBDTest\xBD\xBD";

class PostgresStoreTest : public testing::Test {
 protected:
  test::PostgresProcess& postgres_ = test::PostgresProcess::Shared();
  const std::string name_ = postgres_.Fresh();
  const StoreOptions options_{
      .connections = 2, .busy_milliseconds = 1000, .search_milliseconds = 500};
  std::unique_ptr<Store> store_ = OpenStore(name_, options_);

  void SetUp() override {
    const std::vector<std::string_view> lines{kBread};
    ASSERT_TRUE(store_->ReplaceFoods(lines, "", kOn));
    ASSERT_TRUE(IsFound());
  }
  bool IsFound() { return store_->Search(FoldTerm("bread"), 10) == std::vector{kBread}; }
  // Everything that a request asks of the store.
  void AllFails() {
    EXPECT_THROW(static_cast<void>(IsFound()), StoreFailure);
    EXPECT_THROW(store_->AddSubmission({.food = kBread}, {}), StoreFailure);
    EXPECT_THROW(static_cast<void>(store_->Counts()), StoreFailure);
    EXPECT_THROW(static_cast<void>(store_->StateOfFoods()), StoreFailure);
    EXPECT_THROW(store_->ReplaceFoods({}, "", kOn), StoreFailure);
  }
  // A while after the database is back the store is as well, by itself.
  bool ComesBack() {
    for (int tried = 0; tried < 200; ++tried) {
      try {
        if (IsFound()) return true;
      } catch (const StoreFailure&) {
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return false;
  }
};

TEST_F(PostgresStoreTest, FailsWhileTheDatabaseIsAwayAndComesBackWithIt) {
  for (int round = 0; round < 2; ++round) {
    postgres_.Do("stop");
    AllFails();
    EXPECT_THROW(static_cast<void>(OpenStore(name_, options_)), StoreFailure);
    postgres_.Do("start");
    EXPECT_TRUE(ComesBack());
    EXPECT_EQ(store_->AddSubmission({.food = kBread}, {}), Added::yes);
  }
  EXPECT_EQ(store_->Counts().unchecked, 2U);
}

TEST_F(PostgresStoreTest, DoesNotWaitForADatabaseThatAnswersNothing) {
  postgres_.Do("freeze");
  AllFails();
  postgres_.Do("thaw");
  EXPECT_TRUE(ComesBack());
}

TEST_F(PostgresStoreTest, MakesItsTablesOnceHoweverManyServersStart) {
  const std::string name = postgres_.Fresh();
  std::vector<std::thread> servers;
  for (int i = 0; i < 6; ++i) {
    servers.emplace_back(
        [&] { EXPECT_NO_THROW(static_cast<void>(OpenStore(name, StoreOptions()))); });
  }
  for (std::thread& server : servers) server.join();
  EXPECT_EQ(OpenStore(name, options_)->Counts(), StoreCounts());
}

TEST_F(PostgresStoreTest, RefusesTablesOfAnotherVersion) {
  PostgresConnection connection(name_);
  connection.Command("UPDATE kelvora_food.store SET version = 2", After(10000));
  EXPECT_THROW(static_cast<void>(OpenStore(name_, options_)), StoreFailure);
}

TEST_F(PostgresStoreTest, LeavesNoConnectionBehindInATransaction) {
  // One that fails in the middle of a transaction, more often than there are connections.
  for (int i = 0; i < 5; ++i) {
    const std::vector<Submission> twice{{.number = 9}, {.number = 9}};
    EXPECT_THROW(store_->CopySubmissions(twice), StoreFailure);
  }
  EXPECT_TRUE(IsFound());
  PostgresConnection connection(name_);
  constexpr PostgresStatement kOpen{
      "open_transactions",
      "SELECT count(*) FROM pg_stat_activity WHERE state LIKE 'idle in"
      " transaction%'"};
  EXPECT_EQ(connection.Run(kOpen, {}, After(10000)).Number(0, 0), 0);
}

TEST_F(PostgresStoreTest, HoldsNoSearchUpWhileSomebodyReadsTheTablesForLong) {
  PostgresConnection reader(name_);
  reader.Command("BEGIN; SELECT FROM kelvora_food.foods_a, kelvora_food.foods_b", After(10000));
  const auto patient = OpenStore(name_, {.busy_milliseconds = 20000, .search_milliseconds = 4000});
  const std::vector<std::string_view> lines{kBread};
  std::atomic<bool> is_over = false;
  std::thread replacing([&] {
    EXPECT_THROW(patient->ReplaceFoods(lines, "new", kOn), StoreFailure);
    is_over = true;
  });
  do {
    EXPECT_NO_THROW(EXPECT_EQ(patient->Search(FoldTerm("bread"), 10), std::vector{kBread}));
  } while (!is_over);
  replacing.join();
  reader.Command("COMMIT", After(10000));
  EXPECT_TRUE(patient->ReplaceFoods(lines, "new", kOn));
}

TEST_F(PostgresStoreTest, AStatementThatTakesTooLongEndsAlone) {
  PostgresConnection connection(name_);
  SetUpPostgres(connection, options_);
  EXPECT_THROW(connection.Command("SELECT pg_sleep(60)", After(60000)), StoreFailure);
  EXPECT_TRUE(connection.IsGood());
  EXPECT_TRUE(connection.IsIdle());
  EXPECT_THROW(connection.Command("SET statement_timeout = 0; SELECT pg_sleep(60)", After(200)),
               StoreFailure);
  EXPECT_FALSE(connection.IsGood());
}

}  // namespace
}  // namespace kelvora::server
