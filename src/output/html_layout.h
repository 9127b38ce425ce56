// The small pieces that every part of a report page is made of: lines, cells and the opening tags
// of tables. Text is appended to the page as it stands; nothing is escaped.
#pragma once

#include <initializer_list>
#include <string_view>

#include "core/text.h"

namespace kelvora {

// What the pages of the two kinds differ in: pixels of every outer table.
inline constexpr std::string_view kHtmlWidth = "650";
inline constexpr std::string_view kDtaWidth = "750";

using Pieces = std::initializer_list<std::string_view>;

// One line of the page: tabs, the pieces, carriage return and line feed.
void AddLine(Text& page, std::size_t tabs, Pieces pieces);

// A table with a border of one pixel around each cell, and one without.
void OpenBorderedTable(Text& page, std::string_view width);
void OpenPlainTable(Text& page, std::string_view width);
void CloseTable(Text& page);

void OpenRow(Text& page);
void CloseRow(Text& page);

// A cell of a class, and one whose attributes are given whole.
void AddCell(Text& page, std::string_view css_class, Pieces pieces);
void AddCellWith(Text& page, std::string_view attributes, Pieces pieces);

// The name by which the links of the index reach a day: date and weight as they are stored, with
// points. Two days of one date and one weight share it.
[[nodiscard]] Text AnchorOf(std::string_view date, std::string_view weight);

}  // namespace kelvora
