// Pieces of HTML that all makers of the help need. Everything is UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelvora::help {

// Text with its special characters written as HTML; a line break becomes <br>.
[[nodiscard]] std::string HtmlOf(std::string_view text);

// The text that a reader sees of HTML, tags and entities resolved, each tag a blank.
[[nodiscard]] std::string TextOfHtml(std::string_view html);

// "Ctrl+S" as a key, "F2, Enter" as several.
[[nodiscard]] std::string Keys(std::string_view keys);

[[nodiscard]] std::string Ui(std::string_view html);

// A table with a row of headings, each cell HTML.
[[nodiscard]] std::string TableOf(const std::vector<std::string>& headings,
                                  const std::vector<std::vector<std::string>>& rows);

// The rows of a file of tab-separated columns in UTF-8, without its first line. Throws
// std::runtime_error where a row has another number of columns or an empty one.
[[nodiscard]] std::vector<std::vector<std::string>> ReadTsv(const std::string& path,
                                                            std::size_t columns);

}  // namespace kelvora::help
