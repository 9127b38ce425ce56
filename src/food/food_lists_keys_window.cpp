// Entering foods by the keyboard in the food lists window: the search box and what it finds, the
// box of the amount, and where the focus goes.
#include <QApplication>
#include <QMdiArea>
#include <QMenu>

#include "food/food_list_commands.h"
#include "food/food_lists_window.h"
#include "food/import/set_removal.h"
#include "language/own_texts.h"
#include "platform/qt/key_sequence.h"
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
  Pic_zoek_->Categories().setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&Pic_zoek_->Categories(), &QWidget::customContextMenuRequested, this,
          &FoodListsWindow::PopUpCategoryMenu);
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

// What can be done with the chosen category: its whole set goes, if it was imported with one.
void FoodListsWindow::PopUpCategoryMenu(const QPoint& place) {
  QComboBox& categories = Pic_zoek_->Categories();
  auto* const menu = new QMenu(&categories);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  NameWidget(menu, "menu_categories");
  const auto add = [&](const char* name, const Text& words, std::function<void()> run) {
    QAction* const action = menu->addAction(CaptionFrom(words), this, std::move(run));
    action->setObjectName(QLatin1String(name));
  };
  if (const auto set = SetOfCategory(program_, FileOfCategory(FromQt(categories.currentText())))) {
    add("mnu_remove_set", OwnTextWith(program_.texts, OwnText::category_remove, set->name),
        [this, set] { RemoveSetIfWanted(program_, *set); });
  }
  add("mnu_import", OwnTextOf(program_.texts, OwnText::menu_import),
      [this] { program_.windows.core->GiveCommand(Command::mnu_import_foods); });
  menu->popup(categories.mapToGlobal(place));
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
  constexpr std::array kKeys = {BoundKey::add_to_morning, BoundKey::add_to_afternoon,
                                BoundKey::add_to_evening};
  for (const DayPart part : kDayParts) {
    const QKeySequence keys = SequenceOf(kKeys[static_cast<std::size_t>(part)]);
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
