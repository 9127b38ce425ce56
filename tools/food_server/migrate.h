// `kelvora-food-server migrate FROM TO`: copies one store into another, of either kind.
#pragma once

#include <span>
#include <string>

#include "food_server/review.h"
#include "food_server/store.h"

namespace kelvora::server {

// What a store holds: how much, and a checksum over all of it in one order.
struct StoreContents {
  std::uint64_t foods = 0;
  std::uint64_t submissions = 0;
  std::uint64_t checksum = 0;
  bool operator==(const StoreContents&) const = default;
};
[[nodiscard]] StoreContents ContentsOf(Store& store);

// Reads all of `from` before it changes `to`, and reads that again when it is done. A target that
// holds anything is refused, or emptied first where `replaces`. Throws StoreFailure.
StoreContents Migrate(Store& from, Store& to, bool replaces);

// The command behind the word "migrate".
[[nodiscard]] CommandResult RunMigrate(std::span<const std::string> arguments);
[[nodiscard]] std::string_view MigrateHelp();

}  // namespace kelvora::server
