#include "food/details.h"

#include <algorithm>

#include "core/common.h"
#include "food/details_check.h"
#include "food/food_values.h"
#include "language/food_details_texts.h"
#include "nutrition/decimal_check.h"
#include "nutrition/totals.h"
#include "nutrition/units.h"
#include "storage/folders.h"
#include "storage/food_files.h"

namespace kelvora {
namespace {

using namespace food_details_text;

constexpr std::array<TextId, kCompositionBars> kBarNames = {
    kCompositionUnsaturatedFats, kCompositionSaturatedFats, kCompositionSodium,
    kCompositionProteins, kCompositionCarbohydrates};

Text SeparatorOf(const Program& program) {
  return program.platform.locale.DecimalSeparator();
}

// The weight in ounces; the routine behind it changes its argument, and a box keeps its own text.
Text OuncesOf(Program& program, Text grams) {
  return Gram_To_Oz(grams, UnitsOf(program));
}

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

void SaveInOwnList(Program& program, const FoodDetails& details, std::string_view line) {
  TextList& own = program.store.Custom_list;
  const Text& name = details.bVar[PortionBox::kProduct];
  const auto place = own.FindLast(KeyOf(name));
  if (place) {
    own.Replace(*place, line);
  } else {
    own.Add(line);
  }
  Save_Custom(program, CustomFile(program.paths, program.paths.UserName));
  if (!place && (details.tag == "zoeken" || details.tag == "internet")) {
    const TextTables& texts = program.texts;
    Tell(program, BoxIcon::information,
         texts[kSavedFoodItem] + " " + name + " " + texts[kSavedInOwnList]);
  }
  if (program.windows.lists != nullptr) program.windows.lists->Populate_Food_List_Custom();
}

void SaveFavourite(Program& program, const FoodDetails& details, std::string_view line) {
  TextList& favourites = program.store.Favorites_list;
  if (details.chk_favo && !details.WasFavo) {
    favourites.Add(line);
  } else if (details.chk_favo) {
    const auto place = favourites.FindFirst(KeyOf(details.bVar[PortionBox::kProduct]));
    if (place) favourites.Replace(*place, line);
  } else if (details.WasFavo) {
    if (const auto place = favourites.FindFirst(details.txt_item)) favourites.Remove(*place);
  }
  Save_Favorites(program, FavoritesFile(program.paths, program.paths.UserName));
  if (program.windows.lists != nullptr) program.windows.lists->Populate_Food_List_Favo();
}

}  // namespace

FoodDetails OpenDetails(Program& program, std::string_view tag, std::string_view line) {
  FoodDetails details;
  details.tag = tag;
  details.txt_item = line;
  details.cmd_bewerk = kEditPer100Grams;
  program.Guard("#F6-0", [&] {
    const Text separator = SeparatorOf(program);
    TextList& fields = program.store.temp_filter;
    SplitLine(details.txt_item, fields);
    FillPortion(fields, separator, details.bVar);
    details.txt_gram = details.bVar[PortionBox::kGram];
    details.txt_oz = OuncesOf(program, details.txt_gram);
    const TextList& favourites = program.store.Favorites_list;
    details.WasFavo = std::ranges::find(favourites, details.txt_item) != favourites.end();
    details.chk_favo = details.WasFavo;
    FillPer100Grams(details.bVar, separator, details.oVar);
    DrawComposition(program, details);
  });
  details.opened = details.bVar;
  return details;
}

Text PortionTabText(const TextTables& texts, const FoodDetails& details) {
  return texts[kTabPortion] + " " + details.bVar[PortionBox::kGram];
}

Text PortionHeading(Program& program, const FoodDetails& details) {
  const TextTables& texts = program.texts;
  const bool ounces = program.settings[Setting::opt_gramoz] == "1";
  const Text& gram = details.bVar[PortionBox::kGram];
  return texts[kPortionHeading] + " " + details.bVar[PortionBox::kUnit] + " " +
         texts[kPortionHeadingOf] + " " + (ounces ? OuncesOf(program, gram) : gram) + " " +
         texts[ounces ? kPortionHeadingOz : kPortionHeadingGram] + texts[kPortionHeadingEnd];
}

Text BarCaption(const TextTables& texts, const FoodDetails& details, std::size_t bar) {
  const CompositionBar& shown = details.pBar[bar];
  return texts[kBarNames[bar]] + " " + shown.value + " [" + shown.share + "%]";
}

void DrawComposition(Program& program, FoodDetails& details) {
  program.Guard("#F6-1", [&] {
    CheckDecimal(program);
    details.pBar = CompositionOf(details.bVar, SeparatorOf(program));
  });
}

void TakeGrams(Program& program, FoodDetails& details, std::string_view typed) {
  program.Guard("#F6-2", [&] {
    details.txt_gram = typed;
    if (typed.empty()) {
      details.txt_oz.clear();
      return;
    }
    details.bVar[PortionBox::kGram] = typed;
    details.txt_oz = OuncesOf(program, details.txt_gram);
    FillPortionFromPer100Grams(details.oVar, SeparatorOf(program), details.bVar);
    DrawComposition(program, details);
  });
}

void TakeOunces(Program& program, FoodDetails& details, std::string_view typed) {
  program.Guard("#F6-3", [&] {
    details.txt_oz = typed;
    if (typed.empty()) {
      details.txt_gram.clear();
      return;
    }
    Text ounces(typed);
    details.txt_gram = Oz_To_Gram(ounces, UnitsOf(program));
    if (details.txt_gram.empty()) return;  // it failed, and said so
    details.bVar[PortionBox::kGram] = details.txt_gram;
    FillPortionFromPer100Grams(details.oVar, SeparatorOf(program), details.bVar);
    DrawComposition(program, details);
  });
}

bool BeginOrFinishEditing(Program& program, FoodDetails& details) {
  if (!details.Bewerkmodus) {
    details.Bewerkmodus = true;
    details.cmd_bewerk = kFinishEditing;
    return false;
  }
  bool close = false;
  program.Guard("#F6-4", [&] {
    const auto error = CheckDetails(details.bVar, details.oVar);
    details.Geldig = !error;
    if (error) return Tell(program, BoxIcon::error, TextOf(program.texts, *error));
    FillPortionFromPer100Grams(details.oVar, SeparatorOf(program), details.bVar);
    details.Bewerkmodus = false;
    details.cmd_bewerk = kEdit;
    DrawComposition(program, details);
    close = SaveDetails(program, details);
  });
  return close;
}

bool SaveDetails(Program& program, const FoodDetails& details) {
  bool saved = false;
  program.Guard("#F6-5", [&] {
    const Text line = NewLineOf(details);
    if (line != details.txt_item) {
      if (!KeepsSodium(program, details.oVar[kSodiumValue])) return;
      SaveInOwnList(program, details, line);
    }
    SaveFavourite(program, details, line);
    saved = true;
  });
  return saved;
}

}  // namespace kelvora
