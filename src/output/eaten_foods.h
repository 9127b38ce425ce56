// What was eaten on a day, as reports and printed pages list it: each different line of the three
// day parts once, in the order of first appearance, with how often it occurs.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "core/records.h"
#include "core/store.h"

namespace kelvora {

// The eight amounts of a food line, by their fields. Single precision: sums carry its rounding.
class FoodAmounts {
 public:
  [[nodiscard]] float operator[](std::size_t food_field) const {
    return amounts_[food_field - FoodField::kGram];
  }
  // The amounts of a line that was eaten `count` times: each field is read as a single, and each
  // product is one. Throws std::system_error for what a single can't hold.
  [[nodiscard]] static FoodAmounts Of(const std::vector<std::string_view>& fields, float count);
  // Throws std::system_error for a sum that a single can't hold.
  void Add(const FoodAmounts& more);

 private:
  std::array<float, FoodField::kSodium - FoodField::kGram + 1> amounts_{};
};

struct EatenFood {
  std::vector<std::string_view> fields;  // of the merged line, see MergeDay
  std::string_view count;
  FoodAmounts amounts;  // of the line as often as it occurs

  // A field of the line; "" beyond its end.
  [[nodiscard]] std::string_view Field(std::size_t index) const {
    return index < fields.size() ? fields[index] : std::string_view();
  }
};

// The foods of one day. The constructors throw std::system_error for an amount or a total that a
// single can't hold.
class EatenFoods {
 public:
  // Of a stored day. Each line says which part of the day it stands in, so that lines of different
  // parts stay apart. Commas show as points, in names too.
  explicit EatenFoods(const Rec_DayFile& day);
  // Of the open day, its lines as they stand: equal ones are counted over the whole day.
  explicit EatenFoods(const KV_data& store);

  [[nodiscard]] const std::vector<EatenFood>& Rows() const { return rows_; }

 private:
  explicit EatenFoods(const TextList& lines);

  TextList distinct_, counts_;  // what the rows are views of
  std::vector<EatenFood> rows_;
};

}  // namespace kelvora
