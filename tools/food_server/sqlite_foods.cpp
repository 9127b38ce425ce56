// Replacing all foods of the embedded store: see sqlite_schema.h for how it goes.
#include <algorithm>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

#include "core/store.h"
#include "food_server/ranking.h"
#include "food_server/sqlite_connections.h"

namespace kelvora::server {
namespace {

constexpr std::size_t kFoodsAtOnce = 4000;
// Between two pieces of work others that write get their turn.
constexpr std::chrono::milliseconds kPause(5);

// Held by the one process, and the one thread, that fills a slot of the store.
class FillingLock {
 public:
  explicit FillingLock(const std::string& path)
      : file_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    if (file_ < 0) throw StoreFailure("the file " + path + " can't be made");
    held_ = flock(file_, LOCK_EX | LOCK_NB) == 0;
  }
  ~FillingLock() { close(file_); }
  FillingLock(const FillingLock&) = delete;
  FillingLock& operator=(const FillingLock&) = delete;
  [[nodiscard]] bool IsHeld() const { return held_; }

 private:
  int file_;
  bool held_ = false;
};

// The lines in the order of their places, each once.
std::vector<std::string_view> InOrder(std::span<const std::string_view> lines) {
  struct Entry {
    std::size_t name, size;  // where the folded name lies
    std::string_view line;
  };
  std::string names;
  std::vector<Entry> entries;
  entries.reserve(lines.size());
  for (const std::string_view line : lines) {
    const std::string name = FoldText(line.substr(0, line.find(kFieldEnd)));
    entries.push_back({names.size(), name.size(), line});
    names += name;
  }
  const std::string_view all_names = names;
  std::ranges::sort(entries, [all_names](const Entry& a, const Entry& b) {
    return StandsBefore(all_names.substr(a.name, a.size), a.line, all_names.substr(b.name, b.size),
                        b.line);
  });
  std::vector<std::string_view> ordered;
  ordered.reserve(entries.size());
  for (const Entry& entry : entries) {
    if (ordered.empty() || ordered.back() != entry.line) ordered.push_back(entry.line);
  }
  return ordered;
}

// Fills the slot that nobody searches.
class Filling {
 public:
  Filling(const std::string& path, const StoreOptions& options)
      : writer_(path, options), target_(writer_.SlotLetter() == 'a' ? 'b' : 'a') {
    // Nothing of this counts before the last step, which is on the disk with all before it.
    writer_.connection.Run("PRAGMA synchronous = NORMAL; PRAGMA cache_size = -65536;");
  }

  bool Run(std::span<const std::string_view> lines, std::string_view state,
           const std::function<bool()>& go_on) {
    InTransaction([this] { Target().Clear(); });
    for (std::size_t first = 0; first < lines.size(); first += kFoodsAtOnce) {
      if (!go_on()) return false;
      const auto some = lines.subspan(first, std::min(kFoodsAtOnce, lines.size() - first));
      InTransaction([&] { Add(some, first); });
    }
    for (bool more = true; more;) {
      if (!go_on()) return false;
      InTransaction([&] { more = Target().Merge(); });
    }
    writer_.connection.Run("PRAGMA synchronous = FULL");
    InTransaction([&] { Change(lines.size(), state); });
    return true;
  }

 private:
  [[nodiscard]] SlotWriter& Target() { return writer_.SlotOf(target_); }

  template <class Work>
  void InTransaction(Work work) {
    {
      Transaction transaction(writer_.connection, Transaction::Kind::writing);
      work();
      transaction.Commit();
    }
    std::this_thread::sleep_for(kPause);
  }

  void Add(std::span<const std::string_view> lines, std::size_t first) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const auto place = static_cast<std::int64_t>(first + i + 1) * kPlaceDistance;
      Target().Add(place, lines[i], FoldFood(lines[i]));
    }
  }

  // Brings the accepted submissions in and lets searches look here.
  void Change(std::size_t foods, std::string_view sources) {
    const std::string slot(1, target_);
    Statement(writer_.connection, "UPDATE state SET slot = ?1, foods = ?2, sources = ?3")
        .Run(slot, static_cast<std::int64_t>(foods), Blob{sources});
    std::vector<Submission> accepted;
    {
      Statement all(writer_.connection, std::string(kSubmissionColumns) + "WHERE state = ?1");
      auto rows = all.Query(static_cast<std::int64_t>(SubmissionState::accepted));
      while (rows.Next()) accepted.push_back(ReadSubmission(rows));
    }
    for (const Submission& one : accepted) {
      const std::int64_t place = writer_.AddFood(one.food);
      writer_.change.Run(one.number, static_cast<std::int64_t>(one.state), Blob{one.food}, place);
    }
  }

  SqliteStore::Writer writer_;
  char target_;
};

}  // namespace

bool SqliteStore::ReplaceFoods(std::span<const std::string_view> lines, std::string_view state,
                               const std::function<bool()>& go_on) {
  const FillingLock lock(path_ + "-filling");
  if (!lock.IsHeld()) return false;
  return Filling(path_, options_).Run(InOrder(lines), state, go_on);
}

void SqliteStore::Clear() {
  const FillingLock lock(path_ + "-filling");
  if (!lock.IsHeld()) throw StoreFailure("another process replaces the foods of this store");
  (void)WithWriter([](Writer& writer) {
    writer.a.Clear();
    writer.b.Clear();
    writer.connection.Run(
        "DELETE FROM submission; UPDATE state SET slot = 'a', foods = 0, sources = NULL;");
    return true;
  });
}

}  // namespace kelvora::server
