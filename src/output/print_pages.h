// The two pages that go to the printer, each a list of texts and lines. A page is one page, however
// long: what stands below the foot of the sheet is lost. What becomes of that is not decided here.
#pragma once

#include "core/store.h"
#include "output/report_context.h"
#include "platform/printing.h"

namespace kelvora {

// The moment of printing, as it is shown.
struct PrintMoment {
  Text date;
  Text time;
};

// The summary of the open day. `width` is that of the sheet, in twips. Throws std::system_error for
// an amount that a single can't hold; what only one text can't show, an impossible height say, is
// told under the code of its own routine.
[[nodiscard]] PrintedPage DayPage(const ReportContext& context, const KV_data& store, double width,
                                  const PrintMoment& now);

// An empty form to fill in by hand while away from the computer. Of the profile it holds name and
// reference ID.
[[nodiscard]] PrintedPage TravelFormPage(const ReportContext& context, double width);

}  // namespace kelvora
