// The food lists window: the source of all food that is eaten. A picture of the lists that
// food_lists.h fills; what is chosen, dropped or deleted goes to food_list_commands.h, and the
// internet is searched by internet/search.h.
//
// Besides the mouse: Enter on a list asks which day part the selected rows go to, with the one used
// last under the cursor, so that Enter twice repeats it; the menu of a row has the same entries.
#pragma once

#include <array>
#include <optional>

#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QWidget>

#include "core/program.h"
#include "food/day_part_menu_panel.h"
#include "food/food_lists.h"
#include "food/food_lists_toolbar_panel.h"
#include "food/food_search_panel.h"
#include "food/food_table_panel.h"
#include "food/often.h"
#include "internet/search.h"

namespace kelvora {

class FoodListsWindow : public QWidget, public FoodListsView, private InternetSearchView {
  Q_OBJECT

 public:
  FoodListsWindow(Program& program, QWidget* parent);

  void CloseWindow() override;
  void Set_Taal() override;
  void FollowSettings() override;
  void Toon_Standaardlijst() override;
  void Populate_Food_List_Custom() override;
  void Populate_Food_List_Favo() override;
  void Populate_Food_List_Internet() override;
  void CORE_show_info_mnu() override;
  void CORE_Add_To_Favo() override;
  void CORE_New_Item() override;
  void CORE_Del_Item() override;
  void ChooseView(FoodView view) override;
  void AddSelectedToDay(DayPart part) override;
  void CompareSelected(CompareBox box) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  // Whether a list that is filled anew stays where it was scrolled to.
  enum class Scroll { keep, to_top };

  void BuildToolbar();
  void BuildSearch();
  void BuildInternetSearch();
  // Reads what was eaten often while nothing else is to do.
  void ReadOften();
  void ShowOften();
  void ShowSearching() override;
  void AllowSearching() override;
  void ShowFound() override;
  void ShowNothingFound() override;
  void BuildViews();
  void ConnectView(FoodView view, FoodTable* table);
  void BuildFoodButtons();
  void BuildStatusBar();
  void LayOut();
  void ShowView(FoodView view);
  // Where keys go that come to the window: to the box of a view that searches, or to its list.
  [[nodiscard]] QWidget& KeyTaker();
  void Populate(FoodView view, Scroll scroll);
  void Sort(FoodView view, std::size_t column);
  // Shows the rows of a view after a change of their order or their cells.
  template <class Change>
  void ShowAnew(FoodView view, Change change);
  [[nodiscard]] bool UsesInternet() const;
  void SetColumnWidths(FoodView view);
  void SetEmptyTexts();
  void ShowResults();
  void ShowStatus();
  [[nodiscard]] Text StatusText() const;
  void ShowServer();
  void RememberRow(FoodView view, int row);
  void DeleteSelected(FoodView view);
  void AskDayPart(FoodView view);
  void OpenMenu(FoodView view, QPoint place);
  [[nodiscard]] FoodView View() const;
  [[nodiscard]] FoodTable& TableOf(FoodView view) {
    return *tables_[static_cast<std::size_t>(view)];
  }

  Program& program_;
  OpenFlag<FoodListsView> open_flag_;
  FoodLists lists_;
  std::optional<OftenEaten> often_;  // once there is a day
  QTimer reading_often_;
  InternetSearch search_;
  bool results_shown_ = false;  // the status tells how many were found, not how many there are
  bool nothing_found_ = false;  // the status tells so of the internet view
  bool term_had_focus_ = false;
  DayPart last_day_part_ = DayPart::morning;
  FoodListsToolbar* Toolbar_;
  FoodSearchPanel* Pic_zoek_;
  InternetSearchPanel* Pic_internet_;
  QPushButton* Pic_toevoegen_;
  QPushButton* Pic_opties_;
  QStackedWidget* stack_;
  std::array<FoodTable*, kFoodViews.size()> tables_;
  QShortcut* give_up_;
  QMenu* day_part_menu_;
  DayPartActions day_part_actions_;
  QStatusBar* StatusBar_;
  std::array<QLabel*, 2> panels_;
  QProgressBar* ProgressBar_;
};

}  // namespace kelvora
