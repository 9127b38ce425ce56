// One report while it is made: days are added in the order of the list, then the whole is taken, in
// pieces, since the days of many years make a large file. Reads and writes no file.
#pragma once

#include <array>
#include <vector>

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

  // The file as pieces that follow each other, in Windows-1252. The days are taken out of the
  // report: asked once. `user_name` is that of the user's folder.
  [[nodiscard]] std::vector<Text> TakePieces(std::string_view user_name, const ReportDay& today);

 private:
  [[nodiscard]] Text FrontOfXml(const ReportSpan& span) const;
  [[nodiscard]] Text FrontOfPage(const ReportSpan& span) const;
  [[nodiscard]] Text Graphs() const;

  const ReportContext& context_;
  ReportOptions options_;
  std::size_t days_ = 0;
  Text start_date_, end_date_;
  Text index_;
  std::array<Text, kReportGraphs.size()> bars_;
  std::vector<Text> sections_;  // one for each day
};

}  // namespace kelvora
