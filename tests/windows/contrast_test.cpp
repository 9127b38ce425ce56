// Whether every text can be read on its ground, whatever the desktop's colours: each window is
// drawn, and the contrast of each of its texts is taken from the pixels.
#include "platform/qt/contrast.h"

#include <set>

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTableView>
#include <QTextEdit>
#include <QToolButton>

#include "platform/qt/cell_tips.h"
#include "platform/qt/readable_palette.h"
#include "windows/desktop_colours.h"
#include "windows/every_window.h"

namespace kelvora {
namespace {

constexpr double kOfText = 4.5;
constexpr double kOfSigns = 3;  // what WCAG 2 asks of a sign that is no text

struct TextPlace {
  std::string where;
  QRect place;  // in the picture
  double least = kOfText;
};

// Where a widget has words: nowhere a frame, a mark or a picture.
class TextPlaces {
 public:
  explicit TextPlaces(QWidget& root) : root_(root) {
    if (const auto* frame = qobject_cast<QMdiSubWindow*>(&root)) LookAtFrame(*frame);
    LookInto(root);
  }
  [[nodiscard]] const std::vector<TextPlace>& Found() const { return found_; }

 private:
  void LookInto(QWidget& parent) {
    LookAt(parent);
    for (QWidget* const child :
         parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      // A child window is drawn by itself: others may lie on it.
      if (!child->isVisible() || child->isWindow() || qobject_cast<QMdiSubWindow*>(child)) continue;
      LookInto(*child);
    }
  }

  void LookAt(QWidget& widget) {
    if (auto* label = qobject_cast<QLabel*>(&widget)) return LookAtLabel(*label);
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return LookAtButton(*button);
    if (auto* header = qobject_cast<QHeaderView*>(&widget)) return LookAtHeadings(*header);
    if (auto* tabs = qobject_cast<QTabBar*>(&widget)) return LookAtTabs(*tabs);
    if (auto* group = qobject_cast<QGroupBox*>(&widget)) return LookAtTitle(*group);
    if (auto* box = qobject_cast<QLineEdit*>(&widget)) return LookAtBox(*box);
    if (auto* combo = qobject_cast<QComboBox*>(&widget)) return LookAtChoice(*combo);
    if (auto* table = qobject_cast<QTableView*>(&widget)) return LookAtCells(*table);
    if (auto* text = qobject_cast<QTextEdit*>(&widget)) {
      if (!text->toPlainText().isEmpty()) Add(widget, text->viewport()->geometry(), "text");
    }
    if (auto* bar = qobject_cast<QMenuBar*>(&widget)) {
      for (QAction* const action : bar->actions()) {
        Add(widget, bar->actionGeometry(action), action->text());
      }
    }
  }

  void LookAtLabel(const QLabel& label) {
    if (!label.text().trimmed().isEmpty()) Add(label, label.contentsRect(), label.text());
  }

  void LookAtButton(QAbstractButton& button) {
    button.setIcon({});
    if (button.text().isEmpty()) return;
    if (auto* tool = qobject_cast<QToolButton*>(&button);
        tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly) {
      return;
    }
    QStyleOptionButton option;
    option.initFrom(&button);
    QRect place = button.rect().adjusted(5, 4, -5, -4);
    if (button.isCheckable() && button.inherits("QCheckBox")) {
      place = button.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &button);
    } else if (button.inherits("QRadioButton")) {
      place = button.style()->subElementRect(QStyle::SE_RadioButtonContents, &option, &button);
    }
    Add(button, place, button.text());
  }

  void LookAtHeadings(const QHeaderView& header) {
    if (header.orientation() != Qt::Horizontal || header.model() == nullptr) return;
    for (int i = 0; i < header.count(); ++i) {
      const QString words = header.model()->headerData(i, Qt::Horizontal).toString();
      if (header.isSectionHidden(i) || words.trimmed().isEmpty()) continue;
      const QRect section(header.sectionViewportPosition(i), 0, header.sectionSize(i),
                          header.height());
      Add(header, section.adjusted(3, 2, -3, -2), words);
    }
  }

