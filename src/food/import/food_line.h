// The line of a category database that a food of a table becomes.
#pragma once

#include "food/import/mapping.h"

namespace kelvora {

// An amount with at most three decimals, none of them a zero at the end; halves go up.
void AppendAmount(Text& out, double value);

// Appends the twelve fields of the food under this name, and the end of the line.
void AppendFoodLine(Text& out, std::string_view name, const TableFood& food);

// Tells names that have been given apart, so that each food of a set has its own: the second
// "Butter" becomes "Butter (2)". Eight to twenty bytes a name, whatever its length: equal hashes of
// 44 bits count as equal names, which at worst numbers a food that needs no number.
class FoodNames {
 public:
  FoodNames();
  // The name to be given; good until the next call.
  std::string_view Give(std::string_view name);
  [[nodiscard]] std::size_t Count() const { return count_; }

 private:
  // The slot of the name, taken for it if it is new: its hash in the upper bits, below them how
  // often it was given. 0 is a free slot.
  std::uint64_t& SlotOf(std::string_view name);
  void Grow();
  std::vector<std::uint64_t> slots_;
  std::size_t count_ = 0;
  Text numbered_;
};

}  // namespace kelvora
