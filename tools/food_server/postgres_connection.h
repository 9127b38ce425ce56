// One connection to PostgreSQL, for one thread at a time.
//
// Values go to the server apart from the statement, never as a part of it. Every call has a
// deadline of this side's own, so that a server that answers nothing holds nobody up; what fails
// throws StoreFailure. After a failure of the connection itself IsGood is false, and it is of no
// more use.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <libpq-fe.h>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>

namespace kelvora::server {

using Deadline = std::chrono::steady_clock::time_point;
[[nodiscard]] Deadline After(int milliseconds);

// A statement that a connection prepares when it first runs it. The name is its own.
struct PostgresStatement {
  const char* name;
  const char* text;
};

// A value of a statement: a text, a number or bytes, or none.
class PostgresValue {
 public:
  PostgresValue(std::nullopt_t) : is_null_(true) {}
  PostgresValue(std::int64_t number) : bytes_(std::to_string(number)) {}
  PostgresValue(std::string text) : bytes_(std::move(text)) {}
  [[nodiscard]] static PostgresValue Bytes(std::string_view bytes);

  [[nodiscard]] const char* Data() const { return is_null_ ? nullptr : bytes_.data(); }
  [[nodiscard]] int Size() const { return static_cast<int>(bytes_.size()); }
  [[nodiscard]] int Format() const { return is_binary_ ? 1 : 0; }

 private:
  std::string bytes_;
  bool is_null_ = false;
  bool is_binary_ = false;
};

// The rows of an answer. Columns are bytes, texts or 64-bit numbers.
class PostgresRows {
 public:
  explicit PostgresRows(PGresult* result) : result_(result, PQclear) {}
  [[nodiscard]] int Count() const { return PQntuples(result_.get()); }
  [[nodiscard]] int Changed() const;
  [[nodiscard]] bool IsNull(int row, int column) const;
  [[nodiscard]] std::string_view Bytes(int row, int column) const;
  [[nodiscard]] std::int64_t Number(int row, int column) const;

 private:
  std::shared_ptr<PGresult> result_;
};

class PostgresConnection {
 public:
  // Connects within a few seconds, or within what the name says (connect_timeout).
  explicit PostgresConnection(const std::string& name);

  // Whether nothing has broken, and the server hasn't closed it meanwhile.
  [[nodiscard]] bool IsGood();
  [[nodiscard]] bool IsIdle() const;

  // Commands without values, one or more.
  void Command(const std::string& text, Deadline deadline);
  // The same, asking now and then whether to go on; false where not, and then it is broken off.
  bool Command(const std::string& text, const std::function<bool()>& go_on);
  PostgresRows Run(const PostgresStatement& statement, std::span<const PostgresValue> values,
                   Deadline deadline);
  // Runs a statement without values and gives each row's only column as it comes.
  void ForEach(const std::string& text, int silence_milliseconds,
               const std::function<void(std::string_view)>& take);

  // Rows for a table, in the text form of COPY: begun with its statement, ended before the next.
  void BeginCopy(const std::string& text, Deadline deadline);
  void CopyRows(std::string_view rows, Deadline deadline);
  void EndCopy(Deadline deadline);

 private:
  using Result = std::unique_ptr<PGresult, decltype(&PQclear)>;
  [[noreturn]] void Fail();
  [[noreturn]] void Break(const std::string& why);
  bool Wait(bool until_written, Deadline deadline);
  void Flush(Deadline deadline);
  Result NextResult(Deadline deadline);
  Result LastResult(Deadline deadline);
  void Prepare(const PostgresStatement& statement, Deadline deadline);

  std::unique_ptr<PGconn, decltype(&PQfinish)> connection_;
  std::set<const PostgresStatement*> prepared_;
  bool is_broken_ = false;
};

}  // namespace kelvora::server
