#include "days/day_list.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "core/common.h"
#include "days/day_form.h"
#include "days/stored_day.h"
#include "language/browse_texts.h"
#include "nutrition/dates.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"
#include "storage/folders.h"

namespace kelvora {
namespace {

using namespace browse_text;

constexpr std::array<TextId, BrowseColumn::kNutrient> kHeadings = {
    kColumnNumber, kColumnPath, kColumnFile, kColumnDate, kColumnDay, kColumnWeight, kColumnBmi,
};

// The column of the priority nutrient, in the order of Priority.
struct NutrientColumn {
  TextId heading;
  std::size_t trend_field;
};
constexpr std::array kNutrients = {
    NutrientColumn{kColumnKj, 1},    NutrientColumn{kColumnKcal, 2},
    NutrientColumn{kColumnFatU, 3},  NutrientColumn{kColumnFatS, 4},
    NutrientColumn{kColumnCarbs, 5}, NutrientColumn{kColumnProtein, 6},
};

const NutrientColumn& NutrientOf(const Program& program) {
  return kNutrients[static_cast<std::size_t>(PriorityOfUser(program))];
}

// The row of a day file of which nothing but the name is known.
DayRow RowOf(const std::string& folder, const FolderFile& file, std::size_t number) {
  DayRow row{folder, file.name, file.path, {}};
  row.cells[BrowseColumn::kNumber] = std::to_string(number);
  row.cells[BrowseColumn::kPath] = TextFromUtf8(file.path);
  row.cells[BrowseColumn::kFile] = file.name;
  return row;
}

void FillRow(Program& program, const StoredDay& day, DayRow& row) {
  if (!day.has_record) return;
  const UnitContext units = UnitsOf(program);
  const NutrientColumn& nutrient = NutrientOf(program);
  auto& cells = row.cells;
  Text height = day.height;
  Text weight = day.weight;
  cells[BrowseColumn::kDate] = Format_Datum(day.date, program.settings[Setting::opt_system], units);
  cells[BrowseColumn::kDay] = day.weekday;
  cells[BrowseColumn::kWeight] = BrowsedWeight(program, day.weight);
  cells[BrowseColumn::kBmi] = Bereken_BMI(height, weight, units);
  cells[BrowseColumn::kNutrient] =
      FormatNumber(ReadStoredNumber(FieldOf(day.trend, nutrient.trend_field)),
                   PatternOf(PriorityOfUser(program)), units.locale.DecimalSeparator());
}

}  // namespace

std::array<Text, BrowseColumn::kCount> BrowseHeadings(const Program& program) {
  std::array<Text, BrowseColumn::kCount> headings;
  for (std::size_t i = 0; i < kHeadings.size(); ++i) headings[i] = program.texts[kHeadings[i]];
  headings[BrowseColumn::kNutrient] = program.texts[NutrientOf(program).heading];
  return headings;
}

Text BrowsedWeight(Program& program, Text kilograms) {
  const UnitContext units = UnitsOf(program);
  const Text separator = units.locale.DecimalSeparator();
  const UnitSystem system = UnitSystemOf(program);
  if (system == UnitSystem::imperial_us) kilograms = Kg_To_Lbs(kilograms, units);
  if (system == UnitSystem::imperial_uk) kilograms = Kg_To_Stones(kilograms, units);
  return FormatNumber(ReadStoredNumber(kilograms),
                      system == UnitSystem::imperial_uk ? "#0.0" : "#0.00", separator);
}

DayList ReadDays(Program& program, const std::function<bool()>& overtaken) {
  // Another user may be chosen while events run.
  const std::string folder = program.paths.FilesPath;
  bool wanted = true;
  const Pause pause = [&] {
    program.platform.events.Yield();
    wanted = wanted && !overtaken();
    return !wanted;
  };
  DayList list;
  std::vector<DayRow>& rows = list.rows;
  list.values.Try({}, [&] {
    program.platform.pointer.ShowWait();
    const std::vector<FolderFile> files = FilesWithPathsIn(folder, ".kvf");
    program.store.lst_files.Clear();
    for (const FolderFile& file : files) program.store.lst_files.Add(file.name);
    const std::vector<StoredDay> days = ReadStoredDays(files, list.files, pause);
    std::vector<double> keys;
    for (const StoredDay& day : days) keys.push_back(ReadStoredNumber(DateKeyOf(day.date)));
    std::vector<std::size_t> places;
    if (wanted) places = ExchangeSorted(keys, pause);
    for (const std::size_t place : places) {
      if (!wanted) break;
      const StoredDay& day = days[place];
      DayRow& row = rows.emplace_back(RowOf(folder, day.file, rows.size() + 1));
      list.values.Try(day.file.name, [&] { FillRow(program, day, row); });
      pause();
    }
    program.platform.pointer.Restore();
  });
  return list;
}

void TellOfUnreadDays(Program& program, const DayList& days) {
  days.files.Report(program.FailurePath(), "#F3-0");
  days.values.Report(program.FailurePath(), "#F3-1");
}

bool ClickHeading(DayListSort& sort, std::size_t column) {
  if (column < BrowseColumn::kWeight) return false;
  sort.column = column;
  sort.order = Flipped(sort.order);
  return true;
}

std::vector<std::uint32_t> SortRows(std::vector<DayRow>& rows, const DayListSort& sort) {
  std::vector<std::uint32_t> places(rows.size());
  std::iota(places.begin(), places.end(), std::uint32_t{0});
  if (!sort.column) return places;
  std::vector<double> values;
  values.reserve(rows.size());
  for (const DayRow& row : rows) {
    values.push_back(std::floor(ReadStoredNumber(row.cells[*sort.column])));
  }
  places = OrderByWholeValue(values, sort.order);
  std::vector<DayRow> sorted;
  sorted.reserve(rows.size());
  for (const std::uint32_t place : places) sorted.push_back(std::move(rows[place]));
  rows = std::move(sorted);
  return places;
}

std::optional<std::size_t> RowToOpen(const std::vector<std::size_t>& selected,
                                     std::optional<std::size_t> in_focus, bool list_has_keys) {
  if (selected.empty()) return list_has_keys ? in_focus : std::nullopt;
  const bool focus_is_selected =
      in_focus && std::ranges::find(selected, *in_focus) != selected.end();
  return focus_is_selected ? *in_focus : std::ranges::min(selected);
}

}  // namespace kelvora
