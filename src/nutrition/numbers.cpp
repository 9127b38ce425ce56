#include "nutrition/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include "core/failure.h"

namespace kelvora {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// A value as decimal digits: 0.d1d2d3... times ten to the power of `exponent`. No digits mean zero.
struct Decimal {
  bool negative = false;
  std::string digits;
  int exponent = 0;
};

// The value rounded to `significant` digits, halves to even, without trailing zeros.
template <class Number>
Decimal NearestDecimal(Number value, int significant) {
  if (!std::isfinite(value)) ThrowSystemError(std::errc::result_out_of_range);
  std::array<char, 352> buffer;
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                    std::chars_format::scientific, significant - 1);
  if (error != std::errc()) ThrowSystemError(std::errc::result_out_of_range);
  const std::string_view written(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t mark = written.find('e');

  Decimal decimal;
  decimal.negative = std::signbit(value);
  for (const char c : written.substr(0, mark)) {
    if (IsDigit(c)) decimal.digits += c;
  }
  int power = 0;
  const char* const power_text = written.data() + mark + (written[mark + 1] == '+' ? 2 : 1);
  std::from_chars(power_text, end, power);
  decimal.exponent = power + 1;
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
  if (decimal.digits.empty()) return {};
  return decimal;
}

// The digits before and behind the point; neither has a leading or trailing zero too many.
struct PlainDigits {
  std::string whole;
  std::string fraction;
};

PlainDigits PlainDigitsOf(const Decimal& decimal) {
  const auto length = static_cast<int>(decimal.digits.size());
  if (decimal.exponent <= 0) {
    if (length == 0) return {};
    return {{}, std::string(static_cast<std::size_t>(-decimal.exponent), '0') + decimal.digits};
  }
  const auto whole_length = static_cast<std::size_t>(decimal.exponent);
  if (decimal.exponent >= length) {
    return {decimal.digits + std::string(whole_length - decimal.digits.size(), '0'), {}};
  }
  return {decimal.digits.substr(0, whole_length), decimal.digits.substr(whole_length)};
}

enum class Halves { away_from_zero, to_even };

// Keeps `places` digits behind the point.
Decimal RoundDecimal(Decimal decimal, int places, Halves halves) {
  const int keep = decimal.exponent + places;
  if (keep < 0) return {};
  if (keep >= static_cast<int>(decimal.digits.size())) return decimal;
  const auto first_dropped = static_cast<std::size_t>(keep);
  bool up = decimal.digits[first_dropped] >= '5';
  // No trailing zeros stand in the digits: a lone 5 is exactly half.
  if (halves == Halves::to_even && decimal.digits.substr(first_dropped) == "5") {
    up = first_dropped > 0 && (decimal.digits[first_dropped - 1] - '0') % 2 == 1;
  }
  decimal.digits.resize(first_dropped);
  if (up) {
    while (!decimal.digits.empty() && decimal.digits.back() == '9') decimal.digits.pop_back();
    if (decimal.digits.empty()) {
      decimal.digits = "1";
      ++decimal.exponent;
    } else {
      ++decimal.digits.back();
    }
  }
  decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
  if (decimal.digits.empty()) return {};
  return decimal;
}

// True if the exact value ends with the digit behind the first `significant` ones, and that digit
// is a 5: it lies half-way between two numbers of that many digits.
template <class Number>
bool LiesHalfWay(Number value, int significant, int exponent) {
  const int last_place = significant + 1 - exponent;
  if (last_place > 0) {
    // A binary fraction has as many decimals as bits behind the point, and the last is a 5.
    const Number bits = std::ldexp(value, last_place);
    return std::trunc(bits) == bits && std::fmod(bits, Number{2}) != 0;
  }
  constexpr int kAllDigits = 320;
  const Decimal exact = NearestDecimal(value, kAllDigits);
  return exact.digits.size() == static_cast<std::size_t>(significant) + 1 &&
         exact.digits.back() == '5';
}

// The value rounded to `significant` digits, halves away from zero, without trailing zeros.
template <class Number>
Decimal DecimalOf(Number value, int significant) {
  const Decimal nearest = NearestDecimal(value, significant);
  if (nearest.digits.empty() || !LiesHalfWay(value, significant, nearest.exponent)) return nearest;
  return RoundDecimal(NearestDecimal(value, significant + 1), significant - nearest.exponent,
                      Halves::away_from_zero);
}

template <class Number>
Text WriteShortest(Number value, std::string_view separator) {
  const Decimal decimal = DecimalOf(value, std::numeric_limits<Number>::digits10 == 6 ? 7 : 15);
  const auto [whole, fraction] = PlainDigitsOf(decimal);
  Text text = decimal.negative ? "-" : "";
  text += whole.empty() ? "0" : whole;
  if (!fraction.empty()) text.append(separator).append(fraction);
  return text;
}

// RoundTo by arithmetic, which is many times faster. A single has 24 bits: with a power of ten up
// to these it fits into a double exactly, and so does the place where it lies half-way. The
// quotient is too far from the middle between two singles for being rounded twice to show.
constexpr std::array<double, 7> kPowersOfTen = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
float RoundToFewDecimals(float value, std::size_t decimals) {
  const double power = kPowersOfTen[decimals];
  const double rounded = std::nearbyint(value * power);
  return rounded == 0 ? 0.0f : static_cast<float>(rounded / power);
}

// A magnitude in units of its last place, halves away from zero, by arithmetic. What fifteen digits
// and the product leave out is below a hundredth of kNearHalf: only nearer to the middle between
// two results can it decide, and there nothing is answered, as for what is too large. The middle
// itself is exact where there are no places.
std::optional<std::uint64_t> UnitsOf(double magnitude, std::size_t places) {
  constexpr double kLargest = 1e9;
  constexpr double kNearHalf = 1e-3;
  if (places >= kPowersOfTen.size()) return std::nullopt;
  const double scaled = magnitude * kPowersOfTen[places];
  if (!(scaled < kLargest)) return std::nullopt;
  const double below = std::floor(scaled);
  const double rest = scaled - below;
  const bool exact_half = places == 0 && rest == 0.5;
  if (!exact_half && std::fabs(rest - 0.5) < kNearHalf) return std::nullopt;
  return static_cast<std::uint64_t>(below) + (rest >= 0.5 ? 1 : 0);
}

PlainDigits PlainDigitsOf(std::uint64_t units, std::size_t places) {
  if (units == 0) return {};
  std::string digits = std::to_string(units);
  if (digits.size() < places) digits.insert(0, places - digits.size(), '0');
  std::string fraction = digits.substr(digits.size() - places);
  digits.resize(digits.size() - places);
  fraction.erase(fraction.find_last_not_of('0') + 1);
  return {std::move(digits), std::move(fraction)};
}

struct Rounded {
  bool negative;
  PlainDigits plain;
};

// The value's fifteen digits with so many places kept, halves away from zero.
Rounded RoundedTo(double value, std::size_t places) {
  if (const auto units = UnitsOf(std::fabs(value), places)) {
    return {std::signbit(value) && *units > 0, PlainDigitsOf(*units, places)};
  }
  const Decimal decimal =
      RoundDecimal(DecimalOf(value, 15), static_cast<int>(places), Halves::away_from_zero);
  return {decimal.negative, PlainDigitsOf(decimal)};
}

}  // namespace

