#include "language/export_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace export_text;

// Nothing shows kTotals and kPageCreatedOn: the day tables take the text of their totals row from
// taal_print, and the footer begins with kFooterCreatedOn.
constexpr std::array kRows = {
    TextRow{kIndexDate, "Date"_w, "Datum"_w},
    TextRow{kIndexDay, "Day"_w, "Dag"_w},
    TextRow{kIndexWeight, "Weight"_w, "Gewicht"_w},
    TextRow{kIndexGram, "Gram"_w, "Gram"_w},
    TextRow{kIndexKj, "Kj"_w, "Kj"_w},
    TextRow{kIndexKcal, "Kcal"_w, "Kcal"_w},
    TextRow{kIndexFatU, "Fat (u)"_w, "Vet (o)"_w},
    TextRow{kIndexFatS, "Fat (s)"_w, "Vet (v)"_w},
    TextRow{kIndexProtein, "Protein"_w, "Eiwit"_w},
    TextRow{kIndexSodium, "Sodium"_w, "Natrium"_w},
    TextRow{kIndexCarbs, "Carbs."_w, "Koolh."_w},
    TextRow{kDayDate, "Date:"_w, "Datum:"_w},
    TextRow{kBackToIndex, "Back to index"_w, "terug naar index"_w},
    TextRow{kKilogram, "Kg"_w, "Kg"_w},
    TextRow{kItemFood, "Food item"_w, "Voedingsmiddel"_w},
    TextRow{kItemUnit, "Unit"_w, "Eenheid"_w},
    TextRow{kItemGram, "Gram"_w, "Gram"_w},
    TextRow{kItemKj, "Kj"_w, "Kj"_w},
    TextRow{kItemKcal, "Kcal"_w, "Kcal"_w},
    TextRow{kItemFatU, "Fat (u)"_w, "Vet (o)"_w},
    TextRow{kItemFatS, "Fat (s)"_w, "Vet (v)"_w},
    TextRow{kItemProtein, "Protein"_w, "Eiwit"_w},
    TextRow{kItemSodium, "Sodium"_w, "Natrium"_w},
    TextRow{kItemCarbs, "Carbs."_w, "Koolh."_w},
    TextRow{kTotals, "Total nutritional values:"_w, "Totale voedingswaarden:"_w},
    TextRow{kPageCreatedOn, "This page is created on"_w, "Deze pagina is op"_w},
    TextRow{kFooterWith, "with"_w, "gemaakt met"_w},
    TextRow{kFooterProduct, "Kelvora FOOD"_w, "Kelvora FOOD"_w},
    TextRow{kFooterBy, "by"_w, "van"_w},
    TextRow{kPageTitle, "Kelvora FOOD summary of"_w, "Kelvora FOOD uittreksel van"_w},
    TextRow{kTitleDaysFrom, "days from"_w, "dagen van"_w},
    TextRow{kTitleTill, "till"_w, "tot en met"_w},
    TextRow{kReportTitle, "Kelvora FOOD summary"_w, "Kelvora FOOD uittreksel"_w},
    TextRow{kUserName, "Name:"_w, "Naam:"_w},
    TextRow{kUserGender, "Gender:"_w, "Geslacht:"_w},
    TextRow{kUserAddress1, "Address 1:"_w, "Adres 1:"_w},
    TextRow{kUserHeight, "Height:"_w, "Lengte:"_w},
    TextRow{kUserCity, "City:"_w, "Plaats:"_w},
    TextRow{kUserAge, "Age:"_w, "Leeftijd:"_w},
    TextRow{kUserPostcode, "Postcode:"_w, "Postcode:"_w},
    TextRow{kReportContents, "This report:"_w, "Dit rapport:"_w},
    TextRow{kReportOf, "Summary of"_w, "Uittreksel van"_w},
    TextRow{kReportDays, "days"_w, "dagen"_w},
    TextRow{kFooterCreatedOn, "This page is created on"_w, "Deze pagina is op"_w},
    TextRow{kPounds, "Lbs"_w, "Lbs"_w},
    TextRow{kMeter, "Meter"_w, "Meter"_w},
    TextRow{kFeetInch, "Feet, inch"_w, "Feet, inch"_w},
    TextRow{kUserAddress2, "Address 2:"_w, "Adres 2:"_w},
    TextRow{kUserGoalWeight, "Goal weight:"_w, "Streefgewicht:"_w},
    TextRow{kUserLastWeight, "Last weight:"_w, "Laatste gewicht:"_w},
    TextRow{kUserState, "State or province:"_w, "Staat of provincie:"_w},
    TextRow{kUserCountry, "Country:"_w, "Land:"_w},
    TextRow{kUserReference, "Reference ID:"_w, "Referentie-ID:"_w},
    TextRow{kStones, "Stones"_w, "Stones"_w},
    TextRow{kIndexOz, "oz"_w, "oz"_w},
    TextRow{kItemOz, "oz"_w, "oz"_w},
};
static_assert(RowsFill(kRows, 56, 0));

}  // namespace

std::span<const TextRow> ExportTextRows() {
  return kRows;
}

}  // namespace kelvora
