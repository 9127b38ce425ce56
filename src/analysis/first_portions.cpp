#include "analysis/first_portions.h"

#include "core/store.h"

namespace kelvora {

void FirstPortions::Add(std::string_view line) {
  const std::string_view name = line.substr(0, line.find(kFieldEnd));
  const auto [known, is_new] = places_.try_emplace(name, foods_.size());
  if (is_new) foods_.push_back({line, 0});
  Food& food = foods_[known->second];
  if (food.line == line) ++food.count;
}

}  // namespace kelvora
