#include "language/browse_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace browse_text;

constexpr std::array kRows = {
    TextRow{kTitle, "Open file"_w, "Bestand openen"_w},
    TextRow{kUsers, "Users:"_w, "Gebruikers:"_w},
    TextRow{kDays, "Days:"_w, "Dagen:"_w},
    TextRow{kTipDays, "Double-click a day to open it"_w,
            "Dubbelklik op een dag om die te openen"_w},
    TextRow{kColumnNumber, "#"_w, "#"_w},
    TextRow{kColumnPath, "Filenamefull"_w, "Volledige bestandsnaam"_w},
    TextRow{kColumnFile, "Filename"_w, "Bestandsnaam"_w},
    TextRow{kColumnDate, "Date"_w, "Datum"_w},
    TextRow{kColumnDay, "Day"_w, "Dag"_w},
    TextRow{kColumnWeight, "Weight"_w, "Gewicht"_w},
    TextRow{kColumnBmi, "BMI"_w, "BMI"_w},
    TextRow{kColumnKj, "Kj "_w, "Kj "_w},
    TextRow{kColumnKcal, "Kcal"_w, "Kcal"_w},
    TextRow{kColumnFatU, "Fat(u)"_w, "Vet(o)"_w},
    TextRow{kColumnFatS, "Fat(s)"_w, "Vet(v)"_w},
    TextRow{kColumnCarbs, "Carb."_w, "Koolh."_w},
    TextRow{kColumnProtein, "Protein"_w, "Eiwit"_w},
    Filler(TextTable::taal_browse, 17),
    Filler(TextTable::taal_browse, 18, "-EMPTY"),
    TextRow{kProfileOf, "Profile of"_w, "Profiel van"_w},
    TextRow{kReference, "Reference ID:"_w, "Referentie-ID:"_w},
    TextRow{kLastWeight, "Last weight:"_w, "Laatste gewicht:"_w},
    TextRow{kGoalWeight, "Goal weight:"_w, "Streefgewicht:"_w},
    TextRow{kHeight, "Height:"_w, "Lengte:"_w},
    TextRow{kGender, "Gender:"_w, "Geslacht:"_w},
    TextRow{kAge, "Age:"_w, "Leeftijd:"_w},
    TextRow{kUnitKilogram, "Kg "_w, "Kg "_w},
    TextRow{kUnitPounds, "Lbs"_w, "Lbs"_w},
    TextRow{kUnitStones, "Stones"_w, "Stones"_w},
    TextRow{kUnitMeter, "Meter"_w, "Meter"_w},
    Filler(TextTable::taal_browse, 30),
    Filler(TextTable::taal_browse, 31),
    TextRow{kShowProfile, "Show the profile"_w, "Toon het profiel"_w},
    TextRow{kOpen, "Open"_w, "Openen"_w},
    TextRow{kCancel, "Cancel"_w, "Annuleren"_w},
    TextRow{kMenuOptions, "Options"_w, "Opties"_w},
    TextRow{kMenuOpenDay, "Open this day"_w, "Deze dag openen"_w},
    TextRow{kMenuDeleteDay, "Delete this day"_w, "Deze dag verwijderen"_w},
    Filler(TextTable::taal_browse, 38),
    Filler(TextTable::taal_browse, 39),
    TextRow{kSwitchTitle, "Switch to another user."_w, "Naar een andere gebruiker."_w},
    TextRow{kSwitchGoing, "You're going to switch to another Kelvora FOOD user."_w,
            "Je gaat naar een andere gebruiker van Kelvora FOOD."_w},
    TextRow{kSwitchLost, "The currently opened file will be closed and changes will be lost."_w,
            "Het geopende bestand wordt gesloten en wijzigingen gaan verloren."_w},
    TextRow{kSwitchSure, "Do you want to switch to another Kelvora FOOD user?"_w,
            "Wil je naar een andere gebruiker van Kelvora FOOD gaan?"_w},
    TextRow{kDeleteTitle, "Delete selected file?"_w, "Het geselecteerde bestand verwijderen?"_w},
    TextRow{kDeleteSure, "Are you sure that you want to delete the file"_w,
            "Weet je zeker dat je het bestand van"_w},
    TextRow{kDeleteSureEnd, " ? "_w, " wilt verwijderen? "_w},
    TextRow{kDeletePressYes, "Press YES to delete,"_w, "Druk op JA om het te verwijderen,"_w},
    TextRow{kDeletePressNo, "Press NO to cancel."_w, "Druk op NEE om te annuleren."_w},
    Filler(TextTable::taal_browse, 49),
    Filler(TextTable::taal_browse, 50),
    Filler(TextTable::taal_browse, 51),
};
static_assert(RowsFill(kRows, 52, 9));

}  // namespace

std::span<const TextRow> BrowseTextRows() {
  return kRows;
}

}  // namespace kelvora
