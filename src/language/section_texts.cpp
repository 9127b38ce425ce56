#include "language/section_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace section_text;

constexpr std::array kRows = {
    TextRow{kProperties, "Properties"_w, "Properties"_w},
    TextRow{kMainScreen, "Main screen"_w, "Main screen"_w},
    TextRow{kNewFood, "New food items"_w, "New food items"_w},
    TextRow{kExportForm, "Export HTML Form"_w, "Export HTML Form"_w},
    TextRow{kPopup, "Pop-up"_w, "Pop-Up"_w},
    TextRow{kDaySettings, "Day settings"_w, "Day settings"_w},
    TextRow{kBrowse, "Browse days"_w, "Browse Days"_w},
    TextRow{kDaySummary, "Day summary"_w, "Day summary"_w},
    TextRow{kFoodDetails, "Food item details"_w, "Food item details"_w},
    TextRow{kUpdate, "Internet Updates"_w, "Internet Updates"_w},
    TextRow{kLists, "Database list"_w, "Database list"_w},
    TextRow{kDiary, "Diary"_w, "Diary"_w},
    TextRow{kTrend, "Trend and summary"_w, "Trend and summary"_w},
    TextRow{kCompare, "Compare food"_w, "Compare food"_w},
    TextRow{kWizard, "Wizard"_w, "Wizard"_w},
    TextRow{kEvening, "Consumption evening"_w, "Consumption evening"_w},
    TextRow{kAfternoon, "Consumptions afternoon"_w, "Consumptions afternoon"_w},
    TextRow{kMorning, "Consumptions Morning"_w, "Consumptions Morning"_w},
    TextRow{kCommon, "Common Functions"_w, "Common Functions"_w},
    TextRow{kPrint, "Print functions"_w, "Print functions"_w},
    TextRow{kExport, "Export HTML-DTA"_w, "Export HTML-DTA"_w},
    TextRow{kMessages, "Common messages"_w, "Common messages"_w},
    TextRow{kEmpty, "- EMPTY FORM -"_w, "- EMPTY FORM -"_w},
};
static_assert(RowsAreInOrder(kRows));

}  // namespace

std::span<const TextRow> SectionTextRows() {
  return kRows;
}

}  // namespace kelvora
