// What foods become in the tables of PostgreSQL.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "food_server/fold.h"

namespace kelvora::server {

// A beginning of words that at least this many words of foods have is looked up in a list of the
// first foods instead of among all of them; the list has this many.
inline constexpr std::uint32_t kManyFoods = 1000;
inline constexpr std::size_t kListedFoods = 200;

// The words of a food in the form of a tsvector: each, and each name as a whole behind "=".
[[nodiscard]] std::string WordsAsVector(const FoldedFood& food);
// The words of a term as a tsquery, each as the beginning of a word; and the term as a whole name.
[[nodiscard]] std::string BeginningsQuery(std::span<const std::string> words);
[[nodiscard]] std::string WholeNameQuery(const FoldedTerm& term);
// Folded text as pg_trgm can read it.
[[nodiscard]] std::string ForTrigrams(std::string_view folded);

// The beginnings that many foods have, and for each the places of its first foods.
class CommonBeginnings {
 public:
  // First every food is counted, in any order, then Choose ends the counting.
  void Count(const FoldedFood& food);
  void Choose(std::uint32_t many = kManyFoods);
  // Then each food is listed, in order of its place.
  void List(const FoldedFood& food, std::uint32_t place);

  [[nodiscard]] const std::map<std::string, std::vector<std::uint32_t>>& Lists() const {
    return lists_;
  }

 private:
  struct Word {
    std::uint32_t foods = 0;
    std::vector<std::vector<std::uint32_t>*> lists;  // those of its beginnings
  };
  std::unordered_map<std::string, Word> words_;
  std::map<std::string, std::vector<std::uint32_t>> lists_;
};

// The lines in the order of StandsBefore, each once, and their beginnings counted. Nothing if
// go_on, which is asked now and then, says so.
[[nodiscard]] std::optional<std::vector<std::string_view>> InOrder(
    std::span<const std::string_view> lines, CommonBeginnings& beginnings,
    const std::function<bool()>& go_on);

// Rows in the text form of COPY.
void AppendFoodRow(std::string& rows, std::uint32_t place, const FoldedFood& food,
                   std::string_view line);
void AppendBeginningRow(std::string& rows, std::string_view beginning,
                        std::span<const std::uint32_t> places);

}  // namespace kelvora::server
