// Writing into one slot of the embedded store; see sqlite_schema.h.
#pragma once

#include "food_server/fold.h"
#include "food_server/sqlite.h"

namespace kelvora::server {

class SlotWriter {
 public:
  SlotWriter(Connection& connection, char slot);

  // Empties it, to be filled.
  void Clear();
  void Add(std::int64_t place, std::string_view line, const FoldedFood& food);
  void Remove(std::int64_t place);
  // A free place between the foods that the line stands between; those behind it give way where
  // there is no room, accepted ones with what their submissions say.
  [[nodiscard]] std::int64_t PlaceFor(std::string_view line, const FoldedFood& food);
  // Works some time at putting what was added into few pieces, which are searched faster; false
  // when there is no more to do.
  bool Merge();

 private:
  // Empty for a free place.
  [[nodiscard]] std::string LineOf(std::int64_t place);
  [[nodiscard]] std::int64_t LastPlace();
  // Moves the food at a place, and those that follow it without room, one place on.
  void GiveWay(std::int64_t place);

  Connection& connection_;
  char slot_;
  bool merging_ = false;
  Statement add_food_, add_name_, add_words_, add_grams_;
  Statement line_of_, from_, last_, move_submission_;
  Statement remove_food_, remove_name_, remove_words_, remove_grams_;
  Statement merge_words_, merge_grams_;
};

}  // namespace kelvora::server