double Val(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\n\r"), text.size()));
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);

  std::size_t length = 0;
  bool point = false;
  while (length < text.size() && (IsDigit(text[length]) || (text[length] == '.' && !point))) {
    point |= text[length] == '.';
    ++length;
  }
  double value = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + length, value, std::chars_format::fixed);
  if (error == std::errc::result_out_of_range) {
    // Too small counts as 0: only digits other than 0 before the point make a number too large.
    const std::string_view whole = text.substr(0, std::min(text.find('.'), length));
    const bool large = whole.find_first_of("123456789") != std::string_view::npos;
    value = large ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return negative ? -value : value;
}

Text CommaToPoint(std::string_view text) {
  Text result(text);
  // Written for each byte, so that many are looked at in one step.
  for (char& c : result) c = c == ',' ? '.' : c;
  return result;
}

double ReadStoredNumber(std::string_view text) {
  return text.find(',') == std::string_view::npos ? Val(text) : Val(CommaToPoint(text));
}

float Single(double value) {
  const auto single = static_cast<float>(value);
  if (!std::isfinite(single)) ThrowSystemError(std::errc::result_out_of_range);
  return single;
}

float RoundTo(float value, int decimals) {
  if (!std::isfinite(value)) ThrowSystemError(std::errc::result_out_of_range);
  if (decimals >= 0 && decimals < static_cast<int>(kPowersOfTen.size())) {
    return RoundToFewDecimals(value, static_cast<std::size_t>(decimals));
  }
  // A single has at most 112 significant decimal digits: that many are its exact value.
  constexpr int kExact = 112;
  const Decimal rounded = RoundDecimal(NearestDecimal(value, kExact), decimals, Halves::to_even);
  const Text written = "0." + rounded.digits + "e" + std::to_string(rounded.exponent);
  float result = 0;
  const auto [end, error] =
      std::from_chars(written.data(), written.data() + written.size(), result);
  if (error == std::errc::result_out_of_range && rounded.exponent > 0) {
    ThrowSystemError(std::errc::result_out_of_range);
  }
  return rounded.negative ? -result : result;
}

Text Str(float value, std::string_view separator) {
  return WriteShortest(value, separator);
}
Text Str(double value, std::string_view separator) {
  return WriteShortest(value, separator);
}

Text FormatNumber(double value, std::string_view pattern, std::string_view separator) {
  const std::size_t point = pattern.find('.');
  const std::string_view whole_pattern = pattern.substr(0, point);
  const std::string_view fraction_pattern =
      point == std::string_view::npos ? std::string_view() : pattern.substr(point + 1);

  auto [negative, plain] = RoundedTo(value, fraction_pattern.size());
  auto& [whole, fraction] = plain;
  const auto required = static_cast<std::size_t>(std::ranges::count(whole_pattern, '0'));
  if (whole.size() < required) whole.insert(0, required - whole.size(), '0');
  // Behind the point every place up to the last "0" is shown.
  const std::size_t last_zero = fraction_pattern.rfind('0');
  const std::size_t shown = last_zero == std::string_view::npos ? 0 : last_zero + 1;
  if (fraction.size() < shown) fraction.append(shown - fraction.size(), '0');

  Text text = negative ? "-" : "";
  text += whole;
  if (point != std::string_view::npos) text.append(separator).append(fraction);
  return text;
}

}  // namespace kelvora
