#include "language/day_settings_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace day_settings_text;

constexpr std::array kRows = {
    TextRow{kTitleNewDay, "Start a new day"_w, "Begin een nieuwe dag"_w},
    TextRow{
        kInfoNoUsers,
        "Please fill in all fields if you start as a new user. If you're an existing user you can select your name from the user list and fill in the required fields."_w,
        "Vul alle velden in als je als nieuwe gebruiker begint. Ben je al gebruiker, kies dan je naam uit de lijst met gebruikers en vul de verplichte velden in."_w},
    TextRow{
        kInfoOneUser,
        "Please enter your weight and a date in the fields below. Press 'Start' to save changes."_w,
        "Vul hieronder je gewicht en een datum in. Druk op 'Start' om de wijzigingen te bewaren."_w},
    TextRow{
        kInfoSeveralUsers,
        "Select a username and fill in the empty fields. Press 'Start' to save changes."_w,
        "Kies een gebruikersnaam en vul de lege velden in. Druk op 'Start' om de wijzigingen te bewaren."_w},
    TextRow{kTabUserAndDay, "User and day settings"_w, "Gebruiker en dag"_w},
    TextRow{kTabAdditional, "Additional user information"_w, "Aanvullende gegevens"_w},
    TextRow{kTabNutritions, "Nutritions"_w, "Voedingswaarden"_w},
    TextRow{kUsers, "Users:"_w, "Gebruikers:"_w},
    TextRow{kTipNewUser, "Start a new user"_w, "Begin een nieuwe gebruiker"_w},
    TextRow{kTipDeleteUser, "Delete the selected user"_w, "Verwijder de gekozen gebruiker"_w},
    TextRow{kName, "Name:"_w, "Naam:"_w},
    TextRow{kGender, "Gender:"_w, "Geslacht:"_w},
    TextRow{kMale, "Male"_w, "Man"_w},
    TextRow{kFemale, "Female"_w, "Vrouw"_w},
    TextRow{kAge, "Age:"_w, "Leeftijd:"_w},
    TextRow{kHeight, "Height:"_w, "Lengte:"_w},
    TextRow{kMeter, "Meter"_w, "Meter"_w},
    TextRow{kGoalWeight, "Goal weight:"_w, "Streefgewicht:"_w},
    TextRow{kKilogram, "KG "_w, "KG "_w},
    TextRow{kPounds, "Lbs"_w, "Lbs"_w},
    TextRow{kDate, "Date:"_w, "Datum:"_w},
    TextRow{kDateDay, "Day"_w, "Dag"_w},
    TextRow{kDateMonth, "Month"_w, "Maand"_w},
    TextRow{kDateYear, "Year"_w, "Jaar"_w},
    TextRow{kWeekday, "Day:"_w, "Dag:"_w},
    TextRow{kWeight, "Weight:"_w, "Gewicht:"_w},
    TextRow{kStart, "Start"_w, "Start"_w},
    TextRow{kCancel, "Cancel"_w, "Annuleren"_w},
    TextRow{kIllegalCharacters, "Some fields contain illegal characters."_w,
            "Sommige velden bevatten ongeldige tekens."_w},
    TextRow{kHalfNotAllowed, "The characters half and three-quarters can not be used."_w,
            "De tekens half en driekwart kun je niet gebruiken."_w},
    TextRow{kRemoveCharacters, "Remove these characters and try again."_w,
            "Verwijder deze tekens en probeer het opnieuw."_w},
    TextRow{kNoName, "You did not enter a name."_w, "De naam is niet ingevoerd."_w},
    TextRow{kEnterName, "Please enter a name and try again."_w,
            "Voer een naam in en probeer het opnieuw."_w},
    TextRow{kWrongHeight, "You did not enter your height correctly."_w,
            "De lengte is niet correct ingevoerd."_w},
    TextRow{kEnterHeight, "Use 1.80 meter or 5'10'' feet, inch."_w,
            "Gebruik 1.80 meter of 5'10'' feet, inch."_w},
    TextRow{kWrongWeight, "You did not enter your weight or goal weight correctly."_w,
            "Het gewicht of het streefgewicht is niet correct ingevoerd."_w},
    TextRow{kEnterWeight, "Please enter your weight and try again."_w,
            "Voer je gewicht in en probeer het opnieuw."_w},
    TextRow{kNoGender, "You did not select a gender."_w, "Het geslacht is niet gekozen."_w},
    TextRow{kSelectGender, "Select MALE or FEMALE"_w, "Kies MAN of VROUW"_w},
    TextRow{kNoAge, "You did not enter your age."_w, "De leeftijd is niet ingevoerd."_w},
    TextRow{kEnterAge, "Please enter an age between 13 and 99 years."_w,
            "Voer een leeftijd in tussen de 13 en 99 jaar."_w},
    TextRow{kWrongDate, "You did not enter the date correctly."_w,
            "De datum is niet correct ingevoerd."_w},
    TextRow{kCheckDate, "Check the date and try again."_w,
            "Controleer de datum en probeer het opnieuw."_w},
};
static_assert(RowsAreInOrder(kRows));

}  // namespace

std::span<const TextRow> DaySettingsTextRows() {
  return kRows;
}

}  // namespace kelvora
