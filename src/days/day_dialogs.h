// Makes the modal windows of this room for the main window, which knows nothing more of them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/store.h"

class QWidget;

namespace kelvora {

struct Program;

// Shows KV_bestand over `parent` and returns when it is closed.
void ShowDaySettingsDialog(Program& program, QWidget* parent);

// Shows KV_browsefiles over `parent` and returns when it is closed.
void ShowBrowserDialog(Program& program, QWidget* parent);

// Shows the dialog that takes over what was eaten on another day; see TakeOverDialog. Returns when
// it is closed.
void ShowTakeOverDialog(Program& program, std::optional<DayPart> part, const std::string& path,
                        QWidget* parent);

// Shows KV_properties over `parent` and returns when it is closed.
void ShowSettingsDialog(Program& program, QWidget* parent);

// Shows KV_wizzard over `parent` and returns when it is closed.
void ShowWizardDialog(Program& program, QWidget* parent);

// Shows KV_popup over `parent`. About returns when it is closed, the splash at once.
void ShowPopup(Program& program, std::string_view PopupMode, QWidget* parent);

}  // namespace kelvora
