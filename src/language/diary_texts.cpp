#include "language/diary_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace diary_text;

constexpr std::array kRows = {
    TextRow{kHalfNotAllowed,
            "The characters half and three-quarters are not allowed in the notes!"_w,
            "De tekens half en driekwart zijn niet toegestaan in het dagboek!"_w},
    TextRow{kCannotSave, "The note cannot be saved."_w,
            "Het dagboek kan niet worden opgeslagen."_w},
    TextRow{kTitle, "Diary"_w, "Dagboek"_w},
    TextRow{kTipSave, "Save diary"_w, "Dagboek opslaan"_w},
    TextRow{kContains, "Diary contains"_w, "Het dagboek bevat"_w},
    TextRow{kCharacters, "characters"_w, "tekens"_w},
    TextRow{kRoomFor, "(there is still room for"_w, "(er is nog ruimte voor"_w},
    TextRow{kRoomCharacters, "characters)."_w, "tekens)."_w},
};
static_assert(RowsFill(kRows, 8, 0));

}  // namespace

std::span<const TextRow> DiaryTextRows() {
  return kRows;
}

}  // namespace kelvora
