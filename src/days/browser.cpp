#include "days/browser.h"

#include <algorithm>
#include <utility>

#include "core/common.h"
#include "days/open_day.h"
#include "days/user_list.h"
#include "language/browse_texts.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "storage/settings_file.h"

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

// What the list needs of one day file.
struct StoredDay {
  Text file_name;
  Text date, weekday, height, weight;
  Text trend;
};

StoredDay ReadDay(Program& program, const std::string& folder, std::string_view file_name) {
  const Rec_DayFile& record =
      DecodeOrKeepRecord(ReadFile(folder + Utf8FromText(file_name)), program.last_read.day);
  TextList header;
  SplitBlock(record[DayFileField::Header], header);
  return {Text(file_name),
          Text(header[HeaderRow::kDate]),
          Text(header[HeaderRow::kWeekday]),
          Text(header[HeaderRow::kHeight]),
          Text(header[HeaderRow::kWeight]),
          record[DayFileField::Trend]};
}

std::vector<StoredDay> ReadStoredDays(Program& program, const std::string& folder) {
  std::vector<StoredDay> days;
  program.Guard("#F3-0", [&] {
    program.platform.pointer.ShowWait();
    const TextList files = FilesIn(folder, ".kvf");
    program.store.lst_files = files;
    for (const std::string_view file : files) days.push_back(ReadDay(program, folder, file));
  });
  return days;
}

// A stored weight in the unit of the settings.
Text WeightText(Program& program, Text kilograms) {
  const UnitContext units = UnitsOf(program);
  const Text separator = units.locale.DecimalSeparator();
  const Text& system = program.settings[Setting::opt_system];
  if (system == "1") kilograms = Kg_To_Lbs(kilograms, units);
  if (system == "2") kilograms = Kg_To_Stones(kilograms, units);
  return FormatNumber(ReadStoredNumber(kilograms), system == "2" ? "#0.0" : "#0.00", separator);
}

DayRow RowOf(Program& program, const std::string& folder, StoredDay day, std::size_t number) {
  const UnitContext units = UnitsOf(program);
  const NutrientColumn& nutrient = NutrientOf(program);
  DayRow row{folder, day.file_name, {}};
  auto& cells = row.cells;
  cells[BrowseColumn::kNumber] = std::to_string(number);
  cells[BrowseColumn::kPath] = TextFromUtf8(folder) + day.file_name;
  cells[BrowseColumn::kFile] = day.file_name;
  cells[BrowseColumn::kDate] = Format_Datum(day.date, program.settings[Setting::opt_system], units);
  cells[BrowseColumn::kDay] = day.weekday;
  cells[BrowseColumn::kWeight] = WeightText(program, day.weight);
  cells[BrowseColumn::kBmi] = Bereken_BMI(day.height, day.weight, units);
  cells[BrowseColumn::kNutrient] =
      FormatNumber(ReadStoredNumber(FieldOf(day.trend, nutrient.trend_field)),
                   PatternOf(PriorityOfUser(program)), units.locale.DecimalSeparator());
  return row;
}

// A weight of the profile with its unit; empty if there is none.
Text WeightWithUnit(Program& program, const Text& kilograms) {
  if (kilograms.empty()) return {};
  const Text& system = program.settings[Setting::opt_system];
  const TextId unit = system == "1" ? kUnitPounds : system == "2" ? kUnitStones : kUnitKilogram;
  return WeightText(program, kilograms) + " " + program.texts[unit];
}

Text HeightWithUnit(Program& program, Text metres) {
  if (metres.empty()) return {};
  const UnitContext units = UnitsOf(program);
  const Text& system = program.settings[Setting::opt_system];
  if (system == "1" || system == "2") {
    const Text feet = Meter_To_Feet_Inch(metres, HeightPart::feet, units);
    return feet + "'" + Meter_To_Feet_Inch(metres, HeightPart::inches, units) + "''";
  }
  return FormatNumber(ReadStoredNumber(metres), "0.00", units.locale.DecimalSeparator()) + " " +
         program.texts[kUnitMeter];
}

