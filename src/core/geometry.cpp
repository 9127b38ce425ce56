#include "core/geometry.h"

#include <cmath>

namespace kelvora {
namespace {

// To the nearest integer, halves to even: the default rounding mode of the machine.
int Rounded(double value) {
  return static_cast<int>(std::nearbyint(value));
}

// The height that child windows share: the main window less its bars.
int SharedHeight(const MainWindowSize& main) {
  return main.height - main.quick_toolbar_height - 920;
}

}  // namespace

std::array<int, 4> StatusPanelWidths(int main_width) {
  constexpr int kProgram = 3500, kUser = 4000, kLast = 1200;
  return {kProgram, kUser, main_width - kProgram - kUser - kLast, kLast};
}

WindowRecord NormalSummaryRecord(const MainWindowSize& main) {
  return {7000, 4800, Rounded(0.25 * main.width), Rounded(0.3 * main.height)};
}

GeometryRecords DefaultGeometry(const MainWindowSize& main) {
  const int width = main.width;
  const int shared = SharedHeight(main);
  const int third = Rounded((shared - 860) / 3.0);

  GeometryRecords records;
  records.lists = {Rounded(0.4 * width), shared - 740, 60, 60};
  records.diary = {Rounded(0.4 * width), Rounded(0.4 * shared), Rounded(0.2 * width),
                   Rounded(0.2 * main.height)};
  records.day_summary = {8500, 4800, Rounded(0.25 * width), Rounded(0.3 * main.height)};
  records.multi_day = {9200, 6500, Rounded(0.3 * width), Rounded(0.15 * main.height)};
  records.morning = {5600, third, width - 5900, 60};
  records.afternoon = {5600, third, width - 5900, third + 120};
  records.evening = {5600, third, width - 5900, 2 * third + 180};
  records.comparison = {5625, 5820, Rounded((width - 5625) / 1.2), Rounded((shared - 5550) / 2.0)};
  return records;
}

GeometryRecords GeometryWithSummary(const MainWindowSize& main) {
  GeometryRecords records = DefaultGeometry(main);
  records.lists.width = Rounded(0.5 * main.width);
  records.lists.height = SharedHeight(main) - 3220;
  records.day_summary.width = Rounded(0.5 * main.width);
  records.day_summary.left = 60;
  records.day_summary.top = records.lists.height + 120;
  records.SummarySmall = 1;
  return records;
}

}  // namespace kelvora
