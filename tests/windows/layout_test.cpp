// What holds for every window in both languages: all of it lies in a layout, nothing lies on
// something else or beyond its frame, and whoever can't see it hears what each control is.
#include <functional>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include "core/frame/arrangement.h"
#include "core/frame/main_window.h"
#include "days/browser_dialog.h"
#include "days/day_settings_dialog.h"
#include "days/popup_window.h"
#include "days/settings_dialog.h"
#include "days/take_over_dialog.h"
#include "days/wizard_dialog.h"
#include "food/food_details_dialog.h"
#include "food/import/food_import_dialog.h"
#include "food/new_food_dialog.h"
#include "food/other_amount_dialog.h"
#include "internet/update_window.h"
#include "keeping/backup_dialog.h"
#include "language/built_in_texts.h"
#include "output/export_dialog.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"
#include "windows/carrying_windows.h"
#include "windows/days_read.h"
#include "windows/written_days.h"

namespace kelvora {
namespace {

std::string NameOf(const QWidget& widget) {
  const QString name = widget.objectName();
  return (name.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : name)
      .toStdString();
}

// Qt lays out the insides of these by itself.
bool ArrangesItsOwn(const QWidget& widget) {
  const auto is = [&widget](auto* type) {
    return qobject_cast<decltype(type)>(&widget) != nullptr;
  };
  return is(static_cast<const QAbstractScrollArea*>(nullptr)) ||
         is(static_cast<const QTabWidget*>(nullptr)) || is(static_cast<const QTabBar*>(nullptr)) ||
         is(static_cast<const QComboBox*>(nullptr)) || is(static_cast<const QLineEdit*>(nullptr)) ||
         is(static_cast<const QMdiSubWindow*>(nullptr)) ||
         is(static_cast<const QMainWindow*>(nullptr)) ||
         is(static_cast<const QToolBar*>(nullptr)) || is(static_cast<const QStatusBar*>(nullptr)) ||
         is(static_cast<const QAbstractItemView*>(nullptr));
}

bool IsIn(const QLayout& layout, const QWidget& widget) {
  for (int i = 0; i < layout.count(); ++i) {
    const QLayoutItem* const item = layout.itemAt(i);
    const QWidget* const held = const_cast<QLayoutItem*>(item)->widget();
    if (held == &widget) return true;
    const QLayout* const inner = const_cast<QLayoutItem*>(item)->layout();
    if (inner != nullptr && IsIn(*inner, widget)) return true;
  }
  return false;
}

std::vector<const QWidget*> ShownChildren(const QWidget& parent) {
  std::vector<const QWidget*> shown;
  for (const QWidget* child :
       parent.findChildren<const QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (child->isVisible() && !child->isWindow()) shown.push_back(child);
  }
  return shown;
}

bool HasBuddyLabel(const QWidget& root, const QWidget& widget) {
  for (const QLabel* label : root.findChildren<const QLabel*>()) {
    if (label->buddy() == &widget && !label->text().isEmpty()) return true;
  }
  return false;
}

class Looker {
 public:
  explicit Looker(const QWidget& root) : root_(root) {
    QApplication::processEvents();
    LookAt(root);
  }
  const std::vector<std::string>& Faults() const { return faults_; }
  int Looked() const { return looked_; }

 private:
  void LookAt(const QWidget& widget) {
    ++looked_;
    LookAtWords(widget);
    const auto children = ShownChildren(widget);
    if (!ArrangesItsOwn(widget) && widget.layout() != nullptr) LookAtPlaces(widget, children);
    for (const QWidget* child : children) LookAt(*child);
  }

  void LookAtPlaces(const QWidget& parent, const std::vector<const QWidget*>& children) {
    for (std::size_t i = 0; i < children.size(); ++i) {
      const QWidget& child = *children[i];
      if (!IsIn(*parent.layout(), child)) Fault(child, "lies in no layout");
      if (!parent.rect().contains(child.geometry())) Fault(child, "lies beyond " + NameOf(parent));
      for (std::size_t other = 0; other < i; ++other) {
        if (child.geometry().intersects(children[other]->geometry())) {
          Fault(child, "lies on " + NameOf(*children[other]));
        }
      }
    }
  }

