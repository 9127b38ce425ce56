#include "language/lists_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace lists_text;

constexpr std::array kRows = {
    TextRow{kTitle, "Food items"_w, "Voedingsmiddelen"_w},
    TextRow{kButtonStandard, "Standard list  "_w, "Standaardlijst  "_w},
    TextRow{kButtonOwn, "My own list    "_w, "Mijn eigen lijst    "_w},
    TextRow{kButtonFavourites, "Favourites list  "_w, "Favorietenlijst  "_w},
    TextRow{kButtonInternet, "Internet list    "_w, "Internetlijst    "_w},
    TextRow{kColumnNumber, "#"_w, "#"_w},
    TextRow{kColumnFood, "Food item:"_w, "Voedingsmiddel:"_w},
    TextRow{kColumnUnit, "Unit:"_w, "Eenheid:"_w},
    TextRow{kColumnGram, "Gram:"_w, "Gram:"_w},
    TextRow{kColumnOz, "oz:"_w, "oz:"_w},
    TextRow{kColumnKj, "Kj.:"_w, "Kj.:"_w},
    TextRow{kColumnKcal, "Kcal.:"_w, "Kcal.:"_w},
    TextRow{kColumnFatU, "Fat (u).:"_w, "Vet (o).:"_w},
    TextRow{kColumnFatS, "Fat (s).:"_w, "Vet (v).:"_w},
    TextRow{kColumnCarbs, "Carb.:"_w, "Koolh.:"_w},
    TextRow{kColumnProtein, "Prot.:"_w, "Eiwit.:"_w},
    TextRow{kSelectCategory, "Select a food item category:"_w,
            "Kies een categorie voedingsmiddelen:"_w},
    TextRow{kSearchHint, "Search food item (enter a food item and press ENTER):"_w,
            "Zoek een voedingsmiddel (vul het in en druk op ENTER):"_w},
    TextRow{kStatusStandard, "Standard list"_w, "Standaardlijst"_w},
    TextRow{kStatusOwn, "My own list"_w, "Mijn eigen lijst"_w},
    TextRow{kStatusFavourites, "Favourites list"_w, "Favorietenlijst"_w},
    TextRow{kStatusInternet, "Internet"_w, "Internet"_w},
    TextRow{kAvailable, "food items available"_w, "voedingsmiddelen beschikbaar"_w},
    TextRow{kResultsFound, "results found"_w, "resultaten gevonden"_w},
    TextRow{kTooManyDragged, "You can not drag more then 10 food items at the same time."_w,
            "Je kunt niet meer dan 10 voedingsmiddelen tegelijk slepen."_w},
    TextRow{kSelectAgain, "Please select the food item(s) again."_w,
            "Selecteer de voedingsmiddelen opnieuw."_w},
    TextRow{kCopyQuestion,
            "Your own list will be copied to the standard list, for all users of this program."_w,
            "Je eigen lijst wordt gekopieerd naar de standaardlijst, voor alle gebruikers."_w},
    TextRow{kCopySure, "Do you want to copy 'my own list' to the standard list?"_w,
            "Wil je 'mijn eigen lijst' naar de standaardlijst kopiëren?"_w},
};
static_assert(RowsAreInOrder(kRows));

}  // namespace

std::span<const TextRow> ListsTextRows() {
  return kRows;
}

}  // namespace kelvora
