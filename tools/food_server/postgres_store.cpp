#include "food_server/postgres_store.h"

#include <algorithm>
#include <array>
#include <utility>

#include "food_server/postgres_foods.h"

namespace kelvora::server {
namespace {

constexpr std::size_t kChunk = 1 << 18;
constexpr int kBrief = 300;  // milliseconds that searches may be held up

constexpr PostgresStatement kState{"state", "SELECT state, set FROM store"};

constexpr PostgresStatement kSetState{"set_state",
                                      "UPDATE store SET set = $1, foods = $2::bigint, state = $3"};

constexpr PostgresStatement kLockFoods{
    "lock_foods", "SELECT 1::bigint WHERE pg_try_advisory_lock($1::int, $2::int)"};

constexpr PostgresStatement kCounts{
    "counts",
    "SELECT (SELECT foods FROM store), count(*) FILTER (WHERE state = 0),"
    " count(*) FILTER (WHERE state = 1), count(*) FILTER (WHERE state = 2) FROM submissions"};

}  // namespace

PostgresStore::PostgresStore(const std::string& name, const StoreOptions& options)
    : options_(options),
      // One more than serve requests: foods are read on it for minutes.
      pool_(name, options.connections + 1,
            [options](PostgresConnection& connection) { SetUpPostgres(connection, options); }) {
  MakePostgresTables(*Take(), options_);
}

bool PostgresStore::ReplaceFoods(std::span<const std::string_view> lines, std::string_view state,
                                 const std::function<bool()>& go_on) {
  const auto connection = Take();
  const std::string key = LockKey(PostgresLock::foods);
  const std::size_t comma = key.find(',');
  const std::array keys{PostgresValue(key.substr(0, comma)), PostgresValue(key.substr(comma + 1))};
  if (connection->Run(kLockFoods, keys, Soon()).Count() == 0) return false;
  // A connection that fails on the way is closed, and that ends its lock.
  const bool is_replaced = Fill(*connection, lines, state, go_on);
  if (connection->IsGood()) {
    connection->Command("SELECT pg_advisory_unlock(" + key + ")", Soon());
  }
  return is_replaced;
}

// Fills the tables that aren't searched and has them searched.
bool PostgresStore::Fill(PostgresConnection& connection, std::span<const std::string_view> lines,
                         std::string_view state, const std::function<bool()>& go_on) {
  CommonBeginnings beginnings;
  const auto ordered = InOrder(lines, beginnings, go_on);
  if (!ordered) return false;
  const char set = connection.Run(kState, {}, Soon()).Bytes(0, 1) == "a" ? 'b' : 'a';
  // A transaction of its own, since searches wait for what it holds, and for what it waits for: who
  // reads for long, as one who copies the database does, makes it fail rather than them.
  connection.Command("BEGIN; SET LOCAL statement_timeout = 0; SET LOCAL lock_timeout = " +
                         std::to_string(kBrief) + ";" + EmptyFoodTables(set) + "COMMIT",
                     After(kSilence));
  connection.Command(
      "BEGIN; SET LOCAL statement_timeout = 0; SET LOCAL maintenance_work_mem = '128MB'", Soon());
  const auto give_up = [&connection] {
    if (connection.IsGood()) connection.Command("ROLLBACK", After(kSilence));
    return false;
  };
  connection.BeginCopy(std::string("COPY foods_") + set + " FROM STDIN", Soon());
  std::string rows;
  std::uint32_t place = 0;
  bool goes_on = true;
  for (const std::string_view line : *ordered) {
    const FoldedFood food = FoldFood(line);
    beginnings.List(food, ++place);
    AppendFoodRow(rows, place, food, line);
    if (rows.size() < kChunk) continue;
    connection.CopyRows(std::exchange(rows, {}), After(kSilence));
    goes_on = go_on();
    if (!goes_on) break;
  }
  connection.CopyRows(rows, After(kSilence));
  connection.EndCopy(After(kSilence));
  if (!goes_on) return give_up();
  connection.BeginCopy(std::string("COPY beginnings_") + set + " FROM STDIN", Soon());
  for (const auto& [beginning, places] : beginnings.Lists()) {
    rows.clear();
    AppendBeginningRow(rows, beginning, places);
    connection.CopyRows(rows, After(kSilence));
  }
  connection.EndCopy(After(kSilence));
  if (!connection.Command(IndexFoodTables(set), go_on)) return give_up();
  connection.Run(kSetState,
                 std::array{PostgresValue(std::string(1, set)),
                            PostgresValue(static_cast<std::int64_t>(ordered->size())),
                            PostgresValue::Bytes(state)},
                 Soon());
  connection.Command("COMMIT", After(kSilence));
  return true;
}

std::optional<std::string> PostgresStore::StateOfFoods() {
  const PostgresRows rows = Take()->Run(kState, {}, Soon());
  if (rows.Count() == 0 || rows.IsNull(0, 0)) return std::nullopt;
  return std::string(rows.Bytes(0, 0));
}

StoreCounts PostgresStore::Counts() {
  const PostgresRows rows = Take()->Run(kCounts, {}, Soon());
  const auto count = [&](int column) { return static_cast<std::uint64_t>(rows.Number(0, column)); };
  return {.foods = count(0) + count(2),
          .unchecked = count(1),
          .accepted = count(2),
          .refused = count(3)};
}

void PostgresStore::ForEachFood(const std::function<void(std::string_view line)>& take) {
  const auto connection = Take();
  connection->Command("BEGIN; SET LOCAL statement_timeout = 0", Soon());
  // What lies in the set that isn't searched is no food.
  connection->ForEach(
      "SELECT line FROM foods_a WHERE (SELECT set FROM store) = 'a'"
      " UNION ALL SELECT line FROM foods_b WHERE (SELECT set FROM store) = 'b'",
      kSilence, take);
  connection->Command("COMMIT", Soon());
}

void PostgresStore::Clear() {
  const auto connection = Take();
  PostgresTransaction transaction(*connection, kSilence);
  Lock(*connection, PostgresLock::foods);
  connection->Command(
      "TRUNCATE submissions RESTART IDENTITY; TRUNCATE foods_a, foods_b, beginnings_a,"
      " beginnings_b; UPDATE store SET foods = 0, state = NULL",
      After(kSilence));
  transaction.Commit();
}

std::unique_ptr<Store> OpenPostgresStore(std::string_view name, const StoreOptions& options) {
  return std::make_unique<PostgresStore>(std::string(name), options);
}

}  // namespace kelvora::server