  void LookAtWords(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
      if (label->text().contains(QLatin1Char('&')) && label->buddy() == nullptr &&
          label->textFormat() != Qt::PlainText) {
        Fault(widget, "has a letter that leads nowhere");
      }
    }
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
      if (label->text().isEmpty() && label->pixmap(Qt::ReturnByValue).isNull() &&
          !TellsOfData(*label)) {
        Fault(widget, "is empty");
      }
    }
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) {
      static const QRegularExpression number(QStringLiteral("^[0-9]+([.,][0-9]+)?$"));
      if (number.match(box->text()).hasMatch() && !(box->alignment() & Qt::AlignRight)) {
        Fault(widget, "has a number on the left");
      }
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
      for (int i = 0; i < tabs->count(); ++i) {
        if (tabs->tabText(i).isEmpty()) Fault(widget, "has a tab without a word");
      }
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
      if (group->title().isEmpty()) Fault(widget, "has no title");
    }
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (button != nullptr && !widget.objectName().startsWith(QLatin1String("qt_")) &&
        button->text().isEmpty() && button->icon().isNull()) {
      Fault(widget, "has neither words nor a picture");
    }
    if ((widget.focusPolicy() & Qt::TabFocus) != Qt::TabFocus || widget.isWindow()) return;
    if (qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr) return;  // a part of it
    const bool speaks = button != nullptr && !button->text().isEmpty();
    if (!speaks && !HasNameOfItsOwn(widget) && widget.accessibleName().isEmpty() &&
        !HasBuddyLabel(root_, widget)) {
      Fault(widget, "has no name that is read aloud");
    }
  }
  // Hints, values and messages, of which there are none in these windows yet; the list of the
  // internet has no hint.
  static bool TellsOfData(const QLabel& label) {
    const QString name = label.objectName();
    // Both ends of the ladder have a colour only.
    if (name == QLatin1String("lbl_bmi_top") || name == QLatin1String("lbl_bmi_bottum"))
      return true;
    return (name.startsWith(QLatin1String("lbl_")) && name.endsWith(QLatin1String("info"))) ||
           name.startsWith(QLatin1String("StatusBar_")) ||
           name.startsWith(QLatin1String("lbl_pr")) || name == QLatin1String("loader") ||
           name == QLatin1String("empty_hint");
  }
  // Of tabs their words are read, of a child window its title.
  static bool HasNameOfItsOwn(const QWidget& widget) {
    return qobject_cast<const QTabBar*>(&widget) != nullptr ||
           qobject_cast<const QTabWidget*>(&widget) != nullptr ||
           (qobject_cast<const QMdiSubWindow*>(&widget) != nullptr &&
            !widget.windowTitle().isEmpty());
  }

  void Fault(const QWidget& widget, const std::string& what) {
    faults_.push_back(NameOf(widget) + " " + what);
  }

  const QWidget& root_;
  std::vector<std::string> faults_;
  int looked_ = 0;
};

class WindowLayout : public testing::Test {
 protected:
  WindowLayout() {
    program.store.lst_categorien.Add("Bread.dat");
    program.store.Default_list.Add(
        Packed("Bread|1 slice|35|343|82|1|0.2|3|15|150|a remark||Bread.dat|"));
    program.profile[ProfileField::type_prioriteit] = "1";
    for (std::size_t i = 0; i < 7; ++i) {
      program.profile.strings[static_cast<std::size_t>(ProfileField::txt_kj) + i] = "100";
    }
  }

