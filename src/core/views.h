// How the logic reaches open windows. A window implements its view and sets the pointer to itself
// in OpenWindows while it is open: the pointer is the open flag. A view draws what it is given; it
// decides nothing.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "core/command.h"
#include "core/geometry.h"
#include "core/store.h"

namespace kelvora {

// Every window besides the main one, in the order in which an arrangement closes them.
enum class WindowId {
  wizard,
  day_settings,
  browser,
  day_summary,
  food_details,
  lists,
  multi_day,
  diary,
  morning,
  afternoon,
  evening,
  comparison,
};
inline constexpr std::size_t kWindowCount = 12;

[[nodiscard]] constexpr WindowId WindowOf(DayPart part) {
  return static_cast<WindowId>(static_cast<int>(WindowId::morning) + static_cast<int>(part));
}

struct WindowView {
  virtual ~WindowView() = default;
  virtual void CloseWindow() = 0;
  // Assigns every caption from the text tables.
  virtual void Set_Taal() = 0;
  // Shows anew all that the settings or the profile have a part in: headings, cells, units, dates,
  // and which controls there are.
  virtual void FollowSettings() {}
};

// The period totals of one consumption window, ready to be shown.
struct ConsumptionTotals {
  std::array<Text, 7> lbl_nfo;  // lbl_nfo_1 to lbl_nfo_7
  std::array<Text, 8> var;      // the same values without words
  Text status;                  // second panel of the status bar
};

struct ConsumptionView : WindowView {
  // Rebuilds the list from the store.
  virtual void Refresh_Consumpties() = 0;
  virtual void ShowTotals(const ConsumptionTotals& totals) = 0;
  // Selects the last row, if there is one, and brings it into view.
  virtual void SelectLastRow() {}
};

// The two foods of the comparison.
enum class CompareBox { first, second };
inline constexpr std::array kCompareBoxes = {CompareBox::first, CompareBox::second};

struct ComparisonView : WindowView {
  // Takes the text of a drag into a box, as a drop on it does.
  virtual void TakeFood(CompareBox box, std::string_view payload) = 0;
};

// The lists of the food lists window, in the order of their buttons, and the keys that choose them.
enum class FoodView { standard, own, favourites, internet };
inline constexpr std::array kFoodViews = {FoodView::standard, FoodView::own, FoodView::favourites,
                                          FoodView::internet};
inline constexpr std::array<std::string_view, kFoodViews.size()> kFoodViewKeys = {"Alt+1", "Alt+2",
                                                                                  "Alt+3", "Alt+4"};

// Which entries of the main window's food menu may be chosen for a row of a food list; `day_parts`
// for all three and for another amount, `compare` for both boxes of the comparison.
struct FoodMenu {
  bool del = false;
  bool add = false;
  bool info = false;
  bool favourite = false;
  bool day_parts = false;
  bool compare = false;
  bool operator==(const FoodMenu&) const = default;
};

struct FoodListsView : WindowView {
  // Shows the standard list from its first category on.
  virtual void Toon_Standaardlijst() = 0;
  virtual void Populate_Food_List_Custom() = 0;
  virtual void Populate_Food_List_Favo() = 0;
  virtual void Populate_Food_List_Internet() {}
  // Shows one of the lists and gives it the focus, before all other windows.
  virtual void ChooseView(FoodView) {}
  // What the menu of the main window asks for; each acts on the list that shows.
  virtual void CORE_show_info_mnu() {}
  virtual void CORE_Add_To_Favo() {}
  virtual void CORE_New_Item() {}
  virtual void CORE_Del_Item() {}
  virtual void AddSelectedToDay(DayPart) {}
  virtual void CompareSelected(CompareBox) {}
  // Brings the focus to where an amount of the selected rows is typed.
  virtual void AskAmount() {}
  // Brings the window to the front and the focus to its search box, or to the list that has none.
  virtual void FocusSearch() {}
  // Shows which part of the day Enter adds to.
  virtual void ShowActivePart() {}
};

// A place on the screen, in device-independent pixels.
struct ScreenPlace {
  int x = 0;
  int y = 0;
};

// Totals of the whole day in the order of the requirements: kilojoules and kilocalories, then
// unsaturated fat, saturated fat, sodium, protein and carbohydrates in grams.
using DayTotals = std::array<float, 7>;

struct DaySummaryView : WindowView {
  // Rebuilds its list, its top five, the body-mass index and its texts from the store.
  virtual void Refresh_Daguittreksel() = 0;
  virtual void Maak_Voedingsbehoefte(const DayTotals& totals) = 0;
};

struct DiaryView : WindowView {
  // Shows the store's text; what was typed and not taken over goes.
  virtual void Refresh_Tekst() = 0;
  // Whether there is such text, and taking it over into the store: false if that was refused.
  [[nodiscard]] virtual bool HoldsUntakenText() const = 0;
  // What the box shows now, and showing a text there as if it had been typed.
  [[nodiscard]] virtual Text TextInBox() const { return {}; }
  virtual void TypeText(std::string_view) {}
  virtual bool TakeOver() = 0;
};

struct BrowserView : WindowView {
  virtual void Refresh_GebruikersLijst() = 0;
  virtual void Refresh_Files() = 0;
};

struct MultiDayView : WindowView {
  virtual void Refresh_Meerdaagsuittreksel() = 0;
};

// Whether a check for a newer version shows its window or speaks up only if there is one.
enum class UpdateMode { shown, background };

struct UpdateView : WindowView {
  // Shows the window of a check that runs in the background; brings one that shows to the front.
  virtual void ShowWindow() = 0;
};

struct WizardView : WindowView {
  // Ticks or unticks its checkbox for coming up at start.
  virtual void SetShowAtStart(bool) = 0;
};

// The main window.
struct CoreView {
  virtual ~CoreView() = default;
  virtual void Set_Taal() = 0;
  virtual void Set_toolbar_teksten() = 0;
  virtual void ShowMainWindow() = 0;
  virtual void BringToFront() = 0;
  virtual void UpdateStatusBar() = 0;
  // Brings menus and toolbars in step with user, day and FileChanged.
  virtual void UpdateCommands() = 0;
  [[nodiscard]] virtual MainWindowSize Size() const = 0;
  // Opens a window at its record; a dialog is shown modally and this returns when it is gone. A
  // window that the program does not have yet stays closed.
  virtual void OpenWindow(WindowId id) = 0;
  // Shows the windows of a day in the arrangement that setting `chk_all_screens` asks for.
  virtual void ArrangeWindows() = 0;
  // Whether a command can be given now, and giving it; one that can't be given does nothing.
  [[nodiscard]] virtual bool CommandEnabled(Command command) const = 0;
  virtual void GiveCommand(Command command) = 0;
  // Shows the settings dialog modally; returns when it is gone.
  virtual void OpenSettings() = 0;
  // Shows the details of one food line, told apart by the tag of the list that it comes from:
  // "zoeken", "custom", "favo" or "internet".
  virtual void ShowItem(std::string_view tag, std::string_view line) = 0;
  // Shows the dialog for a new food modally; returns when it is gone.
  virtual void OpenNewFood() = 0;
  // Shows the export dialog modally; returns when it is gone.
  virtual void OpenExport() = 0;
  // Shows the dialog modally that takes over what was eaten on another day, with the foods of one
  // part ticked or all of them; it begins with the day of that path, or the day before.
  virtual void OpenTakeOver(std::optional<DayPart> part, const std::string& path) = 0;
  // Shows the dialog that brings in tables of foods, modally; returns when it is gone.
  virtual void OpenFoodImport() = 0;
  // Opens the food menu beside a row of a food list, with these entries enabled; returns at once.
  virtual void PopUpFoodMenu(const FoodMenu& enabled, ScreenPlace place) = 0;
  // Show the dialogs for making and for bringing back a backup modally; return when they are gone.
  virtual void OpenBackup() = 0;
  virtual void OpenRestore() = 0;
  // Shows the splash, which ends by itself; returns at once.
  virtual void ShowSplash() = 0;
  // Shows the About window modally; returns when it is gone.
  virtual void ShowAbout() = 0;
  // Lets a check for a newer version run in a window of its own; returns at once. One runs at a
  // time.
  virtual void OpenUpdate(UpdateMode mode) = 0;
};

struct OpenWindows {
  CoreView* core = nullptr;
  FoodListsView* lists = nullptr;
  std::array<ConsumptionView*, 3> consumption{};
  WindowView* day_settings = nullptr;
  BrowserView* browser = nullptr;
  DaySummaryView* day_summary = nullptr;
  MultiDayView* multi_day = nullptr;
  DiaryView* diary = nullptr;
  ComparisonView* comparison = nullptr;
  WindowView* food_details = nullptr;
  WizardView* wizard = nullptr;
  WindowView* properties = nullptr;  // the settings dialog
  WindowView* export_html = nullptr;
  WindowView* take_over = nullptr;
  WindowView* backup = nullptr;
  WindowView* restore = nullptr;
  WindowView* new_food = nullptr;  // the dialog for a new food
  WindowView* food_import = nullptr;
  UpdateView* update = nullptr;  // hidden while its check runs in the background
  GeometryRecords geometry;
  // ToonInfo of each consumption window: whether its totals panel is shown. Survives the window.
  std::array<bool, 3> totals_shown{};
  // What the row in focus of the food lists allows, while that window is open; nothing without one.
  FoodMenu lists_menu;
  // In force while the food menu stands open for a row of a food list.
  std::optional<FoodMenu> food_menu;

