#include "food/details.h"

#include <algorithm>

#include "core/common.h"
#include "language/food_details_texts.h"
#include "nutrition/decimal_check.h"
#include "nutrition/totals.h"
#include "nutrition/units.h"

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

// What the patterns of the values left blank. Without a weight all are blank, and mean nothing.
void FillInBlanks(ValueBoxes& oVar) {
  if (std::ranges::all_of(oVar, &Text::empty)) return;
  std::ranges::replace_if(oVar, &Text::empty, Text("0"));
}

// A name that was changed loses the blanks around it, as the names of all foods.
void TrimChangedName(FoodDetails& details) {
  Text& name = details.bVar[PortionBox::kProduct];
  if (name != details.opened[PortionBox::kProduct]) name = Trimmed(name);
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
    FillInBlanks(details.oVar);
    details.cmd_bewerk = kFinishEditing;
    return false;
  }
  bool close = false;
  program.Guard("#F6-4", [&] {
    TrimChangedName(details);
    const auto error = CheckDetails(details.bVar, details.oVar);
    details.Geldig = !error;
    details.look_at.reset();
    if (error) {
      details.look_at = WrongBox(details.bVar, details.oVar, *error);
      return Tell(program, BoxIcon::error, TextOf(program.texts, *error));
    }
    FillPortionFromPer100Grams(details.oVar, SeparatorOf(program), details.bVar);
    details.Bewerkmodus = false;
    details.cmd_bewerk = kEdit;
    DrawComposition(program, details);
    close = SaveDetails(program, details);
  });
  return close;
}

}  // namespace kelvora
