#include "core/drawn_text.h"

#include <algorithm>

namespace kelvora {
namespace {

constexpr std::string_view kRest = "\x85";  // the three dots of one character
constexpr std::size_t kMessageLines = 30;

bool IsControl(char byte) {
  const char32_t character = CodePointOf(byte);
  return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

Text CutInTheMiddle(std::string_view line) {
  if (line.size() <= kDrawnCharacters) return Text(line);
  constexpr std::size_t kEnd = kDrawnCharacters / 2;
  constexpr std::size_t kBeginning = kDrawnCharacters - kEnd - kRest.size();
  return Text(line.substr(0, kBeginning)).append(kRest).append(line.substr(line.size() - kEnd));
}

}  // namespace

Text DrawnText(std::string_view text) {
  if (text.size() <= kDrawnCharacters) return Text(text);
  return Text(text.substr(0, kDrawnCharacters - kRest.size())).append(kRest);
}

Text DrawnCell(std::string_view text) {
  Text cell = DrawnText(text);
  std::ranges::replace_if(cell, IsControl, ' ');
  return cell;
}

Text DrawnMessage(std::string_view text) {
  Text message;
  for (std::size_t lines = 1;; ++lines) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    message += CutInTheMiddle(text.substr(0, end));
    if (end == text.size()) return message;
    if (lines == kMessageLines) return message.append("\n").append(kRest);
    message += '\n';
    text.remove_prefix(end + 1);
  }
}

}  // namespace kelvora
