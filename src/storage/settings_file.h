// The settings file: 51 strings, read once at start and written whole whenever one should last.
#pragma once

#include "core/program.h"

namespace kelvora {

// Fills the settings from the file; false, with all settings empty, if there is none that can be
// read.
[[nodiscard]] bool ReadSettingsFile(Program& program);

// What a setting is before anybody chooses; empty for most.
[[nodiscard]] Text DefaultOf(Setting setting);

// Gives each empty setting its default; a language file that is gone becomes "default.lsf".
void Apply_Default_Settings(Program& program);

// Chooses "default.lsf" if the language file of the settings is gone.
void FallBackOnDefaultLanguage(Program& program);

// Writes the file; true if it lies on the disk now. A failure shows "#FF1-0"; the settings in
// memory stay valid.
bool Save_Settings(Program& program);

}  // namespace kelvora