bool MayCloseDayForUser(Program& program) {
  if (program.store.L_gegevens.Empty()) return true;
  const Box box{
      .title = program.texts[kSwitchTitle],
      .text = JoinLines(program.texts, {kSwitchGoing, kSwitchLost, std::nullopt, kSwitchSure}),
      .icon = BoxIcon::question,
      .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

}  // namespace

std::array<Text, BrowseColumn::kCount> BrowseHeadings(const Program& program) {
  std::array<Text, BrowseColumn::kCount> headings;
  for (std::size_t i = 0; i < kHeadings.size(); ++i) headings[i] = program.texts[kHeadings[i]];
  headings[BrowseColumn::kNutrient] = program.texts[NutrientOf(program).heading];
  return headings;
}

Text DateKeyOf(std::string_view stored_date) {
  Text digits(stored_date);
  std::erase_if(digits, [](char c) { return c == '-' || c == '/' || c == '\\' || c == ' '; });
  const Text day_and_month = digits.substr(0, 4);
  const auto last_two = [](const Text& text) {
    return text.substr(text.size() - std::min<std::size_t>(2, text.size()));
  };
  return last_two(digits) + last_two(day_and_month) + day_and_month.substr(0, 2);
}

std::vector<std::size_t> ExchangeSorted(const std::vector<double>& keys, Events& events) {
  struct Entry {
    double key;
    std::size_t place;
  };
  std::vector<Entry> entries;
  for (std::size_t i = 0; i < keys.size(); ++i) entries.push_back({keys[i], i});
  for (Entry& entry : entries) {
    for (Entry& other : entries) {
      if (entry.key < other.key) std::swap(entry, other);
    }
    events.Yield();
  }
  std::vector<std::size_t> places;
  for (const Entry& entry : entries) places.push_back(entry.place);
  return places;
}

std::vector<DayRow> ReadDays(Program& program) {
  // Another user may be chosen while events run.
  const std::string folder = program.paths.FilesPath;
  const std::vector<StoredDay> days = ReadStoredDays(program, folder);
  std::vector<DayRow> rows;
  program.Guard("#F3-1", [&] {
    std::vector<double> keys;
    for (const StoredDay& day : days) keys.push_back(ReadStoredNumber(DateKeyOf(day.date)));
    for (const std::size_t place : ExchangeSorted(keys, program.platform.events)) {
      rows.push_back(RowOf(program, folder, days[place], rows.size() + 1));
    }
    program.platform.pointer.Restore();
  });
  return rows;
}

TextList UsersToBrowse(Program& program) {
  TextList names;
  program.Guard("#F3-2", [&] { ReadUserNames(program, names); });
  return names;
}

UserSwitch SwitchUser(Program& program, std::string_view name) {
  if (name == program.paths.UserName) return UserSwitch::same;
  if (!MayCloseDayForUser(program)) return UserSwitch::refused;
  program.Guard("#F3-3", [&] {
    CloseDay(program);
    ChooseUser(program, name);
    if (program.windows.browser != nullptr) program.windows.browser->Refresh_Files();
    if (program.windows.core != nullptr) program.windows.core->UpdateCommands();
  });
  return UserSwitch::switched;
}

void OpenDayOf(Program& program, const DayRow& row) {
  // The row belongs to a list that may be rebuilt while the day is opened.
  const DayRow chosen = row;
  LoadDay(program, chosen.folder, chosen.file_name);
  const bool loaded = program.store.KV_bestand == chosen.file_name && !program.day.FileChanged;
  // Unsaved work that the user wanted to keep stays marked as unsaved.
  if (loaded) AfterOpenDay(program);
}

ProfilePane ProfilePaneOf(Program& program) {
  ProfilePane pane;
  if (program.paths.UserName.empty()) return pane;
  program.Guard("#F3-4", [&] {
    const Rec_Profile& profile = program.profile;
    pane.heading = program.texts[kProfileOf] + " " + program.paths.UserName + ":";
    pane.lbl_pr = {profile[ProfileField::reference],
                   WeightWithUnit(program, profile[ProfileField::weight]),
                   WeightWithUnit(program, profile[ProfileField::goal_weight]),
                   HeightWithUnit(program, profile[ProfileField::height]),
                   profile[ProfileField::gender],
                   profile[ProfileField::age]};
  });
  return pane;
}

bool ProfilePaneShown(const Program& program) {
  return program.settings[Setting::chk_profiel] == "1";
}

void SetProfilePaneShown(Program& program, bool shown) {
  program.settings[Setting::chk_profiel] = shown ? "1" : "0";
  Save_Settings(program);
}

}  // namespace kelvora
