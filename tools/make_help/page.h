// One page of the help: its body as it was written, with the facts filled in, and what goes around
// it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "make_help/language.h"

namespace kelvora::help {

struct Page {
  std::string name;  // of the file, without ".html"
  std::string title;
  std::string lead;  // the first paragraph, as HTML
  std::string body;
};

// Puts in the place of each line "{{name}}" or "{{name argument}}" what `fill` gives. Throws
// std::runtime_error where a line begins with "{{" and doesn't end with "}}".
using Fill = std::function<std::string(const std::string& name, const std::string& argument)>;
[[nodiscard]] std::string Filled(const std::string& body, const Fill& fill);

// The page of a body: the first line is its <h1>, the next its lead. Throws std::runtime_error
// where they are not.
[[nodiscard]] Page PageOf(std::string name, std::string body);

// The file of a page, with the pages before and behind it and the list of all.
[[nodiscard]] std::string FileOf(const HelpLanguage& in, const std::vector<Page>& pages,
                                 std::size_t place);

// The same of the page of all words, which stands behind the others.
inline constexpr std::string_view kSearchPage = "search";

}  // namespace kelvora::help
