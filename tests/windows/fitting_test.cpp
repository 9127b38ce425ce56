// Whether every word of every window has its room: in English, in Dutch and in a language of words
// half as long again, at the size that a window opens with and at the smallest that it allows. What
// has less room than its words is cut with a mark, and then its tip has the whole.
#include <algorithm>
#include <set>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTableView>
#include <QToolButton>

#include "platform/qt/hint_label.h"
#include "platform/qt/long_label.h"
#include "windows/every_window.h"

namespace kelvora {
namespace {

int WidestLine(const QFontMetrics& letters, const QString& text) {
  int widest = 0;
  for (const QString& line : text.split('\n')) {
    widest = std::max(widest, letters.horizontalAdvance(line));
  }
  return widest;
}

int WidestWord(const QFontMetrics& letters, const QString& text) {
  return WidestLine(letters, QString(text).replace(' ', '\n'));
}

// What of a window has too little room.
class Fitting {
 public:
  explicit Fitting(const QWidget& root) : root_(root) {
    for (const QWidget* widget : root.findChildren<const QWidget*>()) {
      if (widget->isVisible() && !IsOfTheToolkit(*widget)) LookAt(*widget);
    }
  }
  [[nodiscard]] const std::vector<std::string>& Faults() const { return faults_; }
  [[nodiscard]] int Looked() const { return looked_; }

 private:
  // The arrows of a strip of tabs, the frames of child windows.
  static bool IsOfTheToolkit(const QWidget& widget) {
    return qobject_cast<const QTabBar*>(widget.parentWidget()) != nullptr ||
           widget.objectName().startsWith(QLatin1String("qt_"));
  }

  void LookAt(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) LookAtLabel(*label);
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) LookAtButton(*button);
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) LookAtHeadings(*header);
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) LookAtTitle(*group);
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) LookAtTabs(*tabs);
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) LookAtChoice(*combo);
  }

  void LookAtLabel(const QLabel& label) {
    if (label.text().isEmpty()) return;
    Expect(label, label.text(),
           label.visibleRegion().boundingRect().height() == 0 || InParent(label),
           "lies beyond what holds it");
    const QFontMetrics letters = label.fontMetrics();
    const QRect place = label.contentsRect();
    const int high = letters.height() - 2;  // the room above capitals may go
    if (dynamic_cast<const LongLabel*>(&label) != nullptr) {
      return Expect(label, label.text(), place.height() >= high, "is too low");
    }
    if (const auto* hint = dynamic_cast<const HintLabel*>(&label)) {
      return Expect(label, label.text(), hint->height() >= high, "is too low");
    }
    if (label.wordWrap()) {
      Need(label, label.text(), WidestWord(letters, label.text()), place.width());
      const int lines = label.heightForWidth(label.width());
      return Expect(label, label.text(), label.height() >= lines, "is too low for its lines");
    }
    Need(label, label.text(), WidestLine(letters, label.text()), place.width());
    const auto line_count = static_cast<int>(label.text().count('\n')) + 1;
    Expect(label, label.text(), place.height() >= high * line_count, "is too low");
  }

  void LookAtButton(const QAbstractButton& button) {
    if (button.text().isEmpty()) return;
    const auto* const tool = qobject_cast<const QToolButton*>(&button);
    if (tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly) return;
    Expect(button, button.text(), InParent(button),
           "lies beyond what holds it: " + std::to_string(button.y()) + "+" +
               std::to_string(button.height()) + " of " +
               std::to_string(button.parentWidget()->height()));
    // The least that a style gives to words and picture; push buttons have more by habit.
    const QSize room = button.size();
    int needed = button.sizeHint().width();
    if (qobject_cast<const QPushButton*>(&button) != nullptr) {
      constexpr int kFrame = 8;
      const int picture = button.icon().isNull() ? 0 : button.iconSize().width() + 4;
      needed =
          WidestLine(button.fontMetrics(), QString(button.text()).remove('&')) + picture + kFrame;
    }
    Need(button, button.text(), needed, room.width());
    Expect(button, button.text(), room.height() >= button.fontMetrics().height(), "is too low");
  }

  // A heading is cut, and has a tip, only where all of them together have no room.
  void LookAtHeadings(const QHeaderView& header) {
    if (header.orientation() != Qt::Horizontal || header.model() == nullptr) return;
    const auto words = [&](int section) {
      return header.model()->headerData(section, Qt::Horizontal).toString();
    };
    const auto needed = [&](int section) {
      return header.fontMetrics().horizontalAdvance(words(section)) +
             2 * header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header);
    };
    int all = 0;
    for (int section = 0; section < header.count(); ++section) {
      if (!header.isSectionHidden(section)) all += needed(section);
    }
    constexpr int kBeside = 44;  // the mark of sorting and a scroll bar
    const bool all_fit = all + kBeside <= header.viewport()->width();
    for (int section = 0; section < header.count(); ++section) {
      if (header.isSectionHidden(section) || words(section).isEmpty()) continue;
      const QString tip =
          header.model()->headerData(section, Qt::Horizontal, Qt::ToolTipRole).toString();
      Need(header, words(section), needed(section), header.sectionSize(section),
           all_fit ? QString() : tip);
    }
    // A table of somebody else's has as many columns as it has.
    if (header.parentWidget()->objectName() == QLatin1String("table_rows")) return;
    Expect(header, "all headings", header.length() <= header.viewport()->width() + 1,
           "reach beyond the list");
  }

  void LookAtTitle(const QGroupBox& group) {
    Need(group, group.title(), group.fontMetrics().horizontalAdvance(group.title()),
         group.width() - 12);
  }

  void LookAtTabs(const QTabBar& tabs) {
    for (int i = 0; i < tabs.count(); ++i) {
      Need(tabs, tabs.tabText(i), tabs.fontMetrics().horizontalAdvance(tabs.tabText(i)),
           tabs.tabRect(i).width() - 8);
    }
  }

  void LookAtChoice(const QComboBox& combo) {
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const QRect field = combo.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                      QStyle::SC_ComboBoxEditField, &combo);
    Need(combo, combo.currentText(), combo.fontMetrics().horizontalAdvance(combo.currentText()),
         field.width());
  }

  // Whether all of a widget lies in its parents, up to what scrolls or to the window.
  [[nodiscard]] bool InParent(const QWidget& widget) const {
    const QWidget* inner = &widget;
    QRect place = widget.rect().adjusted(2, 3, -2, -3);  // buttons have a margin around their words
    while (inner != &root_ && !inner->isWindow() &&
           qobject_cast<const QMdiSubWindow*>(inner) == nullptr) {
      place.translate(inner->pos());
      inner = inner->parentWidget();
      if (inner == nullptr) return true;
      if (qobject_cast<const QAbstractScrollArea*>(inner->parentWidget()) != nullptr) return true;
      if (!inner->rect().contains(place)) return false;
    }
    return true;
  }

  void Need(const QWidget& widget, const QString& words, int needed, int room,
            const QString& tip = {}) {
    const bool told = !tip.isEmpty() && tip.contains(words);
    Expect(widget, words, needed <= room || told,
           "needs " + std::to_string(needed) + ", has " + std::to_string(room));
  }

  void Expect(const QWidget& widget, const QString& words, bool holds, const std::string& what) {
    ++looked_;
    if (holds) return;
    const QWidget* holder = &widget;
    while (holder != nullptr && !holder->objectName().startsWith(QLatin1String("KV_"))) {
      holder = holder->parentWidget();
    }
    faults_.push_back((holder == nullptr ? "" : holder->objectName().toStdString()) + "/" +
                      widget.objectName().toStdString() + " \"" + words.toStdString() + "\" " +
                      what);
  }

  const QWidget& root_;
  std::vector<std::string> faults_;
  int looked_ = 0;
};

