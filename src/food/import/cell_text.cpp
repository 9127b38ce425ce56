#include <algorithm>
#include <array>
#include <charconv>

#include "core/store.h"
#include "food/import/cell.h"

namespace kelvora {
namespace {

struct Replacement {
  char32_t code_point;
  std::string_view text;
};

// What is written otherwise, in order of code point.
constexpr std::array kReplacements = {
    Replacement{0xBD, "1/2"},   Replacement{0xBE, "3/4"},   Replacement{0x1E9E, "SS"},
    Replacement{0x2010, "-"},   Replacement{0x2011, "-"},   Replacement{0x2012, "-"},
    Replacement{0x2015, "-"},   Replacement{0x201B, "'"},   Replacement{0x2032, "'"},
    Replacement{0x2033, "\""},  Replacement{0x2044, "/"},   Replacement{0x2070, "0"},
    Replacement{0x2074, "4"},   Replacement{0x2080, "0"},   Replacement{0x2081, "1"},
    Replacement{0x2082, "2"},   Replacement{0x2083, "3"},   Replacement{0x2084, "4"},
    Replacement{0x2085, "5"},   Replacement{0x2086, "6"},   Replacement{0x2116, "No"},
    Replacement{0x2153, "1/3"}, Replacement{0x2154, "2/3"}, Replacement{0x215B, "1/8"},
    Replacement{0x2212, "-"},   Replacement{0x2215, "/"},   Replacement{0x2264, "<="},
    Replacement{0x2265, ">="},  Replacement{0xFB00, "ff"},  Replacement{0xFB01, "fi"},
    Replacement{0xFB02, "fl"},  Replacement{0xFF05, "%"},   Replacement{0xFF08, "("},
    Replacement{0xFF09, ")"},
};
static_assert(std::ranges::is_sorted(kReplacements, {}, &Replacement::code_point));

// U+0100 to U+017F without their marks.
constexpr std::string_view kPlainLetters =
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlLlLlNnNnNnnNnOoOoOoOoRrRrRrSsSs"
    "Ss"
    "SsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
static_assert(kPlainLetters.size() == 0x80);

// A letter and a mark behind it as the one letter that text holds.
struct Mark {
  char32_t code_point;
  std::string_view plain, marked;  // marked: Windows-1252
};
constexpr std::array kMarks = {
    Mark{0x300, "AEIOUaeiou", "ÀÈÌÒÙàèìòù"_w},
    Mark{0x301, "AEIOUYaeiouy", "ÁÉÍÓÚÝáéíóúý"_w},
    Mark{0x302, "AEIOUaeiou", "ÂÊÎÔÛâêîôû"_w},
    Mark{0x303, "ANOano", "ÃÑÕãñõ"_w},
    Mark{0x308, "AEIOUYaeiouy", "ÄËÏÖÜŸäëïöüÿ"_w},
    Mark{0x30A, "Aa", "Åå"_w},
    Mark{0x30C, "SZsz", "ŠŽšž"_w},
    Mark{0x327, "Cc", "Çç"_w},
};

bool IsCombining(char32_t code_point) {
  return code_point >= 0x300 && code_point < 0x370;
}

bool IsBlank(char32_t code_point) {
  return code_point <= ' ' || code_point == 0xA0 || (code_point >= 0x7F && code_point < 0xA0) ||
         (code_point >= 0x2000 && code_point <= 0x200A) || code_point == 0x2028 ||
         code_point == 0x2029 || code_point == 0x202F || code_point == 0x205F ||
         code_point == 0x3000;
}

// Marks of direction, joiners and hyphens that show nothing.
bool IsInvisible(char32_t code_point) {
  return code_point == 0xAD || (code_point >= 0x200B && code_point <= 0x200F) ||
         (code_point >= 0x202A && code_point <= 0x202E) || code_point == 0x2060 ||
         code_point == 0xFEFF || (code_point >= 0xFE00 && code_point <= 0xFE0F);
}

// Puts characters behind each other.
class TextBuilder {
 public:
  explicit TextBuilder(CellText& cell) : cell_(cell) {}

  void Put(char32_t code_point) {
    if (code_point > ' ' && code_point < 0x7F) return PutText({static_cast<char>(code_point)});
    if (IsBlank(code_point)) {
      blank_ = true;
    } else if (IsInvisible(code_point)) {
    } else if (IsCombining(code_point)) {
      PutMark(code_point);
    } else {
      PutOther(code_point);
    }
  }

