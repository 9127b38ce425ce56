// A language that nobody speaks: every English text with each of its words half as long again,
// between marks. What is too narrow for it is too narrow for a translation, and what has no marks
// comes from no table.
#pragma once

#include "language/built_in_texts.h"
#include "language/own_texts.h"

namespace kelvora {

inline Text Lengthened(std::string_view text) {
  const auto is_letter = [](char byte) {
    const auto letter = static_cast<unsigned char>(byte);
    return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z') || letter >= 0xC0;
  };
  Text longer = "\xAB";
  for (std::size_t begin = 0; begin < text.size();) {
    std::size_t end = begin;
    while (end < text.size() && is_letter(text[end])) ++end;
    longer += text.substr(begin, end - begin);
    for (std::size_t i = 0; i < (end - begin) / 2; ++i) longer += "aeonirt"[i % 7];
    if (end == begin) longer += text[end++];
    begin = end;
  }
  return longer + "\xBB";
}

// Fills the tables with it.
inline void Make_Taal_Pseudo(TextTables& texts) {
  Make_Taal_English(texts);
  const auto lengthen = [](Text& text) {
    if (!text.empty()) text = Lengthened(text);
  };
  for (auto& table : texts.entries) {
    for (Text& text : table) lengthen(text);
  }
  for (Text& text : texts.own) lengthen(text);
}

}  // namespace kelvora
