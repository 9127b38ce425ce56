// Lines on the standard error, whole ones also when several threads write. Control characters in
// what came from outside are written as "?", so that nobody can make a line look like another.
#pragma once

#include <string_view>

#include "food_server/configuration.h"

namespace kelvora::server {

void SetLogLevel(LogLevel level);
void Log(LogLevel level, std::string_view text);

}  // namespace kelvora::server
