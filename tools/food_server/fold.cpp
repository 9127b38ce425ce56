#include "food_server/fold.h"

#include <algorithm>
#include <array>

#include "core/store.h"
#include "core/text.h"

namespace kelvora::server {
namespace {

// What U+00C0 to U+00FF and U+0100 to U+017F are without their accents, a letter each; "." parts
// words. What becomes two letters is told below.
constexpr std::string_view kLatin1 =
    "aaaaaaaceeeeiiiidnooooo.ouuuuytsaaaaaaaceeeeiiiidnooooo.ouuuuyty";
constexpr std::string_view kLatinExtendedA =
    "aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiiijjkkkllllllllllnnnnnnnnnoooooooorrrrrrssss"
    "ssss"
    "ttttttuuuuuuuuuuuuwwyyyzzzzzzs";
static_assert(kLatin1.size() == 0x40 && kLatinExtendedA.size() == 0x80);

struct FoldedCharacter {
  char32_t code_point;
  std::string_view folded;
};
constexpr std::array kOthers = {
    FoldedCharacter{0x00AA, "a"},
    FoldedCharacter{0x00B2, "2"},
    FoldedCharacter{0x00B3, "3"},
    FoldedCharacter{0x00B9, "1"},
    FoldedCharacter{0x00BA, "o"},
    FoldedCharacter{0x00C6, "ae"},
    FoldedCharacter{0x00E6, "ae"},
    FoldedCharacter{0x00DE, "th"},
    FoldedCharacter{0x00FE, "th"},
    FoldedCharacter{0x00DF, "ss"},
    FoldedCharacter{0x0132, "ij"},
    FoldedCharacter{0x0133, "ij"},
    FoldedCharacter{0x0152, "oe"},
    FoldedCharacter{0x0153, "oe"},
    FoldedCharacter{0x0192, "f"},
    // What stands inside a word without being heard.
    FoldedCharacter{U'\'', ""},
    FoldedCharacter{U'`', ""},
    FoldedCharacter{0x00B4, ""},
    FoldedCharacter{0x2018, ""},
    FoldedCharacter{0x2019, ""},
    FoldedCharacter{0x00AD, ""},
};

constexpr std::string_view kBetweenWords = " ";

constexpr std::string_view FoldOther(char32_t code_point) {
  for (const FoldedCharacter& other : kOthers) {
    if (other.code_point == code_point) return other.folded;
  }
  if (code_point >= 0x0300 && code_point < 0x0370) return {};  // combining accents
  std::string_view letter = kBetweenWords;
  if (code_point >= 0xC0 && code_point < 0x100) letter = kLatin1.substr(code_point - 0xC0, 1);
  if (code_point >= 0x100 && code_point < 0x180) {
    letter = kLatinExtendedA.substr(code_point - 0x100, 1);
  }
  return letter == "." ? kBetweenWords : letter;
}

// The folded form of every byte of Windows-1252.
constexpr auto kFoldedBytes = [] {
  constexpr std::string_view kSmall = "abcdefghijklmnopqrstuvwxyz0123456789%";
  std::array<std::string_view, 256> folded{};
  for (std::size_t code = 0; code < folded.size(); ++code) {
    const char small = LowerCaseOf(static_cast<char>(code));
    const std::size_t place = code < 0x80 ? kSmall.find(small) : kSmall.npos;
    folded[code] = place != kSmall.npos ? kSmall.substr(place, 1)
                                        : FoldOther(CodePointOf(static_cast<char>(code)));
  }
  return folded;
}();

void Append(std::string& folded, std::string_view letters) {
  if (letters != kBetweenWords) {
    folded += letters;
  } else if (!folded.empty() && folded.back() != ' ') {
    folded += ' ';
  }
}

std::string WithoutLastBlank(std::string folded) {
  if (!folded.empty() && folded.back() == ' ') folded.pop_back();
  return folded;
}

}  // namespace

std::string FoldText(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  for (const char byte : text) Append(folded, kFoldedBytes[static_cast<unsigned char>(byte)]);
  return WithoutLastBlank(std::move(folded));
}

bool IsUtf8(std::string_view bytes) {
  for (std::size_t i = 0; i < bytes.size();) {
    const auto [code_point, length] = DecodeUtf8(bytes, i);
    if (code_point == 0xFFFD && length == 1) return false;
    i += length;
  }
  return true;
}

std::string FoldBytes(std::string_view bytes) {
  if (!IsUtf8(bytes)) return FoldText(bytes);
  std::string folded;
  for (std::size_t i = 0; i < bytes.size();) {
    const auto [code_point, length] = DecodeUtf8(bytes, i);
    Append(folded, code_point < 0x80 ? kFoldedBytes[code_point] : FoldOther(code_point));
    i += length;
  }
  return WithoutLastBlank(std::move(folded));
}

std::vector<std::string_view> WordsOf(std::string_view folded) {
  std::vector<std::string_view> words;
  while (!folded.empty()) {
    const std::size_t end = std::min(folded.find(' '), folded.size());
    words.push_back(folded.substr(0, end));
    folded.remove_prefix(std::min(end + 1, folded.size()));
  }
  return words;
}

FoldedTerm FoldTerm(std::string_view bytes) {
  FoldedTerm term;
  term.text = FoldBytes(bytes);
  if (term.text.size() > kMostLettersOfTerm) {
    term.text = WithoutLastBlank(term.text.substr(0, kMostLettersOfTerm));
  }
  for (const std::string_view word : WordsOf(term.text)) {
    if (term.words.size() == kMostWordsOfTerm) break;
    if (std::ranges::find(term.words, word) == term.words.end()) term.words.emplace_back(word);
  }
  return term;
}

FoldedFood FoldFood(std::string_view line) {
  FoldedFood food;
  food.name = FoldText(FieldOf(line, FoodField::kProduct));
  food.names.push_back(food.name);
  const std::string_view remark = FieldOf(line, FoodField::kRemark);
  std::string_view names = remark.substr(0, remark.find_first_of("\r\n"));
  while (!names.empty()) {
    const std::size_t end = std::min(names.find(','), names.size());
    std::string name = FoldText(names.substr(0, end));
    if (!name.empty() && std::ranges::find(food.names, name) == food.names.end()) {
      food.names.push_back(std::move(name));
    }
    names.remove_prefix(std::min(end + 1, names.size()));
  }
  food.text = food.name;
  if (const std::string folded = FoldText(remark); !folded.empty()) {
    food.text.append(food.text.empty() ? "" : " ").append(folded);
  }
  return food;
}

}  // namespace kelvora::server
