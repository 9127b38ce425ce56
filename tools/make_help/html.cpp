#include "make_help/html.h"

#include <array>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "storage/record_file.h"

namespace kelvora::help {
namespace {

constexpr std::array<std::pair<std::string_view, char>, 4> kEntities = {
    {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}}};

std::string Row(std::string_view tag, const std::vector<std::string>& cells) {
  std::string row = "<tr>";
  for (const std::string& cell : cells)
    row.append("<").append(tag).append(">").append(cell) += '\n';
  return row + "</tr>\n";
}

}  // namespace

std::string HtmlOf(std::string_view text) {
  std::string html;
  for (const char c : text) {
    bool written = false;
    for (const auto& [entity, character] : kEntities) {
      if (c != character) continue;
      html += entity;
      written = true;
    }
    if (c == '\n') {
      html += "<br>";
    } else if (!written) {
      html += c;
    }
  }
  return html;
}

std::string TextOfHtml(std::string_view html) {
  std::string text;
  for (std::size_t i = 0; i < html.size(); ++i) {
    if (html[i] == '<') {
      i = std::min(html.find('>', i), html.size());
      text += ' ';
      continue;
    }
    bool entity = false;
    for (const auto& [name, character] : kEntities) {
      if (!html.substr(i).starts_with(name)) continue;
      text += character;
      i += name.size() - 1;
      entity = true;
      break;
    }
    if (!entity) text += html[i];
  }
  return text;
}

std::string Keys(std::string_view keys) {
  std::string html;
  while (!keys.empty()) {
    const std::size_t end = std::min(keys.find(", "), keys.size());
    if (!html.empty()) html += ", ";
    html += "<kbd>" + HtmlOf(keys.substr(0, end)) + "</kbd>";
    keys.remove_prefix(std::min(end + 2, keys.size()));
  }
  return html;
}

std::string Ui(std::string_view html) {
  return "<span class=\"ui\">" + std::string(html) + "</span>";
}

std::string TableOf(const std::vector<std::string>& headings,
                    const std::vector<std::vector<std::string>>& rows) {
  std::string table = "<div class=\"table\"><table>\n<thead>\n";
  table += Row("th scope=\"col\"", headings) + "</thead>\n<tbody>\n";
  for (const auto& row : rows) table += Row("td", row);
  return table + "</tbody>\n</table></div>\n";
}

std::vector<std::vector<std::string>> ReadTsv(const std::string& path, std::size_t columns) {
  std::istringstream lines(ReadFile(path));
  std::vector<std::vector<std::string>> rows;
  std::string line;
  std::getline(lines, line);
  while (std::getline(lines, line)) {
    std::vector<std::string> row;
    std::istringstream cells(line);
    for (std::string cell; std::getline(cells, cell, '\t');) row.push_back(cell);
    bool whole = row.size() == columns;
    for (const std::string& cell : row) whole = whole && !cell.empty();
    if (!whole) throw std::runtime_error(path + ": not " + std::to_string(columns) + ": " + line);
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace kelvora::help
