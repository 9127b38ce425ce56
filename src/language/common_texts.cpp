#include "language/common_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace common_text;

constexpr std::array kRows = {
    TextRow{kSeparatorChanged, "The separation character of you computer has been changed!"_w,
            "Het scheidingsteken van je computer is gewijzigd!"_w},
    TextRow{kSeparatorAtStart, "When you started Kelvora FOOD the separation character was"_w,
            "Toen je Kelvora FOOD startte, was het scheidingsteken"_w},
    TextRow{kCannotContinue, "Kelvora FOOD cannot continue working."_w,
            "Kelvora FOOD kan niet verder werken."_w},
    TextRow{kDoNotSave, "! DO NOT SAVE THE CURRENT FILE"_w, "! SLA HET HUIDIGE BESTAND NIET OP"_w},
    TextRow{kCloseAndStart, "! CLOSE THE PROGRAM AND START AGAIN"_w,
            "! SLUIT HET PROGRAMMA AF EN START HET OPNIEUW"_w},
    TextRow{kSeparatorIs, "The separation character of windows is currently set to"_w,
            "Het scheidingsteken van windows staat nu ingesteld op"_w},
    TextRow{kSeparatorMustBe, "the separation character must be a.  (point) or a ,(comma)"_w,
            "het scheidingsteken moet een .  (punt) of een ,(komma) zijn"_w},
    TextRow{kCannotUse, "YOU cannot use Kelvora!"_w, "JE kunt Kelvora zo niet gebruiken!"_w},
    TextRow{kHalfNotDisplayed,
            "The 'half' (1/2) character can't be displayed on your computer correctly."_w,
            "Het teken 'half' (1/2) kan op je computer niet goed worden weergegeven."_w},
    TextRow{kHalfNeeded,
            "Kelvora FOOD can only work if the character 'half' (1/2) is displayed correctly."_w,
            "Kelvora FOOD kan alleen werken als het teken 'half' (1/2) goed wordt weergegeven."_w},
    TextRow{kHalfErrors, "If you continue to work with Kelvora FOOD error will occur!"_w,
            "Als je met Kelvora FOOD verder werkt, gaan er fouten optreden!"_w},
    TextRow{kHalfClose, "Close Kelvora FOOD and change the county settings."_w,
            "Sluit Kelvora FOOD af en wijzig de landinstellingen."_w},
    TextRow{kResolutionIs, "Your screen resolution is currently set to"_w,
            "De resolutie van je scherm staat nu op"_w},
    TextRow{kResolutionAdvice, "We recommend a screen resolution of 1024X768 for Kelvora FOOD."_w,
            "Wij raden voor Kelvora FOOD een schermresolutie van 1024X768 aan."_w},
    TextRow{kResolutionChange, "We recommend that you change your screen resolution."_w,
            "Wij raden je aan om de schermresolutie te wijzigen."_w},
    TextRow{kResolutionWhere,
            "You can change the screen resolution in the windows configuration screen."_w,
            "De schermresolutie wijzig je in het configuratiescherm van windows."_w},
    TextRow{kOpenFileTitle, "Open file"_w, "Bestand openen"_w},
    TextRow{kOpenFileGoing, "You are going to open another Kelvora FOOD file."_w,
            "Je gaat een ander bestand van Kelvora FOOD openen."_w},
    TextRow{kOpenFileNotSaved, "The file that you are working in is not saved yet."_w,
            "Het bestand waarin je werkt, is nog niet opgeslagen."_w},
    TextRow{kOpenFileSure, "Are you sure that you want to open another file?"_w,
            "Weet je zeker dat je een ander bestand wilt openen?"_w},
    TextRow{kMorningContains, "Morning contains:"_w, "De ochtend bevat:"_w},
    TextRow{kAfternoonContains, "Afternoon contains:"_w, "De middag bevat:"_w},
    TextRow{kEveningContains, "Evening contains: "_w, "De avond bevat: "_w},
    TextRow{kUnitKj, "Kj "_w, "Kj "_w},
    TextRow{kUnitKcal, "Kcal"_w, "Kcal"_w},
    TextRow{kUnitFatU, "Fat(u)"_w, "Vet(o)"_w},
    TextRow{kUnitFatS, "Fat(s)"_w, "Vet(v)"_w},
    TextRow{kUnitCarbohydrates, "Carbohydrates"_w, "Koolhydraten"_w},
    TextRow{kUnitProteins, "Proteins"_w, "Eiwitten"_w},
    TextRow{kFavouriteExists, "This food item already exists in the favourites list."_w,
            "Dit voedingsmiddel staat al in de favorietenlijst."_w},
    TextRow{kFavouriteOnlyOnce, "A food item can be only used once in the favourites list."_w,
            "Een voedingsmiddel kan maar één keer in de favorietenlijst staan."_w},
    TextRow{kFavouriteAdded, "The food item has been added to the favourites list."_w,
            "Het voedingsmiddel is aan de favorietenlijst toegevoegd."_w},
    TextRow{kFirstRunNotFound, "The file 'kvfset.dat' has not been found or has been damaged."_w,
            "Het bestand 'kvfset.dat' is niet gevonden of is beschadigd."_w},
    TextRow{kFirstRunProbably, "Probably this is the first time that you start Kelvora FOOD."_w,
            "Waarschijnlijk is dit de eerste keer dat je Kelvora FOOD start."_w},
    TextRow{kFirstRunPressOk, "Press OK to open the settings screen."_w,
            "Klik op OK om het instellingenscherm te openen."_w},
};
static_assert(RowsAreInOrder(kRows));

}  // namespace

std::span<const TextRow> CommonTextRows() {
  return kRows;
}

}  // namespace kelvora
