// KV_Core, the frame of the program: menu, toolbars, status bar and the area of the child windows.
// It shows no data itself; commands.h says what its commands are and geometry.h where windows go.
#pragma once

#include <array>
#include <vector>

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>

#include "core/frame/commands.h"
#include "core/views.h"
#include "platform/qt/tool_bar.h"

class QTimer;

namespace kelvora {

class ChildFrame;

class MainWindow : public QMainWindow, public CoreView {
  Q_OBJECT

 public:
  explicit MainWindow(Program& program);
  ~MainWindow() override;

  void Set_Taal() override;
  void Set_toolbar_teksten() override;
  void ShowMainWindow() override;
  void BringToFront() override;
  void UpdateStatusBar() override;
  void UpdateCommands() override;
  [[nodiscard]] MainWindowSize Size() const override;
  void OpenWindow(WindowId id) override;
  void ArrangeWindows() override;
  [[nodiscard]] bool CommandEnabled(Command command) const override;
  void GiveCommand(Command command) override;
  void OpenSettings() override;
  void ShowItem(std::string_view tag, std::string_view line) override;
  void OpenNewFood() override;
  void OpenExport() override;
  void OpenTakeOver(std::optional<DayPart> part, const std::string& path) override;
  void OpenBackup() override;
  void OpenRestore() override;
  void OpenFoodImport() override;
  void PopUpFoodMenu(const FoodMenu& enabled, ScreenPlace place) override;
  void ShowSplash() override;
  void ShowAbout() override;
  void OpenUpdate(UpdateMode mode) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  // The pictures of a command: its item in the menu, its button, its entry in a drop-down menu.
  struct ItemAction {
    QAction* action;
    const MenuRow* row;
  };
  struct ButtonAction {
    QAction* action;
    QToolButton* button;
    const ButtonRow* row;
  };
  struct DropDownAction {
    QAction* action;
    const DropDownRow* row;
  };
  struct MenuEntry {
    QMenu* menu;
    TextId caption;
    std::string_view name;
  };

  void BuildMenu();
  void SetItemTexts(const ItemAction& entry);
  void SetMenuTitles();
  void OpenFirstMenu();
  ToolBar* BuildToolbar(const char* name, std::span<const ButtonRow> rows);
  void AddDropDown(QToolButton* button, Command drop_down);
  void BuildFoodMenu();
  void SetFoodMenuTexts();
  void ShowRowItems();
  void BuildStatusBar();
  void LayStatusBar();
  void BuildDataButton();
  // main_focus_window.cpp: where the keyboard goes in the frame.
  void BuildFocusKeys();
  void GoToPart(bool next, Qt::FocusReason reason);
  bool EnterPart(int part, bool next, Qt::FocusReason reason);
  [[nodiscard]] int PartInFocus() const;
  [[nodiscard]] std::vector<ChildFrame*> FramesInOrder() const;
  void GoToWindow(bool next);
  void SetButtonTexts(const ButtonAction& entry);
  void FitToolbar();
  void OpenConsumption(DayPart part, const char* icon);
  void OpenChild(WindowId id, QWidget* content, const char* icon, QSize minimum = {0, 0});
  void AddFrame(ChildFrame* frame, const char* icon, Qt::WindowFlags flags = {});

  Program& program_;
  QMdiArea* area_;
  std::vector<MenuEntry> menus_;
  QMenu* mnu_opties_ = nullptr;
  // Entries of mnu_opties that are there only while it stands open for a row of a food list.
  std::array<QAction*, 3> day_part_actions_{};
  QAction* amount_action_ = nullptr;
  std::array<QAction*, kCompareBoxes.size()> compare_actions_{};
  std::vector<ItemAction> item_actions_;
  std::vector<ButtonAction> button_actions_;
  std::vector<DropDownAction> drop_down_actions_;
  QTimer* recovery_timer_ = nullptr;  // runs while a day is open
  ToolBar* menu_toolbar_;
  int captions_width_ = 0;  // what it needs to show all its captions
  ToolBar* Toolbar_quickscreens_;
  std::array<QLabel*, 5> panels_;  // the last one while there is a reminder
};

}  // namespace kelvora
