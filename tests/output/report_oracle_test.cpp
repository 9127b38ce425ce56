// Whole reports of hand-made users against those of tests/oracles/make_reports.py, to the byte.
#include <gtest/gtest.h>

#include "oracles/table.h"
#include "output/report_fixture.h"

namespace kelvora {
namespace {

constexpr std::string_view kUserColumns =
    "user folder system gramoz mark language diary graphs today year profile";
constexpr std::string_view kDayColumns = "user trend notes header morning afternoon evening";
constexpr std::array kProfileFields = {
    ProfileField::name,        ProfileField::address_1, ProfileField::address_2,
    ProfileField::city,        ProfileField::postcode,  ProfileField::height,
    ProfileField::gender,      ProfileField::age,       ProfileField::weight,
    ProfileField::goal_weight, ProfileField::country,   ProfileField::reference,
    ProfileField::remark,      ProfileField::state,     ProfileField::type_prioriteit};

std::vector<Rec_DayFile> DaysOf(const std::string& user) {
  std::vector<Rec_DayFile> days;
  for (const TableRow& row : ReadTable("reports/days.tsv", kDayColumns)) {
    if (row[0] == user) days.push_back(DayOf({row[1], row[2], row[3], row[4], row[5], row[6]}));
  }
  return days;
}

void TakeUser(Program& program, const TableRow& row) {
  program.settings[Setting::opt_system] = row[2];
  program.settings[Setting::opt_gramoz] = row[3];
  if (row[5] == "Dutch") Make_Taal_Dutch(program.texts);
  const Text profile = Written(row[10]);
  for (std::size_t i = 0; i < kProfileFields.size(); ++i) {
    program.profile[kProfileFields[i]] = FieldOf(profile, i);
  }
}

// The place where two texts part, with what stands around it.
Text Difference(const Text& made, const Text& expected) {
  const auto [at, other] =
      std::mismatch(made.begin(), made.end(), expected.begin(), expected.end());
  const auto place = static_cast<std::size_t>(at - made.begin());
  const std::size_t from = place - std::min<std::size_t>(place, 80);
  return "at byte " + std::to_string(place) + ":\n" + Utf8FromText(made.substr(from, 160)) +
         "\ninstead of:\n" + Utf8FromText(expected.substr(from, 160));
}

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
