#include "food_server/food_sources.h"

#include <algorithm>
#include <stdexcept>

#include "core/hash.h"
#include "core/web_address.h"
#include "food_server/food_line.h"
#include "food_table.h"
#include "storage/food_files.h"
#include "storage/record_file.h"

namespace kelvora::server {
namespace {

// Changes with what is made of the same files, so that a store is filled anew then.
constexpr std::string_view kForm = "1";

bool EndsIn(std::string_view name, std::string_view ending) {
  return name.size() >= ending.size() &&
         BeginsWithoutCase(name.substr(name.size() - ending.size()), ending);
}

bool IsSource(std::string_view name) {
  return !name.starts_with('.') && (EndsIn(name, ".dat") || EndsIn(name, ".tsv"));
}

// The desktop program takes what is left of a category database that was cut short; a server had
// better go on with the whole one that it has read before.
bool IsWhole(std::string_view bytes) {
  const auto number = [&bytes](std::size_t at, std::size_t size) {
    std::uint64_t value = 0;
    for (std::size_t i = size; i-- > 0;)
      value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
    return value;
  };
  constexpr std::size_t kShort = 6, kLong = 10;
  constexpr std::uint64_t kLongFollows = 0xFFFF;
  if (bytes.size() < kShort || number(0, 4) != 1) return false;
  if (number(4, 2) != kLongFollows) return bytes.size() - kShort >= number(4, 2);
  return bytes.size() >= kLong && bytes.size() - kLong >= number(kShort, 4);
}

class Collector {
 public:
  void AddDatabase(const std::string& path, std::string_view bytes) {
    if (!IsWhole(bytes)) throw std::runtime_error(path + " is cut short, or no category database");
    TextList lines;
    AppendFoodLines(bytes, {}, lines);
    for (const std::string_view line : lines) Add(line);
  }
  void AddTable(std::string_view bytes) {
    ForEachRow(bytes, [this](std::string_view row, int) {
      try {
        Add(FoodLineOfRow(row.substr(0, row.find('\r'))));
      } catch (const std::runtime_error&) {
        ++foods_.passed;
      }
    });
  }
  [[nodiscard]] ReadFoods Foods() && {
    foods_.state = std::string(kForm) + ":" + std::to_string(foods_.lines.Count()) + ":" +
                   HashInDigits(hashes_);
    return std::move(foods_);
  }

 private:
  void Add(std::string_view line) {
    const auto clean = CleanFoodLine(line);
    if (!clean) {
      ++foods_.passed;
      return;
    }
    foods_.lines.Add(*clean);
    hashes_ += HashInDigits(*clean);
  }

  ReadFoods foods_;
  std::string hashes_;
};

}  // namespace

std::vector<SourceFile> FilesOf(const std::vector<std::string>& folders) {
  std::vector<SourceFile> files;
  for (std::string folder : folders) {
    if (!folder.ends_with('/')) folder += '/';
    FolderNames found = NamesIn(folder);
    if (found.failure) throw std::system_error(found.failure, folder);
    std::ranges::sort(found.names);
    for (const std::string& name : found.names) {
      if (!IsSource(name)) continue;
      const auto stamp = StampOf(folder + name);
      if (stamp) files.push_back({folder + name, *stamp});
    }
  }
  return files;
}

ReadFoods ReadAllFoods(const std::vector<SourceFile>& files) {
  Collector collector;
  for (const SourceFile& file : files) {
    try {
      const std::string bytes = ReadFile(file.path);
      if (EndsIn(file.path, ".tsv")) {
        collector.AddTable(bytes);
      } else {
        collector.AddDatabase(file.path, bytes);
      }
    } catch (const std::system_error& failure) {
      throw std::system_error(failure.code(), file.path);
    }
  }
  return std::move(collector).Foods();
}

}  // namespace kelvora::server
