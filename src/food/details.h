// The details of one food as they are shown, edited and saved. FoodDetails is a copy of a line:
// nothing of it reaches the store before it is saved, and then it is a line of the own list,
// whatever list it was opened from. The window draws a FoodDetails and passes on what is done.
#pragma once

#include <optional>
#include <string_view>

#include "core/program.h"
#include "food/details_check.h"
#include "food/details_values.h"

namespace kelvora {

struct FoodDetails {
  Text tag;       // the list that the line comes from: "custom", "favo", "zoeken" or "internet"
  Text txt_item;  // the line as it was opened
  PortionBoxes bVar;
  PortionBoxes opened;  // bVar as the line filled it
  ValueBoxes oVar;
  Text txt_gram, txt_oz;  // the weight of the portion
  bool chk_favo = false;
  bool WasFavo = false;
  bool Bewerkmodus = false;
  bool Geldig = false;
  TextId cmd_bewerk{};  // its caption
  Composition pBar;
  // The box that a refused save is to be changed in; nothing if there is none.
  std::optional<DetailsBox> look_at;
};

// Opens a line. A failure shows "#F6-0" and leaves the boxes as far as they came.
[[nodiscard]] FoodDetails OpenDetails(Program& program, std::string_view tag,
                                      std::string_view line);

// What stands on the tab of the portion and above the two frames of values.
[[nodiscard]] Text PortionTabText(const TextTables& texts, const FoodDetails& details);
[[nodiscard]] Text PortionHeading(Program& program, const FoodDetails& details);

// The caption of a bar of the composition.
[[nodiscard]] Text BarCaption(const TextTables& texts, const FoodDetails& details, std::size_t bar);

// Warns if the decimal separator has changed, then measures the bars anew. A failure shows "#F6-1".
void DrawComposition(Program& program, FoodDetails& details);

// Take the weight that was typed into either box: the other box, the weight and the values of the
// portion follow; the values per 100 grams stay. An empty box clears the other, and the weight of
// the portion stays as it was. Failures show "#F6-2" and "#F6-3".
void TakeGrams(Program& program, FoodDetails& details, std::string_view typed);
void TakeOunces(Program& program, FoodDetails& details, std::string_view typed);

// cmd_bewerk: begins an edit, or ends it and saves the food at once. An edit that fails a test
// goes on after its box. True if the window is to close. A failure shows "#F6-4".
[[nodiscard]] bool BeginOrFinishEditing(Program& program, FoodDetails& details);

// cmd_opslaan: brings a changed food into the own list, the favourites in step with chk_favo, and
// writes both files. False after a No to keeping a high sodium value, which changes nothing, and
// after a failure, which shows "#F6-5".
[[nodiscard]] bool SaveDetails(Program& program, FoodDetails& details);

}  // namespace kelvora