  // Every page of a window, one after the other.
  static void Look(QWidget& window, int least) {
    window.show();
    QApplication::processEvents();
    const auto tabs = window.findChildren<QTabWidget*>();
    const int pages = tabs.isEmpty() ? 1 : tabs.front()->count();
    for (int page = 0; page < pages; ++page) {
      if (!tabs.isEmpty()) tabs.front()->setCurrentIndex(page);
      const Looker looker(window);
      EXPECT_GE(looker.Looked(), least) << NameOf(window);
      for (const std::string& fault : looker.Faults()) {
        ADD_FAILURE() << NameOf(window) << ", page " << page << ": " << fault;
      }
    }
  }

  void InBothLanguages(const std::function<void()>& look) {
    for (void (*make)(TextTables&) : {&Make_Taal_English, &Make_Taal_Dutch}) {
      SCOPED_TRACE(make == &Make_Taal_Dutch ? "Dutch" : "English");
      make(program.texts);
      look();
    }
  }

  TestProgram test;
  Program& program = test.program;
};

// Seven captions with their totals; two captions with their boxes, and a button.
constexpr int kControlsOfBothPanels = 14 + 5;

TEST_F(WindowLayout, OfTheMainWindowWithADay) {
  InBothLanguages([this] {
    MainWindow window(program);
    window.resize(1024, 748);
    window.Set_Taal();
    window.show();
    test.OpenDay("Anna");
    WriteDays(program, 2);
    ApplyChosenArrangement(program);
    window.UpdateCommands();
    Look(window, 100);
    for (auto* const combine : window.findChildren<QAction*>("Toolbar_2_action")) {
      combine->trigger();  // in the food lists the button of the own list has this name
    }
    Look(window, 100 + 3 * kControlsOfBothPanels);
    for (const char* view : {"Toolbar_3_action", "Toolbar_4_action"}) {
      window.findChild<QAction*>(QLatin1String(view))->trigger();
      Look(window, 100 + 3 * kControlsOfBothPanels);
    }
    window.OpenWindow(WindowId::diary);
    window.OpenWindow(WindowId::day_summary);
    window.OpenWindow(WindowId::multi_day);
    window.UpdateCommands();
    EXPECT_TRUE(DaysAreRead(window));
    Look(window, 150);
    // The other panels of the day summary.
    for (const char* button : {"Toolbar_2", "Toolbar_3", "Toolbar_4"}) {
      window.findChild<QWidget*>(QStringLiteral("KV_tb_daguittreksel"))
          ->findChild<QAbstractButton*>(QLatin1String(button))
          ->click();
      Look(window, 100);
    }
    for (const char* button : {"Toolbar_2", "Toolbar_3", "Toolbar_4"}) {
      window.findChild<QWidget*>(QStringLiteral("KV_tb_meerdaags"))
          ->findChild<QAbstractButton*>(QLatin1String(button))
          ->click();
      Look(window, 100);
    }
    window.OpenWindow(WindowId::comparison);
    for (const CompareBox box : kCompareBoxes) {
      program.windows.comparison->TakeFood(
          box,
          "add-" + LineOf({.product = "Oats", .gram = "85", .kj = "937", .kcal = "224"}) + "\xBE");
    }
    auto* const tabs = window.findChild<QWidget*>(QStringLiteral("KV_tb_weegschaal"))
                           ->findChild<QTabWidget*>(QStringLiteral("TabStrip"));
    for (int tab = 0; tab < tabs->count(); ++tab) {
      tabs->setCurrentIndex(tab);
      Look(window, 100);
    }
  });
}

TEST_F(WindowLayout, OfTheDayDialog) {
  InBothLanguages([this] {
    for (const auto mode : {DayDialogMode::new_day, DayDialogMode::day_settings}) {
      for (const char* system : {"0", "1", "2"}) {
        program.day.DayDialogMode = mode;
        program.settings[Setting::opt_system] = system;
        DaySettingsDialog dialog(program, nullptr);
        Look(dialog, 25);
      }
    }
  });
}

