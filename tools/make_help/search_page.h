// The page of all words: which pages each stands on, by its first letter. It is read without a
// script; search.js adds a box that narrows it.
#pragma once

#include "make_help/page.h"

namespace kelvora::help {

[[nodiscard]] Page SearchPage(const HelpLanguage& in, const std::vector<Page>& pages);

}  // namespace kelvora::help
