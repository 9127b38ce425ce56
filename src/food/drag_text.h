// What moves between windows by drag and drop: plain text with a marker in front.
//
//   "add-"     then whole food lines, each closed by kLineEnd        (from a food list)
//   "kill-"    then keys (name and kFieldEnd), each closed likewise  (from a consumption list)
//   "NVITEM-"  then one food line without kLineEnd                   (from the separate calorie
//                                                                     program)
//
// Text of any other form does nothing where it is dropped.
#pragma once

#include <string_view>

#include "core/store.h"

namespace kelvora {

inline constexpr std::string_view kAddMarker = "add-";
inline constexpr std::string_view kKillMarker = "kill-";
inline constexpr std::string_view kForeignMarker = "NVITEM-";

// The field that marks a line as coming from the separate calorie program.
inline constexpr std::string_view kForeignOrigin = "Nomivant.exe";

// True if some list of this program takes text of that form.
[[nodiscard]] bool IsDragText(std::string_view text);

// Takes the marker from the front of `payload`; false, with nothing changed, if it isn't there.
bool TakeMarker(Text& payload, std::string_view marker);

// The parts of a payload without its marker; what no kLineEnd closes is dropped.
[[nodiscard]] TextList PartsOf(std::string_view payload);

}  // namespace kelvora
