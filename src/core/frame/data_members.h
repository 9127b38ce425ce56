// The store, member by member, for the programmers' window that looks into it. Reads the store and
// changes nothing; names are those of the members.
#pragma once

#include <span>
#include <string_view>

#include "core/program.h"

namespace kelvora {

// A list or a text cell of the store: one of the two pointers is set.
struct DataMember {
  std::string_view name;
  TextList KV_data::*list = nullptr;
  Text KV_data::*cell = nullptr;
  bool tells_lines = false;  // a click on a line shows it in a box
};

[[nodiscard]] std::span<const DataMember> DataMembers();

// A text cell is one line, an empty one none.
[[nodiscard]] std::size_t LineCount(const KV_data& store, const DataMember& member);

// The line at `index`; "" where there is none.
[[nodiscard]] Text LineAt(const KV_data& store, const DataMember& member, std::size_t index);

// Shows a line of a food list or a day part in a box; does nothing for other members.
void TellLine(Program& program, const DataMember& member, std::size_t index);

}  // namespace kelvora
