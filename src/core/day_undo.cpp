#include "core/day_undo.h"

#include <utility>

namespace kelvora {

void DayUndo::Note(const KV_data& store) {
  bool same = now_.has_value();
  for (std::size_t i = 0; same && i < kDayParts.size(); ++i) {
    same = (*now_)[i] == store.ListOf(kDayParts[i]);
  }
  if (same) return;
  Lists lists;
  for (std::size_t i = 0; i < kDayParts.size(); ++i) lists[i] = store.ListOf(kDayParts[i]);
  if (now_) {
    past_.push_back(std::move(*now_));
    if (past_.size() > kDepth) past_.pop_front();
    future_.clear();
  }
  now_ = std::move(lists);
}

bool DayUndo::Step(KV_data& store, std::deque<Lists>& from, std::deque<Lists>& to) {
  if (from.empty()) return false;
  to.push_back(std::move(*now_));
  now_ = std::move(from.back());
  from.pop_back();
  for (std::size_t i = 0; i < kDayParts.size(); ++i) store.ListOf(kDayParts[i]) = (*now_)[i];
  return true;
}

}  // namespace kelvora
