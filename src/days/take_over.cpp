#include "days/take_over.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/common.h"
#include "food/consumption.h"
#include "language/browse_texts.h"
#include "nutrition/dates.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"
#include "storage/day_file.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

// The places of both energies in the text of a day's totals.
constexpr std::size_t kTrendKj = 1;
constexpr std::size_t kTrendKcal = 2;

double DateOf(std::string_view stored_date) {
  return ReadStoredNumber(DateKeyOf(stored_date));
}

}  // namespace

OtherDays::OtherDays(Program& program) : program_(program) {
  files_ = FilesWithPathsIn(program.paths.FilesPath, ".kvf");
  // Its own file holds the open day as it was.
  const std::string open = program.paths.FilesPath + NameOfDayFile(program);
  std::erase_if(files_, [&](const FolderFile& file) { return file.path == open; });
}

bool OtherDays::Read() {
  if (next_ > files_.size()) return false;
  if (next_ < files_.size()) {
    std::vector<StoredDay> read = ReadStoredDays({files_[next_]}, unread_, [] { return false; });
    std::ranges::move(read, std::back_inserter(read_));
  }
  if (++next_ <= files_.size()) return true;
  Finish();
  return false;
}

void OtherDays::Finish() {
  std::vector<double> dates;
  for (const StoredDay& day : read_) dates.push_back(DateOf(day.date));
  std::vector<std::size_t> places(read_.size());
  std::iota(places.begin(), places.end(), 0);
  std::ranges::stable_sort(places, std::ranges::greater(), [&](std::size_t i) { return dates[i]; });
  const double open = DateOf(program_.store.L_gegevens[HeaderRow::kDate]);
  for (const std::size_t place : places) {
    const StoredDay& day = read_[place];
    const bool listed = unread_.Try(day.file.name, [&] { days_.push_back(RowOf(day)); });
    if (!first_ && listed && day.has_record && dates[place] < open) first_ = days_.size() - 1;
  }
  if (!first_ && !days_.empty()) first_ = 0;
  read_.clear();
  unread_.Report(program_.FailurePath(), "#F20-0");
}

OtherDay OtherDays::RowOf(const StoredDay& day) const {
  if (!day.has_record)
    return {.path = day.file.path, .date = day.file.name, .weekday = {}, .energy = {}};
  const Priority energy = EnergyOfUser(program_);
  const std::size_t field = energy == Priority::kcal ? kTrendKcal : kTrendKj;
  return {.path = day.file.path,
          .date = Format_Datum(day.date, program_.settings[Setting::opt_system], UnitsOf(program_)),
          .weekday = day.weekday,
          .energy = FormatNumber(ReadStoredNumber(FieldOf(day.trend, field)), PatternOf(energy),
                                 program_.platform.locale.DecimalSeparator())};
}

const Text& EnergyHeading(const Program& program) {
  using namespace browse_text;
  return program.texts[EnergyOfUser(program) == Priority::kcal ? kColumnKcal : kColumnKj];
}

DayFoods FoodsOfDay(Program& program, const std::string& path) {
  DayFoods foods;
  program.Guard("#F20-1", [&] {
    const std::string bytes = ReadFile(path);
    std::array<std::string_view, Rec_DayFile::kSize> strings;
    if (!DecodeFirstRecord(bytes, strings)) return;
    constexpr std::array kBlocks = {DayFileField::Morning, DayFileField::Afternoon,
                                    DayFileField::Evening};
    DayFoods read;
    for (std::size_t part = 0; part < kBlocks.size(); ++part) {
      TextList lines, distinct, counts;
      SplitBlock(strings[static_cast<std::size_t>(kBlocks[part])], lines);
      CountEqualLines(lines, distinct, counts);
      for (std::size_t i = 0; i < distinct.Count(); ++i) {
        const std::string_view line = distinct[i];
        const double count = Val(counts[i]);
        read[part].push_back({Text(line), static_cast<std::size_t>(count),
                              Text(FieldOf(line, FoodField::kProduct)),
                              Text(FieldOf(line, FoodField::kUnit)),
                              NutrientCell(program, line, count, EnergyOfUser(program))});
      }
    }
    foods = std::move(read);
  });
  return foods;
}

bool TakeOver(Program& program, const DayFoods& chosen) {
  std::size_t all = 0;
  for (const DayPart part : kDayParts) {
    std::size_t lines = 0;
    for (const DayFood& food : chosen[static_cast<std::size_t>(part)]) lines += food.count;
    // A part that gets nothing may stand above the limit.
    if (lines > 0 && !HasRoomFor(program, part, lines)) return false;
    all += lines;
  }
  if (all == 0 || !program.store.DayIsOpen()) return false;
  for (const DayPart part : kDayParts) {
    TextList& lines = program.store.ListOf(part);
    for (const DayFood& food : chosen[static_cast<std::size_t>(part)]) {
      for (std::size_t i = 0; i < food.count; ++i) lines.Add(food.line);
    }
  }
  RefreshAllParts(program);
  return true;
}

}  // namespace kelvora
