// The order of rows after a click on a column heading. Both functions take what stands in the rows
// from top to bottom and give, for each place from the top, the row that comes there.
//
// Numbers are compared by their whole values only, which the caller takes. Their order is that of
// an insertion: each row in turn goes before the first one with a smaller value, and ascending is
// that result reversed. So equal values keep their order descending, and turn it round ascending.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace kelvora {

enum class SortOrder { ascending, descending };

[[nodiscard]] constexpr SortOrder Flipped(SortOrder order) {
  return order == SortOrder::ascending ? SortOrder::descending : SortOrder::ascending;
}

// By which column a list is sorted.
struct ColumnOrder {
  std::size_t column = 0;
  SortOrder order = SortOrder::ascending;
  bool operator==(const ColumnOrder&) const = default;
};

// Values are whole or infinite, never not-a-number.
[[nodiscard]] std::vector<std::uint32_t> OrderByWholeValue(const std::vector<double>& values,
                                                           SortOrder order);

// Without regard to case and accents; equal texts keep their order. Views need only live as long
// as the call.
[[nodiscard]] std::vector<std::uint32_t> OrderByText(const std::vector<std::string_view>& texts,
                                                     SortOrder order);

}  // namespace kelvora
