// Writing into one slot of the embedded store; see sqlite_schema.h.
#pragma once

#include "food_server/fold.h"
#include "food_server/sqlite.h"

namespace kelvora::server {

class SlotWriter {
 public:
  SlotWriter(Connection& connection, char slot);

  void Clear();
  void Add(std::int64_t place, std::string_view line, const FoldedFood& food);
  void Remove(std::int64_t place);
  // A free place beside the foods that the line belongs to, just behind them if there is no room.
  [[nodiscard]] std::int64_t PlaceFor(std::string_view line, const FoldedFood& food);
  // Works some time at putting what was added into few pieces, which are searched faster; false
  // when there is no more to do.
  bool Merge();

 private:
  [[nodiscard]] bool IsTaken(std::int64_t place);
  [[nodiscard]] std::int64_t LastPlace();

  Connection& connection_;
  char slot_;
  bool merging_ = false;
  Statement add_food_, add_name_, add_words_, add_grams_;
  Statement line_of_, from_, last_;
  Statement remove_food_, remove_name_, remove_words_, remove_grams_;
  Statement merge_words_, merge_grams_;
};

}  // namespace kelvora::server
