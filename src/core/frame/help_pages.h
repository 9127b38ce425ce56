// The pages of the help by their names, "day-keyboard" for help/<language>/day-keyboard.html, and
// which of them tells of which window. What stands on them lies in help/.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kelvora {

inline constexpr std::string_view kFirstHelpPage = "index";

// In the order in which they are read from the first to the last.
[[nodiscard]] std::span<const std::string_view> HelpPages();

struct WindowPage {
  std::string_view window;  // the name of the window's object
  std::string_view page;
};
[[nodiscard]] std::span<const WindowPage> WindowPages();

// The page of the innermost window that has one: `names` are those of a control and of what holds
// it, from within. The first page where none has.
[[nodiscard]] std::string_view HelpPageOf(const std::vector<std::string>& names);

}  // namespace kelvora
