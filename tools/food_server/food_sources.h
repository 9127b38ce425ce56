// The folders that foods are read from: category databases (*.dat, also those of sets that were
// imported) and tables in the form of data/foods (*.tsv).
#pragma once

#include <string>
#include <vector>

#include "core/kept_file.h"
#include "core/text_list.h"

namespace kelvora::server {

struct SourceFile {
  std::string path;
  FileStamp stamp;
  bool operator==(const SourceFile&) const = default;
};

// The files of all folders, in order; hidden ones are passed over. Throws std::system_error for a
// folder or a file that can't be read.
[[nodiscard]] std::vector<SourceFile> FilesOf(const std::vector<std::string>& folders);

struct ReadFoods {
  TextList lines;          // as CleanFoodLine makes them
  std::size_t passed = 0;  // what became no food
  std::string state;       // tells these foods from others, also those of other machines
};

// All foods of the files. Throws std::system_error for a file that can't be read, and
// std::runtime_error for one that holds no list of foods.
[[nodiscard]] ReadFoods ReadAllFoods(const std::vector<SourceFile>& files);

}  // namespace kelvora::server
