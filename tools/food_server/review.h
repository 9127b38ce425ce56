// What people do with submissions: kelvora-food-server review.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "food_server/store.h"

namespace kelvora::server {

struct CommandResult {
  int status = 0;           // 0: done; 1: not done; 2: the arguments are wrong
  std::string out, errors;  // UTF-8
};

// `arguments` are those behind "review": list, show, accept, correct or refuse, and what belongs to
// them. Of several numbers each is tried.
[[nodiscard]] CommandResult Review(Store& store, std::span<const std::string> arguments);

[[nodiscard]] std::string_view ReviewHelp();

}  // namespace kelvora::server
