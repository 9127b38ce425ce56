// Where the food server keeps its foods and what was submitted: one narrow interface, with an
// implementation over SQLite and one over PostgreSQL.
//
// Foods are lines of twelve fields in Windows-1252, made by CleanFoodLine: each field is closed by
// "½", and "¼", "¾" and NUL stand nowhere in them. There are two kinds: those that were read from
// folders, which are replaced as a whole, and those of accepted submissions, which stay until their
// submission is changed. Searches find both.
//
// Any thread may call any of this at any time, and any number of processes may work on one store.
// Every call may throw StoreFailure, and has changed nothing then.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "food_server/fold.h"

namespace kelvora::server {

// The store can't be reached, is busy for too long, is full or damaged. What it says is for the
// log.
class StoreFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class SubmissionState { unchecked, accepted, refused };

struct Submission {
  std::int64_t number = 0;  // given by the store, from 1 on
  SubmissionState state = SubmissionState::unchecked;
  std::int64_t time = 0;  // seconds since 1970
  std::string food;       // the line that searches find once it is accepted
  std::string sender;     // as the request names itself, in Windows-1252
  std::string address;    // where the request came from
  std::string query;      // the request as it came: what a name with "&" in it has lost is there
  bool operator==(const Submission&) const = default;
};

// How many submissions are taken; 0 is no limit.
struct SubmissionLimits {
  std::uint64_t of_address = 0;  // with a time from `since` on, whatever their state
  std::int64_t since = 0;
  std::uint64_t unchecked = 0;  // of all addresses together
};
enum class Added { yes, too_many_of_address, too_many_unchecked };

struct StoreCounts {
  std::uint64_t foods = 0;  // those that searches find, accepted ones included
  std::uint64_t unchecked = 0, accepted = 0, refused = 0;
  bool operator==(const StoreCounts&) const = default;
};

class Store {
 public:
  virtual ~Store() = default;

  // The foods that hold the term, in the order of ranking.h, `most` at the most. A term without a
  // word finds none.
  [[nodiscard]] virtual std::vector<std::string> Search(const FoldedTerm& term,
                                                        std::size_t most) = 0;

  // Puts these foods in the place of all that were read before; equal lines count once. Searches go
  // on meanwhile over the foods of before, submissions are taken, and all changes in one moment.
  // `state` says which state of the sources this is and is kept with them. `go_on` is asked now and
  // then; where it says false the old foods stay. False if it did, or if another process replaces
  // the foods of this store just now.
  virtual bool ReplaceFoods(std::span<const std::string_view> lines, std::string_view state,
                            const std::function<bool()>& go_on) = 0;
  // The state given with the foods that are there; nothing if none were ever put in.
  [[nodiscard]] virtual std::optional<std::string> StateOfFoods() = 0;

  // Keeps a new submission, durably when this returns, and counts the limits in the same step. Its
  // number is given here.
  virtual Added AddSubmission(const Submission& submission, const SubmissionLimits& limits) = 0;
  // Submissions with a greater number than `after`, in order of number, of that state if one is
  // given.
  [[nodiscard]] virtual std::vector<Submission> Submissions(std::optional<SubmissionState> state,
                                                            std::int64_t after,
                                                            std::size_t most) = 0;
  [[nodiscard]] virtual std::optional<Submission> FindSubmission(std::int64_t number) = 0;
  // Gives the submission of that number the state and the food of `changed`; the next search finds
  // an accepted one by its new food, and no other. False if it isn't in the state and with the food
  // of `before` any more, or isn't there.
  virtual bool ChangeSubmission(const Submission& before, const Submission& changed) = 0;

  [[nodiscard]] virtual StoreCounts Counts() = 0;

  // For copying one store into another. Calls `take` with every food that was read from folders, in
  // any order, all of one moment.
  virtual void ForEachFood(const std::function<void(std::string_view line)>& take) = 0;
  // Keeps submissions with the numbers and states they have; accepted ones are found by searches.
  // Throws StoreFailure if one of the numbers is taken.
  virtual void CopySubmissions(std::span<const Submission> submissions) = 0;
  // Deletes all foods and submissions.
  virtual void Clear() = 0;
};

// How a store is opened.
struct StoreOptions {
  std::size_t connections = 4;   // to be held at once
  int busy_milliseconds = 5000;  // how long one call waits for others
  int search_milliseconds = 2000;
};

// Opens, and makes if there is none, what the configuration names: "sqlite:/path/of/foods.db" or
// "postgresql://...". Throws StoreFailure, for a name of another kind too.
[[nodiscard]] std::unique_ptr<Store> OpenStore(std::string_view name, const StoreOptions& options);

}  // namespace kelvora::server
