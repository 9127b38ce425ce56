// Any bytes as a category database: each line gets the file's name, by which a search finds all.
#include <array>

#include "core/common.h"
#include "food/food_lists.h"
#include "fuzz/file_kind.h"
#include "storage/food_files.h"

namespace kelvora {
namespace {

constexpr std::array<std::string_view, 4> kNames = {"Bread.dat", "Caf\xE9s & more.dat", ".dat",
                                                    "A name longer than most lines are.dat"};

void CheckLoaded(std::string_view file, std::string_view name, const Pieces& expected,
                 TextList& lines) {
  lines.Clear();
  lines.Add("stays");
  {
    const AllocationMeter meter;
    AppendFoodLines(file, name, lines);
    Check(meter.Bytes() <= 2 * AllowedMemory(file.size()) + 3 * name.size() * expected.size(),
          "memory is bounded by the file's size and the names added");
  }
  Check(lines.Count() == expected.size() + 1 && lines[0] == "stays", "loading clears nothing");
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const std::string_view line = lines[i + 1];
    Check(line == Text(expected[i]).append(name) + kFieldEnd, "a line gets the file's name");
    constexpr std::size_t kLooked = 4;
    if (i >= kLooked) continue;
    const auto fields = FieldsOf(line);
    Check(!fields.empty() && fields.back().ends_with(name), "the name ends the last field");
    const bool is_closed = expected[i].empty() || expected[i].back() == kFieldEnd;
    Check(!is_closed || fields.back() == name, "the name is the last field of a closed line");
  }
}

void CheckChosen(Program& program, std::string_view name) {
  KV_data& store = program.store;
  store.lst_categorien.Clear();
  store.lst_categorien.Add(name);
  Check(CategoryKnown(store, name), "a category that is loaded is known");
  Check(!CategoryKnown(store, name.substr(1)), "a part of its name is none");

  FoodLists lists(program);
  const TextList shown = lists.Categories();
  Check(shown.Count() == 1 && Text(shown[0]) + ".dat" == name,
        "a category shows without extension");
  Check(lists.ChooseCategory(shown[0]) == name, "choosing it searches its file's name");
  // The one line that "stays" has no name.
  Check(lists.Count(FoodView::standard) == store.Default_list.Count() - 1,
        "a category lists all of its lines");
}

void CheckSearches(Program& program, std::string_view wanted) {
  FoodLists lists(program);
  const Text lower = LowerCase(wanted);
  std::size_t anywhere = 0;
  std::size_t in_front = 0;
  for (const std::string_view line : program.store.Default_list) {
    const std::size_t at = LowerCase(line).find(lower);
    anywhere += at != Text::npos ? 1 : 0;
    in_front += at == 0 ? 1 : 0;
  }
  Check(lists.Zoek_In_Lijsten(wanted) == !wanted.empty(), "an empty search does nothing");
  Check(wanted.empty() || lists.Count(FoodView::standard) == anywhere,
        "a search finds each line that holds the text");
  lists.SearchPrefix(wanted);
  Check(lists.Count(FoodView::standard) == in_front, "and each line that begins with it");
}

}  // namespace
}  // namespace kelvora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  TestProgram& test = FreshBoxes();
  const std::string_view file = InputOf(data, size);
  const std::string_view name = kNames[size % kNames.size()];
  PlainReader reader(file);
  Pieces lines;
  if (reader.HoldsARecord()) lines = PlainSplit(reader.String(), kLineEnd);
  CheckLoaded(file, name, lines, test.program.store.Default_list);
  if (size % 3 == 0) CheckChosen(test.program, name);
  // Some bytes of the file are what is searched.
  if (size % 3 == 1) CheckSearches(test.program, file.substr(data[size - 1] % size, size % 7));
  Check(test.boxes.shown.empty(), "neither shows a box");
  return 0;
}
