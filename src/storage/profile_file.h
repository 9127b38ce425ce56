// The profile of one user: who the user is, the priority nutrient and the daily targets.
#pragma once

#include <string>

#include "core/program.h"

namespace kelvora {

// Fills the working copy in `program.profile`. A file that can't be opened, and one that counts no
// record, changes nothing; a failure later shows "#FF1-6". It is a kept file, see kept_files.h.
void Load_Profile(Program& program, const std::string& path);

// Writes the working copy, the four spare strings empty, asking first where it would replace what
// was never read; true if it lies on the disk now. A failure shows "#FF1-7".
bool Save_Profile(Program& program, const std::string& path);

// The working copy of someone who has not filled in anything yet: all of the person empty, usual
// targets of an adult.
[[nodiscard]] Rec_Profile DefaultsOfNewUser();

}  // namespace kelvora
