#include "analysis/diary.h"

#include <algorithm>

#include "language/diary_texts.h"

namespace kelvora {
namespace {

using namespace diary_text;

}  // namespace

Text DiaryInBox(std::string_view stored) {
  Text text = ReplaceAll(stored, "\r\n", "\n");
  std::ranges::replace(text, '\r', '\n');
  return text;
}

bool HoldsEndlessWord(std::string_view text) {
  std::size_t length = 0;
  return std::ranges::any_of(text, [&length](char character) {
    const bool ends_word = character == ' ' || character == '\n' || character == '\r';
    length = ends_word ? 0 : length + 1;
    return length > MaxDiaryLength;
  });
}

Text Toon_Tekens(Program& program, std::string_view in_box) {
  Text status;
  program.Guard("#F13-0", [&] {
    const TextTables& texts = program.texts;
    const auto length = static_cast<long long>(LengthUnder(kDiaryRule, in_box));
    const auto room = static_cast<long long>(MaxDiaryLength) - length;
    status = texts[kContains] + " " + std::to_string(length) + " " + texts[kCharacters] + " " +
             texts[kRoomFor] + " " + std::to_string(room) + " " + texts[kRoomCharacters];
  });
  return status;
}

bool Bewaar_Notities(Program& program, std::string_view in_box) {
  bool taken = false;
  program.Guard("#F13-1", [&] {
    if (HoldsTerminator(in_box)) {
      return Tell(program, BoxIcon::warning,
                  JoinLines(program.texts, {kCannotSave, kHalfNotAllowed}));
    }
    Text& stored = program.store.txt_notities;
    if (in_box != DiaryInBox(stored)) stored = ReplaceAll(in_box, "\n", "\r\n");
    taken = true;
  });
  return taken;
}

void NoteDiaryChange(Program& program) {
  program.Guard("#F13-2", [&] {
    if (!program.day.FileChanged) SetFileChanged(program, true);
  });
}

std::array<int, 3> DiaryPanelWidths(int window_width) {
  constexpr int kSecond = 1500;
  constexpr int kThird = 1000;
  return {window_width - kSecond - kThird, kSecond, kThird};
}

}  // namespace kelvora
