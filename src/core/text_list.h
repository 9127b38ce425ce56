// A list of strings in insertion order, made for a few rows as well as for a million foods.
//
// A line is a view into a block of bytes that is only ever appended to and that copies of the list
// share. So adding a line is one copy of its bytes, and taking lines over from another list copies
// none. A view of a line stays valid until the list, and each copy of it, is cleared or gone, not
// longer. The bytes of removed and replaced lines are kept as long.
#pragma once

#include <initializer_list>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "core/text.h"

namespace kelvora {

class TextList {
 public:
  TextList() = default;
  TextList(const TextList& other);
  TextList(TextList&& other) noexcept;
  TextList& operator=(const TextList& other);
  TextList& operator=(TextList&& other) noexcept;
  ~TextList() = default;

  void Add(std::string_view line) { Add({line}); }
  // Adds one line, the pieces joined.
  void Add(std::initializer_list<std::string_view> pieces);
  // Adds the lines of `source` that `wanted` takes, without copying their bytes.
  template <class Wanted>
  void AddSharedLines(const TextList& source, Wanted wanted);
  void Remove(std::size_t index);
  void Replace(std::size_t index, std::string_view line);
  void Clear();

  [[nodiscard]] std::size_t Count() const { return lines_.size(); }
  [[nodiscard]] bool Empty() const { return lines_.empty(); }
  // A line; "" beyond the end.
  [[nodiscard]] std::string_view operator[](std::size_t index) const {
    return index < lines_.size() ? lines_[index] : std::string_view();
  }
  [[nodiscard]] auto begin() const { return lines_.begin(); }
  [[nodiscard]] auto end() const { return lines_.end(); }

  // The first or last line that begins with `key`, which is a name and its closing kFieldEnd.
  [[nodiscard]] std::optional<std::size_t> FindFirst(std::string_view key) const;
  [[nodiscard]] std::optional<std::size_t> FindLast(std::string_view key) const;

  bool operator==(const TextList& other) const { return lines_ == other.lines_; }

 private:
  using Block = std::shared_ptr<char[]>;

  // Holds on to the blocks of another list.
  void ShareBlocks(const TextList& source);
  // Copies the pieces behind each other into a block.
  std::string_view Keep(std::initializer_list<std::string_view> pieces);

  std::vector<std::string_view> lines_;
  std::vector<Block> blocks_;
  // What is left of the block that this list, and no copy of it, appends to.
  char* free_ = nullptr;
  std::size_t free_size_ = 0;
  std::size_t next_block_size_ = kFirstBlockSize;

  static constexpr std::size_t kFirstBlockSize = 1 << 10;
  static constexpr std::size_t kLargestBlockSize = 1 << 20;
};

template <class Wanted>
void TextList::AddSharedLines(const TextList& source, Wanted wanted) {
  ShareBlocks(source);
  for (const std::string_view line : source) {
    if (wanted(line)) lines_.push_back(line);
  }
}

}  // namespace kelvora
