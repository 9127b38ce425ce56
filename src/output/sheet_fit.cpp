#include "output/sheet_fit.h"

#include <algorithm>

namespace kelvora {
namespace {

// The cell of Arial: from the highest letter to the lowest, as parts of the size.
constexpr double kCellHeight = 0.905 + 0.212;
constexpr double kTwipsOfPoint = 20;

bool Holds(const Sheet& sheet, const PrintedText& text) {
  if (text.text.empty()) return true;
  const double foot = text.y + text.font.points * kTwipsOfPoint * kCellHeight;
  return foot <= sheet.height && text.x < sheet.width;
}

bool Holds(const Sheet& sheet, const PrintedLine& line) {
  return std::max(line.from_y, line.to_y) <= sheet.height;
}

// Makes everything smaller towards the top left corner of what the printer reaches.
struct Placement {
  double left;
  double top;
  double scale;

  void Move(PrintedText& text) const {
    text.x = left + text.x * scale;
    text.y = top + text.y * scale;
    text.font.points *= scale;
  }
  void Move(PrintedLine& line) const {
    line.from_x = left + line.from_x * scale;
    line.from_y = top + line.from_y * scale;
    line.to_x = left + line.to_x * scale;
    line.to_y = top + line.to_y * scale;
    line.width *= scale;
  }
};

}  // namespace

bool SheetHolds(const Sheet& sheet, const PrintedPage& page) {
  return std::ranges::all_of(page, [&](const auto& operation) {
    return std::visit([&](const auto& what) { return Holds(sheet, what); }, operation);
  });
}

PrintedPage WithinMargins(PrintedPage page, const Sheet& sheet) {
  const Placement placement{sheet.left, sheet.top,
                            std::min((sheet.width - sheet.left - sheet.right) / sheet.width,
                                     (sheet.height - sheet.top - sheet.bottom) / sheet.height)};
  for (auto& operation : page) {
    std::visit([&](auto& what) { placement.Move(what); }, operation);
  }
  return page;
}

}  // namespace kelvora
