#include "food/import/set_removal.h"

#include <algorithm>

#include "core/text.h"
#include "language/own_texts.h"
#include "storage/food_files.h"

namespace kelvora {

std::optional<FoodSet> SetOfCategory(const Program& program, std::string_view file) {
  for (FoodSet& set : FoodSetsIn(program.paths.UserDatabases)) {
    const auto is_it = [&](const std::string& name) { return TextFromUtf8(name) == file; };
    if (std::ranges::any_of(set.files, is_it)) return std::move(set);
  }
  return std::nullopt;
}

void RemoveSetIfWanted(Program& program, const FoodSet& set) {
  const Box box{.title = Text(AppTitle),
                .text = OwnTextWith(program.texts, OwnText::import_remove_question, set.name),
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  if (program.platform.boxes.Show(box) != BoxAnswer::yes) return;
  program.Guard("#F28-3", [&] { RemoveFoodSet(program.paths.UserDatabases, set); });
  ShowImportedFoodsAnew(program, set.files);
}

// Categories that are gone leave the list of categories too, which else only grows.
void ShowImportedFoodsAnew(Program& program, const std::vector<std::string>& gone) {
  TextList& categories = program.store.lst_categorien;
  for (const std::string& file : gone) {
    const auto found = std::ranges::find(categories, TextFromUtf8(file));
    if (found != categories.end()) {
      categories.Remove(static_cast<std::size_t>(found - categories.begin()));
    }
  }
  Load_Databases(program);
  if (program.windows.lists != nullptr) program.windows.lists->Toon_Standaardlijst();
}

}  // namespace kelvora
