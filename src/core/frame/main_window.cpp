#include "core/frame/main_window.h"

#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>

#include "core/common.h"
#include "core/frame/arrangement.h"
#include "core/frame/child_area_panel.h"
#include "core/frame/data_window.h"
#include "core/frame/ending.h"
#include "core/frame/focus_status_panel.h"
#include "core/small_geometry.h"
#include "keeping/backup_reminder.h"
#include "language/main_texts.h"
#include "language/own_texts.h"
#include "platform/qt/key_sequence.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/menu_letter.h"
#include "platform/qt/text.h"
#include "platform/qt/toolkit_words.h"
#include "storage/recovery_copy.h"

namespace kelvora {
namespace {

constexpr int kToolbarIconSize = 24;
constexpr int kQuickIconSize = 16;
constexpr int kPanelMargin = 4;  // above and below the letters of the status bar
constexpr int kPanelIndent = 6;

QString QtName(std::string_view name) {
  return QLatin1String(name.data(), static_cast<qsizetype>(name.size()));
}

Text TipOf(const TextTables& texts, const std::optional<TextId>& tip) {
  return tip ? texts[*tip] : Text();
}

}  // namespace

MainWindow::MainWindow(Program& program) : program_(program) {
  NameWidget(this, "KV_Core");
  setWindowTitle(ToQt(AppTitle));
  setMinimumSize(PixelsCovering(kMainMinimumWidth), PixelsCovering(kMainMinimumHeight));
  resize(1024, 740);
  area_ = new ChildArea(this);
  setCentralWidget(area_);
  BuildMenu();
  BuildFoodMenu();
  menu_toolbar_ = BuildToolbar("menu_toolbar", MenuToolbar());
  menu_toolbar_->setIconSize({kToolbarIconSize, kToolbarIconSize});
  UseSmallLetters(menu_toolbar_);  // all buttons fit a screen of 1024 pixels in both languages
  addToolBar(Qt::TopToolBarArea, menu_toolbar_);
  Toolbar_quickscreens_ = BuildToolbar("Toolbar_quickscreens", QuickToolbar());
  Toolbar_quickscreens_->setIconSize({kQuickIconSize, kQuickIconSize});
  Toolbar_quickscreens_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  addToolBar(Qt::BottomToolBarArea, Toolbar_quickscreens_);
  auto* const menu_key = new QShortcut(SequenceOf(BoundKey::menu), this);
  connect(menu_key, &QShortcut::activated, this, &MainWindow::OpenFirstMenu);
  BuildStatusBar();
  BuildFocusKeys();
  BuildDataButton();
  recovery_timer_ = new QTimer(this);
  recovery_timer_->setInterval(kRecoveryLookMilliseconds);
  connect(recovery_timer_, &QTimer::timeout, this, [this] { LookAfterRecoveryCopy(program_); });
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
        menu->setToolTipsVisible(true);
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
        action->setCheckable(IsToggle(row.command));
        if (!row.shortcut.empty()) action->setShortcut(QKeySequence(QtName(row.shortcut)));
        connect(action, &QAction::triggered, this,
                [this, command = row.command] { GiveCommand(command); });
        item_actions_.push_back({action, &row});
        break;
      }
    }
  }
}

ToolBar* MainWindow::BuildToolbar(const char* name, std::span<const ButtonRow> rows) {
  auto* const bar = new ToolBar(this, name);
  bar->setMovable(false);
  int last_index = rows.front().index;
  for (const ButtonRow& row : rows) {
    if (row.index > last_index + 1) bar->addSeparator();
    last_index = row.index;
    QAction* const action = bar->addAction(IconNamed(row.icon), QString());
    const QString button_name = QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(row.index);
    action->setObjectName(button_name + QStringLiteral("_action"));
    action->setCheckable(row.command == Command::consumptions_drop_down || IsToggle(row.command));
    connect(action, &QAction::triggered, this,
            [this, command = row.command] { GiveCommand(command); });
    auto* const button = qobject_cast<QToolButton*>(bar->widgetForAction(action));
    button->setObjectName(button_name);
    if (!RowsOfDropDown(row.command).empty()) AddDropDown(button, row.command);
    button_actions_.push_back({action, button, &row});
  }
  return bar;
}

