#include "food/often.h"

#include <algorithm>
#include <tuple>

#include "nutrition/dates.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

// The number of a stored date; nothing for what is no date.
std::optional<int> DayOf(std::string_view stored_date) {
  try {
    return DaysOfYearMonthDay(DateKeyOf(stored_date));
  } catch (const std::system_error&) {
    return std::nullopt;
  }
}

}  // namespace

DayPart PartOfTime(const LocalTime& time) {
  constexpr int kNoon = 12, kEvening = 18;
  if (time.hour < kNoon) return DayPart::morning;
  return time.hour < kEvening ? DayPart::afternoon : DayPart::evening;
}

OftenEaten::OftenEaten(Program& program) {
  const auto open_day = DayOf(program.store.L_gegevens[HeaderRow::kDate]);
  if (!open_day) return;
  open_day_ = *open_day;
  files_ = FilesWithPathsIn(program.paths.FilesPath, ".kvf");
}

bool OftenEaten::Read() {
  if (next_ >= files_.size()) return false;
  try {
    Take(ReadFile(files_[next_].path));
  } catch (const std::system_error&) {
  }
  return ++next_ < files_.size();
}

void OftenEaten::Take(std::string_view bytes) {
  std::array<std::string_view, Rec_DayFile::kSize> strings;
  if (!DecodeFirstRecord(bytes, strings)) return;
  const auto string = [&strings](DayFileField id) { return strings[static_cast<std::size_t>(id)]; };
  TextList header;
  SplitBlock(string(DayFileField::Header), header);
  const auto day = DayOf(header[HeaderRow::kDate]);
  if (!day || *day >= open_day_ || *day < open_day_ - kDays) return;
  constexpr std::array kBlocks = {DayFileField::Morning, DayFileField::Afternoon,
                                  DayFileField::Evening};
  for (const DayPart part : kDayParts) {
    TextList lines;
    SplitBlock(string(kBlocks[static_cast<std::size_t>(part)]), lines);
    for (const std::string_view line : lines) Count(part, *day, line);
  }
}

void OftenEaten::Count(DayPart part, int day, std::string_view line) {
  const std::string_view name = FieldOf(line, FoodField::kProduct);
  if (name.empty()) return;
  Food& food = foods_[Text(name)];
  ++food.portions[static_cast<std::size_t>(part)];
  ++food.all;
  if (day < food.last_day) return;
  food.last_day = day;
  food.line = line;
}

TextList OftenEaten::Foods(DayPart part) const {
  std::vector<const Food*> foods;
  for (const auto& [name, food] : foods_) foods.push_back(&food);
  const auto is_usual = [part](const Food& food) {
    return food.portions[static_cast<std::size_t>(part)] == std::ranges::max(food.portions);
  };
  // The line, which begins with the name, settles the rest.
  const auto order = [&](const Food* food) {
    return std::tuple(!is_usual(*food), -static_cast<long>(food->all), -food->last_day,
                      std::string_view(food->line));
  };
  std::ranges::sort(foods, {}, order);
  if (foods.size() > kMostFoods) foods.resize(kMostFoods);
  TextList lines;
  for (const Food* food : foods) lines.Add(food->line);
  return lines;
}

}  // namespace kelvora
