// Settings of the program's own, which none of the 51 strings names: "own.conf" beside the settings
// file, one "key = value" a line, UTF-8. Lines of other keys stay as they are.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/program.h"

namespace kelvora {

// Nothing for a key that isn't there, or where the file can't be read.
[[nodiscard]] std::optional<std::string> OwnSetting(const Paths& paths, std::string_view key);

// Neither may hold the end of a line. A file that is there and can't be read is not written. Throws
// std::system_error.
void SetOwnSetting(const Paths& paths, std::string_view key, std::string_view value);

}  // namespace kelvora
