// The store over SQLite: one file with its log beside it, for one machine.
#pragma once

#include <mutex>

#include "food_server/sqlite.h"
#include "food_server/store.h"

namespace kelvora::server {

class SqliteStore : public Store {
 public:
  SqliteStore(std::string path, const StoreOptions& options);
  ~SqliteStore() override;

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

  // Its connections, see sqlite_connections.h.
  struct Reader;
  struct Writer;

 private:
  // Calls `read` with a connection that nobody else uses, inside of one transaction.
  template <class Read>
  auto WithReader(Read read);
  // The same for writing. What `write` did is on the disk when this returns.
  template <class Write>
  auto WithWriter(Write write);

  std::string path_;
  StoreOptions options_;
  std::mutex readers_mutex_;
  std::vector<std::unique_ptr<Reader>> readers_;  // those that nobody uses just now
  std::mutex writer_mutex_;
  std::unique_ptr<Writer> writer_;
};

}  // namespace kelvora::server
