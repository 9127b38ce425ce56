// The hand-made users of tests/oracles/reports, their days and what their reports must be.
#pragma once

#include <algorithm>

#include "oracles/table.h"
#include "output/report_fixture.h"

namespace kelvora {

inline constexpr std::string_view kUserColumns =
    "user folder system gramoz mark language diary graphs today year profile";
inline constexpr std::string_view kDayColumns = "user trend notes header morning afternoon evening";
inline constexpr std::array kProfileFields = {
    ProfileField::name,        ProfileField::address_1, ProfileField::address_2,
    ProfileField::city,        ProfileField::postcode,  ProfileField::height,
    ProfileField::gender,      ProfileField::age,       ProfileField::weight,
    ProfileField::goal_weight, ProfileField::country,   ProfileField::reference,
    ProfileField::remark,      ProfileField::state,     ProfileField::type_prioriteit};

inline std::vector<Rec_DayFile> DaysOf(const std::string& user) {
  std::vector<Rec_DayFile> days;
  for (const TableRow& row : ReadTable("reports/days.tsv", kDayColumns)) {
    if (row[0] == user) days.push_back(DayOf({row[1], row[2], row[3], row[4], row[5], row[6]}));
  }
  return days;
}

inline void TakeUser(Program& program, const TableRow& row) {
  program.settings[Setting::opt_system] = row[2];
  program.settings[Setting::opt_gramoz] = row[3];
  if (row[5] == "Dutch") Make_Taal_Dutch(program.texts);
  const Text profile = Written(row[10]);
  for (std::size_t i = 0; i < kProfileFields.size(); ++i) {
    program.profile[kProfileFields[i]] = FieldOf(profile, i);
  }
}

// The place where two texts part, with what stands around it.
inline Text Difference(const Text& made, const Text& expected) {
  const auto [at, other] =
      std::mismatch(made.begin(), made.end(), expected.begin(), expected.end());
  const auto place = static_cast<std::size_t>(at - made.begin());
  const std::size_t from = place - std::min<std::size_t>(place, 80);
  return "at byte " + std::to_string(place) + ":\n" + Utf8FromText(made.substr(from, 160)) +
         "\ninstead of:\n" + Utf8FromText(expected.substr(from, 160));
}

}  // namespace kelvora
