#include "food_server/migrate.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <vector>

namespace kelvora::server {
namespace {

constexpr std::size_t kPage = 1000;
// FNV-1a with 64 bits. A byte between two texts keeps "ab", "c" apart from "a", "bc".
class Checksum {
 public:
  void Add(std::string_view bytes) {
    for (const char byte : bytes) AddByte(static_cast<unsigned char>(byte));
    AddByte(0x100);
  }
  void Add(std::int64_t number) { Add(std::to_string(number)); }
  [[nodiscard]] std::uint64_t Value() const { return value_; }

 private:
  void AddByte(unsigned byte) { value_ = (value_ ^ byte) * 0x100000001B3; }
  std::uint64_t value_ = 0xCBF29CE484222325;
};

struct Everything {
  std::optional<std::string> state;
  std::vector<std::string> foods;  // sorted
  std::vector<Submission> submissions;
};

Everything ReadAll(Store& store) {
  Everything all;
  all.state = store.StateOfFoods();
  store.ForEachFood([&](std::string_view line) { all.foods.emplace_back(line); });
  std::ranges::sort(all.foods);
  while (true) {
    const std::int64_t after = all.submissions.empty() ? 0 : all.submissions.back().number;
    const std::vector<Submission> page = store.Submissions(std::nullopt, after, kPage);
    if (page.empty()) return all;
    all.submissions.insert(all.submissions.end(), page.begin(), page.end());
  }
}

StoreContents ContentsOf(const Everything& all) {
  Checksum checksum;
  for (const std::string& line : all.foods) checksum.Add(line);
  for (const Submission& submission : all.submissions) {
    checksum.Add(submission.number);
    checksum.Add(static_cast<std::int64_t>(submission.state));
    checksum.Add(submission.time);
    for (const std::string* text :
         {&submission.food, &submission.sender, &submission.address, &submission.query}) {
      checksum.Add(*text);
    }
  }
  return {all.foods.size(), all.submissions.size(), checksum.Value()};
}

bool HoldsAnything(const StoreCounts& counts) {
  return counts != StoreCounts();
}

// A store that is only looked at isn't made by that.
void CheckIsThere(const std::string& name) {
  constexpr std::string_view kFile = "sqlite:";
  if (name.starts_with(kFile) && !std::filesystem::exists(name.substr(kFile.size()))) {
    throw StoreFailure("there is no store " + name);
  }
}

}  // namespace

StoreContents ContentsOf(Store& store) {
  return ContentsOf(ReadAll(store));
}

StoreContents Migrate(Store& from, Store& to, bool replaces) {
  const Everything all = ReadAll(from);
  if (all.foods.empty() && all.submissions.empty()) throw StoreFailure("there is nothing to copy");
  if (HoldsAnything(to.Counts())) {
    if (!replaces) throw StoreFailure("the target isn't empty; --replace would empty it first");
    to.Clear();
  }
  for (std::size_t begin = 0; begin < all.submissions.size(); begin += kPage) {
    to.CopySubmissions(
        std::span(all.submissions).subspan(begin, std::min(kPage, all.submissions.size() - begin)));
  }
  const std::vector<std::string_view> lines(all.foods.begin(), all.foods.end());
  if (all.state && !to.ReplaceFoods(lines, *all.state, [] { return true; })) {
    throw StoreFailure("a server reads foods into the target just now; end it first");
  }
  const StoreContents wanted = ContentsOf(all);
  if (ContentsOf(to) != wanted) throw StoreFailure("the target holds something else now");
  return wanted;
}

CommandResult RunMigrate(std::span<const std::string> arguments) {
  std::vector<std::string> names;
  bool replaces = false;
  bool is_wrong = false;
  for (const std::string& argument : arguments) {
    if (argument == "--replace") {
      replaces = true;
    } else {
      is_wrong = is_wrong || argument.starts_with("-");
      names.push_back(argument);
    }
  }
  if (is_wrong || names.size() != 2) {
    return {.status = 2, .errors = "migrate takes the names of two stores; see --help\n"};
  }
  try {
    CheckIsThere(names[0]);
    const auto from = OpenStore(names[0], StoreOptions());
    const auto to = OpenStore(names[1], StoreOptions());
    const StoreContents done = Migrate(*from, *to, replaces);
    char checksum[17];
    std::snprintf(checksum, sizeof checksum, "%016" PRIx64, done.checksum);
    return {.out = std::to_string(done.foods) + " foods and " + std::to_string(done.submissions) +
                   " submissions copied; the checksum of both stores is " + checksum + "\n"};
  } catch (const StoreFailure& failure) {
    return {.status = 1, .errors = std::string(failure.what()) + "\n"};
  }
}

std::string_view MigrateHelp() {
  return "  migrate [--replace] FROM TO    copies one store into another, named as in the\n"
         "                                 configuration; --replace empties TO first\n";
}

}  // namespace kelvora::server
