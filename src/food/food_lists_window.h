// The food lists window: the source of all food that is eaten. A picture of the lists that
// food_lists.h fills; what is chosen, dropped or deleted goes to food_list_commands.h, and the
// internet is searched by internet/search.h.
//
// Keys, besides those of any list and box:
//   Down, Tab                 from the search box to the first row that was found
//   Enter on a row            adds the amount of the box below the list to the part of the day that
//                             stands below that box
//   Ctrl+1, Ctrl+2, Ctrl+3    the same, to morning, afternoon or evening
//   a digit on a row          begins the amount
//   Escape                    empties a box; from a list, back to the search box
// Whatever adds goes back to the search box, where the next word takes the place of the last one.
#pragma once

#include <array>
#include <optional>

#include <QLabel>
#include <QMdiSubWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QWidget>

#include "core/program.h"
#include "food/amount_box_panel.h"
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
  void AskAmount() override;
  void FocusSearch() override;
  void ShowActivePart() override;

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
  void PopUpCategoryMenu(const QPoint& place);
  void ShowSearching() override;
  void AllowSearching() override;
  void ShowFound() override;
  void ShowNothingFound() override;
  void BuildViews();
  void ConnectView(FoodView view, FoodTable* table);
  void BuildFoodButtons();
  void BuildAmount();
  void FollowFrame();
  void NoteRow();
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
  void DeleteAndStay(FoodView view, const std::vector<std::size_t>& rows);
  void AddFromAmountBox();
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
  QMdiSubWindow* frame_ = nullptr;  // around this window, once it is shown
  FoodListsToolbar* Toolbar_;
  FoodSearchPanel* Pic_zoek_;
  InternetSearchPanel* Pic_internet_;
  QPushButton* Pic_toevoegen_;
  QPushButton* Pic_opties_;
  QStackedWidget* stack_;
  std::array<FoodTable*, kFoodViews.size()> tables_;
  QShortcut* give_up_;
  QLabel* lbl_amount_;
  AmountBox* txt_amount_;
  QStatusBar* StatusBar_;
  std::array<QLabel*, 3> panels_;
  QProgressBar* ProgressBar_;
};

}  // namespace kelvora
