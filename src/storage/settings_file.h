// The settings file: 51 strings, read once at start and written whole whenever one should last.
#pragma once

#include "core/program.h"

namespace kelvora {

// Fills the settings from the file. An absent or unreadable file leaves the defaults standing.
void Load_Settings(Program& program);

// Gives each empty setting its default; a language file that is gone becomes "default.lsf".
void Apply_Default_Settings(Program& program);

// Writes the file. A failure shows "#FF1-0"; the settings in memory stay valid.
void Save_Settings(Program& program);

}  // namespace kelvora
