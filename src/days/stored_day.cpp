#include "days/stored_day.h"

#include <array>

#include "core/records.h"
#include "core/store.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

// What is shorter than its count holds no record, and nothing of another file takes its place.
bool HoldsRecord(std::string_view bytes) {
  constexpr std::size_t kCountSize = 4;
  return bytes.size() >= kCountSize;
}

StoredDay ReadDay(const FolderFile& file) {
  const std::string bytes = ReadFile(file.path);
  StoredDay day;
  day.file = file;
  std::array<std::string_view, Rec_DayFile::kSize> strings;
  day.has_record = HoldsRecord(bytes) && DecodeFirstRecord(bytes, strings);
  if (!day.has_record) return day;
  const auto field = [&strings](DayFileField id) { return strings[static_cast<std::size_t>(id)]; };
  TextList header;
  SplitBlock(field(DayFileField::Header), header);
  day.date = header[HeaderRow::kDate];
  day.weekday = header[HeaderRow::kWeekday];
  day.height = header[HeaderRow::kHeight];
  day.weight = header[HeaderRow::kWeight];
  day.trend = field(DayFileField::Trend);
  return day;
}

}  // namespace

std::vector<StoredDay> ReadStoredDays(const std::vector<FolderFile>& files, Unread& unread,
                                      const Pause& pause) {
  std::vector<StoredDay> days;
  for (const FolderFile& file : files) {
    unread.Try(file.name, [&] { days.push_back(ReadDay(file)); });
    if (pause()) break;
  }
  return days;
}

}  // namespace kelvora
