// Turns tables of starter foods into category databases. Part of the build, not of the program.
//
//   make_databases <folder> <table.tsv>...
//
// A table is UTF-8, tab separated, with one header line; its twelve columns are the twelve fields
// of a food line. "Bread.tsv" becomes "<folder>/Bread.dat".
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "core/store.h"
#include "storage/record_file.h"

namespace {

using namespace kelvora;

constexpr int kColumns = FoodField::kRemark + 1;

// The food line of one row of a table. Throws std::runtime_error.
Text FoodLineOf(std::string_view row, const std::string& where) {
  Text line = TextFromUtf8(row);
  if (HoldsTerminator(line)) throw std::runtime_error(where + ": a terminator in the text");
  int columns = 1;
  for (char& c : line) {
    if (c != '\t') continue;
    c = kFieldEnd;
    ++columns;
  }
  if (columns != kColumns) throw std::runtime_error(where + ": not twelve columns");
  return line + kFieldEnd;
}

TextList ReadTable(const std::string& path) {
  const std::string bytes = ReadFile(path);
  TextList foods;
  int number = 0;
  for (std::size_t begin = 0; begin < bytes.size();) {
    const std::size_t end = std::min(bytes.find('\n', begin), bytes.size());
    const std::string_view row(bytes.data() + begin, end - begin);
    ++number;
    if (number > 1 && !row.empty()) {
      foods.Add(FoodLineOf(row, path + ":" + std::to_string(number)));
    }
    begin = end + 1;
  }
  return foods;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const std::filesystem::path folder = argc > 1 ? argv[1] : ".";
    for (int i = 2; i < argc; ++i) {
      const std::filesystem::path table = argv[i];
      const auto target = folder / table.stem().concat(".dat");
      WriteRecord(target.string(), Rec_ListLine{{PackBlock(ReadTable(table.string()))}});
    }
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "make_databases: %s\n", failure.what());
    return 1;
  }
}