  void LookAtTabs(const QTabBar& tabs) {
    for (int i = 0; i < tabs.count(); ++i) {
      const QRect tab = tabs.tabRect(i).adjusted(6, 5, -6, -4);
      if (tabs.rect().contains(tab)) Add(tabs, tab, tabs.tabText(i));
    }
  }

  void LookAtTitle(const QGroupBox& group) {
    QStyleOptionGroupBox option;
    option.initFrom(&group);
    option.text = group.title();
    option.subControls = QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxFrame;
    Add(group,
        group.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel,
                                      &group),
        group.title());
  }

  void LookAtBox(const QLineEdit& box) {
    if (qobject_cast<const QComboBox*>(box.parentWidget()) != nullptr) return;
    for (auto* const icon : box.findChildren<QToolButton*>()) icon->hide();
    const QString words = box.text().isEmpty() ? box.placeholderText() : box.text();
    if (!words.trimmed().isEmpty()) Add(box, box.rect().adjusted(4, 4, -4, -4), words);
  }

  void LookAtChoice(const QComboBox& combo) {
    if (combo.currentText().isEmpty()) return;
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    Add(combo,
        combo.style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo)
            .adjusted(1, 1, -1, -1),
        combo.currentText());
  }

  void LookAtCells(const QTableView& table) {
    if (table.model() == nullptr) return;
    for (int row = 0; row < std::min(table.model()->rowCount(), 3); ++row) {
      for (int column = 0; column < table.model()->columnCount(); ++column) {
        const QModelIndex index = table.model()->index(row, column);
        const QRect cell = table.visualRect(index).adjusted(2, 1, -2, -1);
        if (table.isColumnHidden(column) || index.data().toString().trimmed().isEmpty()) continue;
        if (!index.data(Qt::DecorationRole).isNull() || !table.viewport()->rect().contains(cell)) {
          continue;
        }
        const int middle = cell.center().y();
        Add(*table.viewport(), cell, table.objectName() + ": " + index.data().toString());
        if (index.data(kSecondLineRole).toString().isEmpty()) continue;
        Add(*table.viewport(), cell.adjusted(0, middle - cell.top() + 2, 0, 0),
            table.objectName() + ": second line");
      }
    }
  }

  // The title and the three buttons of a child window.
  void LookAtFrame(const QMdiSubWindow& frame) {
    const int bar = frame.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &frame);
    const int buttons = 3 * bar;
    const QRect title(bar + 8, 3, frame.width() - bar - buttons - 16, bar - 3);
    Add(frame, title, "title");
    for (int i = 0; i < 3; ++i) {
      const QRect button(frame.width() - buttons + i * bar, 3, bar - 4, bar - 4);
      Add(frame, button, QStringLiteral("button %1").arg(i + 1), kOfSigns);
    }
  }

  void Add(const QWidget& widget, const QRect& place, const QString& words,
           double least = kOfText) {
    if (!widget.visibleRegion().boundingRect().contains(place)) return;  // scrolled away
    found_.push_back({widget.objectName().toStdString() + " \"" + words.toStdString() + "\"",
                      QRect(widget.mapTo(&root_, place.topLeft()), place.size()), least});
  }

  QWidget& root_;
  std::vector<TextPlace> found_;
};

// The contrast of the letters in a place of a picture: of what differs most from the colour that
// most of it has. The letters of these tests have no softened edges.
double ContrastIn(const QImage& picture, const QRect& place) {
  std::map<QRgb, int> count;
  const QRect inside = place.intersected(picture.rect());
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) ++count[picture.pixel(x, y)];
  }
  if (count.empty()) return 0;
  const QColor ground =
      std::ranges::max_element(count, {}, [](const auto& one) { return one.second; })->first;
  double most = 0;
  for (const auto& [colour, pixels] : count) {
    if (pixels >= 2) most = std::max(most, ContrastOf(colour, ground));
  }
  return most;
}

// The windows of a window: itself, and each child window by itself.
std::vector<QWidget*> DrawnByItself(QWidget& window) {
  std::vector<QWidget*> roots = {&window};
  for (auto* const frame : window.findChildren<QMdiSubWindow*>()) {
    if (frame->isVisible()) roots.push_back(frame);
  }
  return roots;
}

