// A language of the help: the program's own texts in it, and the words of the generator's.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "language/own_texts.h"
#include "language/tables.h"

namespace kelvora::help {

// Words of the help itself, in UTF-8 as the pages are.
struct Words {
  std::string_view english;
  std::string_view dutch;

  [[nodiscard]] constexpr std::string_view In(Language language) const {
    return language == Language::dutch ? dutch : english;
  }
};

struct HelpLanguage {
  Language language = Language::english;
  std::string_view code;  // of the folder and of "lang"
  TextTables texts;

  [[nodiscard]] std::string_view operator()(const Words& words) const { return words.In(language); }
  // What the program shows, as HTML: blanks at the ends are for its layout only.
  [[nodiscard]] std::string Shown(TextId id) const;
  [[nodiscard]] std::string Shown(OwnText id) const;
};

[[nodiscard]] std::vector<HelpLanguage> HelpLanguages();

}  // namespace kelvora::help
