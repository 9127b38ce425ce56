// The connections of a store to PostgreSQL, shared by the threads of this process.
//
// A connection is made when one is needed and kept. While the server can't be reached one thread at
// a time tries again, half a second after the last failure at the earliest; all others fail at once
// instead of waiting for what won't come.
#pragma once

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "food_server/postgres_connection.h"

namespace kelvora::server {

class PostgresPool {
 public:
  // What every new connection is set to.
  using SetUp = std::function<void(PostgresConnection&)>;
  PostgresPool(std::string name, std::size_t most, SetUp set_up);

  // A connection for as long as this lives; then it goes back, unless it broke or was left inside a
  // transaction.
  class Lease {
   public:
    Lease(PostgresPool& pool, std::unique_ptr<PostgresConnection> connection);
    Lease(const Lease&) = delete;
    Lease& operator=(const Lease&) = delete;
    ~Lease();
    PostgresConnection* operator->() const { return connection_.get(); }
    PostgresConnection& operator*() const { return *connection_; }

   private:
    PostgresPool& pool_;
    std::unique_ptr<PostgresConnection> connection_;
  };

  // Waits until one is free, at the most until the deadline. Throws StoreFailure.
  [[nodiscard]] Lease Take(Deadline deadline);

 private:
  [[nodiscard]] std::unique_ptr<PostgresConnection> TakeIdle();
  [[nodiscard]] std::unique_ptr<PostgresConnection> Open();
  void GiveBack(std::unique_ptr<PostgresConnection> connection);

  const std::string name_;
  const std::size_t most_;
  const SetUp set_up_;

  std::mutex mutex_;
  std::condition_variable freed_;
  std::vector<std::unique_ptr<PostgresConnection>> idle_;
  std::size_t count_ = 0;  // idle, lent and being opened
  bool is_trying_ = false;
  std::string failure_;  // why none could be opened last; empty if one could
  Deadline next_try_{};
};

}  // namespace kelvora::server
