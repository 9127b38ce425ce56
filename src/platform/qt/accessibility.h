// What the windows do for those who hear the program rather than see it, beyond the names that
// controls have anyway.
#pragma once

class QLabel;
class QWidget;

namespace kelvora {

// From now on a picture that only decorates is silent: a label with nothing but a picture and no
// name of its own, the picture in a text box, and whatever MakeSilent was called for.
void KeepDecorationSilent();
void MakeSilent(QWidget& widget);

// Takes a label that shows nothing away and leaves its room: it would be read with the title of the
// group that it stands in.
void HideWhileEmpty(QLabel& label);

// Names the label of a value: its caption, then the value.
void NameValue(QLabel& value, const QLabel& caption);

}  // namespace kelvora
