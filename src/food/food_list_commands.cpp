#include "food/food_list_commands.h"

#include <algorithm>
#include <array>
#include <unordered_set>

#include "food/consumption.h"
#include "food/drag_text.h"
#include "food/scaled_food.h"
#include "internet/servers.h"
#include "language/lists_texts.h"
#include "language/own_texts.h"
#include "nutrition/totals.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

// What the food menu offers in a view, and under which name its foods' details are shown.
struct ViewRow {
  std::string_view tag;
  FoodMenu with_none;
  FoodMenu with_one;
};
constexpr std::array kRows = {
    ViewRow{"zoeken", {}, {.info = true, .favourite = true}},
    ViewRow{"custom", {.add = true}, {.del = true, .add = true, .info = true, .favourite = true}},
    ViewRow{"favo", {}, {.del = true, .info = true}},
    ViewRow{"internet", {}, {.add = true, .info = true}},
};

const ViewRow& RowOf(FoodView view) {
  return kRows[static_cast<std::size_t>(view)];
}

// The rest of a payload that begins with a marker must be longer to add favourites.
constexpr std::size_t kShortestKeys = 6;

bool IsOneFoodLine(std::string_view text) {
  return text.find(kFieldEnd) != text.npos && text.find(kLineEnd) == text.npos;
}

// A name and its terminator. Anything shorter would fit lines of other foods too.
bool IsKey(std::string_view part) {
  return part.ends_with(kFieldEnd);
}

void RemoveFromDay(Program& program, std::string_view keys) {
  for (const std::string_view key : PartsOf(keys)) {
    if (!IsKey(key)) continue;
    MoveConsumption(program.store, program.day.drag_source, key, kDeleteTarget);
  }
  RefreshDragSource(program);
  Refresh_Totalen(program);
}

// The names of all foods that can become favourites; views into the lists.
std::unordered_set<std::string_view> NamesOfFoods(const KV_data& store) {
  std::unordered_set<std::string_view> names;
  for (const TextList* const list : {&store.Default_list, &store.Custom_list}) {
    for (const std::string_view line : *list) names.insert(line.substr(0, line.find(kFieldEnd)));
  }
  return names;
}

void AddKeysToFavourites(Program& program, std::string_view keys) {
  if (keys.size() <= kShortestKeys) return;
  // A text from elsewhere may hold any number of keys that no food has; those cost no search.
  const auto names = NamesOfFoods(program.store);
  const auto listed = [&names](std::string_view name) { return names.contains(name); };
  for (const std::string_view key : PartsOf(keys)) {
    if (!IsKey(key)) continue;
    const Text food = NameOfFavourite(key.substr(0, key.find(kFieldEnd)), listed);
    if (!food.empty()) Add_To_Favorites(program, KeyOf(food));
  }
}

void TakeForeignFood(Program& program, std::string_view line) {
  if (!IsOneFoodLine(line)) return;
  program.store.Custom_list.Add(line);
  Save_Custom(program, CustomFile(program.paths, program.paths.UserName));
  if (program.windows.lists != nullptr) program.windows.lists->Populate_Food_List_Custom();
}

// Removes the last line that begins with `key` and returns it; "" if there is none.
Text RemoveLast(TextList& list, std::string_view key) {
  const auto found = list.FindLast(key);
  if (!found) return {};
  Text line(list[*found]);
  list.Remove(*found);
  return line;
}

void RemoveByNumber(KV_data& store, FoodView view, std::size_t number) {
  if (view == FoodView::favourites) {
    (void)RemoveLast(store.Favorites_list, Text(store.Favorites_list[number]));
    return;
  }
  const Text key(store.Custom_list[number]);
  const Text removed = RemoveLast(store.Custom_list, key);
  const Text& favourite = key.empty() ? removed : key;
  if (!favourite.empty()) (void)RemoveLast(store.Favorites_list, favourite);
}

}  // namespace

bool TakesDrop(FoodView view, std::string_view payload) {
  if (payload.starts_with(kKillMarker)) return true;
  return view == FoodView::own && payload.starts_with(kForeignMarker);
}

void DropOnFoodView(Program& program, FoodView view, std::string_view payload) {
  program.Guard("#F11-5", [&] {
    Text rest(payload);
    if (TakeMarker(rest, kKillMarker)) {
      return view == FoodView::favourites ? AddKeysToFavourites(program, rest)
                                          : RemoveFromDay(program, rest);
    }
    if (view == FoodView::own && TakeMarker(rest, kForeignMarker)) TakeForeignFood(program, rest);
  });
}