  [[nodiscard]] ConsumptionView*& Consumption(DayPart part) {
    return consumption[static_cast<std::size_t>(part)];
  }
  // Every open window besides the main one, dialogs among them.
  [[nodiscard]] std::vector<WindowView*> AllOpen() const;
  // Lets all of them, and the main window's toolbars, follow the settings and the profile.
  void FollowSettings() const;
  // The open window of that kind; null while it is closed.
  [[nodiscard]] WindowView* Find(WindowId id) const;
  // Where a child window goes when it opens, and what it writes back when it closes; null for a
  // dialog, which has no record.
  [[nodiscard]] WindowRecord* RecordOf(WindowId id);
};

// Keeps the open flag of one window: set from its making on, cleared when it closes or at the
// latest when it is gone, each time with the commands of the main window in step. A window clears
// it at its closing, since the same window may be opened again before the old one is deleted.
template <class View>
class OpenFlag {
 public:
  OpenFlag(OpenWindows& windows, View*& flag, View* window)
      : windows_(windows), flag_(flag), window_(window) {
    flag_ = window_;
    UpdateCommands();
  }
  ~OpenFlag() { Clear(); }
  OpenFlag(const OpenFlag&) = delete;
  OpenFlag& operator=(const OpenFlag&) = delete;

  void Clear() {
    if (flag_ != window_) return;
    flag_ = nullptr;
    UpdateCommands();
  }

 private:
  void UpdateCommands() {
    if (windows_.core != nullptr) windows_.core->UpdateCommands();
  }

  OpenWindows& windows_;
  View*& flag_;
  View* window_;
};

}  // namespace kelvora
