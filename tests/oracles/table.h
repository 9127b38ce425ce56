// Tables of expected results, made by the scripts beside this file with other tools than the
// program. Text with tabs between the fields; the first line names the columns.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelvora {

using TableRow = std::vector<std::string>;

// The rows of tests/oracles/`name`. Throws if the table is missing or empty, if its first line is
// not `columns` (separated by blanks), or if a row has another number of fields.
[[nodiscard]] std::vector<TableRow> ReadTable(const std::string& name, std::string_view columns);

// The bytes of tests/oracles/`name`. Throws if it can't be read or is empty.
[[nodiscard]] std::string ReadExpectedFile(const std::string& name);

// A table's number, decimal or hexadecimal, with nothing behind it.
[[nodiscard]] double NumberOf(const std::string& text);

}  // namespace kelvora
