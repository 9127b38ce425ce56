// The connections that the embedded store holds, with their statements.
#pragma once

#include "food_server/sqlite_schema.h"
#include "food_server/sqlite_slot.h"
#include "food_server/sqlite_store.h"

namespace kelvora::server {

struct SqliteStore::Reader {
  Reader(const std::string& path, const StoreOptions& options);

  // What is asked of one slot.
  struct Slot {
    Slot(Connection& connection, char slot);
    Statement whole_names, words, grams, read_foods;
  };
  [[nodiscard]] Slot& CurrentSlot();

  Connection connection;
  Statement state;
  Slot a, b;
  Statement submissions, one_submission, count_state;
};

struct SqliteStore::Writer {
  Writer(const std::string& path, const StoreOptions& options);

  [[nodiscard]] char SlotLetter();
  [[nodiscard]] SlotWriter& SlotOf(char slot) { return slot == 'a' ? a : b; }
  [[nodiscard]] SlotWriter& CurrentSlot() { return SlotOf(SlotLetter()); }
  // Lets searches find the food of an accepted submission; its place.
  std::int64_t AddFood(const std::string& line);

  Connection connection;
  Statement state;
  SlotWriter a, b;
  Statement count_address, count_state, add, copy, one_submission, change;
};

// The columns in the order of ReadSubmission.
inline constexpr std::string_view kSubmissionColumns =
    "SELECT number, state, time, food, sender, address, query, place FROM submission ";
[[nodiscard]] Submission ReadSubmission(const Statement::Rows& rows);

template <class Read>
auto SqliteStore::WithReader(Read read) {
  std::unique_ptr<Reader> reader;
  {
    const std::lock_guard lock(readers_mutex_);
    if (!readers_.empty()) {
      reader = std::move(readers_.back());
      readers_.pop_back();
    }
  }
  if (reader == nullptr) reader = std::make_unique<Reader>(path_, options_);
  // After a failure the connection goes, with whatever was wrong with it.
  auto result = [&] {
    Transaction transaction(reader->connection, Transaction::Kind::reading);
    auto read_now = read(*reader);
    transaction.Commit();
    return read_now;
  }();
  const std::lock_guard lock(readers_mutex_);
  if (readers_.size() < options_.connections) readers_.push_back(std::move(reader));
  return result;
}

template <class Write>
auto SqliteStore::WithWriter(Write write) {
  const std::lock_guard lock(writer_mutex_);
  auto writer = std::move(writer_);
  if (writer == nullptr) writer = std::make_unique<Writer>(path_, options_);
  auto result = [&] {
    Transaction transaction(writer->connection, Transaction::Kind::writing);
    auto written = write(*writer);
    transaction.Commit();
    return written;
  }();
  writer_ = std::move(writer);
  return result;
}

}  // namespace kelvora::server
