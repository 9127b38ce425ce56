// Where the services of the program are found: servers.conf beside the program.
//
// One `key = value` a line, "#" begins a comment; keys are dutch, english, update and website, each
// value an http or https address without the path of a single service. A key or a file that is
// missing, or a value of another kind, leaves that address empty; a request to an empty address
// fails at once.
#pragma once

#include <string>
#include <string_view>

#include "core/program.h"

namespace kelvora {

struct ServerHosts {
  std::string dutch;
  std::string english;
  std::string update;
  std::string website;
};

// Takes the text of a servers.conf apart. Unknown keys and lines of another form are passed over.
[[nodiscard]] ServerHosts ParseServerHosts(std::string_view text);

// The hosts of the file beside the program.
[[nodiscard]] ServerHosts ReadServerHosts(const Paths& paths);

// Sets the addresses of the food server that `opt_server` chooses; an empty setting becomes "0",
// the Dutch service. A failure shows "#FF8-3".
void Zet_Server_Adressen(Program& program);

}  // namespace kelvora
