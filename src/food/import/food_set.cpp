#include "food/import/food_set.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "core/common.h"
#include "core/failure.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kSetEnding = ".set.txt";
constexpr std::string_view kReportEnding = ".skipped.txt";
constexpr std::string_view kCategoryEnding = ".dat";
constexpr std::string_view kTitle = "# Foods imported into Kelvora FOOD\n";
constexpr std::string_view kOtherGroup = "other";

constexpr std::size_t kWaiting = 64 << 10;  // bytes of a category before they go to its file
constexpr std::size_t kMostCategories = 500;
constexpr std::size_t kLongestSetName = 40;
constexpr std::size_t kLongestCategory = 120;
constexpr std::size_t kLongestFileName = 240;  // in UTF-8

std::string FileNameOf(std::string_view category) {
  return Utf8FromText(category).append(kCategoryEnding);
}

// What may stand in a set's file as the name of one of its own: nothing that leads elsewhere.
bool IsCategoryFileName(std::string_view name) {
  return name.ends_with(kCategoryEnding) && !name.starts_with('.') && IsFolderName(name);
}

std::string SetFile(const std::string& folder, std::string_view name, std::string_view ending) {
  return folder + Utf8FromText(name).append(ending);
}

void AppendFact(std::string& out, std::string_view key, std::string_view value) {
  ((out += key) += ": ") += value;
  out += '\n';
}

std::string DescriptionOf(const FoodSet& set) {
  std::string text(kTitle);
  AppendFact(text, "name", Utf8FromText(set.name));
  AppendFact(text, "source", set.source);
  AppendFact(text, "licence", set.licence);
  AppendFact(text, "imported", set.date);
  AppendFact(text, "table", set.table);
  AppendFact(text, "foods", std::to_string(set.foods));
  AppendFact(text, "rows passed over", std::to_string(set.skipped));
  AppendFact(text, "amounts unknown", std::to_string(set.unknown));
  for (const std::string& file : set.files) AppendFact(text, "file", file);
  return text;
}

std::uint64_t CountFrom(std::string_view text) {
  std::uint64_t value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

FoodSet SetFrom(std::string_view text) {
  FoodSet set;
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    const std::size_t colon = line.find(": ");
    if (colon == line.npos || line.starts_with('#')) continue;
    const std::string_view key = line.substr(0, colon);
    const std::string_view value = line.substr(colon + 2);
    if (key == "name") set.name = TextFromUtf8(value);
    if (key == "source") set.source = value;
    if (key == "licence") set.licence = value;
    if (key == "imported") set.date = value;
    if (key == "table") set.table = value;
    if (key == "foods") set.foods = CountFrom(value);
    if (key == "rows passed over") set.skipped = CountFrom(value);
    if (key == "amounts unknown") set.unknown = CountFrom(value);
    if (key == "file" && IsCategoryFileName(value)) set.files.emplace_back(value);
  }
  return set;
}

bool EndsOther(std::string_view a, std::string_view b) {
  return a.ends_with(b) || b.ends_with(a);
}

// The folder of a set that is being made bears this in front.
constexpr std::string_view kMaking = ".import-";
// In it lie the files that the set replaces, once it begins to.
constexpr std::string_view kOld = "old/";

bool HoldsSetFile(const FolderNames& folder) {
  return std::ranges::any_of(folder.names,
                             [](const std::string& name) { return name.ends_with(kSetEnding); });
}

void MoveFiles(const std::string& from, const std::string& to) {
  for (const std::string& name : NamesIn(from).names) {
    std::error_code ignored;
    if (!fs::is_directory(from + name, ignored)) fs::rename(from + name, to + name, ignored);
  }
}

// What processes that ended in the middle left behind: the change of a set that had begun is
// brought to its end if the set's own file was there already, or else undone.
void SettleLeftOvers(const std::string& folder) {
  for (const std::string& name : NamesIn(folder).names) {
    if (!name.starts_with(kMaking)) continue;
    const std::string left = folder + name + "/";
    const auto hold = TryHoldFolder(left);
    if (!hold) continue;
    std::error_code ignored;
    const std::string old = left + std::string(kOld);
    if (fs::exists(old, ignored)) {
      HoldsSetFile(NamesIn(left)) ? MoveFiles(old, folder) : MoveFiles(left, folder);
    }
    fs::remove_all(left, ignored);
  }
}

