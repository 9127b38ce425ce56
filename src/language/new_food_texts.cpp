#include "language/new_food_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace new_food_text;

constexpr TextTable kTable = TextTable::taal_new_food;

constexpr std::array kRows = {
    TextRow{kTitle, "Add new food item"_w, "Nieuw voedingsmiddel toevoegen"_w},
    TextRow{kIntroduction, "Enter the nutritional values as printed on the package."_w,
            "Vul de voedingswaarden in zoals ze op de verpakking staan."_w},
    TextRow{kIntroductionPortion,
            "Kelvora FOOD calculates the values for the weight of the new food item."_w,
            "Kelvora FOOD rekent ze om naar het gewicht van het nieuwe voedingsmiddel."_w},
    TextRow{kOriginalFrame, "Original nutritional value:"_w, "Oorspronkelijke voedingswaarde:"_w},
    TextRow{kOriginalWeight, "These values are for:"_w, "Deze waarden gelden voor:"_w},
    TextRow{kNewFoodFrame, "Nutritional value of the new food item:"_w,
            "Voedingswaarde van het nieuwe voedingsmiddel:"_w},
    TextRow{kName, "Name:"_w, "Naam:"_w},
    TextRow{kUnit, "Unit:"_w, "Eenheid:"_w},
    TextRow{kPortionWeight, "Weight:"_w, "Gewicht:"_w},
    TextRow{kGram, "gram"_w, "gram"_w},
    TextRow{kOz, "oz"_w, "oz"_w},
    TextRow{kKilojoules, "Kilojoules:"_w, "Kilojoules:"_w},
    TextRow{kKilocalories, "Kilocalories:"_w, "Kilocalorieën:"_w},
    TextRow{kSaturatedFat, "Saturated fat:"_w, "Verzadigd vet:"_w},
    TextRow{kUnsaturatedFat, "Unsaturated fat:"_w, "Onverzadigd vet:"_w},
    TextRow{kProtein, "Protein:"_w, "Eiwit:"_w},
    TextRow{kCarbohydrates, "Carbohydrates:"_w, "Koolhydraten:"_w},
    TextRow{kSodium, "Sodium:"_w, "Natrium:"_w},
    TextRow{kSodiumWarning, "(Beware: 1mg  = 0.001 gram)"_w, "(Let op: 1 mg is 0,001 gram)"_w},
    TextRow{kUnitKj, "Kj"_w, "Kj"_w},
    TextRow{kUnitKcal, "Kcal"_w, "Kcal"_w},
    TextRow{kLinkEnergy, "KCal = Kj"_w, "KCal = Kj"_w},
    TextRow{kAddToInternet, "Add (also) to internet database."_w,
            "(Ook) toevoegen aan de internetdatabase."_w},
    TextRow{kAdd, "Add"_w, "Toevoegen"_w},
    TextRow{kCancel, "Cancel"_w, "Annuleren"_w},
    Filler(kTable, 25),
    TextRow{kUnitChoicePiece, "1 piece"_w, "1 stuk"_w},
    TextRow{kUnitChoiceSpoon, "1 spoon"_w, "1 lepel"_w},
    TextRow{kUnitChoiceGlass, "1 glass"_w, "1 glas"_w},
    TextRow{kUnitChoiceDish, "1 dish"_w, "1 bord"_w},
    TextRow{kUnitChoiceSlice, "1 slice, for"_w, "1 plakje, voor"_w},
    TextRow{kTipOriginalWeight, "The weight that the values on the package refer to"_w,
            "Het gewicht waarvoor de waarden op de verpakking gelden"_w},
    TextRow{kTipLinkEnergy, "Calculate kilocalories from kilojoules and the other way round"_w,
            "Reken kilojoules automatisch om naar kilocalorieën en andersom"_w},
    TextRow{kTipUnit, "Choose a unit or type one yourself"_w,
            "Kies een eenheid of typ er zelf een in"_w},
    TextRow{kTipPortionWeight, "The weight of one portion of the new food item, in whole grams"_w,
            "Het gewicht van één portie van het nieuwe voedingsmiddel, in hele grammen"_w},
    TextRow{
        kTipAddToInternet,
        "Send the values per 100 grams to the food server, so that other users can find them"_w,
        "Stuur de waarden per 100 gram naar de voedingsmiddelenserver, zodat andere gebruikers ze kunnen vinden"_w},
    TextRow{kTipAdd, "Save the new food item in 'my own list'"_w,
            "Sla het nieuwe voedingsmiddel op in 'mijn eigen lijst'"_w},
    TextRow{kTipCancel, "Close this window without adding the food item"_w,
            "Sluit dit venster zonder het voedingsmiddel toe te voegen"_w},
    Filler(kTable, 38),
    TextRow{kHighSodiumTitle, "High sodium value!"_w, "Hoge natriumwaarde!"_w},
    TextRow{kHighSodium, "The sodium value is very high."_w, "De natriumwaarde is erg hoog."_w},
    TextRow{kHighSodiumValue, "The value in the sodium field is"_w,
            "De waarde in het veld natrium is"_w},
    TextRow{kHighSodiumInGram, "Sodium must be entered in gram. 1 gram is 1000 milligram."_w,
            "Natrium vul je in grammen in. 1 gram is 1000 milligram."_w},
    TextRow{kHighSodiumSure, "Are you sure that the current value of Sodium is correct?"_w,
            "Weet je zeker dat de ingevulde waarde voor natrium klopt?"_w},
    TextRow{kNameExists, "The name of the food item already exists."_w,
            "Er bestaat al een voedingsmiddel met deze naam."_w},
    TextRow{kChooseAnotherName, "Choose another name and press 'Add' again."_w,
            "Kies een andere naam en druk nog een keer op 'Toevoegen'."_w},
    TextRow{kSaved, "The food item has been saved in the 'own food list'."_w,
            "Het voedingsmiddel is opgeslagen in de 'eigen voedingsmiddelenlijst'."_w},
    TextRow{kValuesMissing, "You did not enter all the required nutritional values. "_w,
            "Je hebt niet alle verplichte gegevens en voedingswaarden ingevuld. "_w},
    TextRow{kEnterValues, "Please enter the missing values and press 'Add' again."_w,
            "Vul de ontbrekende waarden in en druk nog een keer op 'Toevoegen'."_w},
    TextRow{kIllegalCharacters, "Some fields contain 'illegal' characters."_w,
            "Sommige velden bevatten 'ongeldige' tekens."_w},
    TextRow{
        kHalfNotAllowed,
        "The characters half and three-quarter and other 'exotic' characters can not be used."_w,
        "De tekens half en driekwart en andere 'vreemde' tekens kun je niet gebruiken."_w},
    TextRow{kRemoveCharacters, "Remove the 'illegal' characters and try again."_w,
            "Verwijder de 'ongeldige' tekens en probeer het opnieuw."_w},
    TextRow{kTooMuchData, "The food item contains to much data."_w,
            "Het voedingsmiddel bevat te veel gegevens."_w},
    TextRow{kShortenDescription, "Please use a shorter description."_w,
            "Gebruik een kortere omschrijving."_w},
    Filler(kTable, 54),
    TextRow{kSendErrorTitle, "Error #504"_w, "Fout #504"_w},
    TextRow{
        kSendError,
        "The new food item is saved in the 'my own list' but not added to the internet database."_w,
        "Het nieuwe voedingsmiddel is opgeslagen in 'mijn eigen lijst', maar niet toegevoegd aan de internetdatabase."_w},
    TextRow{kSendErrorCheck, "Check your internet connection and try again."_w,
            "Controleer je internetverbinding en probeer het opnieuw."_w},
    TextRow{
        kSubmitted,
        "The new food item is saved in the 'my own list' and added to the internet database."_w,
        "Het nieuwe voedingsmiddel is opgeslagen in 'mijn eigen lijst' en toegevoegd aan de internetdatabase."_w},
    TextRow{kSubmittedStatus, "The submitted food item has a ' red ' status at this moment."_w,
            "Het ingezonden voedingsmiddel heeft op dit moment de status ' rood '."_w},
    TextRow{kSubmittedCheck, "One of our employees will check the new food item soon."_w,
            "Een van onze medewerkers controleert het nieuwe voedingsmiddel binnenkort."_w},
    TextRow{kSubmittedThanks, "Thanks for your submission!"_w, "Bedankt voor je inzending!"_w},
};
static_assert(RowsFill(kRows, 62, 3));

}  // namespace

std::span<const TextRow> NewFoodTextRows() {
  return kRows;
}

}  // namespace kelvora
