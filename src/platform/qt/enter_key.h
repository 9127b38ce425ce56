// Enter, wherever it is pressed in a dialog, reaches the dialog's default button. On desktops whose
// buttons are pressed by Enter, GNOME among them, the toolkit's group boxes keep the key for a tick
// that they don't have.
#pragma once

class QApplication;

namespace kelvora {

void LetEnterThroughGroups(QApplication& application);

}  // namespace kelvora