// The smallest that a user can make it.
void ShrinkToLeast(QWidget& window) {
  for (auto* const frame : window.findChildren<QMdiSubWindow*>()) {
    frame->resize(frame->minimumSize().isEmpty() ? frame->minimumSizeHint() : frame->minimumSize());
  }
  if (qobject_cast<QMainWindow*>(&window) == nullptr) window.resize(window.minimumSizeHint());
  QApplication::processEvents();
}

class EveryWord : public EveryWindow {
 protected:
  // Each fault once, in all sizes and pages together.
  void Check(const std::function<void(const Look&)>& windows, int least) {
    for (const TestLanguage& language : kTestLanguages) {
      language.make(program.texts);
      std::set<std::string> faults;
      int looked = 0;
      const auto take = [&](const QWidget& window, const char* size) {
        const Fitting fitting(window);
        looked += fitting.Looked();
        for (const std::string& fault : fitting.Faults()) faults.insert(fault + ", " + size);
      };
      windows([&](QWidget& window) {
        take(window, "as it opens");
        std::vector<std::pair<QWidget*, QRect>> places;
        for (auto* const frame : window.findChildren<QMdiSubWindow*>()) {
          places.emplace_back(frame, frame->geometry());
        }
        const QSize size = window.size();
        ShrinkToLeast(window);
        take(window, "at its least");
        for (const auto& [frame, place] : places) frame->setGeometry(place);
        window.resize(size);
        QApplication::processEvents();
      });
      EXPECT_GE(looked, least) << language.name;
      for (const std::string& fault : faults) ADD_FAILURE() << language.name << ": " << fault;
    }
  }
};

TEST_F(EveryWord, OfTheMainWindowHasItsRoom) {
  Check([this](const Look& look) { LookAtMainWindow({1024, 740}, look); }, 1000);
}

TEST_F(EveryWord, OfTheSmallestMainWindowHasItsRoom) {
  Check([this](const Look& look) { LookAtMainWindow({800, 574}, look); }, 1000);
}

TEST_F(EveryWord, OfTheDialogsHasItsRoom) {
  Check([this](const Look& look) { LookAtDialogs(look); }, 500);
}

// A screen of 800 x 600 is warned about and works; lengthened words need one of 1024 x 768.
TEST_F(EveryWord, IsOnTheSmallestScreen) {
  for (const TestLanguage& language : kTestLanguages) {
    language.make(program.texts);
    const bool long_words = language.make == &Make_Taal_Pseudo;
    const QSize screen = long_words ? QSize(1024, 740) : QSize(798, 574);
    LookAtDialogs([&](QWidget& window) {
      const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
      EXPECT_LE(least.width(), screen.width())
          << language.name << ": " << window.objectName().toStdString();
      EXPECT_LE(least.height(), screen.height())
          << language.name << ": " << window.objectName().toStdString();
    });
  }
}

}  // namespace
}  // namespace kelvora
