#include "food_server/postgres_connection.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <poll.h>
#include <vector>

#include "food_server/store.h"

namespace kelvora::server {
namespace {

constexpr std::chrono::milliseconds kLook{100};  // how often go_on is asked

std::string WithoutLineEnd(std::string text) {
  while (!text.empty() && (text.back() == '\n' || text.back() == ' ')) text.pop_back();
  std::ranges::replace(text, '\n', ' ');
  return text;
}

// What the name doesn't say itself. Later ones count, so the name comes last.
PGconn* Connect(const std::string& name) {
  constexpr std::array keys = {"connect_timeout", "application_name",
                               "client_encoding", "tcp_user_timeout",
                               "dbname",          static_cast<const char*>(nullptr)};
  const std::array values = {"3",     "kelvora-food-server", "UTF8",
                             "10000", name.c_str(),          static_cast<const char*>(nullptr)};
  return PQconnectdbParams(keys.data(), values.data(), 1);
}

}  // namespace

Deadline After(int milliseconds) {
  return std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
}

PostgresValue PostgresValue::Bytes(std::string_view bytes) {
  PostgresValue value{std::string(bytes)};
  value.is_binary_ = true;
  return value;
}

int PostgresRows::Changed() const {
  return std::atoi(PQcmdTuples(result_.get()));
}

bool PostgresRows::IsNull(int row, int column) const {
  return PQgetisnull(result_.get(), row, column) != 0;
}

std::string_view PostgresRows::Bytes(int row, int column) const {
  return {PQgetvalue(result_.get(), row, column),
          static_cast<std::size_t>(PQgetlength(result_.get(), row, column))};
}

std::int64_t PostgresRows::Number(int row, int column) const {
  const std::string_view bytes = Bytes(row, column);
  if (bytes.size() != sizeof(std::int64_t)) throw StoreFailure("PostgreSQL: not a number");
  std::uint64_t number = 0;
  for (const char byte : bytes) number = number << 8 | static_cast<unsigned char>(byte);
  return static_cast<std::int64_t>(number);
}

PostgresConnection::PostgresConnection(const std::string& name)
    : connection_(Connect(name), PQfinish) {
  if (PQstatus(connection_.get()) != CONNECTION_OK) Fail();
  if (PQsetnonblocking(connection_.get(), 1) != 0) Fail();
}

bool PostgresConnection::IsGood() {
  if (is_broken_ || PQstatus(connection_.get()) != CONNECTION_OK) return false;
  // What an idle server says is that it goes away.
  pollfd socket{PQsocket(connection_.get()), POLLIN, 0};
  if (poll(&socket, 1, 0) > 0 && PQconsumeInput(connection_.get()) == 0) return false;
  return PQstatus(connection_.get()) == CONNECTION_OK;
}

bool PostgresConnection::IsIdle() const {
  return PQtransactionStatus(connection_.get()) == PQTRANS_IDLE;
}

void PostgresConnection::Fail() {
  throw StoreFailure("PostgreSQL: " + WithoutLineEnd(PQerrorMessage(connection_.get())));
}

void PostgresConnection::Break(const std::string& why) {
  is_broken_ = true;
  throw StoreFailure("PostgreSQL: " + why);
}

// Waits for the server, at the most until the deadline; false if it came first.
bool PostgresConnection::Wait(bool until_written, Deadline deadline) {
  const auto left =
      std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
  pollfd socket{PQsocket(connection_.get()),
                static_cast<short>(until_written ? POLLIN | POLLOUT : POLLIN), 0};
  const int ready = poll(&socket, 1, static_cast<int>(std::clamp<long>(left.count(), 0, 1 << 30)));
  if (ready < 0 && errno != EINTR) Break(std::strerror(errno));
  if (ready == 0) return false;
  if (ready > 0 && (socket.revents & ~POLLOUT) != 0 && PQconsumeInput(connection_.get()) == 0) {
    is_broken_ = true;
    Fail();
  }
  return true;
}

void PostgresConnection::Flush(Deadline deadline) {
  for (int left; (left = PQflush(connection_.get())) != 0;) {
    if (left < 0) {
      is_broken_ = true;
      Fail();
    }
    if (!Wait(true, deadline)) Break("no answer in time");
  }
}

PostgresConnection::Result PostgresConnection::NextResult(Deadline deadline) {
  Flush(deadline);
  while (PQisBusy(connection_.get()) != 0) {
    if (!Wait(false, deadline)) Break("no answer in time");
  }
  return {PQgetResult(connection_.get()), PQclear};
}

// The answer to what was sent, the first failure of several.
PostgresConnection::Result PostgresConnection::LastResult(Deadline deadline) {
  Result last(nullptr, PQclear);
  std::string failure;
  while (Result result = NextResult(deadline)) {
    const ExecStatusType status = PQresultStatus(result.get());
    if (status == PGRES_FATAL_ERROR && failure.empty()) {
      failure = WithoutLineEnd(PQresultErrorMessage(result.get()));
    }
    last = std::move(result);
    if (status == PGRES_COPY_IN) break;
  }
  if (PQstatus(connection_.get()) != CONNECTION_OK) is_broken_ = true;
  if (!failure.empty()) throw StoreFailure("PostgreSQL: " + failure);
  if (!last) Break("no answer");
  return last;
}

void PostgresConnection::Command(const std::string& text, Deadline deadline) {
  if (PQsendQuery(connection_.get(), text.c_str()) == 0) Fail();
  static_cast<void>(LastResult(deadline));
}

bool PostgresConnection::Command(const std::string& text, const std::function<bool()>& go_on) {
  if (PQsendQuery(connection_.get(), text.c_str()) == 0) Fail();
  Flush(After(10000));
  while (PQisBusy(connection_.get()) != 0) {
    if (!go_on()) {
      // The server notices that nobody waits for it any more.
      is_broken_ = true;
      return false;
    }
    static_cast<void>(Wait(false, std::chrono::steady_clock::now() + kLook));
  }
  static_cast<void>(LastResult(After(10000)));
  return true;
}

void PostgresConnection::Prepare(const PostgresStatement& statement, Deadline deadline) {
  if (prepared_.contains(&statement)) return;
  if (PQsendPrepare(connection_.get(), statement.name, statement.text, 0, nullptr) == 0) Fail();
  static_cast<void>(LastResult(deadline));
  prepared_.insert(&statement);
}

PostgresRows PostgresConnection::Run(const PostgresStatement& statement,
                                     std::span<const PostgresValue> values, Deadline deadline) {
  Prepare(statement, deadline);
  std::vector<const char*> bytes;
  std::vector<int> sizes;
  std::vector<int> formats;
  for (const PostgresValue& value : values) {
    bytes.push_back(value.Data());
    sizes.push_back(value.Size());
    formats.push_back(value.Format());
  }
  if (PQsendQueryPrepared(connection_.get(), statement.name, static_cast<int>(values.size()),
                          bytes.data(), sizes.data(), formats.data(), 1) == 0) {
    Fail();
  }
  return PostgresRows(LastResult(deadline).release());
}

void PostgresConnection::ForEach(const std::string& text, int silence_milliseconds,
                                 const std::function<void(std::string_view)>& take) {
  if (PQsendQueryParams(connection_.get(), text.c_str(), 0, nullptr, nullptr, nullptr, nullptr,
                        1) == 0 ||
      PQsetSingleRowMode(connection_.get()) == 0) {
    Fail();
  }
  // A caller that throws in the middle leaves rows behind, which nobody else is to read.
  is_broken_ = true;
  while (Result result = NextResult(After(silence_milliseconds))) {
    const ExecStatusType status = PQresultStatus(result.get());
    if (status != PGRES_SINGLE_TUPLE && status != PGRES_TUPLES_OK) {
      throw StoreFailure("PostgreSQL: " + WithoutLineEnd(PQresultErrorMessage(result.get())));
    }
    const PostgresRows rows(result.release());
    for (int row = 0; row < rows.Count(); ++row) take(rows.Bytes(row, 0));
  }
  is_broken_ = PQstatus(connection_.get()) != CONNECTION_OK;
}

void PostgresConnection::BeginCopy(const std::string& text, Deadline deadline) {
  if (PQsendQuery(connection_.get(), text.c_str()) == 0) Fail();
  if (PQresultStatus(LastResult(deadline).get()) != PGRES_COPY_IN) Break("takes no rows");
}

void PostgresConnection::CopyRows(std::string_view rows, Deadline deadline) {
  for (int taken; (taken = PQputCopyData(connection_.get(), rows.data(),
                                         static_cast<int>(rows.size()))) != 1;) {
    if (taken < 0) {
      is_broken_ = true;
      Fail();
    }
    if (!Wait(true, deadline)) Break("no answer in time");
  }
  Flush(deadline);
}

void PostgresConnection::EndCopy(Deadline deadline) {
  while (PQputCopyEnd(connection_.get(), nullptr) == 0) {
    if (!Wait(true, deadline)) Break("no answer in time");
  }
  static_cast<void>(LastResult(deadline));
}

}  // namespace kelvora::server
