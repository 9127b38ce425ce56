#include "food_server/ranking.h"

#include <algorithm>

namespace kelvora::server {
namespace {

bool BeginsAWord(std::string_view word, std::string_view text) {
  for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1)) {
    if (at == 0 || text[at - 1] == ' ') return true;
  }
  return false;
}

bool StandsIn(std::string_view word, std::string_view text) {
  return word.size() < kShortestAnywhere ? BeginsAWord(word, text) : text.find(word) != text.npos;
}

}  // namespace

std::optional<Match> MatchOf(const FoldedTerm& term, const FoldedFood& food) {
  if (term.words.empty()) return std::nullopt;
  if (std::ranges::find(food.names, term.text) != food.names.end()) return Match::whole_name;
  const bool begin = std::ranges::all_of(
      term.words, [&](const auto& word) { return BeginsAWord(word, food.text); });
  if (begin) return Match::word_beginning;
  if (StandsAnywhere(term, food.text)) return Match::anywhere;
  return std::nullopt;
}

bool StandsAnywhere(const FoldedTerm& term, std::string_view text) {
  return std::ranges::all_of(term.words, [&](const auto& word) { return StandsIn(word, text); });
}

bool StandsBefore(std::string_view name, std::string_view line, std::string_view other_name,
                  std::string_view other_line) {
  if (name.size() != other_name.size()) return name.size() < other_name.size();
  return name != other_name ? name < other_name : line < other_line;
}

std::vector<std::string_view> RankFoods(const FoldedTerm& term,
                                        std::span<const std::string_view> lines, std::size_t most) {
  struct Found {
    Match match;
    std::string name;
    std::string_view line;
  };
  std::vector<Found> found;
  for (const std::string_view line : lines) {
    FoldedFood food = FoldFood(line);
    if (const auto match = MatchOf(term, food)) {
      found.push_back({*match, std::move(food.name), line});
    }
  }
  std::ranges::sort(found, [](const Found& a, const Found& b) {
    return a.match != b.match ? a.match < b.match : StandsBefore(a.name, a.line, b.name, b.line);
  });
  std::vector<std::string_view> ranked;
  for (const Found& food : found) {
    if (ranked.size() == most) break;
    ranked.push_back(food.line);
  }
  return ranked;
}

}  // namespace kelvora::server