void DeleteRows(Program& program, const FoodLists& lists, FoodView view,
                const std::vector<std::size_t>& rows) {
  if (rows.empty() || (view != FoodView::own && view != FoodView::favourites)) return;
  program.Guard("#F11-6", [&] {
    const Text user = program.paths.UserName;
    for (const std::size_t number : lists.NumbersOf(view, rows)) {
      RemoveByNumber(program.store, view, number);
    }
    if (view == FoodView::own) Save_Custom(program, CustomFile(program.paths, user));
    Save_Favorites(program, FavoritesFile(program.paths, user));
    FoodListsView* const window = program.windows.lists;
    if (window == nullptr) return;
    window->Populate_Food_List_Custom();
    window->Populate_Food_List_Favo();
  });
}

void ShowDetails(Program& program, const FoodLists& lists, FoodView view, std::size_t row) {
  if (row >= lists.Count(view)) return;
  program.windows.core->ShowItem(RowOf(view).tag, Text(lists.LineAt(view, row)));
}

void AddRowToFavourites(Program& program, const FoodLists& lists, FoodView view, std::size_t row) {
  if (view != FoodView::standard && view != FoodView::own) return;
  if (row >= lists.Count(view)) return;
  // The whole line is the key, so that of two foods of one name the row's own is added.
  Add_To_Favorites(program, Text(lists.LineAt(view, row)));
}

void AddNewFood(Program& program, FoodView view) {
  if (view == FoodView::own || view == FoodView::internet) program.windows.core->OpenNewFood();
}

FoodMenu FoodMenuFor(const Program& program, FoodView view, std::size_t selected) {
  if (selected > 1) return {};
  FoodMenu menu = FoodMenuOfRow(view, selected == 1);
  menu.day_parts = selected == 1 && program.store.DayIsOpen();
  menu.compare = selected == 1 && program.windows.comparison != nullptr;
  return menu;
}

void OpenFoodMenu(Program& program, FoodView view, std::size_t selected, ScreenPlace place) {
  using namespace lists_text;
  if (selected > 1) {
    return Tell(program, BoxIcon::warning,
                JoinLines(program.texts, {kTooManySelected, kSelectOne}));
  }
  program.windows.core->PopUpFoodMenu(FoodMenuFor(program, view, selected), place);
}

AddedRows AddRowsToDay(Program& program, FoodLists& lists, FoodView view,
                       const std::vector<std::size_t>& rows, DayPart part, const Amount& amount) {
  AddedRows result;
  if (!program.store.DayIsOpen() || rows.empty()) return result;
  if (lists.DragPayload(view, rows).empty()) return result;
  program.Guard("#F11-7", [&] {
    Text payload(kAddMarker);
    for (const std::size_t row : rows) {
      const auto made = LinesOfAmount(program.store, lists.LineAt(view, row), amount,
                                      program.platform.locale.DecimalSeparator());
      if (const auto* const fault = std::get_if<AmountFault>(&made)) {
        result.fault = *fault;
        return;
      }
      payload += PackBlock(std::get<TextList>(made));
    }
    result.added = DropOnDayPart(program, part, payload);
    if (result.added) MakeActive(program, part);
  });
  return result;
}

std::optional<std::size_t> PlaceAfterDelete(const FoodLists& lists, FoodView view,
                                            std::size_t first_deleted) {
  const std::size_t left = lists.Count(view);
  if (left == 0) return std::nullopt;
  return std::min(first_deleted, left - 1);
}

FoodMenu FoodMenuOfRow(FoodView view, bool any_row) {
  return any_row ? RowOf(view).with_one : RowOf(view).with_none;
}

Text ActivePartText(const Program& program) {
  constexpr std::array kTexts = {OwnText::enter_adds_to_morning, OwnText::enter_adds_to_afternoon,
                                 OwnText::enter_adds_to_evening};
  if (!program.store.DayIsOpen()) return {};
  return OwnTextOf(program.texts, kTexts[static_cast<std::size_t>(program.day.active_part)]);
}

void CompareRow(Program& program, FoodLists& lists, FoodView view, std::size_t row,
                CompareBox box) {
  if (program.windows.comparison == nullptr || row >= lists.Count(view)) return;
  program.windows.comparison->TakeFood(box, lists.DragPayload(view, {row}));
}

void ChooseServer(Program& program, std::string_view choice) {
  program.settings[Setting::opt_server] = choice;
  Zet_Server_Adressen(program);
  Save_Settings(program);
  if (program.windows.core != nullptr) program.windows.core->UpdateCommands();
}

bool UsesEnglishServer(const Program& program) {
  return program.settings[Setting::opt_server] == "1";
}

const Text& ServerText(const Program& program) {
  using namespace lists_text;
  return program.texts[UsesEnglishServer(program) ? kEnglishDatabase : kDutchDatabase];
}

Text InternetSearchTip(const Program& program) {
  if (!program.servers.search.empty()) return program.texts[lists_text::kTipInternet];
  return OwnTextOf(program.texts, OwnText::no_food_server);
}

}  // namespace kelvora
