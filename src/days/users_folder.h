// Another users folder while a user's data is open: what goes there, and what lies there already.
#pragma once

#include <string>

#include "core/program.h"

namespace kelvora {

// Makes `users_path` the users folder; all paths follow at once. Nothing moves, but the user of the
// moment goes on there: folders, profile and lists that are not there yet are written, and the open
// day is saved there from now on. Where other data of this user lies there, a question comes first:
// Yes writes over it; No keeps it and goes on with it, the day then under a name of its own. One
// line says where the data is kept from now on. False with nothing changed after a failure to
// write, which has shown its box.
[[nodiscard]] bool ChangeUsersFolder(Program& program, const std::string& users_path);

}  // namespace kelvora
