// The look that all windows share: icons and the unit of layout.
#pragma once

#include <optional>
#include <string_view>

#include <QAction>
#include <QIcon>

#include "core/geometry.h"

class QLabel;
class QLineEdit;
class QTabWidget;
class QTableView;
class QToolBar;
class QWidget;

namespace kelvora {

// The icon of that name in resources/icons; sharp at every scale.
[[nodiscard]] QIcon IconNamed(std::string_view name);

// Gives a widget the name by which tests and assistive tools find it.
void NameWidget(QWidget* widget, const char* object_name);

// A label of plain text under that name.
[[nodiscard]] QLabel* NewLabel(QWidget* parent, const QString& object_name);

// How high the rows of a list of that widget's letters are.
[[nodiscard]] int RowHeight(const QWidget& widget);

// Makes a table a list of rows: whole rows, several at once, nothing typed, striped, as high as
// RowHeight, with a heading that follows no selection and tips for cells that are cut.
void MakeRowList(QTableView* table);

// The width that the shown headings of a list need together.
[[nodiscard]] int WidthOfHeadings(const QTableView& table);

// Widens the shown columns of a list to the words of their headings. What that takes beyond the
// width of the list is given by the column `giving` first, then by others, as far as their own
// words allow. Where the list is too narrow for all of them, each has its share, and their tips the
// rest.
// `room` is the width of the list where it isn't laid out yet.
void WidenToHeadings(QTableView& table, int giving, std::optional<int> room = std::nullopt);

// Shows the captions of a bar's buttons where all of them have room, and pictures alone otherwise,
// so that no button is out of reach.
void FitCaptions(QToolBar& bar, Qt::ToolButtonStyle with_captions);

// Makes the strip of some tabs one stop of the Tab key. The toolkit makes the two buttons stops as
// well that a strip too long for its window has; the arrow keys do what they do.
void MakeOneStop(QTabWidget* tabs);

// Makes a widget's letters a little smaller than the desktop's, where room is scarce.
void UseSmallLetters(QWidget* widget);

// Brings a box into sight, on its tab, and the focus into it with its text selected.
void GoToBox(QWidget* box);

// A text as the caption of a menu, a button or a group, where "&" is a letter of it and not the
// mark of a shortcut.
[[nodiscard]] QString CaptionFrom(std::string_view text);

// Locks a text box, or takes the lock off. A locked one can be read and copied from, and looks like
// the page that it stands on.
void SetLocked(QLineEdit* box, bool locked);

// Gives an action its texts: caption, tool tip and the same for assistive tools.
void SetActionTexts(QAction* action, std::string_view caption, std::string_view tip);

// Puts the keys that give an action behind its tool tip, as the desktop writes them; they are in
// portable form, "Alt+1", and may be none.
void AddKeysToTip(QAction* action, std::string_view keys);

}  // namespace kelvora
