// The page around the days of a report: its head, what stands of the user, and its foot.
#pragma once

#include "output/report_context.h"

namespace kelvora {

// The days of a report as its title tells them. The user's name is that of the folder; dates are as
// they are shown, the newest first.
struct ReportSpan {
  std::string_view user_name;
  std::size_t days = 0;
  std::string_view start_date;
  std::string_view end_date;
};

// The day on which a report is made: the date in the system's short form, and its year.
struct ReportDay {
  std::string_view short_date;
  int year = 0;
};

void AddPageHead(Text& page, const ReportContext& context, const ReportSpan& span);

// Throws std::system_error for a weight that is no number.
void AddUser(Text& page, const ReportContext& context, std::size_t days);

void AddPageFoot(Text& page, const ReportContext& context, const ReportDay& today);

}  // namespace kelvora
