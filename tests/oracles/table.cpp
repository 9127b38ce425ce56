#include "oracles/table.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace kelvora {
namespace {

TableRow SplitAtTabs(const std::string& line) {
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

}  // namespace

std::vector<TableRow> ReadTable(const std::string& name, std::string_view columns) {
  std::ifstream file(KELVORA_ORACLES "/" + name, std::ios::binary);
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

std::string ReadExpectedFile(const std::string& name) {
  std::ifstream file(KELVORA_ORACLES "/" + name, std::ios::binary);
  std::string bytes(std::istreambuf_iterator<char>(file), {});
  if (bytes.empty()) throw std::runtime_error(name + " can't be read");
  return bytes;
}

double NumberOf(const std::string& text) {
  char* end = nullptr;
  const double number = std::strtod(text.c_str(), &end);
  if (text.empty() || *end != '\0') throw std::runtime_error("not a number: " + text);
  return number;
}

}  // namespace kelvora
