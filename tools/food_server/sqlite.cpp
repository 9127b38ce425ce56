#include "food_server/sqlite.h"

#include <sqlite3.h>
#include <thread>

#include "food_server/store.h"

namespace kelvora::server {
namespace {

constexpr std::chrono::milliseconds kBetweenTries(2);
constexpr int kStepsBetweenLooks = 4000;  // of the library's machine: well below a millisecond

[[noreturn]] void Fail(sqlite3* handle) {
  throw StoreFailure(std::string("the store fails: ") + sqlite3_errmsg(handle));
}

}  // namespace

void Connection::Close::operator()(sqlite3* handle) const {
  sqlite3_close_v2(handle);
}

Connection::Connection(const std::string& path, Access access, int busy_milliseconds)
    : busy_(busy_milliseconds) {
  const int how = access == Access::read_only ? SQLITE_OPEN_READONLY
                                              : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
  sqlite3* handle = nullptr;
  const int result = sqlite3_open_v2(path.c_str(), &handle, how | SQLITE_OPEN_NOMUTEX, nullptr);
  handle_.reset(handle);
  if (result != SQLITE_OK) {
    throw StoreFailure("the store " + path + " can't be opened: " + sqlite3_errstr(result));
  }
  sqlite3_busy_handler(handle, WaitForOthers, this);
  sqlite3_progress_handler(handle, kStepsBetweenLooks, TimeIsUp, this);
}

int Connection::WaitForOthers(void* connection, int times) {
  auto& self = *static_cast<Connection*>(connection);
  const auto now = std::chrono::steady_clock::now();
  if (times == 0) self.busy_since_ = now;
  if (now - self.busy_since_ > self.busy_) return 0;
  std::this_thread::sleep_for(kBetweenTries);
  return 1;
}

int Connection::TimeIsUp(void* connection) {
  const auto& deadline = static_cast<Connection*>(connection)->deadline_;
  return deadline && std::chrono::steady_clock::now() > *deadline ? 1 : 0;
}

void Connection::LimitTime(std::chrono::milliseconds limit) {
  deadline_.reset();
  if (limit.count() > 0) deadline_ = std::chrono::steady_clock::now() + limit;
}

void Connection::Run(const char* sql) {
  if (sqlite3_exec(handle_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) Fail(Handle());
}

std::int64_t Connection::Number(const char* sql) {
  Statement statement(*this, sql);
  auto rows = statement.Query();
  return rows.Next() ? rows.Number(0) : 0;
}

std::int64_t Connection::TotalChanges() const {
  return sqlite3_total_changes64(handle_.get());
}

bool Connection::InTransaction() const {
  return sqlite3_get_autocommit(handle_.get()) == 0;
}

void Statement::Finalize::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

Statement::Statement(Connection& connection, const std::string& sql) : connection_(&connection) {
  sqlite3_stmt* statement = nullptr;
  const int result =
      sqlite3_prepare_v3(connection.Handle(), sql.c_str(), static_cast<int>(sql.size()),
                         SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  statement_.reset(statement);
  Check(result);
}

void Statement::Check(int result) const {
  if (result != SQLITE_OK) Fail(connection_->Handle());
}

void Statement::Bind(int place, std::int64_t number) {
  Check(sqlite3_bind_int64(statement_.get(), place, number));
}

void Statement::Bind(int place, std::nullptr_t) {
  Check(sqlite3_bind_null(statement_.get(), place));
}

void Statement::Bind(int place, const std::string& text) {
  Check(sqlite3_bind_text64(statement_.get(), place, text.data(), text.size(), SQLITE_STATIC,
                            SQLITE_UTF8));
}

void Statement::Bind(int place, Blob blob) {
  // Without an address the library would take no bytes for none.
  const char* const bytes = blob.bytes.data() == nullptr ? "" : blob.bytes.data();
  Check(sqlite3_bind_blob64(statement_.get(), place, bytes, blob.bytes.size(), SQLITE_STATIC));
}

Statement::Rows::~Rows() {
  sqlite3_reset(statement_.statement_.get());
}

bool Statement::Rows::Next() {
  const int result = sqlite3_step(statement_.statement_.get());
  if (result == SQLITE_ROW) return true;
  if (result != SQLITE_DONE) Fail(statement_.connection_->Handle());
  return false;
}

std::int64_t Statement::Rows::Number(int column) const {
  return sqlite3_column_int64(statement_.statement_.get(), column);
}

std::string_view Statement::Rows::Bytes(int column) const {
  const void* const bytes = sqlite3_column_blob(statement_.statement_.get(), column);
  if (bytes == nullptr) return {};
  const int size = sqlite3_column_bytes(statement_.statement_.get(), column);
  return {static_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

bool Statement::Rows::IsNull(int column) const {
  return sqlite3_column_type(statement_.statement_.get(), column) == SQLITE_NULL;
}

Transaction::Transaction(Connection& connection, Kind kind) : connection_(connection) {
  connection_.Run(kind == Kind::reading ? "BEGIN" : "BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
  if (!connection_.InTransaction()) return;
  try {
    connection_.Run("ROLLBACK");
  } catch (const StoreFailure&) {
    // A transaction that can't be rolled back has been rolled back by the failure itself.
  }
}

void Transaction::Commit() {
  connection_.Run("COMMIT");
}

}  // namespace kelvora::server
