#include "core/frame/commands.h"

#include <algorithm>

#include "core/common.h"
#include "core/frame/arrangement.h"
#include "core/frame/outside_commands.h"
#include "days/open_day.h"
#include "language/choose_language.h"
#include "language/main_texts.h"
#include "output/printing.h"
#include "storage/day_file.h"
#include "storage/kept_files.h"
#include "storage/settings_file.h"
#include "storage/untaken_diary.h"

namespace kelvora {
namespace {

using namespace main_text;

// What a command needs. None can be given that needs a command.
enum class Needs { command, nothing, user, user_on_internet, day, changed_day, day_or_unwritten };

struct CommandRow {
  Command command;
  Needs as_item;
  Needs as_button = as_item;
};

// An item in a menu that needs a user or a day needs it as well.
constexpr std::array kCommands = {
    CommandRow{Command::none, Needs::command},
    CommandRow{Command::mnu_startupwizzard, Needs::nothing},
    CommandRow{Command::mnu_new, Needs::nothing},
    CommandRow{Command::mnu_browse, Needs::nothing},
    CommandRow{Command::mnu_bestand_opslaan, Needs::day_or_unwritten, Needs::changed_day},
    CommandRow{Command::mnu_exporteer_html, Needs::user},
    CommandRow{Command::mnu_exporteer_xml, Needs::user},
    CommandRow{Command::mnu_exporteer_dta, Needs::user},
    CommandRow{Command::mnu_properties, Needs::nothing},
    CommandRow{Command::mnu_file_properties, Needs::day},
    CommandRow{Command::mnu_print_dag, Needs::day},
    CommandRow{Command::mnu_print_reis, Needs::day},
    CommandRow{Command::mnu_bestand_sluiten, Needs::nothing},
    CommandRow{Command::mnu_in_ochtend, Needs::day},
    CommandRow{Command::mnu_in_middag, Needs::day},
    CommandRow{Command::mnu_in_avond, Needs::day},
    CommandRow{Command::mnu_in_notities, Needs::day},
    CommandRow{Command::mnu_item_info, Needs::user},
    CommandRow{Command::mnu_item_voegtoe, Needs::user},
    CommandRow{Command::mnu_item_del, Needs::user},
    CommandRow{Command::mnu_item_favo, Needs::user},
    CommandRow{Command::mnu_uit_daguittreksel, Needs::day},
    CommandRow{Command::mnu_uit_meerdaagsuittreksel, Needs::user},
    CommandRow{Command::mnu_voedingswaarde_tabel, Needs::user},
    CommandRow{Command::mnu_weegschaal, Needs::nothing, Needs::user},
    CommandRow{Command::mnu_website_Etenlijn, Needs::nothing},
    CommandRow{Command::mnu_reset_taal, Needs::nothing},
    CommandRow{Command::mnu_diagnose, Needs::nothing},
    CommandRow{Command::mnu_backup, Needs::nothing},
    CommandRow{Command::mnu_restore, Needs::nothing},
    CommandRow{Command::mnu_import_foods, Needs::nothing},
    CommandRow{Command::mnu_help_index, Needs::nothing},
    CommandRow{Command::mnu_about, Needs::nothing},
    CommandRow{Command::mnu_website, Needs::nothing},
    CommandRow{Command::mnu_check_updates, Needs::nothing},
    CommandRow{Command::mnu_lijst_standaard, Needs::user},
    CommandRow{Command::mnu_lijst_eigen, Needs::user},
    CommandRow{Command::mnu_lijst_favo, Needs::user},
    CommandRow{Command::mnu_lijst_internet, Needs::user_on_internet},
    CommandRow{Command::print_drop_down, Needs::day},
    CommandRow{Command::consumptions_drop_down, Needs::day},
    CommandRow{Command::quick_default, Needs::day},
    CommandRow{Command::quick_all, Needs::day},
    CommandRow{Command::quick_reset, Needs::nothing},
};

// In the order of Command.
static_assert(kCommands.size() == static_cast<std::size_t>(Command::quick_reset) + 1);
static_assert(std::ranges::is_sorted(kCommands, {}, &CommandRow::command));

const CommandRow& RowOf(Command command) {
  return kCommands[static_cast<std::size_t>(command)];
}

struct WindowCommand {
  Command command;
  WindowId window;
};

// The commands that open a closed window and close an open one.
constexpr std::array kToggles = {
    WindowCommand{Command::mnu_in_ochtend, WindowId::morning},
    WindowCommand{Command::mnu_in_middag, WindowId::afternoon},
    WindowCommand{Command::mnu_in_avond, WindowId::evening},
    WindowCommand{Command::mnu_in_notities, WindowId::diary},
    WindowCommand{Command::mnu_uit_daguittreksel, WindowId::day_summary},
    WindowCommand{Command::mnu_uit_meerdaagsuittreksel, WindowId::multi_day},
    WindowCommand{Command::mnu_voedingswaarde_tabel, WindowId::lists},
    WindowCommand{Command::mnu_weegschaal, WindowId::comparison},
};

bool Satisfied(const Program& program, Needs needs) {
  switch (needs) {
    case Needs::command:
      return false;
    case Needs::nothing:
      return true;
    case Needs::user:
      return !program.paths.UserName.empty();
    case Needs::user_on_internet:
      return !program.paths.UserName.empty() && program.settings[Setting::chk_internet] != "0";
    case Needs::day:
      return program.store.DayIsOpen();
    case Needs::changed_day:
      return (program.store.DayIsOpen() && program.day.FileChanged) || HoldsUnwrittenWork(program);
    case Needs::day_or_unwritten:
      return program.store.DayIsOpen() || HoldsUnwrittenWork(program);
  }
  return false;
}

// The entries for a food follow the row in focus of the food lists; without one they would do
// nothing. A food can always be added, but while the menu stands open for a row, which tells all
// four.
bool FoodMenuAllows(const Program& program, Command command) {
  const OpenWindows& windows = program.windows;
  FoodMenu menu;
  if (windows.lists != nullptr) menu = windows.lists_menu;
  menu.add = true;
  if (windows.food_menu) menu = *windows.food_menu;
  switch (command) {
    case Command::mnu_item_info:
      return menu.info;
    case Command::mnu_item_voegtoe:
      return menu.add;
    case Command::mnu_item_del:
      return menu.del;
    case Command::mnu_item_favo:
      return menu.favourite;
    default:
      return true;
  }
}

// Lets the food lists act on the row in focus; without that window there is none.
void GiveToFoodLists(Program& program, void (FoodListsView::*operation)()) {
  if (program.windows.lists != nullptr) (program.windows.lists->*operation)();
}

// Opens the food lists for it where they are closed.
void ChooseFoodList(Program& program, FoodView view) {
  OpenWindows& windows = program.windows;
  if (windows.lists == nullptr) windows.core->OpenWindow(WindowId::lists);
  if (windows.lists != nullptr) windows.lists->ChooseView(view);
}

// The dialog in its mode for the open day; a day file with an empty header has nothing to change.
void ChangeDaySettings(Program& program) {
  if (program.store.L_gegevens.Empty()) {
    return Tell(program, BoxIcon::warning,
                JoinLines(program.texts, {kNoFileOpen, kMakeOrOpenFile}));
  }
  program.day.DayDialogMode = DayDialogMode::day_settings;
  program.windows.core->OpenWindow(WindowId::day_settings);
}

bool ClosesAllWindows(Command command) {
  return command == Command::quick_default || command == Command::quick_all ||
         command == Command::quick_reset;
}

void RememberArrangement(Program& program, std::string_view chosen) {
  program.settings[Setting::chk_all_screens] = chosen;
  Save_Settings(program);
}

}  // namespace

bool CommandEnabled(const Program& program, Command command) {
  return Satisfied(program, RowOf(command).as_item) && FoodMenuAllows(program, command);
}

bool ButtonEnabled(const Program& program, Command command) {
  return Satisfied(program, RowOf(command).as_button);
}

bool MenuEnabled(const Program& program, std::string_view name) {
  if (name == "mnu_consumpties") return Satisfied(program, Needs::day);
  constexpr std::array<std::string_view, 4> kOfUser = {"mnu_opties", "mnu_resultaten",
                                                       "mnu_tabellen", "mnu_exporteer"};
  return std::ranges::find(kOfUser, name) == kOfUser.end() || Satisfied(program, Needs::user);
}

Text CaptionOf(const Program& program, const MenuRow& row) {
  if (row.own_caption) return OwnTextOf(program.texts, *row.own_caption);
  // As a button has it, with blanks at its end.
  if (row.caption.table == TextTable::taal_lists) return Text(Trimmed(program.texts[row.caption]));
  const bool english_service =
      row.command == Command::mnu_website_Etenlijn && program.settings[Setting::opt_server] == "1";
  return program.texts[english_service ? kServiceNameEnglish : row.caption];
}

bool IsToggle(Command command) {
  return std::ranges::find(kToggles, command, &WindowCommand::command) != kToggles.end();
}

bool CommandIsDown(const Program& program, Command command) {
  if (command == Command::consumptions_drop_down) {
    return std::ranges::any_of(program.windows.consumption,
                               [](const auto* window) { return window != nullptr; });
  }
  const auto row = std::ranges::find(kToggles, command, &WindowCommand::command);
  return row != kToggles.end() && program.windows.Find(row->window) != nullptr;
}

void RunCommand(Program& program, Command command) {
  if (program.ending || !CommandEnabled(program, command)) return;
  if (command == Command::mnu_uit_daguittreksel) return ShowOrHideDaySummary(program);
  const auto toggle = std::ranges::find(kToggles, command, &WindowCommand::command);
  if (toggle != kToggles.end()) return ToggleWindow(program, toggle->window);
  if (ClosesAllWindows(command) && !MayLeaveDiary(program)) return;
  switch (command) {
    case Command::mnu_startupwizzard:
      return program.windows.core->OpenWindow(WindowId::wizard);
    case Command::mnu_new:
      return BeginNewDay(program);
    case Command::mnu_browse:
      return program.windows.core->OpenWindow(WindowId::browser);
    case Command::mnu_bestand_opslaan:
      SaveDay(program);
      return;
    // Meant: the same dialog for all three, which presets nothing.
    case Command::mnu_exporteer_html:
    case Command::mnu_exporteer_xml:
    case Command::mnu_exporteer_dta:
      return program.windows.core->OpenExport();
    case Command::mnu_properties:
      return program.windows.core->OpenSettings();
    case Command::mnu_file_properties:
      return ChangeDaySettings(program);
    case Command::mnu_print_dag:
      return Print_Day(program);
    case Command::mnu_print_reis:
      return Print_Travel_Form(program);
    case Command::mnu_item_info:
      return GiveToFoodLists(program, &FoodListsView::CORE_show_info_mnu);
    case Command::mnu_item_voegtoe:
      return program.windows.core->OpenNewFood();
    case Command::mnu_item_del:
      return GiveToFoodLists(program, &FoodListsView::CORE_Del_Item);
    case Command::mnu_item_favo:
      return GiveToFoodLists(program, &FoodListsView::CORE_Add_To_Favo);
    case Command::mnu_website_Etenlijn:
      return OpenFoodServerHomePage(program);
    case Command::mnu_reset_taal:
      return RepairLanguageFiles(program);
    case Command::mnu_diagnose:
      return RunDiagnose(program);
    case Command::mnu_backup:
      return program.windows.core->OpenBackup();
    case Command::mnu_restore:
      return program.windows.core->OpenRestore();
    case Command::mnu_import_foods:
      return program.windows.core->OpenFoodImport();
    case Command::mnu_help_index:
      return OpenHelp(program);
    case Command::mnu_about:
      return program.windows.core->ShowAbout();
    case Command::mnu_website:
      return OpenWebsite(program);
    case Command::mnu_check_updates:
      return program.windows.core->OpenUpdate(UpdateMode::shown);
    case Command::mnu_lijst_standaard:
      return ChooseFoodList(program, FoodView::standard);
    case Command::mnu_lijst_eigen:
      return ChooseFoodList(program, FoodView::own);
    case Command::mnu_lijst_favo:
      return ChooseFoodList(program, FoodView::favourites);
    case Command::mnu_lijst_internet:
      return ChooseFoodList(program, FoodView::internet);
    case Command::print_drop_down:
      return Tell(program, BoxIcon::information,
                  JoinLines(program.texts, {kSelectPrintOption, kSeveralOptions}));
    case Command::quick_default:
      ShowDefaultScreens(program);
      return RememberArrangement(program, "0");
    case Command::quick_all:
      ShowScreensWithSummary(program);
      return RememberArrangement(program, "1");
    case Command::quick_reset:
      return ResetScreens(program);
    default:
      return;
  }
}

bool MayEndProgram(Program& program) {
  if (program.recovery.session_ends) return true;
  if (!MayCloseDiaryWithDay(program)) return false;
  const bool day_changed = program.day.FileChanged;
  if (!day_changed && !HoldsUnwrittenWork(program)) return true;
  const Text day_line = day_changed ? program.texts[kExitNotSaved] + "\n" : Text();
  const Box box{.title = program.texts[kExitTitle],
                .text = day_line + UnwrittenLines(program) + program.texts[kExitSure],
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

Text ProgramPanelText() {
  return Text(AppTitle) + " " + Text(VersionText);
}

Text UserPanelText(const Program& program) {
  return program.texts[kCurrentUser] + " " + program.paths.UserName;
}

}  // namespace kelvora
