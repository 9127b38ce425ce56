#include "output/html_layout.h"

#include "nutrition/numbers.h"

namespace kelvora {
namespace {

void Append(Text& page, Pieces pieces) {
  for (const std::string_view piece : pieces) page.append(piece);
}

}  // namespace

void AddLine(Text& page, std::size_t tabs, Pieces pieces) {
  page.append(tabs, '\t');
  Append(page, pieces);
  page.append("\r\n");
}

void OpenBorderedTable(Text& page, std::string_view width) {
  AddLine(page, 0,
          {"<table width=\"", width, R"(" cellspacing="1" cellpadding="0" bgcolor="#B4B4B4">)"});
}

void OpenPlainTable(Text& page, std::string_view width) {
  AddLine(page, 0, {"<table width=\"", width, R"(" cellspacing="0" cellpadding="0">)"});
}

void CloseTable(Text& page) {
  AddLine(page, 0, {"</table>"});
}

void OpenRow(Text& page) {
  AddLine(page, 1, {"<tr>"});
}

void CloseRow(Text& page) {
  AddLine(page, 1, {"</tr>"});
}

void AddCell(Text& page, std::string_view css_class, Pieces pieces) {
  page.append("\t\t<td class=\"").append(css_class).append("\">");
  Append(page, pieces);
  page.append("</td>\r\n");
}

void AddCellWith(Text& page, std::string_view attributes, Pieces pieces) {
  page.append("\t\t<td ").append(attributes).append(">");
  Append(page, pieces);
  page.append("</td>\r\n");
}

Text AnchorOf(std::string_view date, std::string_view weight) {
  return CommaToPoint(date) + CommaToPoint(weight);
}

}  // namespace kelvora