// Moves files between two folders and, unless they are to stay, back again.
class Moves {
 public:
  ~Moves() {
    std::error_code ignored;
    for (auto move = done_.rbegin(); move != done_.rend(); ++move) {
      fs::rename(move->second, move->first, ignored);
    }
  }
  void Move(const std::string& from, const std::string& to) {
    fs::rename(from, to);
    done_.emplace_back(from, to);
  }
  void Keep() { done_.clear(); }

 private:
  std::vector<std::pair<std::string, std::string>> done_;
};

}  // namespace

bool CanNameASet(std::string_view name) {
  return !name.empty() && name.size() <= kLongestSetName && Trimmed(name) == name &&
         !name.starts_with('.') && std::ranges::none_of(name, [](char c) {
           return static_cast<unsigned char>(c) < ' ' || c == '/' || c == kFieldEnd ||
                  c == kLineEnd;
         });
}

std::vector<FoodSet> FoodSetsIn(const std::string& folder) {
  std::vector<FoodSet> sets;
  if (folder.empty()) return sets;
  FolderNames found = NamesIn(folder);
  std::ranges::sort(found.names);
  for (const std::string& name : found.names) {
    if (!name.ends_with(kSetEnding) || name.starts_with('.')) continue;
    try {
      FoodSet set = SetFrom(ReadFile(folder + name));
      // A file by another name than its set's would be left behind when that goes.
      if (SetFile(folder, set.name, kSetEnding) == folder + name) sets.push_back(std::move(set));
    } catch (const std::system_error&) {
      continue;
    }
  }
  return sets;
}

void RemoveFoodSet(const std::string& folder, const FoodSet& set) {
  for (const std::string& file : set.files) DeleteFileIfThere(folder + file);
  DeleteFileIfThere(SetFile(folder, set.name, kReportEnding));
  DeleteFileIfThere(SetFile(folder, set.name, kSetEnding));
}

FoodSetWriter::FoodSetWriter(std::string folder, Text name, const std::vector<std::string>& taken)
    : folder_(std::move(folder)) {
  if (folder_.empty() || !CanNameASet(name)) ThrowSystemError(std::errc::invalid_argument);
  set_.name = std::move(name);
  std::vector<std::string> own;
  for (FoodSet& set : FoodSetsIn(folder_)) {
    if (set.name == set_.name) own = std::move(set.files);
  }
  for (const std::string& file : taken) {
    if (std::ranges::find(own, file) != own.end()) continue;
    const Text category = LowerCase(TextFromUtf8(file));
    taken_.push_back(category.substr(0, category.rfind('.')));
  }
  fs::create_directories(folder_);
  SettleLeftOvers(folder_);
  for (int number = 1; made_in_.empty(); ++number) {
    const std::string path = folder_ + std::string(kMaking) + std::to_string(number) + "/";
    if (fs::create_directory(path)) made_in_ = path;
  }
  if (auto hold = TryHoldFolder(made_in_)) hold_.emplace(std::move(*hold));
}

FoodSetWriter::~FoodSetWriter() {
  std::error_code ignored;
  if (!made_in_.empty()) fs::remove_all(made_in_, ignored);
}

Text FoodSetWriter::FreeNameOf(std::string_view group) const {
  Text name = set_.name + ": " + ReplaceAll(group, "/", "-");
  if (name.size() > kLongestCategory) name.resize(kLongestCategory);
  while (FileNameOf(name).size() > kLongestFileName) name.pop_back();
  while (name.ends_with(' ')) name.pop_back();
  const auto is_free = [this](std::string_view candidate) {
    const Text lower = LowerCase(candidate);
    return std::ranges::none_of(taken_, [&](const Text& other) { return EndsOther(lower, other); });
  };
  Text candidate = name;
  for (int number = 2; !is_free(candidate); ++number) {
    candidate = name + " (" + std::to_string(number) + ")";
  }
  return candidate;
}

