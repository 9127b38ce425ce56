// Submissions in PostgreSQL.
#include <algorithm>
#include <array>
#include <utility>

#include "food_server/postgres_foods.h"
#include "food_server/postgres_store.h"

namespace kelvora::server {
namespace {

constexpr PostgresStatement kLimits{
    "limits",
    "SELECT (SELECT count(*) FROM submissions WHERE address = $1 AND time >= $2::bigint),"
    " (SELECT count(*) FROM submissions WHERE state = 0)"};

constexpr PostgresStatement kAdd{
    "add",
    "INSERT INTO submissions (state, time, food, sender, address, query, words, name, text)"
    " VALUES ($1::smallint, $2::bigint, $3, $4, $5, $6, $7::tsvector, $8, $9)"};

constexpr PostgresStatement kCopy{
    "copy",
    "INSERT INTO submissions (state, time, food, sender, address, query, words, name, text, number)"
    " VALUES ($1::smallint, $2::bigint, $3, $4, $5, $6, $7::tsvector, $8, $9, $10::bigint)"};

constexpr PostgresStatement kNextNumber{
    "next_number",
    "SELECT setval(pg_get_serial_sequence('submissions', 'number'),"
    " greatest((SELECT max(number) FROM submissions), nextval(pg_get_serial_sequence('submissions',"
    " 'number')), 1))"};

constexpr PostgresStatement kSubmissions{
    "submissions",
    "SELECT number, state::bigint, time, food, sender, address, query FROM submissions"
    " WHERE number > $2::bigint AND ($1::bigint IS NULL OR state = $1::bigint)"
    " ORDER BY number LIMIT $3::bigint"};

constexpr PostgresStatement kChange{
    "change",
    "UPDATE submissions SET state = $1::smallint, food = $2, words = $3::tsvector, name = $4,"
    " text = $5 WHERE number = $6::bigint AND state = $7::smallint AND food = $8"};

PostgresValue StateValue(SubmissionState state) {
  return static_cast<std::int64_t>(state);
}

// Words, name and text of an accepted submission; of another one it isn't found by any.
std::vector<PostgresValue> FoundBy(SubmissionState state, std::string_view line) {
  if (state != SubmissionState::accepted) return {std::nullopt, std::nullopt, std::nullopt};
  const FoldedFood food = FoldFood(line);
  return {WordsAsVector(food), food.name, ForTrigrams(food.text)};
}

std::vector<PostgresValue> ValuesOf(const Submission& submission) {
  std::vector<PostgresValue> values{StateValue(submission.state),
                                    submission.time,
                                    PostgresValue::Bytes(submission.food),
                                    PostgresValue::Bytes(submission.sender),
                                    PostgresValue::Bytes(submission.address),
                                    PostgresValue::Bytes(submission.query)};
  std::ranges::copy(FoundBy(submission.state, submission.food), std::back_inserter(values));
  return values;
}

Submission SubmissionOf(const PostgresRows& rows, int row) {
  return {.number = rows.Number(row, 0),
          .state = static_cast<SubmissionState>(rows.Number(row, 1)),
          .time = rows.Number(row, 2),
          .food = std::string(rows.Bytes(row, 3)),
          .sender = std::string(rows.Bytes(row, 4)),
          .address = std::string(rows.Bytes(row, 5)),
          .query = std::string(rows.Bytes(row, 6))};
}

}  // namespace

// Whoever counts submissions to add one waits for others that do.
void PostgresStore::Lock(PostgresConnection& connection, PostgresLock lock) const {
  connection.Command("SELECT pg_advisory_xact_lock(" + LockKey(lock) + ")",
                     After(options_.busy_milliseconds + kGrace));
}

Added PostgresStore::AddSubmission(const Submission& submission, const SubmissionLimits& limits) {
  const auto connection = Take();
  PostgresTransaction transaction(*connection, options_.busy_milliseconds);
  Lock(*connection, PostgresLock::submissions);
  const PostgresRows counts = transaction.Run(
      kLimits, std::array{PostgresValue::Bytes(submission.address), PostgresValue(limits.since)});
  const auto reached = [&](int column, std::uint64_t limit) {
    return limit != 0 && static_cast<std::uint64_t>(counts.Number(0, column)) >= limit;
  };
  if (reached(0, limits.of_address)) return Added::too_many_of_address;
  if (reached(1, limits.unchecked)) return Added::too_many_unchecked;
  transaction.Run(kAdd, ValuesOf(submission));
  transaction.Commit();
  return Added::yes;
}

std::vector<Submission> PostgresStore::Submissions(std::optional<SubmissionState> state,
                                                   std::int64_t after, std::size_t most) {
  const PostgresRows rows =
      Take()->Run(kSubmissions,
                  std::array{state ? StateValue(*state) : PostgresValue(std::nullopt),
                             PostgresValue(after), PostgresValue(static_cast<std::int64_t>(most))},
                  Soon());
  std::vector<Submission> submissions;
  for (int row = 0; row < rows.Count(); ++row) submissions.push_back(SubmissionOf(rows, row));
  return submissions;
}

std::optional<Submission> PostgresStore::FindSubmission(std::int64_t number) {
  if (number < 1) return std::nullopt;
  std::vector<Submission> found = Submissions(std::nullopt, number - 1, 1);
  if (found.empty() || found.front().number != number) return std::nullopt;
  return std::move(found.front());
}

bool PostgresStore::ChangeSubmission(const Submission& before, const Submission& changed) {
  std::vector<PostgresValue> values{StateValue(changed.state), PostgresValue::Bytes(changed.food)};
  std::ranges::copy(FoundBy(changed.state, changed.food), std::back_inserter(values));
  values.emplace_back(before.number);
  values.push_back(StateValue(before.state));
  values.push_back(PostgresValue::Bytes(before.food));
  const auto connection = Take();
  PostgresTransaction transaction(*connection, options_.busy_milliseconds);
  const bool is_changed = transaction.Run(kChange, values).Changed() == 1;
  transaction.Commit();
  return is_changed;
}

void PostgresStore::CopySubmissions(std::span<const Submission> submissions) {
  const auto connection = Take();
  PostgresTransaction transaction(*connection, kSilence);
  Lock(*connection, PostgresLock::submissions);
  for (const Submission& submission : submissions) {
    std::vector<PostgresValue> values = ValuesOf(submission);
    values.emplace_back(submission.number);
    transaction.Run(kCopy, values);
  }
  transaction.Run(kNextNumber, {});
  transaction.Commit();
}

}  // namespace kelvora::server
