// The parts of the help that are made of the program's own tables, in one language each, as HTML.
#pragma once

#include <string>

#include "make_help/language.h"

namespace kelvora::help {

// All keys, by where they count.
[[nodiscard]] std::string KeysTables(const HelpLanguage& language);

// Every setting of the dialog, by its pages and groups: caption, what its tip says, its default.
[[nodiscard]] std::string SettingsTables(const HelpLanguage& language);

// Every box with its words, what it means and what to do.
[[nodiscard]] std::string BoxesList(const HelpLanguage& language);

// Every failure code: what the program was about, and what to do. `codes` is the page that lists
// the codes of the source, `words` the table of what is said of each. Throws std::runtime_error
// where one has a code that the other lacks.
[[nodiscard]] std::string CodesTables(const HelpLanguage& language, const std::string& codes,
                                      const std::string& words);

}  // namespace kelvora::help
