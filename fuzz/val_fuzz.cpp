// Any bytes as a stored number, and any number as text. What is expected comes from the C library,
// whose reading and printing shares no code with that of the C++ library.
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <system_error>

#include "fuzz/check.h"
#include "nutrition/numbers.h"

namespace kelvora {
namespace {

bool SameNumber(double a, double b) {
  return a == b && std::signbit(a) == std::signbit(b);
}

// The prefix of a text that is a number, in a form that strtod takes whole.
double PlainVal(std::string_view text) {
  enum { kBlanks, kWhole, kFraction } at = kBlanks;
  std::string number;
  bool digits = false;
  for (const char c : text) {
    if (at == kBlanks && (c == ' ' || c == '\t' || c == '\n' || c == '\r')) continue;
    if (at == kBlanks && (c == '-' || c == '+')) {
      number += c;
      at = kWhole;
      continue;
    }
    if (at == kBlanks) at = kWhole;
    const bool is_point = at == kWhole && c == '.';
    if (is_point) {
      at = kFraction;
    } else if (c < '0' || c > '9') {
      break;
    } else {
      digits = true;
    }
    number += c;
  }
  if (!digits) return number.starts_with('-') ? -0.0 : 0.0;
  return std::strtod(number.c_str(), nullptr);
}

// A number in print: `digits` are d.ddd, times ten to the power of `exponent`.
struct Printed {
  bool negative = false;
  std::string digits;
  int exponent = 0;
  [[nodiscard]] char DigitAt(int place) const {
    const int index = exponent - place;
    return index >= 0 && index < static_cast<int>(digits.size())
               ? digits[static_cast<std::size_t>(index)]
               : '0';
  }
};

// That many digits as the C library prints them: halves of the exact value to even.
Printed PrintToEven(double value, int significant) {
  std::array<char, 900> buffer;
  const int length =
      std::snprintf(buffer.data(), buffer.size(), "%.*e", significant - 1, std::fabs(value));
  Check(length > 0 && length < static_cast<int>(buffer.size()), "a printed number has its place");
  Printed printed;
  printed.negative = std::signbit(value);
  const char* c = buffer.data();
  for (; *c != 'e'; ++c) {
    if (*c != '.') printed.digits += *c;
  }
  printed.exponent = std::atoi(c + 1);
  return printed;
}

// True if a 5 and nothing else stands behind that many digits.
bool IsHalf(const Printed& printed, std::size_t significant) {
  return printed.digits[significant] == '5' &&
         printed.digits.find_first_not_of('0', significant + 1) == std::string::npos;
}

// That many digits, halves away from zero.
Printed Print(double value, int significant) {
  // No double has more digits than this; most are seen not to be a half long before.
  constexpr int kAllDigits = 800;
  const auto count = static_cast<std::size_t>(significant);
  const bool is_half = IsHalf(PrintToEven(value, significant + 12), count) &&
                       IsHalf(PrintToEven(value, kAllDigits), count);
  if (!is_half) return PrintToEven(value, significant);
  Printed printed = PrintToEven(value, significant + 1);
  printed.digits.pop_back();
  std::size_t last = count;
  while (last > 0 && printed.digits[last - 1] == '9') printed.digits[--last] = '0';
  if (last > 0) {
    ++printed.digits[last - 1];
  } else {
    printed.digits.insert(0, "1").pop_back();
    ++printed.exponent;
  }
  return printed;
}

Text PlainStr(const Printed& printed, std::string_view separator) {
  Text text;
  for (int place = std::max(printed.exponent, 0); place >= 0; --place) {
    text += printed.DigitAt(place);
  }
  const int last = printed.exponent - static_cast<int>(printed.digits.size()) + 1;
  Text fraction;
  for (int place = -1; place >= last; --place) fraction += printed.DigitAt(place);
  while (fraction.ends_with('0')) fraction.pop_back();
  if (!fraction.empty()) text.append(separator).append(fraction);
  const bool is_zero = printed.digits.find_first_not_of('0') == std::string::npos;
  return printed.negative && !is_zero ? "-" + text : text;
}

// Fifteen digits as a whole number, rounded by adding half of what is dropped.
Text PlainFormat(double value, std::string_view pattern, std::string_view separator) {
  const Printed printed = Print(value, 15);
  std::string_view whole_pattern = pattern;
  std::string_view fraction_pattern;
  bool has_point = false;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] != '.') continue;
    whole_pattern = pattern.substr(0, i);
    fraction_pattern = pattern.substr(i + 1);
    has_point = true;
  }
  const auto places = static_cast<int>(fraction_pattern.size());

  std::int64_t number = std::atoll(printed.digits.c_str());
  int dropped = 14 - printed.exponent - places;
  if (dropped > 15) number = 0;
  std::int64_t unit = 1;
  for (int i = 0; i < dropped && dropped <= 15; ++i) unit *= 10;
  number = (number + unit / 2) / unit;

  Text digits = std::to_string(number);
  if (number != 0 && dropped < 0) digits.append(static_cast<std::size_t>(-dropped), '0');
  while (digits.size() <= fraction_pattern.size()) digits.insert(digits.begin(), '0');
  Text whole = digits.substr(0, digits.size() - fraction_pattern.size());
  Text fraction = digits.substr(digits.size() - fraction_pattern.size());
  while (whole.starts_with('0')) whole.erase(whole.begin());
  std::size_t always_whole = 0;
  for (const char c : whole_pattern) always_whole += c == '0' ? 1 : 0;
  while (whole.size() < always_whole) whole.insert(whole.begin(), '0');
  // A place marked "#" at the end shows a digit only if there is one.
  while (fraction.ends_with('0') &&
         fraction_pattern.find('0', fraction.size() - 1) == std::string_view::npos) {
    fraction.pop_back();
  }
  Text text = printed.negative && number != 0 ? "-" + whole : whole;
  if (has_point) text.append(separator).append(fraction);
  return text;
}

