// Tables of expected results, made by the scripts beside this file with other tools than the
// program. Text with tabs between the fields; the first line names the columns.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kelvora {

using TableRow = std::vector<std::string>;

inline TableRow SplitAtTabs(const std::string& line) {
  TableRow fields(1);
  for (const char c : line) {
    if (c == '\t') {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
}

// The rows of tests/oracles/`name`. Throws if the table is missing or empty, if its first line is
// not `columns` (separated by blanks), or if a row has another number of fields.
inline std::vector<TableRow> ReadTable(const std::string& name, std::string_view columns) {
  std::ifstream file(std::filesystem::path(KELVORA_TEST_DATA) / "oracles" / name, std::ios::binary);
  std::string line;
  if (!std::getline(file, line)) throw std::runtime_error(name + " can't be read");
  const TableRow header = SplitAtTabs(line);
  std::string found;
  for (const std::string& column : header) found += (found.empty() ? "" : " ") + column;
  if (found != columns) throw std::runtime_error(name + " has the columns " + found);

  std::vector<TableRow> rows;
  while (std::getline(file, line)) {
    rows.push_back(SplitAtTabs(line));
    if (rows.back().size() != header.size()) throw std::runtime_error(name + ": " + line);
  }
  if (rows.empty()) throw std::runtime_error(name + " is empty");
  return rows;
}

// A table's number, decimal or hexadecimal, with nothing behind it.
inline double NumberOf(const std::string& text) {
  char* end = nullptr;
  const double number = std::strtod(text.c_str(), &end);
  if (text.empty() || *end != '\0') throw std::runtime_error("not a number: " + text);
  return number;
}

}  // namespace kelvora
