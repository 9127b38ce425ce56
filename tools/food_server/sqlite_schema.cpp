#include "food_server/sqlite_schema.h"

#include <thread>

#include "core/text.h"
#include "food_server/store.h"

namespace kelvora::server {
namespace {

constexpr std::int64_t kOurFile = 0x4B464653;  // "KFFS"
constexpr std::int64_t kVersion = 1;

constexpr const char* kTables = R"(
  CREATE TABLE state (
    only INTEGER PRIMARY KEY CHECK (only = 1),
    slot TEXT NOT NULL,
    foods INTEGER NOT NULL,
    sources BLOB);
  INSERT INTO state VALUES (1, 'a', 0, NULL);
  CREATE TABLE submission (
    number INTEGER PRIMARY KEY AUTOINCREMENT,
    state INTEGER NOT NULL,
    time INTEGER NOT NULL,
    food BLOB NOT NULL,
    sender BLOB NOT NULL,
    address TEXT NOT NULL,
    query BLOB NOT NULL,
    place INTEGER);
  CREATE INDEX submission_of_address ON submission (address, time);
  CREATE INDEX submission_of_state ON submission (state, number);
  CREATE INDEX submission_of_place ON submission (place) WHERE place IS NOT NULL;
)";

// "detail=none": which foods, not where in them. Without their contents the indexes hold no second
// copy of the foods.
constexpr std::string_view kTablesOfSlot = R"(
  CREATE TABLE food_$ (place INTEGER PRIMARY KEY, line BLOB NOT NULL, words TEXT NOT NULL);
  CREATE TABLE name_$ (name TEXT, place INTEGER, PRIMARY KEY (name, place)) WITHOUT ROWID;
  CREATE VIRTUAL TABLE word_$ USING fts5 (words, content='', columnsize=0, detail=none,
    prefix='1 2 3 4 5 6 7 8 9 10 11 12', tokenize="ascii tokenchars '%'");
  CREATE VIRTUAL TABLE gram_$ USING fts5 (words, content='', columnsize=0, detail=none,
    tokenize='trigram');
)";

void MakeTables(Connection& connection) {
  connection.Run(kTables);
  for (const char slot : {'a', 'b'}) connection.Run(ForSlot(kTablesOfSlot, slot).c_str());
  connection.Run(("PRAGMA application_id = " + std::to_string(kOurFile)).c_str());
  connection.Run(("PRAGMA user_version = " + std::to_string(kVersion)).c_str());
}

// Only one connection can do this, and the library lets the others fail instead of waiting.
void UseLog(Connection& connection) {
  constexpr int kTries = 200;
  for (int tried = 1;; ++tried) {
    try {
      return connection.Run("PRAGMA journal_mode = WAL");
    } catch (const StoreFailure&) {
      if (tried == kTries) throw;
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
  }
}

// Throws for a file that isn't ours.
bool IsEmpty(Connection& connection) {
  if (connection.Number("SELECT count(*) FROM sqlite_schema") == 0) return true;
  if (connection.Number("PRAGMA application_id") != kOurFile) {
    throw StoreFailure("the file is no store of foods");
  }
  if (connection.Number("PRAGMA user_version") > kVersion) {
    throw StoreFailure("the store is of a newer version of this program");
  }
  return false;
}

}  // namespace

std::string ForSlot(std::string_view sql, char slot) {
  return ReplaceAll(sql, "$", std::string_view(&slot, 1));
}

void PrepareSchema(Connection& connection) {
  // Asked before anything is changed in a file that may be somebody else's.
  (void)IsEmpty(connection);
  UseLog(connection);
  Transaction transaction(connection, Transaction::Kind::writing);
  if (IsEmpty(connection)) MakeTables(connection);
  transaction.Commit();
}

}  // namespace kelvora::server
