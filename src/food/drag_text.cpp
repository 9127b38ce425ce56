#include "food/drag_text.h"

namespace kelvora {

bool IsDragText(std::string_view text) {
  return text.starts_with(kAddMarker) || text.starts_with(kKillMarker) ||
         text.starts_with(kForeignMarker);
}

bool TakeMarker(Text& payload, std::string_view marker) {
  if (!payload.starts_with(marker)) return false;
  payload.erase(0, marker.size());
  return true;
}

TextList PartsOf(std::string_view payload) {
  TextList parts;
  SplitBlock(payload, parts);
  return parts;
}

}  // namespace kelvora
