#include "core/commands.h"

#include <algorithm>

#include "core/arrangement.h"
#include "core/common.h"
#include "days/open_day.h"
#include "language/choose_language.h"
#include "language/main_texts.h"
#include "storage/day_file.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

// What a command needs besides a window to serve it.
enum class Needs { nothing, user, day, changed_day };

struct CommandRow {
  Command command;
  Needs needs;
};

// The commands that this program can carry out so far; all others stay disabled.
constexpr std::array kServed = {
    CommandRow{Command::mnu_startupwizzard, Needs::nothing},
    CommandRow{Command::mnu_new, Needs::nothing},
    CommandRow{Command::mnu_browse, Needs::nothing},
    CommandRow{Command::mnu_bestand_opslaan, Needs::changed_day},
    CommandRow{Command::mnu_properties, Needs::nothing},
    CommandRow{Command::mnu_bestand_sluiten, Needs::nothing},
    CommandRow{Command::mnu_in_ochtend, Needs::day},
    CommandRow{Command::mnu_in_middag, Needs::day},
    CommandRow{Command::mnu_in_avond, Needs::day},
    CommandRow{Command::mnu_voedingswaarde_tabel, Needs::user},
    CommandRow{Command::consumptions_drop_down, Needs::day},
    CommandRow{Command::quick_default, Needs::day},
    CommandRow{Command::quick_reset, Needs::nothing},
    CommandRow{Command::mnu_reset_taal, Needs::nothing},
    CommandRow{Command::mnu_about, Needs::nothing},
};

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
    case Needs::nothing:
      return true;
    case Needs::user:
      return !program.paths.UserName.empty();
    case Needs::day:
      return program.store.DayIsOpen();
    case Needs::changed_day:
      return program.store.DayIsOpen() && program.day.FileChanged;
  }
  return false;
}

}  // namespace

bool CommandEnabled(const Program& program, Command command) {
  const auto row = std::ranges::find(kServed, command, &CommandRow::command);
  return row != kServed.end() && Satisfied(program, row->needs);
}

bool MenuEnabled(const Program& program, std::string_view name) {
  if (name == "mnu_consumpties") return Satisfied(program, Needs::day);
  constexpr std::array<std::string_view, 4> kOfUser = {"mnu_opties", "mnu_resultaten",
                                                       "mnu_tabellen", "mnu_exporteer"};
  return std::ranges::find(kOfUser, name) == kOfUser.end() || Satisfied(program, Needs::user);
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
  if (!CommandEnabled(program, command)) return;
  const auto toggle = std::ranges::find(kToggles, command, &WindowCommand::command);
  if (toggle != kToggles.end()) return ToggleWindow(program, toggle->window);
  switch (command) {
    case Command::mnu_startupwizzard:
      return program.windows.core->OpenWindow(WindowId::wizard);
    case Command::mnu_new:
      return BeginNewDay(program);
    case Command::mnu_browse:
      return program.windows.core->OpenWindow(WindowId::browser);
    case Command::mnu_bestand_opslaan:
      return SaveDay(program);
    case Command::mnu_properties:
      return program.windows.core->OpenSettings();
    case Command::quick_default:
      ShowDefaultScreens(program);
      program.settings[Setting::chk_all_screens] = "0";
      return Save_Settings(program);
    case Command::quick_reset:
      return ResetScreens(program);
    case Command::mnu_reset_taal:
      return RepairLanguageFiles(program);
    case Command::mnu_about:
      return program.windows.core->ShowAbout();
    default:
      return;
  }
}

bool MayEndProgram(Program& program) {
  using namespace main_text;
  if (!program.day.FileChanged) return true;
  const Box box{.title = program.texts[kExitTitle],
                .text = JoinLines(program.texts, {kExitNotSaved, kExitSure}),
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

Text ProgramPanelText() {
  return Text(AppTitle) + " " + Text(VersionText);
}

Text UserPanelText(const Program& program) {
  return program.texts[main_text::kCurrentUser] + " " + program.paths.UserName;
}

}  // namespace kelvora
