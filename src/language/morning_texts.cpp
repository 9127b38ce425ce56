#include "language/built_in_texts.h"
#include "language/consumption_texts.h"

namespace kelvora {
namespace {

using namespace consumption_text;

constexpr TextTable kTable = TextTable::taal_morning;

constexpr std::array kRows = {
    TextRow{{kTable, kTitle}, "Morning consumptions"_w, "Ochtendconsumpties"_w},
    TextRow{{kTable, kTipTotals}, "Nutrition count"_w, "Voedingswaarden tellen"_w},
    TextRow{{kTable, kTipCombine},
            "Make 1 food item of the food items below"_w,
            "Maak 1 voedingsmiddel van de voedingsmiddelen hieronder"_w},
    TextRow{{kTable, kTipPlus}, "Selected food item +1"_w, "Geselecteerd voedingsmiddel +1"_w},
    TextRow{{kTable, kTipMinus}, "Selected food item -1"_w, "Geselecteerd voedingsmiddel -1"_w},
    TextRow{{kTable, kTipRemove},
            "Remove selected food item"_w,
            "Verwijder het geselecteerde voedingsmiddel"_w},
    TextRow{{kTable, kStatus}, "Morning"_w, "Ochtend"_w},
    TextRow{{kTable, kColumnNumber}, "#"_w, "#"_w},
    TextRow{{kTable, kColumnCount}, " X "_w, " X "_w},
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
    TextRow{{kTable, kCombineName}, "Name"_w, "Naam"_w},
    TextRow{{kTable, kCombineUnit}, "Unit"_w, "Eenheid"_w},
    TextRow{{kTable, kCombineSave}, "Save"_w, "Opslaan"_w},
    Filler(kTable, 29),
    Filler(kTable, 30),
    TextRow{{kTable, kLimitAdd},
            "You can not add more food items."_w,
            "Je kunt geen voedingsmiddelen meer toevoegen."_w},
    TextRow{{kTable, kLimitReached},
            "You have reached the maximum of 50 food items in the morning."_w,
            "Je hebt het maximum van 50 voedingsmiddelen in de ochtend bereikt."_w},
    TextRow{{kTable, kLimitRemove},
            "You have to remove some food items and try again."_w,
            "Verwijder eerst een paar voedingsmiddelen en probeer het dan opnieuw."_w},
    TextRow{{kTable, kLimitDrop},
            "An error occurred while processing data."_w,
            "Je kunt geen voedingsmiddelen meer toevoegen."_w},
    Filler(kTable, 35),
    TextRow{{kTable, kCombineTooFew},
            "You need at least 2 food items."_w,
            "Je hebt minstens 2 voedingsmiddelen nodig om er één van te maken."_w},
    TextRow{{kTable, kCombineAddMore},
            "Add more food items and try again."_w,
            "Voeg nog een voedingsmiddel toe en probeer het opnieuw."_w},
    TextRow{{kTable, kCombineNoName},
            "Please enter a name for the new food item."_w,
            "Het nieuwe voedingsmiddel heeft nog geen naam."_w},
    TextRow{{kTable, kCombineEnterName},
            "Enter a name for the food item."_w,
            "Vul een naam in voor het voedingsmiddel."_w},
    TextRow{{kTable, kCombineIllegal},
            "Some fields contain illegal characters."_w,
            "Sommige velden bevatten ongeldige tekens."_w},
    TextRow{{kTable, kCombineHalf},
            "The characters half and three-quarters can not be used."_w,
            "De tekens half en driekwart kun je niet gebruiken."_w},
    TextRow{{kTable, kCombineRemove},
            "Remove the illegal characters and try again."_w,
            "Verwijder de ongeldige tekens en probeer het opnieuw."_w},
    TextRow{{kTable, kCombineExists},
            "The name for the food item already exists in the list."_w,
            "Er staat al een voedingsmiddel met deze naam in je eigen lijst."_w},
    TextRow{{kTable, kCombineRename},
            "Please change the name of the food item and try again."_w,
            "Geef het voedingsmiddel een andere naam en probeer het opnieuw."_w},
    TextRow{{kTable, kCombineSaved},
            "has been saved in the 'own list' and saved in the moring consumption list."_w,
            "is opgeslagen in de 'eigen lijst' en staat nu in de lijst met ochtendconsumpties."_w},
    Filler(kTable, 46),
    Filler(kTable, 47),
    Filler(kTable, 48),
    Filler(kTable, 49),
    TextRow{{kTable, kSharedDropHint},
            "Drag food items from the food lists and drop them here."_w,
            "Sleep voedingsmiddelen uit de voedingsmiddelenlijsten hierheen en laat ze los."_w},
};
static_assert(RowsFill(kRows, 51, 7));

}  // namespace

std::span<const TextRow> MorningTextRows() {
  return kRows;
}

}  // namespace kelvora
