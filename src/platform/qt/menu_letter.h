// The letters by which the keyboard opens the menus of a menu bar.
#pragma once

#include <QString>

namespace kelvora {

// A title with the mark of its letter: the first that is not among the `taken` ones, to which it is
// added.
[[nodiscard]] QString WithMnemonic(const QString& title, QString& taken);

}  // namespace kelvora
