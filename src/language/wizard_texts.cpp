#include "language/wizard_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace wizard_text;

constexpr std::array kRows = {
    TextRow{kTitle, "Kelvora FOOD wizard"_w, "Wizard van Kelvora FOOD"_w},
    TextRow{
        kWelcome,
        "Welcome to Kelvora FOOD, select an option below or press close to exit the wizard."_w,
        "Welkom bij Kelvora FOOD. Kies hieronder wat je wilt doen of klik op Sluiten om de wizard te verlaten."_w},
    TextRow{kMakeChoice, "Make a choice:"_w, "Maak een keuze:"_w},
    TextRow{kNewDay, "Start a new day"_w, "Begin een nieuwe dag"_w},
    TextRow{kOpenDay, "Open a day"_w, "Open een dag"_w},
    TextRow{kSettings, "Settings"_w, "Instellingen"_w},
    TextRow{kManual, "Manual (Help)"_w, "Handleiding (Help)"_w},
    TextRow{kNewDayLine, "Start a new day and fill in your consumptions."_w,
            "Begin een nieuwe dag en vul in wat je eet en drinkt."_w},
    TextRow{kOpenDayLine, "Open an existing day to edit or view."_w,
            "Open een bestaande dag om die te bekijken of te wijzigen."_w},
    TextRow{kSettingsLine, "Go to the settings screen of Kelvora FOOD."_w,
            "Ga naar het instellingenscherm van Kelvora FOOD."_w},
    TextRow{kManualLine, "Start the manual of Kelvora FOOD"_w,
            "Start de handleiding van Kelvora FOOD"_w},
    TextRow{kTipNewDay, "Also for new users"_w, "Ook als je nieuw bent"_w},
    TextRow{kTipOpenDay, "Choose from the days that you saved before"_w,
            "Kies uit de dagen die je eerder hebt opgeslagen"_w},
    TextRow{kTipSettings, "Language, printer, units and internet"_w,
            "Taal, printer, eenheden en internet"_w},
    TextRow{kTipManual, "Read how Kelvora FOOD works"_w, "Lees hoe Kelvora FOOD werkt"_w},
    TextRow{kShowWizard, "Show the start-up wizard when Kelvora starts."_w,
            "Toon de opstartwizard als Kelvora start."_w},
    TextRow{kOk, " OK "_w, " OK "_w},
    TextRow{kTipOk, "Save changes and start selected"_w,
            "Bewaar de wijzigingen en start je keuze"_w},
    TextRow{kClose, "Close"_w, "Sluiten"_w},
    TextRow{kTipClose, "Closes this window"_w, "Sluit dit scherm"_w},
};
static_assert(RowsFill(kRows, 20, 0));

}  // namespace

std::span<const TextRow> WizardTextRows() {
  return kRows;
}

}  // namespace kelvora
