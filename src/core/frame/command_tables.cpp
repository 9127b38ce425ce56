// The menu and the toolbars of the main window, row by row.
#include <algorithm>
#include <array>

#include "core/frame/commands.h"
#include "core/views.h"
#include "language/lists_texts.h"
#include "language/main_texts.h"

namespace kelvora {
namespace {

using namespace main_text;
using enum MenuKind;

constexpr MenuRow kEnd{end_of_menu, ""};

constexpr MenuRow OwnItem(std::string_view name, OwnText caption, Command command,
                          std::string_view icon) {
  MenuRow row{item, name};
  row.command = command;
  row.icon = icon;
  row.own_caption = caption;
  return row;
}

constexpr std::array kMenu = {
    MenuRow{menu, "mnu_bestand", kFile},
    MenuRow{item, "mnu_startupwizzard", kWizard, Command::mnu_startupwizzard, "wizard", "",
            kTipWizard},
    MenuRow{separator, "mnu_bar_10"},
    MenuRow{item, "mnu_new", kNewFile, Command::mnu_new, "new", "Ctrl+N", kTipNew},
    MenuRow{item, "mnu_browse", kOpenFile, Command::mnu_browse, "open", "Ctrl+O", kTipOpen},
    MenuRow{item, "mnu_bestand_opslaan", kSaveFile, Command::mnu_bestand_opslaan, "save", "Ctrl+S",
            kTipSave},
    MenuRow{separator, "mnu_bar_11"},
    MenuRow{sub_menu, "mnu_exporteer", kExportTo, Command::none, "export"},
    MenuRow{item, "mnu_exporteer_html", kExportHtml, Command::mnu_exporteer_html, "export-html", "",
            kTipReport},
    MenuRow{item, "mnu_exporteer_xml", kExportXml, Command::mnu_exporteer_xml, "export-xml", "",
            kTipExportXml},
    MenuRow{item, "mnu_exporteer_dta", kExportDta, Command::mnu_exporteer_dta, "export-dta", "",
            kTipExportDta},
    kEnd,
    MenuRow{separator, "mnu_bar_12"},
    MenuRow{item, "mnu_properties", kKelvoraSettings, Command::mnu_properties, "settings", "",
            kTipSettings},
    MenuRow{item, "mnu_file_properties", kProfileSettings, Command::mnu_file_properties, "profile",
            "", kTipProfile},
    MenuRow{separator, "mnu_bar_13"},
    MenuRow{sub_menu, "mnu_printen", kPrint, Command::none, "print"},
    MenuRow{item, "mnu_print_dag", kPrintDay, Command::mnu_print_dag, "print-day", "Ctrl+P"},
    MenuRow{item, "mnu_print_reis", kPrintTravelForm, Command::mnu_print_reis, "print-travel"},
    kEnd,
    MenuRow{item, "mnu_bestand_sluiten", kClose, Command::mnu_bestand_sluiten, "close", "Ctrl+Q"},
    kEnd,

    MenuRow{menu, "mnu_consumpties", kConsumptionScreens},
    MenuRow{item, "mnu_in_ochtend", kMorningConsumptions, Command::mnu_in_ochtend, "morning"},
    MenuRow{item, "mnu_in_middag", kAfternoonConsumptions, Command::mnu_in_middag, "afternoon"},
    MenuRow{item, "mnu_in_avond", kEveningConsumptions, Command::mnu_in_avond, "evening"},
    MenuRow{separator, "mnu_bar_20"},
    MenuRow{item, "mnu_in_notities", kTodaysDiary, Command::mnu_in_notities, "diary", "",
            kTipDiary},
    kEnd,

    MenuRow{menu, "mnu_opties", kOptions},
    MenuRow{item, "mnu_item_info", kFoodItemDetails, Command::mnu_item_info, "item-info"},
    MenuRow{item, "mnu_item_voegtoe", kAddFoodItem, Command::mnu_item_voegtoe, "item-add"},
    MenuRow{item, "mnu_item_del", kRemoveFoodItem, Command::mnu_item_del, "item-delete"},
    MenuRow{separator, "mnu_bar_30"},
    MenuRow{item, "mnu_item_favo", kAddToFavourites, Command::mnu_item_favo, "item-favourite"},
    kEnd,

    MenuRow{menu, "mnu_resultaten", kStatistics},
    MenuRow{item, "mnu_uit_daguittreksel", kSummaryOfDay, Command::mnu_uit_daguittreksel, "summary",
            "", kTipSummary},
    MenuRow{item, "mnu_uit_meerdaagsuittreksel", kTrend, Command::mnu_uit_meerdaagsuittreksel,
            "trend", "", kTipTrend},
    kEnd,

    MenuRow{menu, "mnu_tabellen", kTables},
    MenuRow{item, "mnu_voedingswaarde_tabel", kFoodItems, Command::mnu_voedingswaarde_tabel,
            "foods", "", kTipFoods},
    MenuRow{separator, "mnu_bar_50"},
    MenuRow{item, "mnu_lijst_standaard", lists_text::kButtonStandard, Command::mnu_lijst_standaard,
            "list-standard", kFoodViewKeys[0], lists_text::kTipStandard},
    MenuRow{item, "mnu_lijst_eigen", lists_text::kButtonOwn, Command::mnu_lijst_eigen, "list-own",
            kFoodViewKeys[1], lists_text::kTipOwn},
    MenuRow{item, "mnu_lijst_favo", lists_text::kButtonFavourites, Command::mnu_lijst_favo,
            "list-favourites", kFoodViewKeys[2], lists_text::kTipFavourites},
    MenuRow{item, "mnu_lijst_internet", lists_text::kButtonInternet, Command::mnu_lijst_internet,
            "list-internet", kFoodViewKeys[3], lists_text::kTipInternet},
    kEnd,

    MenuRow{menu, "mnu_extra", kExtra},
    MenuRow{item, "mnu_weegschaal", kFoodComparison, Command::mnu_weegschaal, "compare", "",
            kTipCompare},
    MenuRow{item, "mnu_website_Etenlijn", kServiceName, Command::mnu_website_Etenlijn,
            "food-server", "", kTipService},
    MenuRow{separator, "mnu_bar_60"},
    MenuRow{item, "mnu_reset_taal", kRepairLanguageFiles, Command::mnu_reset_taal,
            "repair-language", "", kTipRepairLanguageFiles},
    MenuRow{separator, "mnu_bar_61"},
    MenuRow{item, "mnu_diagnose", kDiagnose, Command::mnu_diagnose, "diagnose", "", kTipDiagnose},
    MenuRow{separator, "mnu_bar_62"},
    MenuRow{item, "mnu_quick_default", kQuickDefault, Command::quick_default, "screens-default",
            "Alt+7", kTipQuickDefault},
    MenuRow{item, "mnu_quick_all", kQuickAll, Command::quick_all, "screens-all", "Alt+8",
            kTipQuickAll},
    MenuRow{item, "mnu_quick_reset", kQuickReset, Command::quick_reset, "screens-reset", "Alt+9"},
    OwnItem("mnu_backup", OwnText::menu_backup, Command::mnu_backup, "backup"),
    OwnItem("mnu_restore", OwnText::menu_restore, Command::mnu_restore, "restore"),
    OwnItem("mnu_import_foods", OwnText::menu_import, Command::mnu_import_foods, "list-standard"),
    kEnd,

    MenuRow{menu, "mnu_informatie", kInformation},
    MenuRow{item, "mnu_help_index", kHelpIndex, Command::mnu_help_index, "help", "F1", kTipHelp},
    MenuRow{item, "mnu_about", kAbout, Command::mnu_about, "about", "", kTipBrelux},
    MenuRow{separator, "mnu_bar_70"},
    MenuRow{item, "mnu_website", kWebsite, Command::mnu_website, "website", "", kTipWebsite},
    MenuRow{item, "mnu_check_updates", kInternetUpdates, Command::mnu_check_updates, "update", "",
            kTipUpdate},
    kEnd,
};

constexpr std::array kToolbar = {
    ButtonRow{2, kCaptionNew, kTipNew, Command::mnu_new, "new"},
    ButtonRow{3, kCaptionOpen, kTipOpen, Command::mnu_browse, "open"},
    ButtonRow{4, kCaptionSave, kTipSave, Command::mnu_bestand_opslaan, "save"},
    ButtonRow{5, kCaptionPrint, kTipPrint, Command::print_drop_down, "print"},
    ButtonRow{7, kCaptionProfile, kTipProfile, Command::mnu_file_properties, "profile"},
    ButtonRow{8, kCaptionFoods, kTipFoods, Command::mnu_voedingswaarde_tabel, "foods"},
    ButtonRow{10, kCaptionConsumptions, kTipConsumptions, Command::consumptions_drop_down,
              "consumptions"},
    ButtonRow{11, kCaptionDiary, kTipDiary, Command::mnu_in_notities, "diary"},
    ButtonRow{13, kCaptionSummary, kTipSummary, Command::mnu_uit_daguittreksel, "summary"},
    ButtonRow{14, kCaptionTrend, kTipTrend, Command::mnu_uit_meerdaagsuittreksel, "trend"},
    ButtonRow{15, kCaptionReport, kTipReport, Command::mnu_exporteer_html, "report"},
    ButtonRow{16, kCaptionCompare, kTipCompare, Command::mnu_weegschaal, "compare"},
    ButtonRow{18, kCaptionSettings, kTipSettings, Command::mnu_properties, "settings"},
    ButtonRow{19, kCaptionBrelux, kTipBrelux, Command::mnu_about, "about"},
    ButtonRow{20, kCaptionUpdate, kTipUpdate, Command::mnu_check_updates, "update"},
    ButtonRow{22, kCaptionHelp, kTipHelp, Command::mnu_help_index, "help"},
};

constexpr std::array kQuickToolbar = {
    ButtonRow{2, kQuickDefault, kTipQuickDefault, Command::quick_default, "screens-default"},
    ButtonRow{3, kQuickAll, kTipQuickAll, Command::quick_all, "screens-all"},
    ButtonRow{5, kQuickReset, std::nullopt, Command::quick_reset, "screens-reset"},
};

constexpr std::array kPrintRows = {
    DropDownRow{Command::mnu_print_dag, kPrintDayDropDown},
    DropDownRow{Command::mnu_print_reis, kPrintTravelDropDown},
};
constexpr std::array kConsumptionRows = {
    DropDownRow{Command::mnu_in_ochtend, kMorningDropDown},
    DropDownRow{Command::mnu_in_middag, kAfternoonDropDown},
    DropDownRow{Command::mnu_in_avond, kEveningDropDown},
};

}  // namespace

std::span<const MenuRow> MainMenu() {
  return kMenu;
}
std::span<const ButtonRow> MenuToolbar() {
  return kToolbar;
}
std::span<const ButtonRow> QuickToolbar() {
  return kQuickToolbar;
}

std::string_view KeysOf(Command command) {
  const auto row = std::ranges::find(kMenu, command, &MenuRow::command);
  return command == Command::none || row == kMenu.end() ? std::string_view() : row->shortcut;
}

std::span<const DropDownRow> RowsOfDropDown(Command drop_down) {
  if (drop_down == Command::print_drop_down) return kPrintRows;
  if (drop_down == Command::consumptions_drop_down) return kConsumptionRows;
  return {};
}

}  // namespace kelvora
