// Which column of a table is which part of a food, and the food that a row becomes by it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "food/import/cell.h"

namespace kelvora {

enum class TableField {
  name,
  brand,          // goes behind the name
  group,          // becomes the category
  remark,         // several follow each other
  portion,        // words for a portion
  portion_grams,  // its weight
  quantity,       // what the amounts are those of: "per 100ml"
  kj,
  kcal,
  protein,
  fat,  // all of it
  fat_u,
  fat_s,
  fat_mono,
  fat_poly,
  carbs,
  sodium,
  salt,
  country,
  completeness,  // 0 to 1
};
inline constexpr std::size_t kTableFieldCount = 20;

// One column. Where a field has several, the first that holds something counts; remarks are joined.
struct TableColumn {
  TableField field;
  Text header;                         // blanks and capitals make no difference
  double scale = 1;                    // from the table's unit to grams, kilojoules, kilocalories
  std::optional<std::size_t> place{};  // of a column whose header doesn't tell it
  bool operator==(const TableColumn&) const = default;
};

struct TableMapping {
  Text name;  // of the set, in front of its categories
  std::vector<TableColumn> columns;
  bool of_portion = false;  // amounts are those of the portion, not of 100 grams
  bool has_header = true;
  bool operator==(const TableMapping&) const = default;
};

// The parts of a food line that hold amounts, in their order there.
enum class TableAmount { kj, kcal, protein, fat_u, fat_s, carbs, sodium };
inline constexpr std::size_t kAmountCount = 7;

struct TableFood {
  Text name, unit, group, remark;
  int grams = 100;
  std::array<double, kAmountCount> amounts{};  // of the portion
  int unknown = 0;                             // amounts that the table doesn't tell: 0
};

enum class SkipReason {
  no_name,
  unreadable_name,  // most of its characters are none that text can hold
  no_energy,
  header_again,
  unbalanced_quote,
  too_long,
  cut_short,  // the file ends in the middle of its line
};
inline constexpr std::size_t kSkipReasonCount = 7;

// What a reason is called in a report, in English.
[[nodiscard]] std::string_view NameOf(SkipReason reason);

// What to do with the portions of a table.
enum class PortionChoice { hundred_grams, serving };

// What of a table is wanted. Empty lists take all.
struct RowChoice {
  PortionChoice portion = PortionChoice::serving;
  std::vector<Text> groups;  // in lower case, as the table names them
  Text country;              // in lower case
  double completeness = 0;   // at least
};

enum class RowKind { food, skipped, not_wanted };

class RowMapper {
 public:
  // `header` is the first row of the table, or one as wide of a table without a header.
  RowMapper(const TableMapping& mapping, std::span<const std::string_view> header,
            Encoding encoding, RowChoice choice);

  // True if name and energy have a column.
  [[nodiscard]] bool IsComplete() const;

  // Reads one row. `food` is set for a food, its group for what is not wanted because of it; of a
  // skipped row the reason and, as far as there is one, the name.
  RowKind Map(const TableRow& row, TableFood& food, SkipReason& reason) const;

 private:
  struct Place {
    std::size_t column;
    double scale;
  };

  [[nodiscard]] std::string_view CellOf(const TableRow& row, TableField field) const;
  [[nodiscard]] Text TextOf(const TableRow& row, TableField field) const;
  [[nodiscard]] std::optional<double> AmountOf(const TableRow& row, TableField field,
                                               double most) const;
  [[nodiscard]] bool IsHeader(const TableRow& row) const;
  [[nodiscard]] bool IsWanted(const TableRow& row, TableFood& food) const;
  bool ReadName(const TableRow& row, TableFood& food, SkipReason& reason) const;
  double ReadPortion(const TableRow& row, TableFood& food) const;
  bool ReadAmounts(const TableRow& row, double factor, TableFood& food) const;
  void ReadRemark(const TableRow& row, TableFood& food) const;

  std::array<std::vector<Place>, kTableFieldCount> places_;
  Encoding encoding_;
  RowChoice choice_;
  bool of_portion_;
  std::vector<std::string> header_;
};

// What an amount in 100 grams is at most; pure fat has 900 kilocalories.
inline constexpr double kKjOfKcal = 4.2;
inline constexpr double kMostPortionGrams = 100;
inline constexpr double kMostKcal = 1000;
inline constexpr double kMostKj = kMostKcal * kKjOfKcal;

// Amounts of a food from what a table tells of it: energy by the other unit where one is missing,
// unsaturated fat by its parts, sodium by salt. False without any energy.
struct KnownAmounts {
  std::optional<double> kj, kcal, protein, fat, fat_u, fat_s, fat_mono, fat_poly, carbs, sodium,
      salt;
};
bool CompleteAmounts(const KnownAmounts& known, double factor, TableFood& food);

// The longest name of a food; what is longer is cut, as by CutTo, which leaves no blank at the end.
inline constexpr std::size_t kLongestName = 250;
[[nodiscard]] Text CutTo(Text text, std::size_t size);

// The form of a header by which it is compared: small letters without blanks.
[[nodiscard]] Text HeaderKey(std::string_view header);

}  // namespace kelvora
