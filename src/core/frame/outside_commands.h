// The commands that end outside the program: home pages, the help pages and the diagnose program.
// Each hands over and returns at once; what is missing is told in a box.
#pragma once

#include "core/frame/help_pages.h"
#include "core/program.h"

namespace kelvora {

// The maker's site, in the user's browser. Its address stands in servers.conf; an unknown one is
// told. A failure shows "#F4-0".
void OpenWebsite(Program& program);

// The home page of the food server that `opt_server` chooses, in the same way and under the same
// code.
void OpenFoodServerHomePage(Program& program);

// The program that checks the computer, from the program's own folder; a missing one is told with
// that folder. A failure shows "#F4-1".
void RunDiagnose(Program& program);

// A page of the help (help_pages.h), the first one without a name, in the language of the texts:
// Dutch for Dutch, English for any other. A missing page is told with its folder. A failure shows
// "#F4-2".
void OpenHelp(Program& program, std::string_view page = kFirstHelpPage);

}  // namespace kelvora
