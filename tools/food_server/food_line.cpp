#include "food_server/food_line.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "core/store.h"
#include "core/text.h"
#include "food_server/fold.h"

namespace kelvora::server {
namespace {

constexpr std::size_t kLongestName = 120;
constexpr std::size_t kLongestRemark = 2000;
constexpr std::size_t kLongestOther = 60;
constexpr std::ptrdiff_t kMostDigits = 6;

bool IsControl(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code < 0x20 || code == 0x7F;
}

std::string CleanField(std::string_view field, bool breaks_stay) {
  std::string clean;
  for (const char byte : field) {
    if (byte == kReplyEnd) {
      clean += "1/4";
    } else if (IsControl(byte) && !(breaks_stay && (byte == '\r' || byte == '\n'))) {
      clean += ' ';
    } else {
      clean += byte;
    }
  }
  return std::string(Trimmed(clean));
}

std::size_t LongestOf(std::size_t field) {
  if (field == FoodField::kProduct) return kLongestName;
  return field == FoodField::kRemark ? kLongestRemark : kLongestOther;
}

}  // namespace

std::optional<std::string> CleanFoodLine(std::string_view line) {
  if (line.find(kLineEnd) != line.npos) return std::nullopt;
  const std::vector<std::string_view> fields = FieldsOf(line);
  std::string clean;
  for (std::size_t field = 0; field < std::size(kFieldNames); ++field) {
    if (field < fields.size()) {
      const std::string text = CleanField(fields[field], field == FoodField::kRemark);
      if (text.size() > LongestOf(field)) return std::nullopt;
      clean += text;
    }
    clean += kFieldEnd;
  }
  if (clean.starts_with(kFieldEnd)) return std::nullopt;
  return clean;
}

std::optional<std::string> AmountText(std::string_view written, double most) {
  std::string text(Trimmed(written));
  std::ranges::replace(text, ',', '.');
  const auto is_digit = [](char letter) { return letter >= '0' && letter <= '9'; };
  const auto point = std::ranges::find(text, '.');
  const auto whole = std::find_if_not(text.begin(), point, is_digit);
  const auto rest = point == text.end() ? point : point + 1;
  if (whole != point || std::find_if_not(rest, text.end(), is_digit) != text.end()) {
    return std::nullopt;
  }
  if (point - text.begin() > kMostDigits || text.end() - rest > kMostDigits) return std::nullopt;
  if (point == text.begin() && rest == text.end()) return std::nullopt;
  if (rest == text.end() && point != text.end()) text.pop_back();
  if (text.front() == '.') text.insert(text.begin(), '0');
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  if (value > most) return std::nullopt;
  return text;
}

std::optional<std::string> TextOfBytes(std::string_view bytes) {
  if (!IsUtf8(bytes)) return std::string(bytes);
  std::string text;
  for (std::size_t i = 0; i < bytes.size();) {
    const auto [code_point, length] = DecodeUtf8(bytes, i);
    const auto byte = ByteOf(code_point);
    if (!byte) return std::nullopt;
    text += *byte;
    i += length;
  }
  return text;
}

}  // namespace kelvora::server
