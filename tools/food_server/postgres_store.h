// The store over PostgreSQL, for many servers before one database; see store.h.
#pragma once

#include "food_server/postgres_pool.h"
#include "food_server/postgres_schema.h"
#include "food_server/postgres_transaction.h"
#include "food_server/store.h"

namespace kelvora::server {

class PostgresStore final : public Store {
 public:
  PostgresStore(const std::string& name, const StoreOptions& options);

  std::vector<std::string> Search(const FoldedTerm& term, std::size_t most) override;
  bool ReplaceFoods(std::span<const std::string_view> lines, std::string_view state,
                    const std::function<bool()>& go_on) override;
  std::optional<std::string> StateOfFoods() override;
  Added AddSubmission(const Submission& submission, const SubmissionLimits& limits) override;
  std::vector<Submission> Submissions(std::optional<SubmissionState> state, std::int64_t after,
                                      std::size_t most) override;
  std::optional<Submission> FindSubmission(std::int64_t number) override;
  bool ChangeSubmission(const Submission& before, const Submission& changed) override;
  StoreCounts Counts() override;
  void ForEachFood(const std::function<void(std::string_view line)>& take) override;
  void CopySubmissions(std::span<const Submission> submissions) override;
  void Clear() override;

 private:
  PostgresPool::Lease Take() { return pool_.Take(After(options_.busy_milliseconds)); }
  // A statement ends itself before this one.
  Deadline Soon() const { return After(options_.search_milliseconds + kGrace); }
  void Lock(PostgresConnection& connection, PostgresLock lock) const;
  bool Fill(PostgresConnection& connection, std::span<const std::string_view> lines,
            std::string_view state, const std::function<bool()>& go_on);

  const StoreOptions options_;
  PostgresPool pool_;
};

// The name is an address, "postgresql://..." or "postgres://...", as libpq reads it.
[[nodiscard]] std::unique_ptr<Store> OpenPostgresStore(std::string_view name,
                                                       const StoreOptions& options);

}  // namespace kelvora::server
