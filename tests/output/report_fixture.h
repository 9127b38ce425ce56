// A program that makes reports, and days as tests write them.
#pragma once

#include "language/built_in_texts.h"
#include "output/report.h"
#include "support/test_program.h"

namespace kelvora {

// `utf8` with "|" for the end of a field, "~" for the end of a line, and \r and \n as two
// characters each.
inline Text Written(const std::string& utf8) {
  return Packed(ReplaceAll(ReplaceAll(TextFromUtf8(utf8), "\\r", "\r"), "\\n", "\n"));
}

// A page typed in a test, UTF-8: its lines end in carriage return and line feed.
inline Text Typed(std::string_view page) {
  return ReplaceAll(TextFromUtf8(page), "\n", "\r\n");
}

struct DayText {
  std::string trend, notes, header, morning, afternoon, evening;
};
inline Rec_DayFile DayOf(const DayText& day) {
  Rec_DayFile record;
  record.strings = {Written(day.trend),   Written(day.notes),     Written(day.header),
                    Written(day.morning), Written(day.afternoon), Written(day.evening)};
  return record;
}

inline const DayText kQuietDay{
    .trend = "35|343.5|82|0.4|0.2|16|3|0.172|80.5|",
    .notes = "Slept.",
    .header = "Anna~~~~~1.80~80.5~Female~42~05-03-04~75~Friday~~~~",
    .morning = "Bread|1 slice|35|343.5|82|3|0.4|0.2|16|0.172|5||Bread.dat|~"};

struct ReportProgram : TestProgram {
  ReportProgram() {
    program.settings[Setting::opt_system] = "0";
    program.settings[Setting::opt_gramoz] = "0";
  }
  [[nodiscard]] ReportContext Context() { return ReportContextOf(program); }
  // The report of these days.
  [[nodiscard]] Text Make(const ReportOptions& options, const std::vector<Rec_DayFile>& days,
                          std::string_view user_name = "Anna",
                          const ReportDay& today = {"05-03-26", 2026}) {
    const ReportContext context = Context();
    Report report(context, options);
    for (const Rec_DayFile& day : days) {
      TextList header;
      SplitBlock(day[DayFileField::Header], header);
      report.Add(day, ShownDate(context, header[HeaderRow::kDate]));
    }
    Text whole;
    for (const Text& piece : report.TakePieces(user_name, today)) whole += piece;
    return whole;
  }
};

}  // namespace kelvora
