// One report while it is made: days are added in the order of the list, then the whole is joined.
// Reads and writes no file.
#pragma once

#include <array>

#include "output/html.h"

namespace kelvora {

// In the order of `opt_soort`.
enum class ReportFormat { html, dta, xml };

struct ReportOptions {
  ReportFormat format = ReportFormat::html;
  bool graphs = true;  // XML has none
  DiaryChoice diary = DiaryChoice::include;
};

class Report {
 public:
  Report(const ReportContext& context, const ReportOptions& options)
      : context_(context), options_(options) {}

  // `shown_date` is the date of the day as the list shows it.
  void Add(const Rec_DayFile& day, std::string_view shown_date);

  // The dates are those of the first and the last day that was added, the newest first. Views stay
  // valid as long as the report and `user_name`.
  [[nodiscard]] ReportSpan Span(std::string_view user_name) const;

  // The file, in Windows-1252. `user_name` is that of the user's folder.
  [[nodiscard]] Text Join(std::string_view user_name, const ReportDay& today) const;

 private:
  [[nodiscard]] Text JoinXml(const ReportSpan& span) const;
  [[nodiscard]] Text JoinPage(const ReportSpan& span, const ReportDay& today) const;

  const ReportContext& context_;
  ReportOptions options_;
  std::size_t days_ = 0;
  Text start_date_, end_date_;
  Text index_;
  std::array<Text, kReportGraphs.size()> bars_;
  Text sections_;
};

}  // namespace kelvora