struct Readings {
  std::set<std::string> faults;
  int looked = 0;

  void Read(QWidget& window) {
    for (QWidget* const root : DrawnByItself(window)) Take(*root, TextPlaces(*root).Found());
    for (auto* const menu : window.findChildren<QMenu*>()) {
      if (!menu->isEmpty() && !menu->objectName().isEmpty()) ReadMenu(*menu);
    }
  }

 private:
  void ReadMenu(QMenu& menu) {
    menu.ensurePolished();
    menu.resize(menu.sizeHint());
    std::vector<TextPlace> places;
    for (QAction* const action : menu.actions()) {
      action->setIconVisibleInMenu(false);
      if (action->isSeparator() || !action->isVisible()) continue;
      const QRect row = menu.actionGeometry(action);
      places.push_back(
          {menu.objectName().toStdString() + " \"" + action->text().toStdString() + "\"",
           row.adjusted(24, 2, -12, -2)});
    }
    Take(menu, places);
  }

  void Take(QWidget& root, const std::vector<TextPlace>& places) {
    const QImage picture = root.grab().toImage();
    for (const auto& [where, place, least] : places) {
      ++looked;
      const double contrast = ContrastIn(picture, place);
      if (contrast >= least) continue;
      faults.insert(root.objectName().toStdString() + "/" + where + " has " +
                    QString::number(contrast, 'f', 2).toStdString());
    }
  }
};

class Contrast : public EveryWindow {
 protected:
  Contrast() {
    QFont sharp = font_before_;
    sharp.setStyleStrategy(QFont::NoAntialias);
    QApplication::setFont(sharp);
  }
  ~Contrast() override {
    QApplication::setFont(font_before_);
    QApplication::setPalette(palette_before_);
  }

  void ExpectReadable(const std::function<void(const Look&)>& windows, int least) {
    Make_Taal_Dutch(program.texts);
    for (const DesktopColours& desktop : kDesktops) {
      QApplication::setPalette(ReadablePalette(PaletteOf(desktop)));
      Readings readings;
      windows([&](QWidget& window) { readings.Read(window); });
      EXPECT_GE(readings.looked, least);
      for (const std::string& fault : readings.faults)
        ADD_FAILURE() << desktop.name << ": " << fault;
    }
  }

 private:
  const QFont font_before_ = QApplication::font();
  const QPalette palette_before_ = QApplication::palette();
};

TEST_F(Contrast, OfEveryTextOfTheMainWindowAndItsChildWindows) {
  ExpectReadable([this](const Look& look) { LookAtMainWindow({1024, 740}, look); }, 1000);
}

TEST_F(Contrast, OfEveryTextOfTheDialogs) {
  ExpectReadable([this](const Look& look) { LookAtDialogs(look); }, 500);
}

// A theme that sets grounds and no letters, taken as it is, makes a window of nothing but faults.
TEST_F(Contrast, OfLettersThatNobodySetIsSeen) {
  QApplication::setPalette(PaletteOf(kDesktops.back()));
  WizardDialog wizard(program, nullptr);
  wizard.show();
  Readings readings;
  readings.Read(wizard);
  EXPECT_GE(readings.faults.size(), 8u);
}

// One role alone: what stands in an empty box.
TEST_F(Contrast, OfAHintThatATHemeLeftUnsetIsSeen) {
  QPalette palette = PaletteOf(kDesktops[1]);
  palette.setColor(QPalette::PlaceholderText, Qt::black);
  const auto contrast = [](const QPalette& colours) {
    QApplication::setPalette(colours);
    QLineEdit box;
    box.setPlaceholderText("Name");
    box.resize(200, 30);
    return ContrastIn(box.grab().toImage(), box.rect().adjusted(4, 4, -4, -4));
  };
  EXPECT_LT(contrast(palette), 2);
  EXPECT_GE(contrast(ReadablePalette(palette)), kOfText);
}

}  // namespace
}  // namespace kelvora
