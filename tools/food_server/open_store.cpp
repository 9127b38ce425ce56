// Which store a name of the configuration stands for.
#include "food_server/postgres_store.h"
#include "food_server/sqlite_store.h"
#include "food_server/store.h"

namespace kelvora::server {

std::unique_ptr<Store> OpenStore(std::string_view name, const StoreOptions& options) {
  constexpr std::string_view kSqlite = "sqlite:";
  if (name.starts_with(kSqlite)) {
    return std::make_unique<SqliteStore>(std::string(name.substr(kSqlite.size())), options);
  }
  if (name.starts_with("postgresql://") || name.starts_with("postgres://")) {
    return OpenPostgresStore(name, options);
  }
  throw StoreFailure("no store is of the kind of " + std::string(name));
}

}  // namespace kelvora::server
