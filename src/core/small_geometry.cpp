#include "core/small_geometry.h"

#include <algorithm>

namespace kelvora {
namespace {

constexpr int kLeastWidth = TwipsOfPixels(1000);
constexpr int kLeastHeight = TwipsOfPixels(650);
constexpr int kGap = 60;
// The small day summary is never narrower, and always that high.
constexpr int kSummaryWidth = 7000;
constexpr int kSummaryHeight = 2400;
constexpr int kMostConsumptionWidth = 5600;

// The three parts of the day to the right, one above the other, and the food lists beside them; the
// small summary, if there is one, below the lists.
void Arrange(GeometryRecords& records, const MainWindowSize& main) {
  const int room = main.area_width - 3 * kGap;
  const int width = std::clamp(room - kSummaryWidth, kSmallConsumptionWidth, kMostConsumptionWidth);
  const int left = main.area_width - kGap - width;
  const int height = (main.area_height - 4 * kGap) / 3;
  int top = kGap;
  for (WindowRecord* const record : {&records.morning, &records.afternoon, &records.evening}) {
    *record = {width, height, left, top};
    top += height + kGap;
  }
  const int lists_width = std::min(room - width, std::max(kSummaryWidth, main.area_width / 2));
  records.lists = {lists_width, main.area_height - 2 * kGap, kGap, kGap};
  if (records.SummarySmall == 0) return;
  records.lists.height -= kSummaryHeight + kGap;
  records.day_summary = {lists_width, kSummaryHeight, kGap,
                         main.area_height - kGap - kSummaryHeight};
}

}  // namespace

bool IsSmall(const MainWindowSize& main) {
  const bool known = main.area_width > 0 && main.area_height > 0;
  return known && (main.width < kLeastWidth || main.height < kLeastHeight);
}

WindowRecord Fitted(WindowRecord record, const MainWindowSize& main) {
  if (!IsSmall(main)) return record;
  record.width = std::min(record.width, main.area_width);
  record.height = std::min(record.height, main.area_height);
  record.left = std::clamp(record.left, 0, main.area_width - record.width);
  record.top = std::clamp(record.top, 0, main.area_height - record.height);
  return record;
}

GeometryRecords Fitted(const GeometryRecords& laid_down, const MainWindowSize& main) {
  if (!IsSmall(main)) return laid_down;
  GeometryRecords records = laid_down;
  for (WindowRecord* const record :
       {&records.diary, &records.day_summary, &records.multi_day, &records.comparison}) {
    *record = Fitted(*record, main);
  }
  Arrange(records, main);
  return records;
}

}  // namespace kelvora
