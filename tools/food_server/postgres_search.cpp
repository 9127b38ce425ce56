// How foods are found in PostgreSQL.
#include <algorithm>
#include <array>
#include <utility>

#include "food_server/postgres_foods.h"
#include "food_server/postgres_store.h"
#include "food_server/ranking.h"

namespace kelvora::server {
namespace {

// As many rows as an index gives are put in order; they come in the order of places anyway.
constexpr std::size_t kCandidates = 1000;

// $1 the term as a whole name, $2 its words as beginnings, $3 candidates, $4 results, $5 its only
// word or none. An arm whose condition names no column of its table isn't run where it is false.
#define FOUND_IN(set)                                                                           \
  " (SELECT 0 AS match, place, line FROM foods_" set "  WHERE (SELECT set FROM store) = '" set  \
  "' AND words @@ $1::tsquery LIMIT $3::bigint)"                                                \
  " UNION ALL (SELECT 1, place, line FROM foods_" set "  WHERE (SELECT set FROM store) = '" set \
  "'"                                                                                           \
  "   AND NOT EXISTS (SELECT FROM beginnings_" set                                              \
  " WHERE beginning = $5::text)"                                                                \
  "   AND words @@ $2::tsquery AND NOT words @@ $1::tsquery LIMIT $3::bigint)"                  \
  " UNION ALL (SELECT 1, f.place, f.line FROM beginnings_" set                                  \
  " b"                                                                                          \
  "  CROSS JOIN unnest(b.places) AS first(place) JOIN foods_" set                               \
  " f ON f.place = first.place"                                                                 \
  "  WHERE (SELECT set FROM store) = '" set                                                     \
  "' AND b.beginning = $5::text"                                                                \
  "   AND NOT f.words @@ $1::tsquery)"
constexpr PostgresStatement kFindBeginnings{
    "find_beginnings",
    "(SELECT line FROM (" FOUND_IN("a") " UNION ALL " FOUND_IN("b") ") AS found"
    " ORDER BY match, place LIMIT $4::bigint)"
    " UNION ALL (SELECT food FROM submissions WHERE state = 1 AND words @@ $2::tsquery"
    " ORDER BY words @@ $1::tsquery DESC, length(name), name COLLATE \"C\", food"
    " LIMIT $4::bigint)"};
#undef FOUND_IN

// $1 a pattern, $2 all patterns, $3 the short words as beginnings or none, $4 what was found
// already, $5 candidates, $6 results.
#define FOUND_IN(set)                                                                \
  " (SELECT place, line FROM foods_" set " WHERE (SELECT set FROM store) = '" set    \
  "'"                                                                                \
  "  AND text LIKE $1::text AND text LIKE ALL ($2::text[])"                          \
  "  AND ($3::tsquery IS NULL OR words @@ $3::tsquery) AND NOT words @@ $4::tsquery" \
  "  LIMIT $5::bigint)"
constexpr PostgresStatement kFindAnywhere{
    "find_anywhere",
    "(SELECT line FROM (" FOUND_IN("a") " UNION ALL " FOUND_IN("b") ") AS found"
    " ORDER BY place LIMIT $6::bigint)"
    " UNION ALL (SELECT food FROM submissions WHERE state = 1"
    " AND text LIKE $1::text AND text LIKE ALL ($2::text[])"
    " AND ($3::tsquery IS NULL OR words @@ $3::tsquery) AND NOT words @@ $4::tsquery"
    " ORDER BY length(name), name COLLATE \"C\", food LIMIT $6::bigint)"};
#undef FOUND_IN

}  // namespace

std::vector<std::string> PostgresStore::Search(const FoldedTerm& term, std::size_t most) {
  if (term.words.empty() || most == 0) return {};
  const auto candidates = static_cast<std::int64_t>(std::max(kCandidates, most));
  const auto results = static_cast<std::int64_t>(most);
  std::vector<PostgresRows> answers;
  std::vector<std::string_view> lines;
  const auto take = [&](PostgresRows rows) {
    for (int row = 0; row < rows.Count(); ++row) lines.push_back(rows.Bytes(row, 0));
    answers.push_back(std::move(rows));
  };
  const std::string beginnings = BeginningsQuery(term.words);
  PostgresValue only_word = std::nullopt;
  if (term.words.size() == 1 && most <= kListedFoods) only_word = term.words.front();
  std::vector<std::string> patterns;
  std::vector<std::string> short_words;
  for (const std::string& word : term.words) {
    if (word.size() < kShortestAnywhere) {
      short_words.push_back(word);
    } else {
      patterns.push_back("%" + ForTrigrams(word) + "%");
    }
  }
  {
    const auto connection = pool_.Take(After(options_.search_milliseconds));
    take(connection->Run(kFindBeginnings,
                         std::array{PostgresValue(WholeNameQuery(term)), PostgresValue(beginnings),
                                    PostgresValue(candidates), PostgresValue(results), only_word},
                         Soon()));
    if (lines.size() < most && !patterns.empty()) {
      // The longest is likely to be the rarest.
      const std::string longest = *std::ranges::max_element(patterns, {}, &std::string::size);
      std::string all = "{";
      for (const std::string& pattern : patterns) all += (all == "{" ? "" : ",") + pattern;
      PostgresValue shorts = std::nullopt;
      if (!short_words.empty()) shorts = BeginningsQuery(short_words);
      take(connection->Run(
          kFindAnywhere,
          std::array{PostgresValue(longest), PostgresValue(all + "}"), shorts,
                     PostgresValue(beginnings), PostgresValue(candidates), PostgresValue(results)},
          Soon()));
    }
  }
  const std::vector<std::string_view> ranked = RankFoods(term, lines, most);
  return {ranked.begin(), ranked.end()};
}

}  // namespace kelvora::server
