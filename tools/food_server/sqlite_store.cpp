#include "food_server/sqlite_store.h"

#include <unordered_set>

#include "food_server/ranking.h"
#include "food_server/sqlite_connections.h"

namespace kelvora::server {
namespace {

// Foods of an index that are looked at before a search ends with what it has.
constexpr std::int64_t kMostCandidates = 4000;

// Of one word; what stands behind them is looked for in the foods that are found.
constexpr std::size_t kMostGrams = 16;

// Each word of the term as the beginning of a word. Folded words are letters, digits and "%" only,
// so that nothing of a term can be taken for a sign of the query's language.
std::string BeginningsQuery(const FoldedTerm& term) {
  std::string query;
  for (const std::string& word : term.words) {
    if (!query.empty()) query += " AND ";
    query.append("\"").append(word).append("\"*");
  }
  return query;
}

// Every three letters of each word that follow each other: a food that holds them all holds the
// word nearly always, and the rarest of them makes the search short.
std::string GramsQuery(const FoldedTerm& term) {
  std::string query;
  for (const std::string_view word : term.words) {
    for (std::size_t at = 0; at + kShortestAnywhere <= word.size() && at < kMostGrams; ++at) {
      if (!query.empty()) query += " AND ";
      query.append("\"").append(word.substr(at, kShortestAnywhere)).append("\"");
    }
  }
  return query;
}

// Foods in order, each once.
class FoundFoods {
 public:
  explicit FoundFoods(std::size_t most) : most_(most) {}

  [[nodiscard]] bool IsFull() const { return lines_.size() >= most_; }
  void Add(const Statement::Rows& rows) {
    if (places_.insert(rows.Number(0)).second) lines_.emplace_back(rows.Bytes(1));
  }
  [[nodiscard]] std::vector<std::string> Lines() && { return std::move(lines_); }

 private:
  std::size_t most_;
  std::unordered_set<std::int64_t> places_;
  std::vector<std::string> lines_;
};

}  // namespace

SqliteStore::SqliteStore(std::string path, const StoreOptions& options)
    : path_(std::move(path)), options_(options) {
  Connection connection(path_, Access::read_write, options_.busy_milliseconds);
  PrepareSchema(connection);
  // One connection that writes stays open: those that only read need it.
  writer_ = std::make_unique<Writer>(path_, options_);
}

SqliteStore::~SqliteStore() = default;

std::vector<std::string> SqliteStore::Search(const FoldedTerm& term, std::size_t most) {
  if (term.words.empty() || most == 0) return {};
  const std::string beginnings = BeginningsQuery(term);
  const std::string grams = GramsQuery(term);
  const auto limit = static_cast<std::int64_t>(most);
  return WithReader([&](Reader& reader) {
    reader.connection.LimitTime(std::chrono::milliseconds(options_.search_milliseconds));
    Reader::Slot& slot = reader.CurrentSlot();
    FoundFoods found(most);
    const auto take_all = [&found](Statement::Rows rows) {
      while (!found.IsFull() && rows.Next()) found.Add(rows);
    };
    take_all(slot.whole_names.Query(term.text, limit));
    if (!found.IsFull()) take_all(slot.words.Query(beginnings, limit));
    if (!found.IsFull() && !grams.empty()) {
      auto rows = slot.grams.Query(grams, kMostCandidates);
      while (!found.IsFull() && rows.Next()) {
        if (StandsAnywhere(term, rows.Bytes(2))) found.Add(rows);
      }
    }
    reader.connection.LimitTime(std::chrono::milliseconds(0));
    return std::move(found).Lines();
  });
}

std::optional<std::string> SqliteStore::StateOfFoods() {
  return WithReader([](Reader& reader) {
    auto rows = reader.state.Query();
    if (!rows.Next() || rows.IsNull(2)) return std::optional<std::string>();
    return std::optional(std::string(rows.Bytes(2)));
  });
}

StoreCounts SqliteStore::Counts() {
  return WithReader([](Reader& reader) {
    const auto count = [&reader](SubmissionState state) {
      auto rows = reader.count_state.Query(static_cast<std::int64_t>(state));
      return rows.Next() ? static_cast<std::uint64_t>(rows.Number(0)) : 0;
    };
    StoreCounts counts;
    counts.unchecked = count(SubmissionState::unchecked);
    counts.accepted = count(SubmissionState::accepted);
    counts.refused = count(SubmissionState::refused);
    auto rows = reader.state.Query();
    if (rows.Next()) counts.foods = static_cast<std::uint64_t>(rows.Number(1)) + counts.accepted;
    return counts;
  });
}

void SqliteStore::ForEachFood(const std::function<void(std::string_view line)>& take) {
  (void)WithReader([&take](Reader& reader) {
    auto rows = reader.CurrentSlot().read_foods.Query();
    while (rows.Next()) take(rows.Bytes(0));
    return true;
  });
}

}  // namespace kelvora::server
