#include "food_server/postgres_foods.h"

#include <algorithm>

#include "food_server/postgres_schema.h"
#include "food_server/ranking.h"

namespace kelvora::server {
namespace {

constexpr std::size_t kBetweenLooks = 1000;

// A vector's words have a limit, and no term is longer than this.
std::string_view Cut(std::string_view word) {
  return word.substr(0, kMostLettersOfTerm);
}

// Folded text has no quote and no backslash.
void AppendQuoted(std::string& text, std::string_view before, std::string_view word) {
  text.append("'").append(before).append(word).append("'");
}

std::vector<std::string_view> DifferentWords(const FoldedFood& food) {
  std::vector<std::string_view> words = WordsOf(food.text);
  for (std::string_view& word : words) word = Cut(word);
  std::ranges::sort(words);
  words.erase(std::unique(words.begin(), words.end()), words.end());
  return words;
}

}  // namespace

std::string WordsAsVector(const FoldedFood& food) {
  std::string vector;
  for (const std::string_view word : DifferentWords(food)) {
    AppendQuoted(vector, "", word);
    vector += ' ';
  }
  for (const std::string& name : food.names) {
    if (name.empty() || name.size() > kMostLettersOfTerm) continue;
    AppendQuoted(vector, "=", name);
    vector += ' ';
  }
  return vector;
}

std::string BeginningsQuery(std::span<const std::string> words) {
  std::string query;
  for (const std::string& word : words) {
    if (!query.empty()) query += " & ";
    AppendQuoted(query, "", word);
    query += ":*";
  }
  return query;
}

std::string WholeNameQuery(const FoldedTerm& term) {
  std::string query;
  AppendQuoted(query, "=", term.text);
  return query;
}

std::string ForTrigrams(std::string_view folded) {
  std::string text;
  for (const char letter : folded) {
    if (letter == '%') {
      text += kPercent;
    } else {
      text += letter;
    }
  }
  return text;
}

void CommonBeginnings::Count(const FoldedFood& food) {
  for (const std::string_view word : DifferentWords(food)) ++words_[std::string(word)].foods;
}

// Sorted words with the same beginning stand together: a beginning's sum is complete when the next
// word doesn't have it any more.
void CommonBeginnings::Choose(std::uint32_t many) {
  std::vector<std::string_view> sorted;
  for (const auto& [word, _] : words_) sorted.push_back(word);
  std::ranges::sort(sorted);
  std::vector<std::uint64_t> sums(kMostLettersOfTerm + 1);
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    const std::string_view word = sorted[i];
    for (std::size_t length = 1; length <= word.size(); ++length) {
      sums[length] += words_.find(std::string(word))->second.foods;
    }
    const std::string_view next = i + 1 < sorted.size() ? sorted[i + 1] : std::string_view();
    const auto shared = static_cast<std::size_t>(
        std::mismatch(word.begin(), word.end(), next.begin(), next.end()).first - word.begin());
    for (std::size_t length = shared + 1; length <= word.size(); ++length) {
      if (sums[length] >= many) lists_.try_emplace(std::string(word.substr(0, length)));
      sums[length] = 0;
    }
  }
  for (auto& [text, word] : words_) {
    for (std::size_t length = 1; length <= text.size(); ++length) {
      const auto list = lists_.find(text.substr(0, length));
      if (list == lists_.end()) break;
      word.lists.push_back(&list->second);
    }
  }
}

void CommonBeginnings::List(const FoldedFood& food, std::uint32_t place) {
  for (const std::string_view word : DifferentWords(food)) {
    const auto known = words_.find(std::string(word));
    if (known == words_.end()) continue;
    for (std::vector<std::uint32_t>* const list : known->second.lists) {
      if (list->size() < kListedFoods && (list->empty() || list->back() != place)) {
        list->push_back(place);
      }
    }
  }
}

std::optional<std::vector<std::string_view>> InOrder(std::span<const std::string_view> lines,
                                                     CommonBeginnings& beginnings,
                                                     const std::function<bool()>& go_on) {
  struct Named {
    std::string name;
    std::string_view line;
  };
  std::vector<Named> foods;
  foods.reserve(lines.size());
  for (const std::string_view line : lines) {
    if (foods.size() % kBetweenLooks == 0 && !go_on()) return std::nullopt;
    foods.push_back({FoldFood(line).name, line});
  }
  std::ranges::sort(foods, [](const Named& a, const Named& b) {
    return StandsBefore(a.name, a.line, b.name, b.line);
  });
  std::vector<std::string_view> ordered;
  ordered.reserve(foods.size());
  for (const Named& food : foods) {
    if (ordered.size() % kBetweenLooks == 0 && !go_on()) return std::nullopt;
    if (!ordered.empty() && ordered.back() == food.line) continue;
    ordered.push_back(food.line);
    beginnings.Count(FoldFood(food.line));
  }
  beginnings.Choose();
  return ordered;
}

void AppendFoodRow(std::string& rows, std::uint32_t place, const FoldedFood& food,
                   std::string_view line) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  rows.append(std::to_string(place)).append("\t").append(WordsAsVector(food)).append("\t");
  rows.append(ForTrigrams(food.text)).append("\t\\\\x");
  for (const char byte : line) {
    const auto code = static_cast<unsigned char>(byte);
    rows += kDigits[code >> 4];
    rows += kDigits[code & 15];
  }
  rows += '\n';
}

void AppendBeginningRow(std::string& rows, std::string_view beginning,
                        std::span<const std::uint32_t> places) {
  rows.append(beginning).append("\t{");
  for (const std::uint32_t place : places) {
    if (rows.back() != '{') rows += ',';
    rows += std::to_string(place);
  }
  rows += "}\n";
}

}  // namespace kelvora::server
