// What undoing and redoing go over: the three lists of the open day, as they stood before each
// change.
//
// Whoever has changed them tells afterwards (Note), however the change came about, and one telling
// is one step. A list shares the bytes of its lines with its copies, so a step costs a few
// kilobytes.
#pragma once

#include <array>
#include <deque>
#include <optional>

#include "core/store.h"

namespace kelvora {

class DayUndo {
 public:
  // How many changes can be taken back; the oldest ones go first.
  static constexpr std::size_t kDepth = 500;

  // What the lists hold now. The first time of a day is no change; later one that holds something
  // else than before is, and what was undone can't be redone any more.
  void Note(const KV_data& store);
  // The day is closed.
  void Clear() { *this = DayUndo(); }

  [[nodiscard]] bool CanUndo() const { return !past_.empty(); }
  [[nodiscard]] bool CanRedo() const { return !future_.empty(); }

  // Put back the lists of the change before, or those of the change that was undone last. False,
  // with nothing changed, without one.
  bool Undo(KV_data& store) { return Step(store, past_, future_); }
  bool Redo(KV_data& store) { return Step(store, future_, past_); }

 private:
  using Lists = std::array<TextList, kDayParts.size()>;

  bool Step(KV_data& store, std::deque<Lists>& from, std::deque<Lists>& to);

  std::optional<Lists> now_;
  std::deque<Lists> past_, future_;  // the nearest at the back
};

}  // namespace kelvora
