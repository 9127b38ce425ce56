#include "language/own_texts.h"

#include <algorithm>
#include <array>

#include "language/built_in_texts.h"
#include "language/main_texts.h"

namespace kelvora {
namespace {

struct OwnTextRow {
  OwnText id;
  std::string_view english;
  std::string_view dutch;
};

// In the order of OwnText.
constexpr std::array kRows = {
    OwnTextRow{OwnText::not_here_yet, "Not part of this version yet."_w,
               "Nog geen deel van deze versie."_w},
};
static_assert(kRows.size() == kOwnTextCount);
static_assert(std::ranges::all_of(kRows, [](const OwnTextRow& row) {
  return &row == &kRows[static_cast<std::size_t>(row.id)];
}));

}  // namespace

Language LanguageOf(const TextTables& texts) {
  const auto rows = MainTextRows();
  const auto row = std::ranges::find(rows, main_text::kFile, &TextRow::id);
  return texts[main_text::kFile] == row->dutch ? Language::dutch : Language::english;
}

Text OwnTextOf(const TextTables& texts, OwnText id) {
  return OwnTextIn(LanguageOf(texts), id);
}

Text OwnTextIn(Language language, OwnText id) {
  const OwnTextRow& row = kRows[static_cast<std::size_t>(id)];
  return Text(language == Language::dutch ? row.dutch : row.english);
}

}  // namespace kelvora