// The value in as many digits as reach to the place: printing rounds the exact value, half to even.
float PlainRoundTo(float value, int decimals) {
  if (value == 0) return value;
  const Printed exact = PrintToEven(value, 120);
  const int behind_first = exact.exponent + decimals;
  if (behind_first < -1) return 0;
  if (behind_first == -1) {
    // The first digit is dropped: it alone tells, unless the value is just half a unit.
    const bool above_half =
        exact.digits[0] > '5' ||
        (exact.digits[0] == '5' && exact.digits.find_first_not_of('0', 1) != std::string::npos);
    if (!above_half) return 0;
    const std::string unit = "1e" + std::to_string(-decimals);
    return std::copysign(std::strtof(unit.c_str(), nullptr), value);
  }
  std::array<char, 200> buffer;
  std::snprintf(buffer.data(), buffer.size(), "%.*e", std::min(behind_first, 150), value);
  return std::strtof(buffer.data(), nullptr);
}

template <class Routine>
bool Throws(Routine routine) {
  try {
    routine();
    return false;
  } catch (const std::system_error&) {
    return true;
  }
}

constexpr std::array<std::string_view, 14> kPatterns = {
    "#####0", "####0", "###0", "##0.000", "##0.00", "##0.0", "##0",
    "##.00",  "##",    "0",    "000.0#",  "#.##",   "0.###", ""};
constexpr std::array<std::string_view, 4> kSeparators = {".", ",", "", "\xBD."};

void CheckPrinting(double value, std::size_t choice) {
  const std::string_view pattern = kPatterns[choice % kPatterns.size()];
  const std::string_view separator = kSeparators[choice / 16 % kSeparators.size()];
  const auto single = static_cast<float>(value);
  // The place of a digit that the value has, from above the first to behind the last that counts.
  const int exponent = std::isfinite(value) ? PrintToEven(value, 1).exponent : 0;
  const int decimals = static_cast<int>(choice % 16) - 3 - exponent;
  if (!std::isfinite(single)) {
    Check(Throws([&] { (void)Str(single, separator); }), "no text for what is no single");
    Check(Throws([&] { (void)Single(value); }), "no single for what has no place in one");
    Check(Throws([&] { (void)RoundTo(single, decimals); }), "no rounding of what is no number");
  } else {
    Check(Str(single, separator) == PlainStr(Print(single, 7), separator), "Str of a single");
    Check(SameNumber(Single(value), single), "a single is the nearest one");
    const float expected = PlainRoundTo(single, decimals);
    if (std::isfinite(expected)) {
      Check(RoundTo(single, decimals) == expected, "RoundTo rounds the exact value, half to even");
    } else {
      Check(Throws([&] { (void)RoundTo(single, decimals); }), "no single beyond their range");
    }
  }
  if (!std::isfinite(value)) {
    Check(Throws([&] { (void)Str(value, separator); }), "no text for what is no number");
    Check(Throws([&] { (void)FormatNumber(value, pattern, separator); }), "no print of it either");
    return;
  }
  Check(Str(value, separator) == PlainStr(Print(value, 15), separator), "Str of a double");
  Check(FormatNumber(value, pattern, separator) == PlainFormat(value, pattern, separator),
        "FormatNumber rounds fifteen digits, halves away from zero");
}

double CheckReading(std::string_view text) {
  const double value = Val(text);
  Check(!std::isnan(value), "Val is a number or infinity");
  Check(SameNumber(value, PlainVal(text)), "Val is what strtod makes of the prefix");

  Text points(text);
  for (char& c : points) {
    if (c == ',') c = '.';
  }
  Check(CommaToPoint(text) == points, "each comma becomes a point");
  Check(SameNumber(ReadStoredNumber(text), PlainVal(points)), "commas and points are the same");
  return value;
}

}  // namespace
}  // namespace kelvora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  const double read = CheckReading(InputOf(data, size));
  if (size == 0) return 0;
  // Numbers as people write them hit the halves; the eight bytes of a double hit all the rest.
  double of_bits = 0;
  std::memcpy(&of_bits, data, std::min(size, sizeof(of_bits)));
  CheckPrinting(size % 2 == 0 ? read : of_bits, data[size - 1]);
  if (size % 4 == 3) {
    float single = 0;
    std::memcpy(&single, data, std::min(size, sizeof(single)));
    CheckPrinting(single, data[size - 1]);
  }
  return 0;
}
