#include "core/text_entry.h"

namespace kelvora {
namespace {

constexpr char32_t kNextLine = 0x85;
constexpr char32_t kLineSeparator = 0x2028;
constexpr char32_t kParagraphSeparator = 0x2029;

bool IsLineBreak(char32_t character) {
  return character == '\n' || character == '\r' || character == kNextLine ||
         character == kLineSeparator || character == kParagraphSeparator;
}

bool IsControl(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

// What stands for a line break or a control character in a box.
char Plain(char32_t character, bool many_lines) {
  if (many_lines && IsLineBreak(character)) return '\n';
  return many_lines && character == '\t' ? '\t' : ' ';
}

// As much of the beginning as there is room for; a line break is taken whole or not at all.
std::string_view Fitting(const EntryRule& rule, std::string_view text, std::size_t room) {
  std::size_t length = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    length += text[i] == '\n' ? rule.break_length : 1;
    if (length > room) return text.substr(0, i);
  }
  return text;
}

}  // namespace

Entry TakeEntered(const EntryRule& rule, std::u32string_view entered, std::size_t room,
                  std::string_view separator) {
  Entry entry;
  Text held;
  for (std::size_t i = 0; i < entered.size(); ++i) {
    const char32_t character = entered[i];
    if (character == '\r' && i + 1 < entered.size() && entered[i + 1] == '\n') continue;
    if (IsLineBreak(character) || IsControl(character)) {
      held += Plain(character, rule.many_lines);
    } else if (const auto byte = ByteOf(character)) {
      held += *byte;
    } else if (entry.left_out.find(character) == std::u32string::npos) {
      entry.left_out += character;
    }
  }
  entry.mark_dropped =
      rule.filter == KeyFilter::whole_number && held.find_first_of(".,") != Text::npos;
  const Text accepted = ApplyKeyFilter(rule.filter, held, separator);
  entry.taken = Fitting(rule, accepted, room);
  entry.cut = entry.taken.size() < accepted.size();
  return entry;
}

}  // namespace kelvora
