#include "core/column_sort.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "core/text.h"

namespace kelvora {
namespace {

// Counting is the faster way while there are not many more different values than rows.
constexpr double kSpareValues = 1 << 16;

struct Numbered {
  double value;
  std::uint32_t row;
};

std::vector<std::uint32_t> DescendingByComparison(const std::vector<double>& values) {
  std::vector<Numbered> numbered;
  numbered.reserve(values.size());
  for (const double value : values) {
    numbered.push_back({value, static_cast<std::uint32_t>(numbered.size())});
  }
  std::ranges::stable_sort(numbered, std::ranges::greater(), &Numbered::value);
  std::vector<std::uint32_t> rows(values.size());
  std::ranges::transform(numbered, rows.begin(), &Numbered::row);
  return rows;
}

// `range` is the distance from the least value to the largest.
std::vector<std::uint32_t> DescendingByCounting(const std::vector<double>& values, double largest,
                                                double range) {
  const auto slot = [largest](double value) { return static_cast<std::size_t>(largest - value); };
  std::vector<std::uint32_t> next(static_cast<std::size_t>(range) + 2);
  for (const double value : values) ++next[slot(value) + 1];
  std::partial_sum(next.begin(), next.end(), next.begin());
  std::vector<std::uint32_t> rows(values.size());
  for (std::uint32_t row = 0; row < values.size(); ++row) rows[next[slot(values[row])]++] = row;
  return rows;
}

// The byte by which a letter is sorted: lower case, without its accent.
constexpr auto kSortByte = [] {
  constexpr std::string_view kPlain =
      "aaaaaa\xE6"
      "ceeeeiiii\xF0nooooo\xF7"
      "ouuuuy\xFEy";  // for the bytes from 0xE0 on
  std::array<char, 256> plain{};
  for (std::size_t code = 0; code < plain.size(); ++code) {
    const char lower = LowerCaseOf(static_cast<char>(code));
    const auto lower_code = static_cast<unsigned char>(lower);
    plain[code] = lower_code >= 0xE0 ? kPlain[lower_code - 0xE0u] : lower;
  }
  return plain;
}();

// A text ready to be compared. Most differ in the first bytes, which stand in one number.
struct SortKey {
  std::uint64_t first_bytes;
  std::uint32_t row;
  std::uint32_t length;
  std::size_t begin;
};
constexpr std::size_t kFirstBytes = sizeof(SortKey::first_bytes);

class TextKeys {
 public:
  explicit TextKeys(const std::vector<std::string_view>& texts) {
    std::size_t size = 0;
    for (const std::string_view text : texts) size += text.size();
    bytes_.reserve(size);
    keys_.reserve(texts.size());
    for (const std::string_view text : texts) Add(text);
  }

  std::vector<SortKey>& Keys() { return keys_; }

  [[nodiscard]] bool IsLess(const SortKey& left, const SortKey& right) const {
    if (left.first_bytes != right.first_bytes) return left.first_bytes < right.first_bytes;
    return BytesOf(left) < BytesOf(right);
  }

 private:
  void Add(std::string_view text) {
    SortKey key{0, static_cast<std::uint32_t>(keys_.size()),
                static_cast<std::uint32_t>(text.size()), bytes_.size()};
    for (const char byte : text) bytes_ += kSortByte[static_cast<unsigned char>(byte)];
    for (std::size_t i = 0; i < kFirstBytes; ++i) {
      key.first_bytes <<= 8;
      if (i < text.size()) key.first_bytes |= static_cast<unsigned char>(bytes_[key.begin + i]);
    }
    keys_.push_back(key);
  }
  [[nodiscard]] std::string_view BytesOf(const SortKey& key) const {
    return std::string_view(bytes_).substr(key.begin, key.length);
  }

  Text bytes_;
  std::vector<SortKey> keys_;
};

}  // namespace

std::vector<std::uint32_t> OrderByWholeValue(const std::vector<double>& values, SortOrder order) {
  if (values.empty()) return {};
  const auto [least, largest] = std::ranges::minmax(values);
  const double range = largest - least;
  const bool few_values = range <= kSpareValues + static_cast<double>(values.size());
  std::vector<std::uint32_t> rows =
      few_values ? DescendingByCounting(values, largest, range) : DescendingByComparison(values);
  if (order == SortOrder::ascending) std::ranges::reverse(rows);
  return rows;
}

std::vector<std::uint32_t> OrderByText(const std::vector<std::string_view>& texts,
                                       SortOrder order) {
  TextKeys keys(texts);
  const auto comes_before = [&](const SortKey& left, const SortKey& right) {
    return order == SortOrder::ascending ? keys.IsLess(left, right) : keys.IsLess(right, left);
  };
  std::ranges::stable_sort(keys.Keys(), comes_before);
  std::vector<std::uint32_t> rows(texts.size());
  std::ranges::transform(keys.Keys(), rows.begin(), &SortKey::row);
  return rows;
}

}  // namespace kelvora
