// Entering foods by the keyboard in the food lists window: the search box and what it finds, the
// box of the amount, and where the focus goes.
#include <QApplication>
#include <QMdiArea>

#include "food/food_list_commands.h"
#include "food/food_lists_window.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {

void FoodListsWindow::BuildSearch() {
  const EntryContext entry = EntryContextOf(program_);
  Pic_zoek_ = new FoodSearchPanel(entry, this);
  SearchBox* const search = &Pic_zoek_->Search();
  search->go_to_found = [this] { return TableOf(FoodView::standard).GoToFirstRow(); };
  search->empty = [this, search] {
    Toon_Standaardlijst();
    search->ShowText({});
  };
  connect(&Pic_zoek_->Categories(), &QComboBox::textActivated, this,
          [this, search](const QString& category) {
            search->ShowText(lists_.ChooseCategory(FromQt(category)));
            ShowResults();
          });
  connect(&Pic_zoek_->Often(), &QPushButton::clicked, this, &FoodListsWindow::ShowOften);
  connect(&reading_often_, &QTimer::timeout, this, &FoodListsWindow::ReadOften);
  connect(search, &QLineEdit::textEdited, this, [this, search] {
    const Text text = search->Entered();
    if (text.empty()) return Toon_Standaardlijst();
    lists_.SearchPrefix(text);
    ShowResults();
  });
  connect(search, &QLineEdit::returnPressed, this, [this, search] {
    if (lists_.Zoek_In_Lijsten(search->Entered())) ShowResults();
    search->selectAll();
  });
}

void FoodListsWindow::Toon_Standaardlijst() {
  const TextList categories = lists_.Categories();
  const auto searched = lists_.Toon_Standaardlijst();
  QComboBox& shown = Pic_zoek_->Categories();
  shown.clear();
  if (searched) {
    for (const std::string_view category : categories) shown.addItem(ToQt(category));
    shown.setCurrentIndex(0);
    Pic_zoek_->Search().ShowText(*searched);
    Pic_zoek_->Search().selectAll();
  }
  SetEmptyTexts();
  Populate(FoodView::standard, Scroll::to_top);
  results_shown_ = false;
  ShowStatus();
}

void FoodListsWindow::ShowResults() {
  SetEmptyTexts();
  Populate(FoodView::standard, Scroll::to_top);
  results_shown_ = true;
  ShowStatus();
}

void FoodListsWindow::BuildAmount() {
  lbl_amount_ = NewLabel(this, QStringLiteral("lbl_amount"));
  txt_amount_ = new AmountBox(this, EntryContextOf(program_));
  lbl_amount_->setBuddy(txt_amount_);
  txt_amount_->on_escape = [this] { FocusSearch(); };
  connect(txt_amount_, &QLineEdit::returnPressed, this, &FoodListsWindow::AddFromAmountBox);
  constexpr std::array kKeys = {Qt::Key_1, Qt::Key_2, Qt::Key_3};
  for (const DayPart part : kDayParts) {
    const QKeySequence keys(Qt::CTRL | kKeys[static_cast<std::size_t>(part)]);
    auto* const shortcut = new QShortcut(keys, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, [this, part] { AddSelectedToDay(part); });
  }
}

// Chosen by the keyboard, the window takes it where food is searched. A click goes where it goes.
void FoodListsWindow::FollowFrame() {
  auto* const frame = qobject_cast<QMdiSubWindow*>(parentWidget());
  if (frame == nullptr || frame == frame_) return;
  frame_ = frame;
  connect(frame, &QMdiSubWindow::windowStateChanged, this, [this](auto before, auto now) {
    const bool chosen = now.testFlag(Qt::WindowActive) && !before.testFlag(Qt::WindowActive);
    if (chosen && QApplication::mouseButtons() == Qt::NoButton) FocusSearch();
  });
}

// An amount that was typed before a food was chosen goes with the first one.
void FoodListsWindow::AddFromAmountBox() {
  if (TableOf(View()).SelectedRows().empty()) {
    if (txt_amount_->Read()) TableOf(View()).GoToFirstRow();
    return;
  }
  AddSelectedToDay(program_.day.active_part);
}

void FoodListsWindow::AskAmount() {
  GoToBox(txt_amount_);
}

void FoodListsWindow::FocusSearch() {
  if (frame_ != nullptr && frame_->mdiArea() != nullptr) {
    frame_->mdiArea()->setActiveSubWindow(frame_);
  }
  if (View() == FoodView::standard) return GoToBox(&Pic_zoek_->Search());
  if (View() == FoodView::internet && !search_.IsRunning()) return GoToBox(&Pic_internet_->Term());
  FoodTable& table = TableOf(View());
  if (table.SelectedRows().empty() && table.GoToFirstRow()) return;
  table.setFocus();
}

}  // namespace kelvora
