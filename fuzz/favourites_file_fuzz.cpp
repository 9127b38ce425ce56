// Any bytes as the favourites of a user: each is found by its name and is a favourite only once.
#include "food/food_lists.h"
#include "fuzz/file_kind.h"
#include "storage/food_files.h"

namespace kelvora {
namespace {

// The name of a line and its terminator; the whole line if nothing closes a name in it.
std::string_view KeyIn(std::string_view line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == kFieldEnd) return line.substr(0, i + 1);
  }
  return line;
}

// Nothing is written here: a line that is a favourite already leads to a warning only.
void CheckAddedOnlyOnce(TestProgram& test, const Pieces& lines, std::size_t place) {
  KV_data& store = test.program.store;
  store.Custom_list = store.Favorites_list;
  store.Default_list.Clear();
  Add_To_Favorites(test.program, KeyIn(lines[place]));
  Check(test.boxes.shown.size() == 1 && test.boxes.shown[0].icon == BoxIcon::warning,
        "a favourite that is there leads to a warning");
  Check(Holds(store.Favorites_list, lines), "the favourites stay as they were");

  test.boxes.shown.clear();
  Add_To_Favorites(test.program, "\xBEno line begins with this\xBD");
  Check(test.boxes.shown.empty(), "an unknown key leads to nothing");
  Check(Holds(store.Favorites_list, lines), "and adds nothing");
}

void CheckFound(const TextList& list, const Pieces& lines, std::size_t place) {
  const std::string_view key = KeyIn(lines[place]);
  const auto first = list.FindFirst(key);
  const auto last = list.FindLast(key);
  Check(first && last && *first <= place && *last >= place, "a line is found by its name");
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const bool fits = lines[i].substr(0, key.size()) == key;
    Check(!fits || (*first <= i && i <= *last), "no line of that name stands outside");
  }
  Check(list[*first].starts_with(key) && list[*last].starts_with(key),
        "what is found has the name");
}

}  // namespace
}  // namespace kelvora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  TestProgram& test = FreshBoxes();
  TextList& favourites = test.program.store.Favorites_list;
  const std::string_view file = InputOf(data, size);
  PlainReader reader(file);
  Pieces lines;
  if (reader.HoldsARecord()) lines = PlainSplit(reader.String(), kLineEnd);
  favourites.Clear();
  AppendFoodLines(file, {}, favourites);
  Check(Holds(favourites, lines), "the list holds the lines of the first string");

  TextList again;
  AppendFoodLines(EncodeRecord(std::array{PackBlock(favourites)}), {}, again);
  Check(again == favourites, "a list that is written reads back");
  if (lines.empty()) return 0;
  const std::size_t place = data[size - 1] % lines.size();
  CheckFound(favourites, lines, place);
  CheckAddedOnlyOnce(test, lines, place);
  return 0;
}