FoodSetWriter::Category& FoodSetWriter::CategoryOf(std::string_view group) {
  if (!categories_.empty() && group == last_group_) return categories_[last_place_];
  Text key = LowerCase(group.empty() ? kOtherGroup : group);
  auto place = place_of_group_.find(key);
  if (place == place_of_group_.end() && categories_.size() >= kMostCategories) {
    key = kOtherGroup;
    place = place_of_group_.find(key);
  }
  if (place == place_of_group_.end()) {
    const Text name = FreeNameOf(group.empty() || key == kOtherGroup ? kOtherGroup : group);
    taken_.push_back(LowerCase(name));
    place = place_of_group_.emplace(key, categories_.size()).first;
    categories_.push_back({FileNameOf(name), {}, 0});
    set_.files.push_back(categories_.back().file);
  }
  last_group_ = group;
  last_place_ = place->second;
  return categories_[last_place_];
}

void FoodSetWriter::Add(const TableFood& food) {
  Category& category = CategoryOf(food.group);
  AppendFoodLine(category.waiting, names_.Give(food.name), food);
  ++set_.foods;
  set_.unknown += static_cast<std::uint64_t>(food.unknown);
  if (category.waiting.size() >= kWaiting) Flush(category);
}

void FoodSetWriter::Flush(Category& category) {
  const std::string path = Made(category.file);
  if (category.written == 0) AppendToFile(path, FrontOfLongString(0));
  AppendToFile(path, category.waiting);
  category.written += category.waiting.size();
  category.waiting.clear();
}

// A short list has a short front, a long one gets its length into the one that it has.
void FoodSetWriter::Finish(Category& category) {
  const std::string path = Made(category.file);
  if (category.written == 0) {
    AppendToFile(path, EncodeRecord(std::span<const Text>(&category.waiting, 1)));
    FinishFile(path, {});
  } else {
    Flush(category);
    FinishFile(path, FrontOfLongString(category.written));
  }
  category.waiting = {};
}

void FoodSetWriter::NoteSkipped(std::uint64_t line, SkipReason reason, std::string_view name) {
  ++set_.skipped;
  ++set_.by_reason[static_cast<std::size_t>(reason)];
  report_ += std::to_string(line);
  ((report_ += '\t') += NameOf(reason)) += '\t';
  (report_ += Utf8FromText(name)) += '\n';
  if (report_.size() >= kWaiting) FlushReport();
}

void FoodSetWriter::FlushReport() {
  const std::string path = SetFile(made_in_, set_.name, kReportEnding);
  if (!report_begun_) AppendToFile(path, "line\treason\tname\n");
  report_begun_ = true;
  AppendToFile(path, report_);
  report_.clear();
}

FoodSet FoodSetWriter::Commit(const FoodSet& facts) {
  set_.source = facts.source;
  set_.licence = facts.licence;
  set_.date = facts.date;
  set_.table = facts.table;
  for (Category& category : categories_) Finish(category);
  if (set_.skipped > 0) FlushReport();
  const std::string report = Utf8FromText(set_.name).append(kReportEnding);
  const std::string description = Utf8FromText(set_.name).append(kSetEnding);
  if (set_.skipped > 0) FinishFile(Made(report), {});
  AppendToFile(Made(description), DescriptionOf(set_));
  FinishFile(Made(description), {});

  const std::string old_in = made_in_ + std::string(kOld);
  fs::create_directory(old_in);
  Moves moves;
  std::vector<std::string> old = {report};
  for (const FoodSet& set : FoodSetsIn(folder_)) {
    if (set.name == set_.name) old.insert(old.end(), set.files.begin(), set.files.end());
  }
  std::ranges::copy(set_.files, std::back_inserter(old));
  old.push_back(description);
  for (const std::string& file : old) {
    if (PathIsTaken(folder_ + file)) moves.Move(folder_ + file, old_in + file);
  }
  // The list of the files comes first: with it a set can be removed, whatever else is missing.
  moves.Move(Made(description), folder_ + description);
  for (const std::string& file : set_.files) moves.Move(Made(file), folder_ + file);
  if (set_.skipped > 0) moves.Move(Made(report), folder_ + report);
  SyncFolderOf(folder_ + description);
  moves.Keep();
  return set_;
}

}  // namespace kelvora
