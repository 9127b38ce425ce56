// Turns tables of starter foods into category databases. Part of the build, not of the program.
//
//   make_databases <folder> <table.tsv>...
//
// food_table.h tells what a table is. "Bread.tsv" becomes "<folder>/Bread.dat".
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "core/store.h"
#include "food_table.h"
#include "storage/record_file.h"

namespace {

using namespace kelvora;

TextList ReadTable(const std::string& path) {
  TextList foods;
  ForEachRow(ReadFile(path), [&](std::string_view row, int number) {
    try {
      foods.Add(FoodLineOfRow(row));
    } catch (const std::runtime_error& failure) {
      throw std::runtime_error(path + ":" + std::to_string(number) + ": " + failure.what());
    }
  });
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
