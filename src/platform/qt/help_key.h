// F1, wherever it is pressed: in a window, a dialog, a menu or a box. One filter of the whole
// application has it; no window binds it.
#pragma once

#include <functional>
#include <string>
#include <vector>

class QApplication;

namespace kelvora {

// Where F1 was pressed: the names of the control that has the focus and of all that holds it, from
// within.
using HelpAsked = std::function<void(const std::vector<std::string>& names)>;

// A box that `asked` itself shows doesn't ask once more.
void LetF1Ask(QApplication& application, HelpAsked asked);

}  // namespace kelvora
