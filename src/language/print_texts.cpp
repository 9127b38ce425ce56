#include "language/print_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace print_text;

constexpr std::array kRows = {
    TextRow{kDayTitle, "Kelvora FOOD Summary of this day"_w, "Kelvora FOOD Daguittreksel"_w},
    TextRow{kPersonalDetails, "Personal details:"_w, "Persoonlijke gegevens:"_w},
    TextRow{kDayDate, "Date:"_w, "Datum:"_w},
    TextRow{kHeight, "Height:"_w, "Lengte:"_w},
    TextRow{kMeter, "Meter"_w, "Meter"_w},
    TextRow{kWeight, "Weight:"_w, "Gewicht:"_w},
    TextRow{kKilogram, "Kg"_w, "Kg"_w},
    TextRow{kFoodItems, "Food items:"_w, "Voedingsmiddelen:"_w},
    TextRow{kColumnFood, "Food item:"_w, "Voedingsmiddel:"_w},
    TextRow{kColumnUnit, "Unit:"_w, "Eenheid:"_w},
    TextRow{kColumnCount, "X"_w, "X"_w},
    TextRow{kColumnGram, "Gram"_w, "Gram"_w},
    TextRow{kColumnKj, "Kj"_w, "Kj"_w},
    TextRow{kColumnKcal, "Kcal"_w, "Kcal"_w},
    TextRow{kColumnFatU, "Fat(u)"_w, "Vet(o)"_w},
    TextRow{kColumnFatS, "Fat(s)"_w, "Vet(v)"_w},
    TextRow{kColumnProtein, "Prot."_w, "Eiwit"_w},
    TextRow{kColumnSodium, "Sodium"_w, "Natrium"_w},
    TextRow{kColumnCarbs, "Carb."_w, "Koolh."_w},
    TextRow{kTotals, "Total nutritional values:"_w, "Totale voedingswaarden:"_w},
    TextRow{kTotalGram, "Weight of the food:"_w, "Gewicht van het eten:"_w},
    TextRow{kUnitGram, "gram"_w, "gram"_w},
    TextRow{kTotalKj, "Kilojoules:"_w, "Kilojoules:"_w},
    TextRow{kUnitKj, "Kj"_w, "Kj"_w},
    TextRow{kTotalKcal, "Kilocalories:"_w, "Kilocalorieën:"_w},
    TextRow{kUnitKcal, "Kcal"_w, "Kcal"_w},
    TextRow{kTotalUnsaturatedFat, "Unsaturated fat:"_w, "Onverzadigd vet:"_w},
    TextRow{kTotalSaturatedFat, "Saturated fat:"_w, "Verzadigd vet:"_w},
    TextRow{kTotalProtein, "Protein:"_w, "Eiwit:"_w},
    TextRow{kTotalSodium, "Sodium:"_w, "Natrium:"_w},
    TextRow{kTotalCarbohydrates, "Carbohydrates:"_w, "Koolhydraten:"_w},
    TextRow{kPrintedOn, "Printed with Kelvora FOOD on"_w, "Afgedrukt met Kelvora FOOD op"_w},
    TextRow{kTravelTitle, "Kelvora travel form"_w, "Kelvora reisformulier"_w},
    TextRow{kTravelDay, "Day:"_w, "Dag:"_w},
    TextRow{kTravelDate, "Date:"_w, "Datum:"_w},
    TextRow{kMorning, "Morning:"_w, "Ochtend:"_w},
    TextRow{kCount, "Count:"_w, "Aantal:"_w},
    TextRow{kAfternoon, "Afternoon:"_w, "Middag:"_w},
    TextRow{kEvening, "Evening:"_w, "Avond:"_w},
    TextRow{kPounds, "Lbs"_w, "Lbs"_w},
    TextRow{kFeetInch, "Feet, inch"_w, "Feet, inch"_w},
    TextRow{kNoPrinter, "Kelvora FOOD couldn't find a printer."_w,
            "Kelvora FOOD kan geen printer vinden voor deze functie."_w},
    TextRow{kNoPrinterAdvice, "Select a printer in the settings screen and try again."_w,
            "Selecteer een printer in het instellingenscherm en probeer opnieuw."_w},
    TextRow{kReference, "Reference ID:"_w, "Referentie-ID:"_w},
    TextRow{kGoalWeight, "Goal weight:"_w, "Streefgewicht:"_w},
    TextRow{kStones, "Stones"_w, "Stones"_w},
    TextRow{kUnitOz, "oz"_w, "oz"_w},
    TextRow{kMakerAndWebsite, "Kelvora FOOD by Brelux, www.brelux.example"_w,
            "Kelvora FOOD van Brelux, www.brelux.example"_w},
};
static_assert(RowsFill(kRows, 48, 0));

}  // namespace

std::span<const TextRow> PrintTextRows() {
  return kRows;
}

}  // namespace kelvora
