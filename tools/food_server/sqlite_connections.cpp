#include "food_server/sqlite_connections.h"

namespace kelvora::server {
namespace {

// What is often read is read from the memory that all connections share.
constexpr const char* kReaderSettings =
    "PRAGMA mmap_size = 1073741824; PRAGMA temp_store = MEMORY; PRAGMA query_only = ON;";
// "FULL": what is committed is on the disk.
constexpr const char* kWriterSettings = "PRAGMA synchronous = FULL; PRAGMA temp_store = MEMORY;";

constexpr const char* kState = "SELECT slot, foods, sources FROM state";
constexpr const char* kCountState = "SELECT count(*) FROM submission WHERE state = ?1";

std::string OneSubmission() {
  return std::string(kSubmissionColumns) + "WHERE number = ?1";
}

char LetterOf(Statement& state) {
  auto rows = state.Query();
  return rows.Next() && rows.Bytes(0) == "b" ? 'b' : 'a';
}

}  // namespace

SqliteStore::Reader::Slot::Slot(Connection& connection, char slot)
    : whole_names(connection, ForSlot("SELECT food_$.place, line FROM name_$ "
                                      "JOIN food_$ ON food_$.place = name_$.place "
                                      "WHERE name = ?1 ORDER BY name_$.place LIMIT ?2",
                                      slot)),
      words(connection, ForSlot("SELECT place, line FROM word_$ "
                                "JOIN food_$ ON place = word_$.rowid "
                                "WHERE word_$ MATCH ?1 ORDER BY word_$.rowid LIMIT ?2",
                                slot)),
      grams(connection, ForSlot("SELECT place, line, food_$.words FROM gram_$ "
                                "JOIN food_$ ON place = gram_$.rowid "
                                "WHERE gram_$ MATCH ?1 ORDER BY gram_$.rowid LIMIT ?2",
                                slot)),
      read_foods(connection, ForSlot("SELECT line FROM food_$ WHERE place NOT IN (SELECT place "
                                     "FROM submission WHERE place IS NOT NULL)",
                                     slot)) {}

SqliteStore::Reader::Reader(const std::string& path, const StoreOptions& options)
    : connection(path, Access::read_only, options.busy_milliseconds),
      state((connection.Run(kReaderSettings), connection), kState),
      a(connection, 'a'),
      b(connection, 'b'),
      submissions(connection,
                  std::string(kSubmissionColumns) +
                      "WHERE number > ?1 AND (?2 IS NULL OR state = ?2) ORDER BY number LIMIT ?3"),
      one_submission(connection, OneSubmission()),
      count_state(connection, kCountState) {}

SqliteStore::Reader::Slot& SqliteStore::Reader::CurrentSlot() {
  return LetterOf(state) == 'a' ? a : b;
}

SqliteStore::Writer::Writer(const std::string& path, const StoreOptions& options)
    : connection(path, Access::read_write, options.busy_milliseconds),
      state((connection.Run(kWriterSettings), connection), kState),
      a(connection, 'a'),
      b(connection, 'b'),
      count_address(connection,
                    "SELECT count(*) FROM submission WHERE address = ?1 AND time >= ?2"),
      count_state(connection, kCountState),
      add(connection,
          "INSERT INTO submission (state, time, food, sender, address, query, place) "
          "VALUES (?1, ?2, ?3, ?4, ?5, ?6, NULL)"),
      copy(connection, "INSERT INTO submission VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8)"),
      one_submission(connection, OneSubmission()),
      change(connection,
             "UPDATE submission SET state = ?2, food = ?3, place = ?4 WHERE number = ?1") {}

char SqliteStore::Writer::SlotLetter() {
  return LetterOf(state);
}

std::int64_t SqliteStore::Writer::AddFood(const std::string& line) {
  SlotWriter& slot = CurrentSlot();
  const FoldedFood food = FoldFood(line);
  const std::int64_t place = slot.PlaceFor(line, food);
  slot.Add(place, line, food);
  return place;
}

Submission ReadSubmission(const Statement::Rows& rows) {
  return {.number = rows.Number(0),
          .state = static_cast<SubmissionState>(rows.Number(1)),
          .time = rows.Number(2),
          .food = std::string(rows.Bytes(3)),
          .sender = std::string(rows.Bytes(4)),
          .address = std::string(rows.Bytes(5)),
          .query = std::string(rows.Bytes(6))};
}

}  // namespace kelvora::server