void MainWindow::AddDropDown(QToolButton* button, Command drop_down) {
  auto* const menu = new QMenu(this);
  menu->setObjectName(button->objectName() + QStringLiteral("_menu"));
  menu->setToolTipsVisible(true);
  for (const DropDownRow& row : RowsOfDropDown(drop_down)) {
    for (const ItemAction& item : item_actions_) {
      if (item.row->command != row.command) continue;
      QAction* const action = menu->addAction(item.action->icon(), QString());
      action->setObjectName(item.action->objectName() + QStringLiteral("_drop_down"));
      action->setCheckable(item.action->isCheckable());
      connect(action, &QAction::triggered, item.action, &QAction::trigger);
      drop_down_actions_.push_back({action, &row});
    }
  }
  button->setMenu(menu);
  // The print button itself says that its menu has the choices; the other is all menu.
  button->setPopupMode(drop_down == Command::print_drop_down ? QToolButton::MenuButtonPopup
                                                             : QToolButton::InstantPopup);
}

void MainWindow::BuildStatusBar() {
  setStatusBar(new FocusStatusBar(this));
  statusBar()->setObjectName(QStringLiteral("StatusBar"));
  statusBar()->setSizeGripEnabled(false);
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    panels_[i] = new LongLabel(statusBar(), QStringLiteral("StatusBar_%1").arg(i + 1));
    panels_[i]->setIndent(kPanelIndent);
  }
  statusBar()->setFixedHeight(statusBar()->fontMetrics().height() + 2 * kPanelMargin);
}

void MainWindow::LayStatusBar() {
  const auto widths = StatusPanelWidths(TwipsOfPixels(width()));
  QLabel* const reminder = panels_.back();
  const int reminder_width =
      reminder->text().isEmpty() ? 0 : reminder->sizeHint().width() + kPanelIndent;
  int left = 0;
  for (std::size_t i = 0; i < widths.size(); ++i) {
    // The reminder takes its room from the third panel, which has no words.
    const int panel_width = PixelsOfTwips(widths[i]) - (i == 2 ? reminder_width : 0);
    panels_[i]->setGeometry(left, 0, panel_width, statusBar()->height());
    left += panel_width;
  }
  reminder->setGeometry(left, 0, reminder_width, statusBar()->height());
}

void MainWindow::OpenFirstMenu() {
  menuBar()->setFocus(Qt::MenuBarFocusReason);
  menuBar()->setActiveAction(menuBar()->actions().first());
}

// The programmers' way into the store: a button that users don't see, pressed by its shortcut.
void MainWindow::BuildDataButton() {
  auto* const cmd_data = new QPushButton(this);
  NameWidget(cmd_data, "cmd_data");
  cmd_data->hide();
  connect(cmd_data, &QPushButton::clicked, this, [this] { ShowDataWindow(program_, this); });
  auto* const shortcut = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Alt+Shift+D")), this);
  connect(shortcut, &QShortcut::activated, cmd_data, &QPushButton::click);
}

void MainWindow::GiveCommand(Command command) {
  if (command == Command::mnu_bestand_sluiten) {
    close();
    return;
  }
  RunCommand(program_, command);
  UpdateCommands();
}

void MainWindow::Set_Taal() {
  const TextTables& texts = program_.texts;
  UseToolkitWords(LanguageCodeOf(texts));
  for (QMdiSubWindow* const frame : area_->subWindowList()) WordFrameMenu(*frame);
  SetMenuTitles();
  for (const ItemAction& entry : item_actions_) SetItemTexts(entry);
  for (const DropDownAction& entry : drop_down_actions_) {
    SetActionTexts(entry.action, texts[entry.row->caption], {});
  }
  SetFoodMenuTexts();
  const QString more = ToQt(OwnTextOf(texts, OwnText::more_buttons));
  Toolbar_quickscreens_->SetNames(ToQt(texts[main_text::kQuickToolbarName]), more);
  menu_toolbar_->SetNames(ToQt(texts[main_text::kToolbarName]), more);
  area_->setAccessibleName(ToQt(texts[main_text::kChildAreaName]));
  statusBar()->setAccessibleName(ToQt(texts[main_text::kStatusBarName]));
  panels_[0]->setToolTip(ToQt(texts[main_text::kTipProgramPanel]));
  panels_[1]->setToolTip(ToQt(texts[main_text::kTipUserPanel]));
  panels_.back()->setToolTip(ToQt(OwnTextOf(texts, OwnText::days_without_backup_tip)));
  Set_toolbar_teksten();
  UpdateCommands();
}

