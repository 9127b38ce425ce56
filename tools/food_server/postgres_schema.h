// The tables of a store in PostgreSQL. They lie in a schema of their own, kelvora_food.
//
// Foods lie in two sets of tables, "a" and "b", of which `store` names the one that is searched:
// the other is filled and indexed meanwhile, and one row changes all in one moment.
//
//   store        one row: version of the tables, set that is searched, count and state of the foods
//   foods_X      place in the order of StandsBefore, words as a tsvector, folded text, line.
//                Among the words each name stands as a whole too, behind "=": "=whole milk"
//   beginnings_X for each beginning of words that very many foods have: the places of the first
//   ones submissions  as Submission; what an accepted one is found by stands in words, name and
//   text
//
// "%" in folded text is written as kPercent where pg_trgm reads it, since that knows no such
// letter.
#pragma once

#include "food_server/postgres_connection.h"
#include "food_server/store.h"

namespace kelvora::server {

inline constexpr int kPostgresVersion = 1;
inline constexpr std::string_view kPercent = "zqz";

// Numbers of advisory locks, all under the same first number.
enum class PostgresLock { schema = 1, foods = 2, submissions = 3 };
[[nodiscard]] std::string LockKey(PostgresLock lock);

// Sets a new connection to what statements of the store expect.
void SetUpPostgres(PostgresConnection& connection, const StoreOptions& options);

// Makes the tables if there are none. Throws StoreFailure, also for tables of a later version.
void MakePostgresTables(PostgresConnection& connection, const StoreOptions& options);

// The commands that empty and prepare a set of tables for new foods, and those that follow when
// they are in.
[[nodiscard]] std::string EmptyFoodTables(char set);
[[nodiscard]] std::string IndexFoodTables(char set);

}  // namespace kelvora::server
