// What is done on a connection from here until Commit is done whole, or not at all.
#pragma once

#include "food_server/postgres_connection.h"
#include "food_server/store.h"

namespace kelvora::server {

inline constexpr int kGrace = 1000;     // milliseconds that the server is late at the most
inline constexpr int kSilence = 60000;  // milliseconds without a sign of life while much is moved

class PostgresTransaction {
 public:
  // Each statement may take so long, all together little more.
  PostgresTransaction(PostgresConnection& connection, int milliseconds)
      : connection_(connection), deadline_(After(milliseconds + kGrace)) {
    connection.Command("BEGIN; SET LOCAL statement_timeout = " + std::to_string(milliseconds),
                       deadline_);
  }
  PostgresTransaction(const PostgresTransaction&) = delete;
  PostgresTransaction& operator=(const PostgresTransaction&) = delete;
  ~PostgresTransaction() {
    if (is_done_) return;
    try {
      connection_.Command("ROLLBACK", After(kGrace));
    } catch (const StoreFailure&) {
      // The pool drops a connection that is still inside a transaction.
    }
  }
  PostgresRows Run(const PostgresStatement& statement, std::span<const PostgresValue> values) {
    return connection_.Run(statement, values, deadline_);
  }
  void Commit() {
    connection_.Command("COMMIT", deadline_);
    is_done_ = true;
  }

 private:
  PostgresConnection& connection_;
  const Deadline deadline_;
  bool is_done_ = false;
};

}  // namespace kelvora::server