void MainWindow::SetItemTexts(const ItemAction& entry) {
  SetActionTexts(entry.action, CaptionOf(program_, *entry.row),
                 TipOf(program_.texts, entry.row->tip));
}

void MainWindow::SetMenuTitles() {
  QString taken;
  for (const MenuEntry& entry : menus_) {
    const QString title = CaptionFrom(program_.texts[entry.caption]);
    const bool in_menu_bar = entry.menu->parentWidget() == menuBar();
    entry.menu->setTitle(in_menu_bar ? WithMnemonic(title, taken) : title);
  }
}

void MainWindow::Set_toolbar_teksten() {
  const bool with_text = program_.settings[Setting::chk_help] == "1";
  menu_toolbar_->setToolButtonStyle(with_text ? Qt::ToolButtonTextUnderIcon
                                              : Qt::ToolButtonIconOnly);
  for (const ButtonAction& entry : button_actions_) SetButtonTexts(entry);
  captions_width_ = menu_toolbar_->sizeHint().width();
  FitToolbar();
}

// In a narrow window the buttons are pictures alone, so that none of them is out of reach, and in a
// low one for the room of the child windows.
void MainWindow::FitToolbar() {
  const bool with_text = program_.settings[Setting::chk_help] == "1";
  const bool has_room = captions_width_ <= width() && !IsSmall(Size());
  menu_toolbar_->setToolButtonStyle(with_text && has_room ? Qt::ToolButtonTextUnderIcon
                                                          : Qt::ToolButtonIconOnly);
}

// The caption of a button goes when large texts are off; its tool tip, with the keys of its
// command, and its name for assistive tools stay.
void MainWindow::SetButtonTexts(const ButtonAction& entry) {
  const Text& caption = program_.texts[entry.row->caption];
  SetActionTexts(entry.action, caption, TipOf(program_.texts, entry.row->tip));
  AddKeysToTip(entry.action, KeysOf(entry.row->command));
  const bool large = program_.settings[Setting::chk_help] == "1";
  if (!large && entry.button->parentWidget() == menu_toolbar_) entry.action->setText({});
  entry.button->setAccessibleName(ToQt(caption));
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
  const QString reminder = ToQt(BackupReminderText(program_));
  // What is read when the keyboard comes to the bar.
  QStringList heard = {panels_[0]->text(), panels_[1]->text()};
  if (!reminder.isEmpty()) heard << reminder;
  statusBar()->setAccessibleDescription(heard.join(QStringLiteral(", ")));
  if (panels_.back()->text() == reminder) return;
  panels_.back()->setText(reminder);
  LayStatusBar();
}

void MainWindow::UpdateCommands() {
  for (const MenuEntry& entry : menus_) {
    entry.menu->setEnabled(MenuEnabled(program_, entry.name));
  }
  const auto bring_in_step = [this](QAction* action, Command command, bool enabled) {
    action->setEnabled(enabled);
    if (action->isCheckable()) action->setChecked(CommandIsDown(program_, command));
  };
  for (const auto& [action, row] : item_actions_) {
    bring_in_step(action, row->command, CommandEnabled(row->command));
    // Of all captions only this one follows the settings.
    if (row->command == Command::mnu_website_Etenlijn) SetItemTexts({action, row});
  }
  for (const auto& [action, row] : drop_down_actions_) {
    bring_in_step(action, row->command, CommandEnabled(row->command));
  }
  for (const auto& [action, button, row] : button_actions_) {
    bring_in_step(action, row->command, ButtonEnabled(program_, row->command));
  }
  UpdateStatusBar();
  if (recovery_timer_->isActive() == program_.store.DayIsOpen()) return;
  program_.store.DayIsOpen() ? recovery_timer_->start() : recovery_timer_->stop();
}

MainWindowSize MainWindow::Size() const {
  return {TwipsOfPixels(width()), TwipsOfPixels(height()),
          TwipsOfPixels(Toolbar_quickscreens_->height()), TwipsOfPixels(area_->width()),
          TwipsOfPixels(area_->height())};
}

void MainWindow::ArrangeWindows() {
  ApplyChosenArrangement(program_);
}

bool MainWindow::CommandEnabled(Command command) const {
  return kelvora::CommandEnabled(program_, command);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(program_.ending || MayEndProgram(program_));
  if (event->isAccepted()) EndAsAsked(program_);
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  LayStatusBar();
  FitToolbar();
}

}  // namespace kelvora
