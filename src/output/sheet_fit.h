// How a page and a sheet of paper go together.
#pragma once

#include "platform/printing.h"

namespace kelvora {

// True if nothing of the page falls below the sheet, and nothing begins beyond its right edge.
// Texts that are too long for the line are not looked at: nobody knows their width here.
[[nodiscard]] bool SheetHolds(const Sheet& sheet, const PrintedPage& page);

// The page as it is printed on the sheet. A page's places are those of the whole sheet; where the
// printer can't reach the edges, all of it is made smaller to stand within them.
[[nodiscard]] PrintedPage WithinMargins(PrintedPage page, const Sheet& sheet);

}  // namespace kelvora
