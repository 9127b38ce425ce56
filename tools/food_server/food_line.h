// The lines that the server keeps and answers with.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelvora::server {

// "¼" closes a food in a reply and stands nowhere else.
inline constexpr char kReplyEnd = '\xBC';

// A line of twelve fields: what is missing is empty, what is more is left out. In the fields "¼"
// becomes "1/4", and a control character a blank, but for line breaks in the remark. Nothing for a
// food without a name, or with a field that is longer than any that people write.
[[nodiscard]] std::optional<std::string> CleanFoodLine(std::string_view line);

// The names of the twelve fields in their order, as tables of foods have them in their first line.
inline constexpr std::string_view kFieldNames[] = {"name",  "unit",    "gram",  "kj",
                                                   "kcal",  "protein", "fat_u", "fat_s",
                                                   "carbs", "sodium",  "group", "remark"};

// An amount as people write it, with "," or "." or neither; with a point in the result. Nothing for
// what is no such number, has more than six digits in front or behind, or lies beyond `most`.
[[nodiscard]] std::optional<std::string> AmountText(std::string_view written, double most);

// Bytes from outside as text: UTF-8 if they are valid UTF-8, else Windows-1252. Nothing if they
// hold a letter that Windows-1252 lacks.
[[nodiscard]] std::optional<std::string> TextOfBytes(std::string_view bytes);

}  // namespace kelvora::server
