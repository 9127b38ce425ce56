#include "core/main_window.h"

#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolButton>

#include "core/child_area_panel.h"
#include "core/common.h"
#include "days/day_dialogs.h"
#include "days/popup.h"
#include "food/consumption_window.h"
#include "food/food_lists_window.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kToolbarIconSize = 24;
constexpr int kQuickIconSize = 16;
constexpr std::array kPanelWidths = {PixelsOfTwips(3500), PixelsOfTwips(4000), 0,
                                     PixelsOfTwips(1200)};

QString QtName(std::string_view name) {
  return QLatin1String(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace

MainWindow::MainWindow(Program& program) : program_(program) {
  NameWidget(this, "KV_Core");
  setWindowTitle(ToQt(AppTitle));
  setMinimumSize(PixelsOfTwips(kMainMinimumWidth), PixelsOfTwips(kMainMinimumHeight));
  resize(1024, 740);
  area_ = new ChildArea(this);
  setCentralWidget(area_);
  BuildMenu();
  menu_toolbar_ = BuildToolbar("menu_toolbar", MenuToolbar());
  menu_toolbar_->setIconSize({kToolbarIconSize, kToolbarIconSize});
  UseSmallLetters(menu_toolbar_);  // all buttons fit a screen of 1024 pixels in both languages
  addToolBar(Qt::TopToolBarArea, menu_toolbar_);
  Toolbar_quickscreens_ = BuildToolbar("Toolbar_quickscreens", QuickToolbar());
  Toolbar_quickscreens_->setIconSize({kQuickIconSize, kQuickIconSize});
  Toolbar_quickscreens_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  addToolBar(Qt::BottomToolBarArea, Toolbar_quickscreens_);
  BuildStatusBar();
  UpdateCommands();  // nothing looks usable while the start is still under way
  program_.windows.core = this;
}

MainWindow::~MainWindow() {
  // The child windows go first and still speak of the program.
  delete area_;
  program_.windows.core = nullptr;
}

void MainWindow::BuildMenu() {
  std::vector<QMenu*> open;
  for (const MenuRow& row : MainMenu()) {
    switch (row.kind) {
      case MenuKind::menu:
      case MenuKind::sub_menu: {
        QMenu* const menu =
            open.empty() ? menuBar()->addMenu(QString()) : open.back()->addMenu(QString());
        menu->setObjectName(QtName(row.name));
        if (!row.icon.empty()) menu->setIcon(IconNamed(row.icon));
        menus_.push_back({menu, row.caption, row.name});
        open.push_back(menu);
        break;
      }
      case MenuKind::end_of_menu:
        open.pop_back();
        break;
      case MenuKind::separator:
        open.back()->addSeparator()->setObjectName(QtName(row.name));
        break;
      case MenuKind::item: {
        QAction* const action = open.back()->addAction(IconNamed(row.icon), QString());
        action->setObjectName(QtName(row.name));
        if (!row.shortcut.empty()) action->setShortcut(QKeySequence(QtName(row.shortcut)));
        connect(action, &QAction::triggered, this,
                [this, command = row.command] { Give(command); });
        menu_actions_.push_back({action, row.command, row.caption, std::nullopt});
        break;
      }
    }
  }
}

QToolBar* MainWindow::BuildToolbar(const char* name, std::span<const ButtonRow> rows) {
  auto* const bar = new QToolBar(this);
  NameWidget(bar, name);
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  int last_index = rows.front().index;
  for (const ButtonRow& row : rows) {
    if (row.index > last_index + 1) bar->addSeparator();
    last_index = row.index;
    QAction* const action = bar->addAction(IconNamed(row.icon), QString());
    const QString button_name = QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(row.index);
    action->setObjectName(button_name + QStringLiteral("_action"));
    action->setCheckable(!CommandsOfDropDown(row.command).empty() || IsToggle(row.command));
    bar->widgetForAction(action)->setObjectName(button_name);
    if (CommandsOfDropDown(row.command).empty()) {
      connect(action, &QAction::triggered, this, [this, command = row.command] { Give(command); });
    } else {
      AddDropDown(bar, action, row.command);
    }
    button_actions_.push_back({action, row.command, row.caption, row.tip});
  }
  return bar;
}

void MainWindow::AddDropDown(QToolBar* bar, QAction* action, Command drop_down) {
  auto* const menu = new QMenu(this);
  for (const Command command : CommandsOfDropDown(drop_down)) {
    for (const CommandAction& entry : menu_actions_) {
      if (entry.command == command) menu->addAction(entry.action);
    }
  }
  auto* const button = qobject_cast<QToolButton*>(bar->widgetForAction(action));
  button->setMenu(menu);
  button->setPopupMode(QToolButton::InstantPopup);
}

void MainWindow::BuildStatusBar() {
  statusBar()->setObjectName(QStringLiteral("StatusBar"));
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    panels_[i] = NewLabel(this, QStringLiteral("StatusBar_%1").arg(i + 1));
    panels_[i]->setIndent(6);
    if (kPanelWidths[i] > 0) panels_[i]->setFixedWidth(kPanelWidths[i]);
    statusBar()->addWidget(panels_[i], kPanelWidths[i] > 0 ? 0 : 1);
  }
}

void MainWindow::Give(Command command) {
  if (command == Command::mnu_bestand_sluiten) {
    close();
    return;
  }
  RunCommand(program_, command);
  UpdateCommands();
}

void MainWindow::Set_Taal() {
  const TextTables& texts = program_.texts;
  for (const MenuEntry& entry : menus_) entry.menu->setTitle(ToQt(texts[entry.caption]));
  for (const CommandAction& entry : menu_actions_) {
    SetActionTexts(entry.action, texts[entry.caption], {});
  }
  for (const CommandAction& entry : button_actions_) {
    SetActionTexts(entry.action, texts[entry.caption],
                   entry.tip ? std::string_view(texts[*entry.tip]) : std::string_view());
  }
  Set_toolbar_teksten();
  UpdateStatusBar();
}

void MainWindow::Set_toolbar_teksten() {
  const bool with_text = program_.settings[Setting::chk_help] == "1";
  menu_toolbar_->setToolButtonStyle(with_text ? Qt::ToolButtonTextUnderIcon
                                              : Qt::ToolButtonIconOnly);
}

void MainWindow::ShowMainWindow() {
  showMaximized();
}

void MainWindow::BringToFront() {
  raise();
  activateWindow();
}

void MainWindow::UpdateStatusBar() {
  panels_[0]->setText(ToQt(ProgramPanelText()));
  panels_[1]->setText(ToQt(UserPanelText(program_)));
}

void MainWindow::UpdateCommands() {
  for (const MenuEntry& entry : menus_) {
    entry.menu->setEnabled(MenuEnabled(program_, entry.name));
  }
  for (const auto* actions : {&menu_actions_, &button_actions_}) {
    for (const CommandAction& entry : *actions) {
      entry.action->setEnabled(CommandEnabled(program_, entry.command));
      if (entry.action->isCheckable()) {
        entry.action->setChecked(CommandIsDown(program_, entry.command));
      }
    }
  }
  UpdateStatusBar();
}

MainWindowSize MainWindow::Size() const {
  return {TwipsOfPixels(width()), TwipsOfPixels(height()),
          TwipsOfPixels(Toolbar_quickscreens_->height())};
}

void MainWindow::OpenWindow(WindowId id) {
  if (program_.windows.Find(id) != nullptr) return;
  switch (id) {
    case WindowId::wizard:
      return ShowWizardDialog(program_, this);
    case WindowId::day_settings:
      return ShowDaySettingsDialog(program_, this);
    case WindowId::browser:
      return ShowBrowserDialog(program_, this);
    case WindowId::lists:
      return OpenChild(id, new FoodListsWindow(program_, area_), "foods");
    case WindowId::morning:
      return OpenConsumption(DayPart::morning, "morning");
    case WindowId::afternoon:
      return OpenConsumption(DayPart::afternoon, "afternoon");
    case WindowId::evening:
      return OpenConsumption(DayPart::evening, "evening");
    case WindowId::day_summary:
    case WindowId::food_details:
    case WindowId::multi_day:
    case WindowId::diary:
    case WindowId::comparison:
      return;
  }
}

void MainWindow::OpenSettings() {
  if (program_.windows.properties == nullptr) ShowSettingsDialog(program_, this);
}

void MainWindow::ShowSplash() {
  ShowPopup(program_, kSplashMode, this);
}

void MainWindow::ShowAbout() {
  ShowPopup(program_, kAboutMode, this);
}

void MainWindow::OpenConsumption(DayPart part, const char* icon) {
  OpenChild(WindowOf(part), new ConsumptionWindow(program_, part, area_), icon,
            {PixelsOfTwips(kConsumptionMinimumWidth), PixelsOfTwips(kConsumptionMinimumHeight)});
}

void MainWindow::OpenChild(WindowId id, QWidget* content, const char* icon, QSize minimum) {
  auto* const frame = new ChildFrame(content, *program_.windows.RecordOf(id));
  frame->setWindowIcon(IconNamed(icon));
  area_->addSubWindow(frame);
  frame->setMinimumSize(minimum);
  frame->MoveToRecord();
  frame->show();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(MayEndProgram(program_));
}

}  // namespace kelvora