TEST_F(WindowLayout, OfTheListOfDays) {
  MakeUserFolders(program.paths, "Anna");
  InBothLanguages([this] {
    BrowserDialog dialog(program, nullptr);
    dialog.Open();
    Look(dialog, 20);
  });
}

TEST_F(WindowLayout, OfTheDaysToExport) {
  MakeUserFolders(program.paths, "Anna");
  InBothLanguages([this] {
    ExportDaysDialog dialog(program, nullptr);
    dialog.Open();
    Look(dialog, 20);
  });
}

TEST_F(WindowLayout, OfTakingOver) {
  MakeUserFolders(program.paths, "Anna");
  InBothLanguages([this] {
    TakeOverDialog dialog(program, std::nullopt, {}, nullptr);
    Look(dialog, 7);
  });
}

TEST_F(WindowLayout, OfBackups) {
  MakeUserFolders(program.paths, "Anna");
  WriteRecord(ProfileFile(program.paths, "Anna"), program.profile);
  const std::string path = BackupOfAll(program);
  InBothLanguages([this, &path] {
    BackupDialog backup(program, nullptr);
    Look(backup, 8);
    Look(*ReadBackupWindow(program, path), 14);
  });
}

TEST_F(WindowLayout, OfTheSettings) {
  InBothLanguages([this] {
    SettingsDialog dialog(program, nullptr);
    Look(dialog, 15);
  });
}

TEST_F(WindowLayout, OfTheStart) {
  InBothLanguages([this] {
    WizardDialog wizard(program, nullptr);
    Look(wizard, 10);
    PopupWindow about(program, kAboutMode, nullptr);
    Look(about, 8);
    PopupWindow splash(program, kSplashMode, nullptr);
    Look(splash, 8);
  });
}

TEST_F(WindowLayout, OfTheUpdateCheck) {
  std::filesystem::create_directories(program.paths.ProgramPath);
  WriteFileAnew(program.paths.ProgramPath + "servers.conf", "update = http://up.example\n");
  InBothLanguages([this] {
    UpdateWindow update(program, UpdateMode::shown, nullptr);
    Look(update, 7);
    test.transfers.Complete({"3.00\xBD"});
    Look(update, 7);
  });
}

TEST_F(WindowLayout, OfTheFoods) {
  InBothLanguages([this] {
    FoodDetailsDialog details(program, "zoeken", program.store.Default_list[0], nullptr);
    Look(details, 40);
    NewFoodDialog new_food(program, nullptr);
    Look(new_food, 40);
    OtherAmountDialog amount(program, "Bread", "1", {}, nullptr);
    Look(amount, 7);
    FoodImportDialog food_import(program, nullptr);
    Look(food_import, 15);
  });
}

// Each fault is found in a window that has it.
TEST(WindowLayoutFaults, AreFound) {
  QWidget window;
  auto* const layout = new QVBoxLayout(&window);
  auto* const laid = new QLineEdit(&window);
  laid->setObjectName(QStringLiteral("laid"));
  laid->setText(QStringLiteral("1.5"));
  layout->addWidget(laid);
  auto* const group = new QGroupBox(&window);
  group->setObjectName(QStringLiteral("group"));
  layout->addWidget(group);
  auto* const loose = new QLineEdit(&window);
  loose->setObjectName(QStringLiteral("loose"));
  loose->setAccessibleName(QStringLiteral("Name"));
  auto* const label = new QLabel(&window);
  label->setObjectName(QStringLiteral("label"));
  layout->addWidget(label);
  window.resize(300, 200);
  window.show();
  QApplication::processEvents();
  loose->setGeometry(laid->geometry().translated(0, -10));
  const Looker looker(window);
  EXPECT_EQ(looker.Faults(),
            (std::vector<std::string>{
                "loose lies in no layout", "loose lies on laid", "laid has a number on the left",
                "laid has no name that is read aloud", "group has no title", "label is empty"}));
}

}  // namespace
}  // namespace kelvora
