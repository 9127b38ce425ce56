#include "food/import/food_line.h"

#include <charconv>
#include <cmath>

#include "core/store.h"

namespace kelvora {
namespace {

constexpr std::size_t kFirstSlots = 1 << 12;

void AppendWhole(Text& out, std::uint64_t value) {
  std::array<char, 24> digits;
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  out.append(digits.data(), written.ptr);
}

// The lower bits of a slot count; the upper ones are the hash, never 0.
constexpr std::uint64_t kTimes = (std::uint64_t{1} << 20) - 1;

std::uint64_t HashOf(std::string_view name) {
  const std::uint64_t hash = std::hash<std::string_view>()(name) & ~kTimes;
  return hash == 0 ? kTimes + 1 : hash;
}

std::size_t PlaceOf(std::uint64_t hash, std::size_t slots) {
  return (hash >> 20) % slots;
}

}  // namespace

void AppendAmount(Text& out, double value) {
  // The product of two decimal numbers may lie a trace below the half that it is on paper.
  constexpr double kTrace = 1 + 1e-13;
  const auto thousandths = static_cast<std::uint64_t>(std::floor(value * 1000 * kTrace + 0.5));
  AppendWhole(out, thousandths / 1000);
  std::uint64_t rest = thousandths % 1000;
  if (rest == 0) return;
  out += '.';
  for (std::uint64_t place = 100; rest != 0; place /= 10) {
    out += static_cast<char>('0' + rest / place);
    rest %= place;
  }
}

void AppendFoodLine(Text& out, std::string_view name, const TableFood& food) {
  const auto put = [&out](std::string_view text) { (out += text) += kFieldEnd; };
  put(name);
  put(food.unit);
  AppendWhole(out, static_cast<std::uint64_t>(food.grams));
  out += kFieldEnd;
  for (const double amount : food.amounts) {
    AppendAmount(out, amount);
    out += kFieldEnd;
  }
  put(food.group);
  put(food.remark);
  out += kLineEnd;
}

FoodNames::FoodNames() : slots_(kFirstSlots) {}

std::uint64_t& FoodNames::SlotOf(std::string_view name) {
  const std::uint64_t hash = HashOf(name);
  std::size_t place = PlaceOf(hash, slots_.size());
  while (slots_[place] != 0 && (slots_[place] & ~kTimes) != hash) {
    place = (place + 1) % slots_.size();
  }
  slots_[place] |= hash;
  return slots_[place];
}

void FoodNames::Grow() {
  std::vector<std::uint64_t> old(slots_.size() * 2);
  old.swap(slots_);
  for (const std::uint64_t slot : old) {
    if (slot == 0) continue;
    std::size_t place = PlaceOf(slot & ~kTimes, slots_.size());
    while (slots_[place] != 0) place = (place + 1) % slots_.size();
    slots_[place] = slot;
  }
}

std::string_view FoodNames::Give(std::string_view name) {
  if (count_ * 4 > slots_.size() * 3) Grow();
  std::uint64_t& slot = SlotOf(name);
  if ((slot & kTimes) != kTimes) ++slot;
  if ((slot & kTimes) == 1) {
    ++count_;
    return name;
  }
  // The number may be that of a food of the table as well.
  for (std::uint64_t number = slot & kTimes;; ++number) {
    numbered_.assign(name).append(" (");
    AppendWhole(numbered_, number);
    numbered_ += ')';
    // The slots have room for one more: they grow before three quarters are taken.
    std::uint64_t& own = SlotOf(numbered_);
    if ((own & kTimes) != 0) continue;
    ++own;
    ++count_;
    return numbered_;
  }
}

}  // namespace kelvora
