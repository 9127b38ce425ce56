// The commands of the main window: the menu and the toolbars as tables, when each command is
// enabled, and what each does. The main window draws the tables and passes clicks on.
#pragma once

#include <span>
#include <string_view>

#include "core/command.h"
#include "core/program.h"
#include "language/own_texts.h"

namespace kelvora {

enum class MenuKind { menu, sub_menu, end_of_menu, item, separator };

// One row of the menu, in order; a menu reaches to its end_of_menu row.
struct MenuRow {
  MenuKind kind;
  std::string_view name;
  TextId caption{};
  Command command = Command::none;
  std::string_view icon{};
  std::string_view shortcut{};  // in portable form, "Ctrl+S"
  std::optional<TextId> tip{};
  std::optional<OwnText> own_caption{};  // of an entry that the tables have no word for
};

// One button of a toolbar; indexes that have no row are separators.
struct ButtonRow {
  int index;
  TextId caption;
  std::optional<TextId> tip;
  Command command;
  std::string_view icon;
};

// One entry of the menu that drops down from a button.
struct DropDownRow {
  Command command;
  TextId caption;
};

[[nodiscard]] std::span<const MenuRow> MainMenu();
[[nodiscard]] std::span<const ButtonRow> MenuToolbar();   // menu_toolbar
[[nodiscard]] std::span<const ButtonRow> QuickToolbar();  // Toolbar_quickscreens
[[nodiscard]] std::span<const DropDownRow> RowsOfDropDown(Command drop_down);

// Whether user, day and FileChanged allow a command now: as an item of the menu, as a button, and
// for a whole menu by its name. Item and button differ in two places,
// as they are meant to: saving as an item needs no change, comparing as an item needs no user.
[[nodiscard]] bool CommandEnabled(const Program& program, Command command);
[[nodiscard]] bool ButtonEnabled(const Program& program, Command command);
[[nodiscard]] bool MenuEnabled(const Program& program, std::string_view name);

// The keys that give a command, in portable form; empty without any.
[[nodiscard]] std::string_view KeysOf(Command command);

// What an item of the menu is called now: the entry of the food server bears the name of the
// service that the settings choose.
[[nodiscard]] Text CaptionOf(const Program& program, const MenuRow& row);

// True if the command opens a closed window and closes an open one.
[[nodiscard]] bool IsToggle(Command command);

// True while a button stays down because a window of its command is open.
[[nodiscard]] bool CommandIsDown(const Program& program, Command command);

// Gives the command, if it is enabled as an item. mnu_bestand_sluiten is the main window's own.
void RunCommand(Program& program, Command command);

// True if the program may end now: nothing is unsaved, or the user says so. Nobody is asked while
// the desktop's session ends.
[[nodiscard]] bool MayEndProgram(Program& program);

// The texts of the first two panels of the main status bar.
[[nodiscard]] Text ProgramPanelText();
[[nodiscard]] Text UserPanelText(const Program& program);

}  // namespace kelvora
