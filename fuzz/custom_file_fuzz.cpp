// Any bytes as the own list of a user: loaded, shown, changed and packed again.
#include "food/food_lists.h"
#include "fuzz/file_kind.h"
#include "storage/food_files.h"

namespace kelvora {
namespace {

void CheckLoaded(std::string_view file, const Pieces& expected, TextList& own) {
  own.Clear();
  {
    const AllocationMeter meter;
    AppendFoodLines(file, {}, own);
    Check(meter.Bytes() <= AllowedMemory(file.size()), "memory is bounded by the file's size");
  }
  Check(Holds(own, expected), "the list holds the lines of the first string");

  TextList again;
  again.Add("stays");
  AppendFoodLines(EncodeRecord(std::array{PackBlock(own)}), {}, again);
  Check(again.Count() == own.Count() + 1 && again[0] == "stays", "loading clears nothing");
  for (std::size_t i = 0; i < own.Count(); ++i) {
    Check(again[i + 1] == own[i], "a list that is written reads back");
  }
}

void CheckCells(TestProgram& test, const Pieces& lines) {
  FoodLists lists(test.program);
  Check(lists.Count(FoodView::own) == lines.size(), "every line is a row");
  constexpr std::size_t kLooked = 4;
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < std::min(kLooked, lines.size()); ++row) {
    const Pieces fields = PlainSplit(lines[row], kFieldEnd);
    const auto field = [&fields](std::size_t i) {
      return i < fields.size() ? fields[i] : std::string_view();
    };
    const auto cell = [&](std::size_t column) { return lists.Cell(FoodView::own, row, column); };
    Check(cell(0) == std::to_string(row + 1), "rows are numbered from 1 on");
    Check(cell(1) == field(0) && cell(2) == field(1), "product and unit show as they stand");
    const bool ounces = test.program.settings[Setting::opt_gramoz] == "1";
    Check(ounces || cell(3) == field(2), "grams show as they stand");
    for (const std::size_t column : {std::size_t{3}, std::size_t{4}}) {
      const bool is_number = cell(column).find_first_not_of("-.0123456789") == Text::npos;
      Check(is_number || (column == 3 && !ounces), "what is computed shows digits and a point");
    }
    rows.push_back(row);
  }
  Text expected = "add-";
  for (const std::size_t row : rows) expected.append(lines[row]) += kLineEnd;
  Check(lists.DragPayload(FoodView::own, rows) == expected, "a drag takes whole lines");
}

}  // namespace
}  // namespace kelvora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  TestProgram& test = FreshBoxes();
  TextList& own = test.program.store.Custom_list;
  const std::string_view file = InputOf(data, size);
  PlainReader reader(file);
  Pieces lines;
  if (reader.HoldsARecord()) lines = PlainSplit(reader.String(), kLineEnd);
  CheckLoaded(file, lines, own);

  test.program.settings[Setting::opt_gramoz] = size % 2 == 0 ? "0" : "1";
  test.program.profile[ProfileField::type_prioriteit] = static_cast<char>('0' + size % 6);
  CheckCells(test, lines);
  Check(test.boxes.shown.empty(), "showing a list shows no box");

  if (lines.empty()) return 0;
  const std::size_t place = data[size - 1] % lines.size();
  own.Remove(place);
  lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(place));
  TextList changed;
  AppendFoodLines(EncodeRecord(std::array{PackBlock(own)}), {}, changed);
  Check(Holds(changed, lines), "a line that is removed is gone from the file, and no other");
  return 0;
}
