#include "food_server/postgres_pool.h"

#include <utility>

#include "food_server/store.h"

namespace kelvora::server {
namespace {

constexpr int kBetweenTries = 500;  // milliseconds

}  // namespace

PostgresPool::PostgresPool(std::string name, std::size_t most, SetUp set_up)
    : name_(std::move(name)), most_(most), set_up_(std::move(set_up)) {}

PostgresPool::Lease::Lease(PostgresPool& pool, std::unique_ptr<PostgresConnection> connection)
    : pool_(pool), connection_(std::move(connection)) {}

PostgresPool::Lease::~Lease() {
  pool_.GiveBack(std::move(connection_));
}

// One that is still good; those that aren't are dropped.
std::unique_ptr<PostgresConnection> PostgresPool::TakeIdle() {
  while (!idle_.empty()) {
    std::unique_ptr<PostgresConnection> connection = std::move(idle_.back());
    idle_.pop_back();
    if (connection->IsGood()) return connection;
    --count_;
  }
  return nullptr;
}

PostgresPool::Lease PostgresPool::Take(Deadline deadline) {
  std::unique_lock lock(mutex_);
  while (true) {
    if (auto connection = TakeIdle()) return Lease(*this, std::move(connection));
    if (count_ < most_) {
      const bool failed = !failure_.empty();
      if (failed && (is_trying_ || std::chrono::steady_clock::now() < next_try_)) {
        throw StoreFailure(failure_);
      }
      ++count_;
      is_trying_ = is_trying_ || failed;
      lock.unlock();
      return Lease(*this, Open());
    }
    if (freed_.wait_until(lock, deadline) == std::cv_status::timeout) {
      throw StoreFailure("PostgreSQL: all connections are in use");
    }
  }
}

std::unique_ptr<PostgresConnection> PostgresPool::Open() {
  std::string failure;
  try {
    auto connection = std::make_unique<PostgresConnection>(name_);
    set_up_(*connection);
    const std::lock_guard lock(mutex_);
    failure_.clear();
    is_trying_ = false;
    return connection;
  } catch (const std::exception& why) {
    failure = why.what();
  }
  const std::lock_guard lock(mutex_);
  --count_;
  is_trying_ = false;
  failure_ = failure;
  next_try_ = After(kBetweenTries);
  freed_.notify_one();
  throw StoreFailure(failure);
}

void PostgresPool::GiveBack(std::unique_ptr<PostgresConnection> connection) {
  const bool is_good = connection->IsGood() && connection->IsIdle();
  // One that is closed says so to the server, which needs no lock.
  if (!is_good) connection.reset();
  const std::lock_guard lock(mutex_);
  if (is_good) {
    idle_.push_back(std::move(connection));
  } else {
    --count_;
  }
  freed_.notify_one();
}

}  // namespace kelvora::server
