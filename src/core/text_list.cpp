#include "core/text_list.h"

#include <algorithm>
#include <utility>

namespace kelvora {

TextList::TextList(const TextList& other) : lines_(other.lines_), blocks_(other.blocks_) {}

TextList::TextList(TextList&& other) noexcept {
  *this = std::move(other);
}

TextList& TextList::operator=(const TextList& other) {
  if (this != &other) *this = TextList(other);
  return *this;
}

TextList& TextList::operator=(TextList&& other) noexcept {
  if (this == &other) return *this;
  lines_ = std::exchange(other.lines_, {});
  blocks_ = std::exchange(other.blocks_, {});
  free_ = std::exchange(other.free_, nullptr);
  free_size_ = std::exchange(other.free_size_, 0);
  next_block_size_ = std::exchange(other.next_block_size_, kFirstBlockSize);
  return *this;
}

void TextList::Add(std::initializer_list<std::string_view> pieces) {
  lines_.push_back(Keep(pieces));
}

void TextList::Remove(std::size_t index) {
  if (index < lines_.size()) lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(index));
}

void TextList::Replace(std::size_t index, std::string_view line) {
  if (index < lines_.size()) lines_[index] = Keep({line});
}

void TextList::Clear() {
  lines_.clear();
  blocks_.clear();
  free_ = nullptr;
  free_size_ = 0;
  next_block_size_ = kFirstBlockSize;
}

std::optional<std::size_t> TextList::FindFirst(std::string_view key) const {
  const auto found =
      std::ranges::find_if(lines_, [key](std::string_view line) { return line.starts_with(key); });
  if (found == lines_.end()) return std::nullopt;
  return static_cast<std::size_t>(found - lines_.begin());
}

std::optional<std::size_t> TextList::FindLast(std::string_view key) const {
  for (std::size_t i = lines_.size(); i-- > 0;) {
    if (lines_[i].starts_with(key)) return i;
  }
  return std::nullopt;
}

void TextList::ShareBlocks(const TextList& source) {
  blocks_.insert(blocks_.end(), source.blocks_.begin(), source.blocks_.end());
}

std::string_view TextList::Keep(std::initializer_list<std::string_view> pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  if (size == 0) return {};
  if (size > free_size_) {
    free_size_ = std::max(size, next_block_size_);
    blocks_.push_back(std::make_shared_for_overwrite<char[]>(free_size_));
    free_ = blocks_.back().get();
    next_block_size_ = std::min(2 * free_size_, kLargestBlockSize);
  }
  const std::string_view kept(free_, size);
  for (const std::string_view piece : pieces) free_ = std::ranges::copy(piece, free_).out;
  free_size_ -= size;
  return kept;
}

}  // namespace kelvora
