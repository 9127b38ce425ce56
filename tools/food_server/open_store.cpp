// Which store a name of the configuration stands for.
#include "food_server/store.h"

namespace kelvora::server {

std::unique_ptr<Store> OpenStore(std::string_view name, const StoreOptions&) {
  throw StoreFailure("no store is of the kind of " + std::string(name));
}

}  // namespace kelvora::server
