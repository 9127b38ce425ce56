#include "core/text_search.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace kelvora {
namespace {

constexpr std::size_t kPlaces = 16;

}  // namespace

CaselessFinder::CaselessFinder(std::string_view wanted) : wanted_(LowerCase(wanted)) {
  if (wanted_.empty()) return;
  first_ = CasesOf(wanted_.front());
  last_ = CasesOf(wanted_.back());
}

CaselessFinder::BothCases CaselessFinder::CasesOf(char lower) {
  BothCases cases{lower, lower};
  for (int code = 0; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    if (byte != lower && LowerCaseOf(byte) == lower) cases.upper = byte;
  }
  return cases;
}

bool CaselessFinder::MatchesAt(const char* at) const {
  for (std::size_t i = 0; i < wanted_.size(); ++i) {
    if (LowerCaseOf(at[i]) != wanted_[i]) return false;
  }
  return true;
}

bool CaselessFinder::IsNear(const char* at) const {
  const char* const end_at = at + wanted_.size() - 1;
  // Without a branch inside, so that the compiler makes one comparison of all sixteen.
  std::array<unsigned char, kPlaces> fits;
  for (std::size_t i = 0; i < kPlaces; ++i) {
    const bool first = first_.Holds(at[i]);
    const bool last = last_.Holds(end_at[i]);
    fits[i] = static_cast<unsigned char>(first & last);
  }
  std::array<std::uint64_t, kPlaces / sizeof(std::uint64_t)> any;
  std::memcpy(any.data(), fits.data(), kPlaces);
  if ((any[0] | any[1]) == 0) return false;
  for (std::size_t i = 0; i < kPlaces; ++i) {
    if (fits[i] != 0 && MatchesAt(at + i)) return true;
  }
  return false;
}

bool CaselessFinder::IsIn(std::string_view text) const {
  if (wanted_.empty()) return true;
  if (text.size() < wanted_.size()) return false;
  const char* at = text.data();
  std::size_t places = text.size() - wanted_.size() + 1;
  if (places < kPlaces) {
    for (; places > 0; --places, ++at) {
      if (first_.Holds(*at) && MatchesAt(at)) return true;
    }
    return false;
  }
  for (; places > kPlaces; places -= kPlaces, at += kPlaces) {
    if (IsNear(at)) return true;
  }
  // The last sixteen places reach back over some that were looked at.
  return IsNear(at + places - kPlaces);
}

}  // namespace kelvora
