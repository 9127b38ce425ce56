#include "language/built_in_texts.h"
#include "language/consumption_texts.h"

namespace kelvora {
namespace {

using namespace consumption_text;

constexpr TextTable kTable = TextTable::taal_afternoon;

constexpr std::array kRows = {
    TextRow{{kTable, kTitle}, "Afternoon consumptions"_w, "Middagconsumpties"_w},
    TextRow{{kTable, kTipTotals}, "Nutrition count"_w, "Voedingswaarden tellen"_w},
    TextRow{{kTable, kTipCombine},
            "Make 1 food item of the food items below"_w,
            "Maak 1 voedingsmiddel van de voedingsmiddelen hieronder"_w},
    TextRow{{kTable, kTipPlus}, "Selected food item +1"_w, "Geselecteerd voedingsmiddel +1"_w},
    TextRow{{kTable, kTipMinus}, "Selected food item -1"_w, "Geselecteerd voedingsmiddel -1"_w},
    TextRow{{kTable, kTipRemove},
            "Remove selected food item"_w,
            "Verwijder het geselecteerde voedingsmiddel"_w},
    TextRow{{kTable, kStatus}, "Afternoon"_w, "Middag"_w},
    TextRow{{kTable, kColumnNumber}, "#"_w, "#"_w},
    TextRow{{kTable, kColumnCount}, "X  "_w, "X  "_w},
    TextRow{{kTable, kColumnFood}, "Food item"_w, "Voedingsmiddel"_w},
    TextRow{{kTable, kColumnUnit}, "Unit"_w, "Eenheid"_w},
    TextRow{{kTable, kColumnGram}, "Gram"_w, "Gram"_w},
    TextRow{{kTable, kColumnOz}, "oz:"_w, "oz:"_w},
    TextRow{{kTable, kColumnKj}, "Kj "_w, "Kj "_w},
    TextRow{{kTable, kColumnKcal}, "Kcal"_w, "Kcal"_w},
    TextRow{{kTable, kColumnFatU}, "Fat(u)"_w, "Vet(o)"_w},
    TextRow{{kTable, kColumnFatS}, "Fat(s)"_w, "Vet(v)"_w},
    TextRow{{kTable, kColumnCarbs}, "Carbs."_w, "Koolh."_w},
    TextRow{{kTable, kColumnProtein}, "Prt."_w, "Eiw."_w},
    TextRow{{kTable, kEnergy}, "Energy"_w, "Energie"_w},
    TextRow{{kTable, kFatU}, "Fat(u)"_w, "Vet(o)"_w},
    TextRow{{kTable, kFatS}, "Fat(s)"_w, "Vet(v)"_w},
    TextRow{{kTable, kProtein}, "Protein"_w, "Eiwit"_w},
    TextRow{{kTable, kCarbohydrates}, "Carbohydrates"_w, "Koolhydraten"_w},
    TextRow{{kTable, kSodium}, "Sodium"_w, "Natrium"_w},
    TextRow{{kTable, kWeight}, "Weight"_w, "Gewicht"_w},
    TextRow{{kTable, kLimitAdd},
            "You can not add more food items."_w,
            "Je kunt geen voedingsmiddelen meer toevoegen."_w},
    TextRow{{kTable, kLimitReached},
            "You have reached the maximum of 50 food items in the afternoon."_w,
            "Je hebt het maximum van 50 voedingsmiddelen in de middag bereikt."_w},
    TextRow{{kTable, kLimitRemove},
            "You have to remove some food items and try again."_w,
            "Verwijder eerst een paar voedingsmiddelen en probeer het dan opnieuw."_w},
    TextRow{{kTable, kLimitDrop},
            "You can not add more food items."_w,
            "Je kunt geen voedingsmiddelen meer toevoegen."_w},
};
static_assert(RowsAreInOrder(kRows));

}  // namespace

std::span<const TextRow> AfternoonTextRows() {
  return kRows;
}

}  // namespace kelvora
