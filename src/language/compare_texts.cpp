#include "language/compare_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace compare_text;

constexpr std::array kRows = {
    TextRow{kTitle, "Food comparison"_w, "Voedingsmiddelen vergelijken"_w},
    TextRow{kTipDropFood1, "Drag food item 1 to this field"_w,
            "Sleep voedingsmiddel 1 naar dit vak"_w},
    TextRow{kTipDropFood2, "Drag food item 2 to this field"_w,
            "Sleep voedingsmiddel 2 naar dit vak"_w},
    TextRow{kTabPerUnit, "Per Unit"_w, "Per eenheid"_w},
    TextRow{kTabPer100, "Per 100 grams"_w, "Per 100 gram"_w},
    TextRow{kTabHelp, "Help"_w, "Help"_w},
    TextRow{kTipPerUnit, "Compare nutrition's per unit"_w,
            "Vergelijk de voedingswaarden per eenheid"_w},
    TextRow{kTipPer100, "Compare nutrition's per 100 grams"_w,
            "Vergelijk de voedingswaarden per 100 gram"_w},
    TextRow{kTipHelp, "Help"_w, "Uitleg bij het vergelijken"_w},
    TextRow{kFrameUnitFood1, "Food item 1:"_w, "Voedingsmiddel 1:"_w},
    TextRow{kFrameUnitFood2, "Food item 2:"_w, "Voedingsmiddel 2:"_w},
    TextRow{kFrameUnitDetails1, "Details 1:"_w, "Details 1:"_w},
    TextRow{kFrameUnitDetails2, "Details 2:"_w, "Details 2:"_w},
    TextRow{kFrame100Food1, "Food item 1:"_w, "Voedingsmiddel 1:"_w},
    TextRow{kFrame100Food2, "Food item 2:"_w, "Voedingsmiddel 2:"_w},
    TextRow{kFrame100Details1, "Details 1 (per 100 grams)"_w, "Details 1 (per 100 gram)"_w},
    TextRow{kFrame100Details2, "Details 2 (per 100 grams)"_w, "Details 2 (per 100 gram)"_w},
    TextRow{kFrameHelp, "Help"_w, "Help"_w},
    Filler(TextTable::taal_compare, 18),
    TextRow{kWeight, "Weight:"_w, "Gewicht:"_w},
    TextRow{kUnit, "Unit:"_w, "Eenheid:"_w},
    TextRow{kEnergy, "Energy:"_w, "Energie:"_w},
    TextRow{kUnitKj, "Kj "_w, "Kj "_w},
    TextRow{kUnitKcal, "Kcal"_w, "Kcal"_w},
    TextRow{kFatU, "Fat(u)"_w, "Vet(o)"_w},
    TextRow{kFatS, "Fat(s)"_w, "Vet(v)"_w},
    TextRow{kSodium, "Sodium"_w, "Natrium"_w},
    TextRow{kProtein, "Protein"_w, "Eiwit"_w},
    TextRow{kCarbohydrates, "Carbohydrates"_w, "Koolhydraten"_w},
    TextRow{kUnitGram, "Gram"_w, "Gram"_w},
    TextRow{kUnitOunces, "oz "_w, "oz "_w},
    Filler(TextTable::taal_compare, 31),
    TextRow{
        kHelpAbout,
        "With the food comparison function you can compare nutritional values of different food items. Food items can be compare per unit or per 100 gram."_w,
        "Met deze functie vergelijk je de voedingswaarden van verschillende voedingsmiddelen. Je kunt ze per eenheid of per 100 gram vergelijken."_w},
    TextRow{kHelpSteps, "Follow the next steps to make a comparison:"_w,
            "Volg deze stappen om een vergelijking te maken:"_w},
    TextRow{kHelpDropFood1, "Drag and drop a food item from a database on box (1)."_w,
            "Sleep een voedingsmiddel uit een database naar vak (1)."_w},
    TextRow{kHelpDropFood2, "Drag and drop a food item from a database on box (2)."_w,
            "Sleep een voedingsmiddel uit een database naar vak (2)."_w},
    TextRow{kHelpCompare, "Compare the food items per unit or per 100 gram."_w,
            "Vergelijk de voedingsmiddelen per eenheid of per 100 gram."_w},
    Filler(TextTable::taal_compare, 37),
    TextRow{kTooManyFoods, "You have selected to many food items."_w,
            "Je hebt te veel voedingsmiddelen geselecteerd."_w},
    TextRow{kOneFoodPerBox, "You can only drag and drop 1 food item per box."_w,
            "Je kunt maar 1 voedingsmiddel naar een vak slepen."_w},
    TextRow{kNoConsumptions, "Food items from the 'consumption' screens cannot be compared."_w,
            "Voedingsmiddelen uit de consumptieschermen kun je niet vergelijken."_w},
    TextRow{
        kDragFromDatabase,
        "Select a food item from a database and drag it on one of the boxes (1 or 2)."_w,
        "Kies een voedingsmiddel uit een database en sleep het naar een van de twee vakken (1 of 2)."_w},
};
static_assert(RowsFill(kRows, 42, 3));

}  // namespace

std::span<const TextRow> CompareTextRows() {
  return kRows;
}

}  // namespace kelvora
