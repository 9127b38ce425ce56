// Which foods the list of several days shows: of each name the first portion that was eaten, with
// the number of lines that equal it. Other portions of the same name are left out, as is meant;
// the list of a day keeps them apart instead.
#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

namespace kelvora {

class FirstPortions {
 public:
  struct Food {
    std::string_view line;
    std::size_t count = 0;
  };

  // The next line that was eaten; it stays where it is as long as this object.
  void Add(std::string_view line);
  // In order of first appearance.
  [[nodiscard]] const std::vector<Food>& Foods() const { return foods_; }

 private:
  std::vector<Food> foods_;
  std::unordered_map<std::string_view, std::size_t> places_;  // by name
};

}  // namespace kelvora