 private:
  void PutText(std::initializer_list<char> bytes) {
    PutText(std::string_view(bytes.begin(), bytes.size()));
  }
  void PutText(std::string_view text) {
    if (blank_ && !cell_.text.empty()) cell_.text += ' ';
    blank_ = false;
    ++cell_.characters;
    cell_.text += text;
  }
  void PutMark(char32_t code_point) {
    const auto mark = std::ranges::find(kMarks, code_point, &Mark::code_point);
    if (mark == kMarks.end() || cell_.text.empty() || blank_) return;
    const std::size_t place = mark->plain.find(cell_.text.back());
    if (place != mark->plain.npos) cell_.text.back() = mark->marked[place];
  }
  void PutOther(char32_t code_point) {
    const auto row =
        std::ranges::lower_bound(kReplacements, code_point, {}, &Replacement::code_point);
    if (row != kReplacements.end() && row->code_point == code_point) return PutText(row->text);
    if (const auto byte = ByteOf(code_point)) return PutText({*byte});
    if (code_point >= 0x100 && code_point < 0x180) {
      return PutText({kPlainLetters[code_point - 0x100]});
    }
    PutText({'?'});
    ++cell_.unheld;
  }

  CellText& cell_;
  bool blank_ = false;
};

// A mark of HTML in front of `text`: its length, and the character that it stands for, a blank for
// a tag.
struct Html {
  std::size_t length = 0;
  char32_t code_point = 0;
};

Html TagInFrontOf(std::string_view text) {
  constexpr std::size_t kLongestTag = 200;
  const auto is_letter = [](char c) { return LowerCaseOf(c) >= 'a' && LowerCaseOf(c) <= 'z'; };
  const std::size_t name = text.size() > 1 && text[1] == '/' ? 2 : 1;
  if (text.size() <= name || !is_letter(text[name])) return {};
  const std::size_t end = text.substr(0, kLongestTag).find('>');
  return end == text.npos ? Html{} : Html{end + 1, U' '};
}

Html EntityInFrontOf(std::string_view text) {
  struct Entity {
    std::string_view name;
    char32_t code_point;
  };
  constexpr std::array kEntities = {Entity{"&amp;", U'&'},   Entity{"&quot;", U'"'},
                                    Entity{"&apos;", U'\''}, Entity{"&lt;", U'<'},
                                    Entity{"&gt;", U'>'},    Entity{"&nbsp;", U' '}};
  for (const auto& [name, code_point] : kEntities) {
    if (text.starts_with(name)) return {name.size(), code_point};
  }
  if (!text.starts_with("&#")) return {};
  const bool is_hexadecimal = text.size() > 2 && (text[2] == 'x' || text[2] == 'X');
  const char* const digits = text.data() + (is_hexadecimal ? 3 : 2);
  const char* const end = text.data() + std::min<std::size_t>(text.size(), 10);
  std::uint32_t value = 0;
  if (digits >= end) return {};
  const auto [stopped, failure] = std::from_chars(digits, end, value, is_hexadecimal ? 16 : 10);
  const bool closed = stopped != text.data() + text.size() && *stopped == ';';
  if (failure != std::errc() || !closed || value == 0 || value > 0x10FFFF) return {};
  return {static_cast<std::size_t>(stopped - text.data()) + 1, value};
}

Html HtmlInFrontOf(std::string_view text) {
  if (text[0] == '<') return TagInFrontOf(text);
  if (text[0] == '&') return EntityInFrontOf(text);
  return {};
}

}  // namespace

CellText ReadCellText(std::string_view cell, Encoding encoding) {
  CellText result;
  result.text.reserve(cell.size());
  TextBuilder builder(result);
  for (std::size_t i = 0; i < cell.size();) {
    if (const Html html = HtmlInFrontOf(cell.substr(i)); html.length != 0) {
      builder.Put(html.code_point);
      i += html.length;
      continue;
    }
    const bool is_utf8 = encoding == Encoding::utf8;
    auto [code_point, length] =
        is_utf8 ? DecodeUtf8(cell, i) : Utf8Character{CodePointOf(cell[i]), 1};
    // A byte of no UTF-8 character.
    if (is_utf8 && code_point == 0xFFFD && length == 1) code_point = CodePointOf(cell[i]);
    builder.Put(code_point);
    i += length;
  }
  return result;
}

}  // namespace kelvora
