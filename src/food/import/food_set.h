// A set of category databases that was made of one table, with a small text file that says what it
// is and a report of the rows that were passed over. The set is one thing: it comes, is replaced
// and goes as a whole, and nothing is left of one that fails or is given up.
//
//   Ciqual: fruits.dat ...    the foods, one file a group of the table
//   Ciqual.set.txt            name, source, licence, date, table, counts, names of the files
//   Ciqual.skipped.txt        the rows that became no food: line, reason, name
#pragma once

#include <map>
#include <string>
#include <vector>

#include "food/import/food_line.h"
#include "storage/disk.h"

namespace kelvora {

struct FoodSet {
  Text name;
  std::string source, licence, date, table;  // UTF-8
  std::uint64_t foods = 0, skipped = 0, unknown = 0;
  std::array<std::uint64_t, kSkipReasonCount> by_reason{};  // of one that was just made
  std::vector<std::string> files;  // names of category databases, as they are on disk
};

// The sets that a folder holds, by name. A file that can't be read is none.
[[nodiscard]] std::vector<FoodSet> FoodSetsIn(const std::string& folder);

// Deletes a set with all its files; a file of it that is gone already is none. Throws
// std::system_error for one that can't be deleted, and the set stays known.
void RemoveFoodSet(const std::string& folder, const FoodSet& set);

// True for a name that a set can have: some letters that can stand in front of a file's name.
[[nodiscard]] bool CanNameASet(std::string_view name);

class FoodSetWriter {
 public:
  // Collects the set in a hidden folder inside `folder`, which is made if it is missing. `taken`
  // are the names of category databases that the program reads besides; those of an older set of
  // this name don't count. Throws std::system_error, as do all the others.
  FoodSetWriter(std::string folder, Text name, const std::vector<std::string>& taken);
  ~FoodSetWriter();
  FoodSetWriter(const FoodSetWriter&) = delete;
  FoodSetWriter& operator=(const FoodSetWriter&) = delete;

  void Add(const TableFood& food);
  void NoteSkipped(std::uint64_t line, SkipReason reason, std::string_view name);
  // Puts the set in the place of an older one of its name. `facts` gives source, licence, date and
  // table. Returns the whole set.
  FoodSet Commit(const FoodSet& facts);

 private:
  struct Category {
    std::string file;  // its name on disk
    Text waiting;      // lines that are not in the file yet
    std::uint64_t written = 0;
  };

  [[nodiscard]] std::string Made(const std::string& name) const { return made_in_ + name; }
  Category& CategoryOf(std::string_view group);
  [[nodiscard]] Text FreeNameOf(std::string_view group) const;
  void Flush(Category& category);
  void Finish(Category& category);
  void FlushReport();

  std::string folder_, made_in_;
  std::optional<FileHandle> hold_;
  FoodSet set_;
  std::vector<Text> taken_;  // names of categories in lower case, without ".dat"
  std::map<Text, std::size_t, std::less<>> place_of_group_;
  Text last_group_;
  std::size_t last_place_ = 0;
  std::vector<Category> categories_;
  FoodNames names_;
  std::string report_;
  bool report_begun_ = false;
};

}  // namespace kelvora
