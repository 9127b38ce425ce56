// Whole reports of hand-made users against those of tests/oracles/make_reports.py, to the byte.
#include <gtest/gtest.h>

#include "output/report_users.h"

namespace kelvora {
namespace {

TEST(ReportOracle, AgreesOnEveryByteOfEveryReport) {
  std::size_t compared = 0;
  for (const TableRow& row : ReadTable("reports/users.tsv", kUserColumns)) {
    ReportProgram test;
    test.locale.separator = row[4];
    TakeUser(test.program, row);
    const Text today = TextFromUtf8(row[8]);
    const ReportDay day{today, static_cast<int>(NumberOf(row[9]))};
    for (const auto& [format, ending] :
         {std::pair{ReportFormat::html, ".html"}, std::pair{ReportFormat::dta, ".dta"},
          std::pair{ReportFormat::xml, ".xml"}}) {
      const ReportOptions options{
          .format = format,
          .graphs = row[7] == "1",
          .diary = row[6] == "1" ? DiaryChoice::include : DiaryChoice::leave_out};
      const Text made = test.Make(options, DaysOf(row[0]), TextFromUtf8(row[1]), day);
      const Text expected = ReadExpectedFile("reports/" + row[0] + ending);
      EXPECT_TRUE(made == expected) << row[0] << ending << " " << Difference(made, expected);
      ++compared;
    }
    EXPECT_TRUE(test.boxes.shown.empty()) << row[0];
  }
  EXPECT_EQ(compared, 21u);
}

}  // namespace
}  // namespace kelvora
