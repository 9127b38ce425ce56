// SQLite as this server uses it: a connection, a prepared statement, a transaction. Every value is
// bound. Each failure of the library is thrown as a StoreFailure with the library's own words.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace kelvora::server {

enum class Access { read_only, read_write };

// One thread at a time.
class Connection {
 public:
  // Opens the database; for writing it is made if there is none. A call that has to wait for
  // another connection gives up after that many milliseconds.
  Connection(const std::string& path, Access access, int busy_milliseconds);

  // Runs one statement without values. Only for texts of our own.
  void Run(const char* sql);
  // The number that a pragma or a query without values answers with.
  [[nodiscard]] std::int64_t Number(const char* sql);

  // Statements that run longer than this from now on fail; 0 lets them run.
  void LimitTime(std::chrono::milliseconds limit);

  [[nodiscard]] std::int64_t TotalChanges() const;
  [[nodiscard]] bool InTransaction() const;
  [[nodiscard]] sqlite3* Handle() const { return handle_.get(); }

 private:
  struct Close {
    void operator()(sqlite3* handle) const;
  };
  static int WaitForOthers(void* connection, int times);
  static int TimeIsUp(void* connection);

  std::unique_ptr<sqlite3, Close> handle_;
  std::chrono::milliseconds busy_;
  std::chrono::steady_clock::time_point busy_since_;
  std::optional<std::chrono::steady_clock::time_point> deadline_;
};

// Bytes of Windows-1252, which the library must not take for its own texts.
struct Blob {
  std::string_view bytes;
};

// Made once and run again and again; the connection outlives it.
class Statement {
 public:
  Statement(Connection& connection, const std::string& sql);

  // The rows of one run. Values are numbers, folded texts and blobs in the order of their places;
  // they outlive the rows. One run at a time.
  class Rows {
   public:
    explicit Rows(const Statement& statement) : statement_(statement) {}
    // Lets go of what the rows hold on to.
    ~Rows();
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;
    // To the next row; false behind the last one.
    bool Next();
    [[nodiscard]] std::int64_t Number(int column) const;
    // Good until the next row.
    [[nodiscard]] std::string_view Bytes(int column) const;
    [[nodiscard]] bool IsNull(int column) const;

   private:
    const Statement& statement_;
  };
  template <class... Values>
  [[nodiscard]] Rows Query(const Values&... values) {
    int place = 0;
    (Bind(++place, values), ...);
    return Rows(*this);
  }
  // Runs to the end.
  template <class... Values>
  void Run(const Values&... values) {
    Rows rows = Query(values...);
    while (rows.Next()) {
    }
  }

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const;
  };
  void Bind(int place, std::int64_t number);
  void Bind(int place, std::nullptr_t);
  void Bind(int place, const std::string& text);
  void Bind(int place, Blob blob);
  void Check(int result) const;

  Connection* connection_;
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

// Undone unless it is committed.
class Transaction {
 public:
  enum class Kind { reading, writing };
  Transaction(Connection& connection, Kind kind);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void Commit();

 private:
  Connection& connection_;
};

}  // namespace kelvora::server
