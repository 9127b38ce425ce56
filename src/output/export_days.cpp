#include "output/export_days.h"

#include <array>

#include "language/export_form_texts.h"
#include "nutrition/dates.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

using namespace export_form_text;

}  // namespace

std::vector<std::size_t> NewestFirst(const std::vector<Text>& stored_dates, const Pause& pause) {
  std::vector<double> keys;
  keys.reserve(stored_dates.size());
  // The sort leaves the lowest key first.
  for (const Text& date : stored_dates) keys.push_back(-ReadStoredNumber(DateKeyOf(date)));
  return ExchangeSorted(keys, pause);
}

std::string ReportFileName(const TextTables& texts, ReportFormat format,
                           std::string_view folder_name, const ReportSpan& span) {
  Text rest = " (";
  if (format == ReportFormat::html) {
    rest += std::to_string(span.days) + " " + texts[kDaysFrom] + " ";
  }
  rest.append(span.start_date).append(" ").append(texts[kTill]).append(" ");
  rest.append(span.end_date).append(")");
  constexpr std::array<std::string_view, 3> kEndings = {".html", ".dta", ".xml"};
  return std::string(folder_name) + Utf8FromText(rest) +
         std::string(kEndings[static_cast<std::size_t>(format)]);
}

Box NoDaysBox(const TextTables& texts) {
  return {.title = Text(AppTitle),
          .text = JoinLines(texts, {kNoDays, kSelectDays}),
          .icon = BoxIcon::error};
}

std::optional<Box> TooManyDaysBox(const TextTables& texts, std::size_t days, bool graphs) {
  if (!graphs || days <= kMostDaysWithGraphs) return std::nullopt;
  return Box{.title = texts[kTooManyDaysTitle],
             .text = JoinLines(texts, {kTooManyDays, kGraphLayout, std::nullopt, kContinueSure}),
             .icon = BoxIcon::question,
             .buttons = BoxButtons::yes_no};
}

Box SavedDtaBox(const TextTables& texts, std::string_view path) {
  Text text = texts[kSavedAs] + " \n";
  text.append(path).append("\n\n").append(texts[kSubmitDta]);
  return {.title = Text(AppTitle), .text = std::move(text), .icon = BoxIcon::information};
}

}  // namespace kelvora
