#include "language/compare_texts.h"
#include "language/export_form_texts.h"
#include "language/print_texts.h"
#include "language/trend_texts.h"
#include "make_help/boxes.h"

namespace kelvora::help {
namespace {

using namespace compare_text;
using namespace export_form_text;
using print_text::kNoPrinter;
using print_text::kNoPrinterAdvice;
using trend_text::kFillInMoreDays;
using trend_text::kTooFewDays;
using trend_text::kTwoDaysNeeded;

const std::vector<BoxHelp> kBoxes = {
    {{kTooFewDays, kTwoDaysNeeded, kFillInMoreDays},
     {"The trend draws lines between days, and this user has fewer than two that are saved.",
      "De trend trekt lijnen tussen dagen, en deze gebruiker heeft er minder dan twee opgeslagen."},
     {"Save the open day, and come back tomorrow.", "Sla de open dag op en kom morgen terug."}},
    {{kTooManyFoods, kOneFoodPerBox},
     {"Each box of the comparison takes one food.",
      "Elk vak van de vergelijking neemt één voedingsmiddel."},
     {"Select one row and drag it again.", "Selecteer één rij en sleep opnieuw."}},
    {{kNoConsumptions, kDragFromDatabase},
     {"You dragged a row of the morning, the afternoon or the evening.",
      "Je sleepte een rij van de ochtend, de middag of de avond."},
     {"Drag the food from the food lists instead.",
      "Sleep het voedingsmiddel uit de voedingsmiddelenlijsten."}},
    {{kNoDays, kSelectDays},
     {"No day is selected, so there is nothing to export.",
      "Er is geen dag geselecteerd, dus er valt niets te exporteren."},
     {"Select days in the list, or tick the box for all of them.",
      "Selecteer dagen in de lijst, of vink het vak voor alle dagen aan."}},
    {{kTooManyDaysTitle, kTooManyDays, kGraphLayout, kContinueSure},
     {"Graphs of more than 92 days become wider than the page.",
      "Grafieken van meer dan 92 dagen worden breder dan de pagina."},
     {"Yes makes the report all the same. No lets you take away days or the graphs.",
      "Met Ja wordt het rapport toch gemaakt. Met Nee kun je dagen of de grafieken weglaten."}},
    {{kSavedAs, kSubmitDta},
     {"The DTA file is written; the box says where.",
      "Het DTA-bestand is geschreven; de melding zegt waar."},
     {"Give it to whoever asked for it, if you want to. The program sends it nowhere.",
      "Geef het aan wie erom vroeg, als je wilt. Het programma stuurt het nergens heen."}},
    {{kNoPrinter, kNoPrinterAdvice},
     {"No printer is chosen, or the chosen one isn't there now.",
      "Er is geen printer gekozen, of de gekozen printer is er nu niet."},
     {"Switch it on, or choose another one in the settings.",
      "Zet hem aan, of kies een andere in de instellingen."}},
    {{OwnText::sheet_too_small},
     {"The page is longer than the paper of this printer.",
      "De pagina is langer dan het papier van deze printer."},
     {"Yes prints what fits. No lets you choose larger paper for the printer first.",
      "Met Ja wordt afgedrukt wat erop past. Met Nee kun je eerst groter papier voor de printer "
      "kiezen."}},
};

}  // namespace

BoxGroup BoxesOfResults() {
  return {{"Trend, comparison, reports and printing", "Trend, vergelijken, rapporten en afdrukken"},
          kBoxes};
}

}  // namespace kelvora::help
