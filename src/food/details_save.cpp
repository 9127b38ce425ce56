// Saving the details of one food: which lines of the user's lists it replaces, and what is asked
// before.
#include <algorithm>
#include <optional>

#include "core/common.h"
#include "food/details.h"
#include "food/food_values.h"
#include "language/food_details_texts.h"
#include "language/own_texts.h"
#include "storage/folders.h"
#include "storage/food_files.h"

namespace kelvora {
namespace {

using namespace food_details_text;

// A food in which nothing was changed is the line as it was opened, with the category that it may
// carry and its numbers as they stand there: saving it then leaves the own list alone.
Text NewLineOf(const FoodDetails& details) {
  return details.bVar == details.opened ? details.txt_item : FoodLineOf(details.bVar);
}

bool KeepsSodium(Program& program, const Text& sodium) {
  if (!IsHighSodium(sodium)) return true;
  const TextTables& texts = program.texts;
  const Box box{.title = texts[kHighSodiumTitle],
                .text = JoinLines(texts, {kHighSodium, std::nullopt, kHighSodiumValue}) + " " +
                        sodium + "\n" +
                        JoinLines(texts, {kHighSodiumInGram, std::nullopt, kHighSodiumSure}),
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

using Place = std::optional<std::size_t>;

// The last line that is exactly this one.
Place FindEqual(const TextList& list, std::string_view line) {
  for (std::size_t i = list.Count(); i-- > 0;) {
    if (list[i] == line) return i;
  }
  return std::nullopt;
}

// Which lines a save replaces: of the own list, where a new line comes to the end if none is, and
// of the favourites.
struct Replaced {
  Place own, favourite;
  bool others = false;  // one of them is not the line that was opened
};

// The line that was opened, as long as the food keeps its name, or else the food of the new name.
Replaced WhatIsReplaced(const KV_data& store, const FoodDetails& details, std::string_view line) {
  const Text& name = details.bVar[PortionBox::kProduct];
  const bool same_name = name == details.opened[PortionBox::kProduct];
  const auto opened_in = [&](const TextList& list) {
    return same_name ? FindEqual(list, details.txt_item) : std::nullopt;
  };
  Replaced replaced;
  if (line != details.txt_item) {
    replaced.own = opened_in(store.Custom_list);
    if (!replaced.own) {
      replaced.own = store.Custom_list.FindLast(KeyOf(name));
      replaced.others = replaced.own && store.Custom_list[*replaced.own] != line;
    }
  }
  if (details.chk_favo && details.WasFavo) {
    replaced.favourite = opened_in(store.Favorites_list);
    if (!replaced.favourite) {
      replaced.favourite = store.Favorites_list.FindFirst(KeyOf(name));
      if (replaced.favourite && store.Favorites_list[*replaced.favourite] != line) {
        replaced.others = true;
      }
    }
  }
  return replaced;
}

bool MayReplaceOthers(Program& program, std::string_view name) {
  const Box box{.title = Text(AppTitle),
                .text = OwnTextWith(program.texts, OwnText::replace_other_food, name),
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

void SaveInOwnList(Program& program, const FoodDetails& details, Place replaced,
                   std::string_view line) {
  TextList& own = program.store.Custom_list;
  if (replaced) {
    own.Replace(*replaced, line);
  } else {
    own.Add(line);
  }
  const bool saved = Save_Custom(program, CustomFile(program.paths, program.paths.UserName));
  if (saved && !replaced && (details.tag == "zoeken" || details.tag == "internet")) {
    const TextTables& texts = program.texts;
    Tell(program, BoxIcon::information,
         texts[kSavedFoodItem] + " " + details.bVar[PortionBox::kProduct] + " " +
             texts[kSavedInOwnList]);
  }
  if (program.windows.lists != nullptr) program.windows.lists->Populate_Food_List_Custom();
}

// A favourite that is one no more: the line that was opened, or else the first that begins with it.
void RemoveFavourite(TextList& favourites, std::string_view opened) {
  Place place = FindEqual(favourites, opened);
  if (!place) place = favourites.FindFirst(opened);
  if (place) favourites.Remove(*place);
}

void SaveFavourite(Program& program, const FoodDetails& details, Place replaced,
                   std::string_view line) {
  TextList& favourites = program.store.Favorites_list;
  if (details.chk_favo && !details.WasFavo) {
    favourites.Add(line);
  } else if (replaced) {
    favourites.Replace(*replaced, line);
  } else if (!details.chk_favo && details.WasFavo) {
    RemoveFavourite(favourites, details.txt_item);
  }
  Save_Favorites(program, FavoritesFile(program.paths, program.paths.UserName));
  if (program.windows.lists != nullptr) program.windows.lists->Populate_Food_List_Favo();
}

}  // namespace

bool SaveDetails(Program& program, FoodDetails& details) {
  bool saved = false;
  details.look_at.reset();
  program.Guard("#F6-5", [&] {
    const Text line = NewLineOf(details);
    const bool changed = line != details.txt_item;
    if (changed && !KeepsSodium(program, details.oVar[kSodiumValue])) {
      details.look_at = {.per_100_grams = true, .place = kSodiumValue};
      return;
    }
    const Replaced replaced = WhatIsReplaced(program.store, details, line);
    if (replaced.others && !MayReplaceOthers(program, details.bVar[PortionBox::kProduct])) {
      details.look_at = {.place = PortionBox::kProduct};
      return;
    }
    if (changed) SaveInOwnList(program, details, replaced.own, line);
    SaveFavourite(program, details, replaced.favourite, line);
    saved = true;
  });
  return saved;
}

}  // namespace kelvora
