// The internet view of the food lists window: the box of the term, and what a search shows.
#include <QApplication>

#include "food/food_lists_window.h"

namespace kelvora {

void FoodListsWindow::BuildInternetSearch() {
  Pic_internet_ = new InternetSearchPanel(EntryContextOf(program_), this);
  SearchBox* const term = &Pic_internet_->Term();
  term->go_to_found = [this] { return TableOf(FoodView::internet).GoToFirstRow(); };
  term->empty = [term] { term->ShowText({}); };
  connect(term, &QLineEdit::returnPressed, this,
          [this, term] { search_.Zoek_Op_Internet(term->Entered()); });
  give_up_ = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  give_up_->setContext(Qt::WidgetWithChildrenShortcut);
  give_up_->setEnabled(false);
  connect(give_up_, &QShortcut::activated, this, [this] { search_.GiveUp(); });
}

void FoodListsWindow::ShowSearching() {
  nothing_found_ = false;
  term_had_focus_ = Pic_internet_->Term().hasFocus();
  // The list takes the keys meanwhile: a disabled box would hand them to whatever comes next.
  if (term_had_focus_) TableOf(FoodView::internet).setFocus();
  Pic_internet_->ShowSearching(true);
  give_up_->setEnabled(true);
  SetEmptyTexts();
  Populate_Food_List_Internet();
  ShowStatus();
}

void FoodListsWindow::AllowSearching() {
  give_up_->setEnabled(false);
  Pic_internet_->ShowSearching(false);
  const QWidget* const focus = QApplication::focusWidget();
  if (term_had_focus_ && (focus == nullptr || isAncestorOf(focus)))
    Pic_internet_->Term().setFocus();
  term_had_focus_ = false;
  SetEmptyTexts();
  Populate_Food_List_Internet();
  ShowStatus();
}

void FoodListsWindow::ShowFound() {
  Populate_Food_List_Internet();
  Pic_internet_->Term().ShowText({});
  ShowStatus();
}

void FoodListsWindow::ShowNothingFound() {
  Pic_internet_->Term().ShowText({});
  nothing_found_ = View() == FoodView::internet;
  ShowStatus();
}

}  // namespace kelvora
