#include "food_table.h"

#include <algorithm>
#include <stdexcept>

#include "core/store.h"

namespace kelvora {

Text FoodLineOfRow(std::string_view row) {
  constexpr int kColumns = FoodField::kRemark + 1;
  Text line = TextFromUtf8(row);
  if (HoldsTerminator(line)) throw std::runtime_error("a terminator in the text");
  if (std::ranges::count(line, '\t') + 1 != kColumns)
    throw std::runtime_error("not twelve columns");
  std::ranges::replace(line, '\t', kFieldEnd);
  return line + kFieldEnd;
}

void ForEachRow(std::string_view table,
                const std::function<void(std::string_view row, int number)>& take) {
  for (int number = 1; !table.empty(); ++number) {
    const std::size_t end = std::min(table.find('\n'), table.size());
    if (number > 1 && end > 0) take(table.substr(0, end), number);
    table.remove_prefix(std::min(end + 1, table.size()));
  }
}

}  // namespace kelvora
