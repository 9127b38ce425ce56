// Any bytes as the file of a day: taken into the store, re-totalled, shown and packed again.
#include <array>
#include <cmath>

#include "core/common.h"
#include "food/consumption.h"
#include "fuzz/file_kind.h"
#include "nutrition/numbers.h"
#include "nutrition/totals.h"
#include "storage/day_file.h"

namespace kelvora {
namespace {

struct CountingWindow : ConsumptionView {
  int totals_shown = 0;
  void CloseWindow() override {}
  void Set_Taal() override {}
  void Refresh_Consumpties() override {}
  void ShowTotals(const ConsumptionTotals&) override { ++totals_shown; }
};

constexpr std::array kParts = {DayFileField::Morning, DayFileField::Afternoon,
                               DayFileField::Evening};

// What is left of a day that was read: blocks lose what no terminator closes.
Rec_DayFile PackedOf(const Rec_DayFile& record) {
  Rec_DayFile packed = record;
  for (const DayFileField field : {DayFileField::Header, DayFileField::Morning,
                                   DayFileField::Afternoon, DayFileField::Evening}) {
    packed[field] = ClosedPart(record[field], kLineEnd);
  }
  return packed;
}

void CheckTakenAndPacked(KV_data& store, const Rec_DayFile& record) {
  const Rec_DayFile expected = PackedOf(record);
  TakeDay(store, record);
  for (std::size_t i = 0; i < kParts.size(); ++i) {
    Check(Holds(store.ListOf(kDayParts[i]), PlainSplit(record[kParts[i]], kLineEnd)),
          "a day part holds the lines of its block");
  }
  Check(PackDay(store) == expected, "a day packs to the blocks it was taken from");
}

void CheckTakenTwice(KV_data& store, const Rec_DayFile& record) {
  CheckSurvivesWriting(PackedOf(record));
  const std::size_t header = store.L_gegevens.Count();
  const std::size_t morning = store.L_ochtend.Count();
  TakeDay(store, PackedOf(record));
  Check(store.L_gegevens.Count() == 2 * header && store.L_ochtend.Count() == 2 * morning,
        "taking a day clears nothing");
}

// The trend of a day, column by column; nothing if a sum has no place in a single.
std::optional<Text> PlainTrend(const Rec_DayFile& record, std::string_view weight) {
  // Grams, the two energies, both fats, carbohydrates, protein, sodium: as fields of a line.
  constexpr std::array<std::size_t, 8> kColumns = {2, 3, 4, 6, 7, 8, 5, 9};
  std::array<std::array<float, 3>, 8> sums{};
  for (std::size_t part = 0; part < kParts.size(); ++part) {
    for (const std::string_view line : PlainSplit(record[kParts[part]], kLineEnd)) {
      const Pieces fields = PlainSplit(line, kFieldEnd);
      for (std::size_t i = 0; i < kColumns.size() && !fields.empty(); ++i) {
        if (kColumns[i] >= fields.size()) continue;
        float& sum = sums[i][part];
        sum = static_cast<float>(sum + ReadStoredNumber(fields[kColumns[i]]));
        if (!std::isfinite(sum)) return std::nullopt;
      }
    }
  }
  Text trend;
  for (const auto& [morning, afternoon, evening] : sums) {
    const float two = morning + afternoon;
    const float day = two + evening;
    if (!std::isfinite(day)) return std::nullopt;
    trend.append(Str(day, ".")) += kFieldEnd;
  }
  trend.append(weight) += kFieldEnd;
  return trend;
}

void CheckTotals(TestProgram& test, const Rec_DayFile& record, std::size_t open_window) {
  Program& program = test.program;
  CountingWindow window;
  if (open_window < 3) program.windows.consumption[open_window] = &window;
  Refresh_Totalen(program);
  program.windows.consumption = {};

  const Pieces header = PlainSplit(record[DayFileField::Header], kLineEnd);
  const auto trend = PlainTrend(record, header.size() > 6 ? header[6] : std::string_view());
  CheckFailure(test, !trend.has_value(), "#FF11-0");
  Check(program.store.txt_trenddata == trend.value_or(record[DayFileField::Trend]),
        "the trend holds the sums, and stays if one has no place in a single");
  Check(window.totals_shown == (trend && open_window < 3 ? 1 : 0), "an open window shows totals");

  Rec_DayFile after = PackedOf(record);
  after[DayFileField::Trend] = program.store.txt_trenddata;
  Check(PackDay(program.store) == after, "totalling changes the trend only");
}

void CheckMerged(const Rec_DayFile& record) {
  TextList merged;
  merged.Add("goes");
  MergeDay({record[kParts[0]], record[kParts[1]], record[kParts[2]]}, merged);
  std::size_t place = 0;
  for (std::size_t part = 0; part < kParts.size(); ++part) {
    for (const std::string_view line : PlainSplit(record[kParts[part]], kLineEnd)) {
      const Text expected = Text(line) + static_cast<char>('0' + part) + kFieldEnd;
      Check(merged[place++] == expected, "a merged line ends with the code of its day part");
    }
  }
  Check(merged.Count() == place, "a merged day has the lines of all parts");
}

void CheckRows(TestProgram& test, DayPart part) {
  test.boxes.shown.clear();
  const auto rows = ConsumptionRows(test.program, part);
  const TextList& lines = test.program.store.ListOf(part);
  double sum = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    Check(rows[i].number == std::to_string(i + 1), "rows are numbered from 1 on");
    sum += Val(rows[i].count);
  }
  Check(!test.boxes.shown.empty() || sum == static_cast<double>(lines.Count()),
        "the counts of the rows sum up to all lines");
}

// The six digits of a date among marks and blanks; nothing for anything else.
std::optional<Text> PlainDate(std::string_view text, bool month_first) {
  Text digits;
  for (const char c : text) {
    if (c == '-' || c == '/' || c == '\\' || c == ' ') continue;
    if (c < '0' || c > '9') return std::nullopt;
    digits += c;
  }
  if (digits.size() != 6) return std::nullopt;
  if (month_first) digits = digits.substr(2, 2) + digits.substr(0, 2) + digits.substr(4);
  return digits.insert(4, "-").insert(2, "-");
}

void CheckDate(TestProgram& test, std::size_t system) {
  test.boxes.shown.clear();
  const std::string_view date = test.program.store.L_gegevens[HeaderRow::kDate];
  const Text shown = Format_Datum(date, std::to_string(system), UnitsOf(test.program));
  const auto expected = date.empty() ? Text() : PlainDate(date, system == 1);
  CheckFailure(test, !expected.has_value(), "#FF11-8");
  Check(shown == expected.value_or(""), "a date is six digits in the order of the unit system");
}

}  // namespace
}  // namespace kelvora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  TestProgram& test = FreshBoxes();
  const auto record = CheckedRecord<Rec_DayFile>(InputOf(data, size));
  if (!record || size == 0) return 0;
  CloseDay(test.program);
  Check(PackDay(test.program.store) == Rec_DayFile(), "nothing is left of a closed day");
  CheckTakenAndPacked(test.program.store, *record);
  const std::size_t choice = data[size - 1];
  switch (size % 4) {
    case 0:
      CheckTotals(test, *record, choice % 4);
      break;
    case 1:
      CheckMerged(*record);
      CheckTakenTwice(test.program.store, *record);
      break;
    case 2:
      test.program.settings[Setting::opt_gramoz] = choice % 2 == 0 ? "0" : "1";
      CheckRows(test, kDayParts[choice % 3]);
      break;
    default:
      CheckDate(test, choice % 3);
  }
  return 0;
}
