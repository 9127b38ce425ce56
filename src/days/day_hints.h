// The grey words beside the boxes of the day dialog: the same value in other units, and the date as
// users of the unit system read it.
#pragma once

#include "days/day_form.h"

namespace kelvora {

// Each is empty while its field is.
struct DayHints {
  Text lbl_lengteinfo, lbl_gewichtinfo, lbl_streefgewichtinfo, lbl_datuminfo;
};

// A failure shows "#F2-2" and leaves the hints as far as they came.
[[nodiscard]] DayHints DrawCoversionsText(Program& program, const DayForm& form);

// The date of the form; empty while it is incomplete.
[[nodiscard]] Text DateHint(Program& program, const DayForm& form);

}  // namespace kelvora
