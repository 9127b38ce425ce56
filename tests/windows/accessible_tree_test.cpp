// What a screen reader sees and hears of the windows.
#include "windows/accessible_tree.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include "windows/all_windows.h"

namespace kelvora {
namespace {

constexpr int kTimes = 20;

// The first line in which two trees differ; empty if none does.
std::string Difference(const QStringList& one, const QStringList& other) {
  for (qsizetype i = 0; i < std::max(one.size(), other.size()); ++i) {
    const QString before = one.value(i, QStringLiteral("(nothing)"));
    const QString now = other.value(i, QStringLiteral("(nothing)"));
    if (before != now) return before.toStdString() + "  became  " + now.toStdString();
  }
  return {};
}

TEST(AccessibleTrees, OfEveryDialogStayTheSameHoweverOftenItIsOpened) {
  AllWindows every;
  every.OpenDay();
  for (const DialogKind& kind : EveryDialog()) {
    QStringList first;
    for (int time = 0; time < kTimes; ++time) {
      const auto dialog = OpenDialog(kind.name, every.program);
      const QStringList tree = AccessibleTree(*dialog);
      if (time == 0) first = tree;
      ASSERT_EQ(Difference(first, tree), "") << kind.name << ", time " << time + 1;
      EXPECT_FALSE(tree.contains(QStringLiteral("dead")));
    }
    EXPECT_GT(first.size(), 2) << kind.name;
  }
}

TEST(AccessibleTrees, OfEveryChildWindowStayTheSameHoweverOftenItIsOpened) {
  AllWindows every;
  every.OpenDay();
  for (const WindowId id : kEveryChild) {
    QStringList first, first_closed;
    for (int time = 0; time < kTimes; ++time) {
      QMdiSubWindow& frame = every.OpenChild(id);
      const QStringList tree = AccessibleTree(frame);
      const std::string name = frame.objectName().toStdString();
      every.program.windows.Find(id)->CloseWindow();
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      const QStringList closed = AccessibleTree(every.window);
      if (time == 0) first = tree, first_closed = closed;
      ASSERT_EQ(Difference(first, tree), "") << name << ", time " << time + 1;
      ASSERT_EQ(Difference(first_closed, closed), "") << name << ", time " << time + 1;
    }
    EXPECT_GT(first.size(), 5);
  }
}

std::string NameOf(QAccessibleInterface& node) {
  return node.text(QAccessible::Name).trimmed().toStdString();
}

std::string Where(QAccessibleInterface& node) {
  const QString name = node.object() == nullptr ? QString() : node.object()->objectName();
  return std::string(qAccessibleRoleString(node.role())) + " " + name.toStdString();
}

bool HasLabel(QAccessibleInterface& node) {
  for (const auto& [other, relation] : node.relations(QAccessible::Label)) {
    if (!other->text(QAccessible::Name).isEmpty()) return true;
  }
  return false;
}

bool NeedsName(QAccessibleInterface& node) {
  switch (node.role()) {
    case QAccessible::ToolBar:
    case QAccessible::StatusBar:
    case QAccessible::Table:
    case QAccessible::List:
    case QAccessible::Button:
    case QAccessible::ButtonMenu:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::Slider:
    case QAccessible::ProgressBar:
    case QAccessible::PageTabList:
    case QAccessible::Graphic:
      return true;
    default:
      // Cells hold what the user has, which may be nothing.
      return node.state().focusable && node.role() != QAccessible::Cell &&
             node.role() != QAccessible::Client;
  }
}

// A text or picture that is read with the title of its group instead of words of its own.
bool BorrowsTitle(QAccessibleInterface& node) {
  const auto* const group =
      node.parent() == nullptr ? nullptr : qobject_cast<QGroupBox*>(node.parent()->object());
  const bool holds_no_words =
      node.role() == QAccessible::StaticText || node.role() == QAccessible::Graphic;
  return group != nullptr && holds_no_words && NameOf(node) == group->title().toStdString();
}

// What is wrong with the names in a window.
std::vector<std::string> FaultsOf(QWidget& window) {
  std::vector<std::string> faults;
  VisitAccessible(window, [&faults](QAccessibleInterface* node, int) {
    if (node == nullptr) return faults.push_back("dead");
    if (NeedsName(*node) && NameOf(*node).empty() && !HasLabel(*node)) {
      faults.push_back("no name: " + Where(*node));
    }
    if (BorrowsTitle(*node)) faults.push_back("the title of its group: " + Where(*node));
    const auto* const box = qobject_cast<QLineEdit*>(node->object());
    if (box != nullptr && node->text(QAccessible::Value) != box->text()) {
      faults.push_back("another value: " + Where(*node));
    }
  });
  return faults;
}

TEST(AccessibleTrees, NameEveryControlOfEveryDialog) {
  AllWindows every;
  every.OpenDay();
  for (const DialogKind& kind : EveryDialog()) {
    const auto dialog = OpenDialog(kind.name, every.program);
    auto* const tabs = dialog->findChild<QTabWidget*>();
    for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
      if (tabs != nullptr) tabs->setCurrentIndex(page);
      EXPECT_EQ(FaultsOf(*dialog), std::vector<std::string>()) << kind.name << ", page " << page;
    }
  }
}

TEST(AccessibleTrees, NameEveryControlOfEveryChildWindowInAllItsViews) {
  AllWindows every;
  every.program.settings[Setting::chk_internet] = "1";
  every.OpenDay();
  EXPECT_EQ(FaultsOf(every.window), std::vector<std::string>());
  for (const WindowId id : kEveryChild) {
    QMdiSubWindow& frame = every.OpenChild(id);
    for (const char* button : {"", "Toolbar_1", "Toolbar_2", "Toolbar_3", "Toolbar_4"}) {
      auto* const view = frame.findChild<QAbstractButton*>(QLatin1String(button));
      if (view != nullptr) view->click();
      EXPECT_EQ(FaultsOf(frame), std::vector<std::string>())
          << frame.objectName().toStdString() << " " << button;
    }
  }
}

// The faults that these tests are there to find.
TEST(AccessibleTrees, AFaultIsFound) {
  QWidget window;
  window.setObjectName(QStringLiteral("window"));
  auto* const layout = new QVBoxLayout(&window);
  auto* const group = new QGroupBox(QStringLiteral("Group"));
  layout->addWidget(group);
  auto* const label = new QLabel(group);
  label->setObjectName(QStringLiteral("empty"));
  auto* const box = new QLineEdit;
  box->setObjectName(QStringLiteral("box"));
  layout->addWidget(box);
  window.show();
  EXPECT_EQ(FaultsOf(window), (std::vector<std::string>{"the title of its group: StaticText empty",
                                                        "no name: EditableText box"}));
}

QString NameIn(QWidget& window, const char* control) {
  return QAccessible::queryAccessibleInterface(FindIn<QWidget>(window, QLatin1String(control)))
      ->text(QAccessible::Name);
}

TEST(AccessibleTrees, ReadTheValuesOfTheProfilePane) {
  AllWindows every;
  every.OpenDay();
  every.program.profile[ProfileField::name] = "Anna";
  every.program.profile[ProfileField::height] = "1.80";
  every.program.profile[ProfileField::weight] = "80";
  every.program.profile[ProfileField::reference] = "A12";
  const auto dialog = OpenDialog("KV_browsefiles", every.program);
  EXPECT_EQ(NameIn(*dialog, "lbl_pr_0"), "Reference ID: A12");
  EXPECT_EQ(NameIn(*dialog, "lbl_pr_1"), "Last weight: 80.00 Kg");
  EXPECT_EQ(NameIn(*dialog, "lbl_pr_3"), "Height: 1.80 Meter");
}

// 90 steps of 100 kilojoules.
TEST(AccessibleTrees, ReadATargetAsItIsShown) {
  AllWindows every;
  every.OpenDay();
  const auto dialog = OpenDialog("KV_bestand", every.program);
  dialog->findChild<QTabWidget*>()->setCurrentIndex(2);
  EXPECT_EQ(NameIn(*dialog, "Slider_kj"), "Energy: 9000 Kj");
  FindIn<QSlider>(*dialog, "Slider_kj")->setValue(91);
  EXPECT_EQ(NameIn(*dialog, "Slider_kj"), "Energy: 9100 Kj");
}

TEST(AccessibleTrees, LeaveOutPicturesThatOnlyDecorate) {
  AllWindows every;
  every.OpenDay();
  const auto seen = [](QWidget& window, const char* control) {
    bool found = false;
    VisitAccessible(window, [&](QAccessibleInterface* node, int) {
      found = found || (node != nullptr && node->object() != nullptr &&
                        node->object()->objectName() == QLatin1String(control));
    });
    return found;
  };
  const auto wizard = OpenDialog("KV_wizzard", every.program);
  ASSERT_TRUE(FindIn<QLabel>(*wizard, "Pic_welcome")->isVisible());
  EXPECT_FALSE(seen(*wizard, "Pic_welcome"));
  EXPECT_FALSE(seen(*wizard, "Pic_1"));
  EXPECT_TRUE(seen(*wizard, "lbl_welcome"));
  QMdiSubWindow& days = every.OpenChild(WindowId::multi_day);
  EXPECT_FALSE(seen(days, "Bar_kleur_0"));
  EXPECT_TRUE(seen(days, "Teken_lijn_0"));
}

}  // namespace
}  // namespace kelvora
