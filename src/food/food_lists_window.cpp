#include "food/food_lists_window.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QVBoxLayout>

#include "core/small_geometry.h"
#include "food/food_list_commands.h"
#include "food/food_rows_panel.h"
#include "language/lists_texts.h"
#include "language/main_texts.h"
#include "language/own_texts.h"
#include "platform/qt/long_label.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"
#include "storage/food_files.h"

namespace kelvora {
namespace {

using namespace lists_text;

constexpr int kProgressWidth = 90;
constexpr int kLeastListHeight = 38;   // the headings and one row
constexpr int kListPanelWidth = 1800;  // twips, at the least

// The four views, in the order of their buttons.
struct ViewRow {
  const char* table_name;
  TextId status;
  TextId drop_tip;
};
constexpr std::array kViews = {
    ViewRow{"LV_browse_zoeken", kStatusStandard, kDropRemoves},
    ViewRow{"LV_browse_eigen", kStatusOwn, kDropRemoves},
    ViewRow{"LV_browse_favo", kStatusFavourites, kDropAddsFavourite},
    ViewRow{"LV_browse_internet", kStatusInternet, kDropRemoves},
};

const ViewRow& RowOf(FoodView view) {
  return kViews[static_cast<std::size_t>(view)];
}

}  // namespace

FoodListsWindow::FoodListsWindow(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      open_flag_(program.windows, program.windows.lists, this),
      lists_(program),
      search_(program, lists_.temp_internet(), *this) {
  NameWidget(this, "KV_tb_lijsten");
  program_.windows.lists_menu = {};
  BuildToolbar();
  BuildSearch();
  BuildInternetSearch();
  BuildViews();
  BuildFoodButtons();
  BuildAmount();
  BuildStatusBar();
  LayOut();
  setFocusPolicy(Qt::ClickFocus);
  Set_Taal();
  Toolbar_->ShowInternet(UsesInternet());
  ShowView(FoodView::standard);
  Toon_Standaardlijst();
}

void FoodListsWindow::closeEvent(QCloseEvent* event) {
  program_.windows.lists_menu = {};
  open_flag_.Clear();
  search_.GiveUp();
  QWidget::closeEvent(event);
}

void FoodListsWindow::BuildToolbar() {
  Toolbar_ = new FoodListsToolbar(this);
  connect(Toolbar_, &FoodListsToolbar::ViewChosen, this, &FoodListsWindow::ShowView);
  connect(Toolbar_, &FoodListsToolbar::NewFoodChosen, this, &FoodListsWindow::CORE_New_Item);
  connect(Toolbar_, &FoodListsToolbar::CopyChosen, this,
          [this] { CopyOwnListToDatabases(program_); });
  connect(Toolbar_, &FoodListsToolbar::ServerChosen, this, [this](bool english) {
    ChooseServer(program_, english ? "1" : "0");
    ShowServer();
  });
}

void FoodListsWindow::BuildViews() {
  stack_ = new QStackedWidget(this);
  for (const FoodView view : kFoodViews) {
    auto* const table = new FoodTable(RowOf(view).table_name, stack_);
    table->horizontalHeader()->setSortIndicatorShown(true);
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    table->setMinimumHeight(kLeastListHeight);
    stack_->addWidget(table);
    tables_[static_cast<std::size_t>(view)] = table;
    ConnectView(view, table);
  }
}

void FoodListsWindow::ConnectView(FoodView view, FoodTable* table) {
  table->drag_payload = [this, view](const std::vector<std::size_t>& rows) {
    return rows.empty() ? Text() : lists_.DragPayload(view, rows);
  };
  table->takes = [view](const Text& payload) { return TakesDrop(view, payload); };
  table->drop = [this, view](const Text& payload) { DropOnFoodView(program_, view, payload); };
  connect(table, &FoodTable::RowClicked, this, [this, view](int row) { RememberRow(view, row); });
  // A row that the arrow keys select counts as clicked.
  connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this, view, table](const QModelIndex& index) {
            if (index.isValid() && table->selectionModel()->isRowSelected(index.row())) {
              RememberRow(view, index.row());
            }
          });
  connect(table, &QAbstractItemView::doubleClicked, this, [this, view](const QModelIndex& index) {
    ShowDetails(program_, lists_, view, static_cast<std::size_t>(index.row()));
  });
  connect(table, &FoodTable::DeletePressed, this, [this, view] { DeleteSelected(view); });
  connect(table, &FoodTable::EnterPressed, this,
          [this] { AddSelectedToDay(program_.day.active_part); });
  connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &FoodListsWindow::NoteRow);
  table->on_escape = [this] { FocusSearch(); };
  table->type_amount = [this](const QString& digit) {
    txt_amount_->setFocus();
    txt_amount_->clear();
    txt_amount_->insert(digit);
  };
  connect(table, &QWidget::customContextMenuRequested, this, [this, view, table](QPoint place) {
    OpenMenu(view, table->viewport()->mapToGlobal(place));
  });
  connect(table->horizontalHeader(), &QHeaderView::sectionClicked, this,
          [this, view](int column) { Sort(view, static_cast<std::size_t>(column)); });
}

void FoodListsWindow::BuildFoodButtons() {
  const auto button = [this](const char* name, const char* icon) {
    auto* const made = new QPushButton(IconNamed(icon), QString(), this);
    NameWidget(made, name);
    made->setAutoDefault(false);
    return made;
  };
  Pic_toevoegen_ = button("Pic_toevoegen", "item-add");
  Pic_opties_ = button("Pic_opties", "item-info");
  connect(Pic_toevoegen_, &QPushButton::clicked, this, &FoodListsWindow::CORE_New_Item);
  connect(Pic_opties_, &QPushButton::clicked, this,
          [this] { OpenMenu(View(), Pic_opties_->mapToGlobal(Pic_opties_->rect().topLeft())); });
}

void FoodListsWindow::BuildStatusBar() {
  StatusBar_ = new QStatusBar(this);
  NameWidget(StatusBar_, "StatusBar");
  StatusBar_->setSizeGripEnabled(false);
  panels_ = {new LongLabel(StatusBar_, QStringLiteral("StatusBar_1")),
             new LongLabel(StatusBar_, QStringLiteral("StatusBar_2")),
             new LongLabel(this, QStringLiteral("StatusBar_3"))};
  for (QLabel* const panel : {panels_[0], panels_[1]}) {
    panel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  }
  panels_[0]->setMinimumWidth(PixelsOfTwips(kListPanelWidth));
  StatusBar_->addWidget(panels_[0]);
  StatusBar_->addWidget(panels_[1], 1);
  ProgressBar_ = new QProgressBar(StatusBar_);
  NameWidget(ProgressBar_, "ProgressBar");
  ProgressBar_->setFixedWidth(kProgressWidth);
  ProgressBar_->setTextVisible(false);
  StatusBar_->addPermanentWidget(ProgressBar_);
  ProgressBar_->hide();
}

void FoodListsWindow::LayOut() {
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(Toolbar_);
  layout->addWidget(Pic_zoek_);
  layout->addWidget(Pic_internet_);
  auto* const add = new QHBoxLayout;
  add->setContentsMargins(8, 2, 8, 2);
  add->addWidget(Pic_toevoegen_);
  add->addStretch();
  layout->addLayout(add);
  auto* const list = new QVBoxLayout;
  list->setContentsMargins(4, 2, 4, 2);
  list->addWidget(stack_);
  layout->addLayout(list, 1);
  auto* const options = new QHBoxLayout;
  options->setContentsMargins(4, 2, 4, 2);
  options->setSpacing(4);
  options->addWidget(lbl_amount_);
  options->addWidget(txt_amount_);
  layout->addLayout(options);
  // The third panel has a line of its own: beside the two others its words find no room in Dutch. A
  // low main window has no room for one more line; there it stands beside the amount.
  const CoreView* const core = program_.windows.core;
  if (core != nullptr && IsSmall(core->Size())) {
    options->addWidget(panels_[2], 1);
  } else {
    options->addStretch();
    auto* const target = new QHBoxLayout;
    target->setContentsMargins(4, 0, 4, 2);
    target->addWidget(panels_[2]);
    layout->addLayout(target);
  }
  options->addWidget(Pic_opties_);
  layout->addWidget(StatusBar_);
  setTabOrder(Pic_toevoegen_, tables_.front());
  for (std::size_t i = 1; i < tables_.size(); ++i) setTabOrder(tables_[i - 1], tables_[i]);
  setTabOrder(tables_.back(), txt_amount_);
  setTabOrder(txt_amount_, Pic_opties_);
}

void FoodListsWindow::CloseWindow() {
  if (QWidget* const frame = parentWidget()) frame->close();
}

void FoodListsWindow::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[kTitle]));
  Toolbar_->Set_Taal(texts);
  Pic_zoek_->Set_Taal(texts);
  Pic_internet_->Set_Taal(texts);
  Pic_toevoegen_->setText(ToQt(texts[kAddPanel]));
  Pic_opties_->setText(ToQt(texts[kOptionsPanel]));
  lbl_amount_->setText(ToQt(OwnTextOf(texts, OwnText::amount)));
  txt_amount_->Set_Taal();
  ProgressBar_->setAccessibleName(ToQt(texts[kProgress]));
  StatusBar_->setAccessibleName(ToQt(texts[main_text::kStatusBarName]));
  for (const FoodView view : kFoodViews) {
    TableOf(view).setAccessibleName(ToQt(texts[RowOf(view).status]));
    TableOf(view).setToolTip(ToQt(texts[RowOf(view).drop_tip]));
    Populate(view, Scroll::keep);
  }
  SetEmptyTexts();
  ShowServer();
  ShowActivePart();
  ShowStatus();
}

FoodView FoodListsWindow::View() const {
  return static_cast<FoodView>(stack_->currentIndex());
}

void FoodListsWindow::ShowView(FoodView view) {
  Toolbar_->Press(view);
  stack_->setCurrentWidget(&TableOf(view));
  Pic_zoek_->setVisible(view == FoodView::standard);
  Pic_internet_->setVisible(view == FoodView::internet);
  Pic_toevoegen_->setVisible(view == FoodView::own || view == FoodView::internet);
  results_shown_ = nothing_found_ = false;
  setFocusProxy(&KeyTaker());
  ShowStatus();
  SetColumnWidths(view);
  NoteRow();
}

void FoodListsWindow::ChooseView(FoodView view) {
  ShowView(view);
  (focusProxy()->isEnabled() ? focusProxy() : &TableOf(view))->setFocus(Qt::ShortcutFocusReason);
}

QWidget& FoodListsWindow::KeyTaker() {
  if (View() == FoodView::standard) return Pic_zoek_->Search();
  if (View() == FoodView::internet) return Pic_internet_->Term();
  return TableOf(View());
}

void FoodListsWindow::ShowStatus() {
  panels_[0]->setText(ToQt(program_.texts[RowOf(View()).status]));
  panels_[1]->setText(ToQt(StatusText()));
}

Text FoodListsWindow::StatusText() const {
  if (View() == FoodView::internet && search_.IsRunning()) return program_.texts[kSearching];
  if (View() == FoodView::internet && nothing_found_) return lists_.NothingFoundText();
  return results_shown_ ? lists_.ResultsText() : lists_.AvailableText(View());
}

void FoodListsWindow::ShowServer() {
  Pic_internet_->ShowServer(ToQt(ServerText(program_)), ToQt(InternetSearchTip(program_)));
  Toolbar_->ShowServer(UsesEnglishServer(program_));
}

void FoodListsWindow::SetEmptyTexts() {
  const auto set = [this](FoodView view, OwnText text) {
    TableOf(view).SetEmptyText(ToQt(OwnTextOf(program_.texts, text)));
  };
  set(FoodView::standard, lists_.NothingOften()   ? OwnText::empty_often
                          : lists_.NoNameBegins() ? OwnText::no_name_begins
                                                  : OwnText::empty_results);
  set(FoodView::own, OwnText::empty_own_list);
  set(FoodView::favourites, OwnText::empty_favourites);
  set(FoodView::internet,
      search_.IsRunning() ? OwnText::search_runs : OwnText::empty_internet_list);
}

// Rows are made when they are drawn: the bar is full as soon as it is set.
void FoodListsWindow::Populate(FoodView view, Scroll scroll) {
  FoodTable& table = TableOf(view);
  const int place = scroll == Scroll::keep ? table.verticalScrollBar()->value() : 0;
  const auto count = static_cast<int>(lists_.Count(view));
  program_.platform.pointer.ShowWait();
  ProgressBar_->setRange(0, count);
  ProgressBar_->setVisible(true);
  const auto selected = lists_.Populate(view);
  ShowFoodRows(table, lists_, view);
  ProgressBar_->setValue(count);
  table.verticalScrollBar()->setValue(place);
  if (selected) table.SelectRow(static_cast<int>(*selected));
  ProgressBar_->setVisible(false);
  program_.platform.pointer.Restore();
  SetColumnWidths(view);
  NoteRow();
}

// The same lines stay selected, wherever they stand now.
template <class Change>
void FoodListsWindow::ShowAnew(FoodView view, Change change) {
  FoodTable& table = TableOf(view);
  const int place = table.verticalScrollBar()->value();
  const auto focus = table.RowInFocus();
  const auto selected = lists_.NumbersOf(view, table.SelectedRows());
  const auto in_focus =
      lists_.NumbersOf(view, focus ? std::vector<std::size_t>{*focus} : std::vector<std::size_t>());
  change();
  ShowFoodRows(table, lists_, view);
  SetColumnWidths(view);
  table.verticalScrollBar()->setValue(place);
  if (in_focus.empty()) return;
  table.SelectRows(lists_.RowsOf(view, selected), lists_.RowsOf(view, in_focus).front());
}

void FoodListsWindow::Sort(FoodView view, std::size_t column) {
  const bool in_focus = TableOf(view).RowInFocus().has_value();
  ShowAnew(view, [&] { lists_.SortByColumn(view, column); });
  if (!in_focus) TableOf(view).scrollToTop();
}

void FoodListsWindow::FollowSettings() {
  const bool internet = UsesInternet();
  Toolbar_->ShowInternet(internet);
  if (!internet) search_.GiveUp();
  if (!internet && View() == FoodView::internet) ShowView(FoodView::standard);
  for (const FoodView view : kFoodViews) {
    ShowAnew(view, [&] { lists_.SortAgain(view); });
  }
  ShowServer();
}

bool FoodListsWindow::UsesInternet() const {
  return program_.settings[Setting::chk_internet] != "0";
}

void FoodListsWindow::Populate_Food_List_Custom() {
  Populate(FoodView::own, Scroll::keep);
  // A search finds own foods too.
  if (lists_.SearchAgain()) Populate(FoodView::standard, Scroll::keep);
  ShowStatus();
}

void FoodListsWindow::Populate_Food_List_Favo() {
  Populate(FoodView::favourites, Scroll::keep);
  if (View() == FoodView::favourites) ShowStatus();
}

void FoodListsWindow::Populate_Food_List_Internet() {
  Populate(FoodView::internet, Scroll::to_top);
  if (View() == FoodView::internet) ShowStatus();
}

// Before there is any row the columns are laid out once; after that they follow the list only while
// it has rows.
void FoodListsWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  reading_often_.start(0);
  for (FoodTable* const table : tables_) LayFoodColumns(*table, stack_->width());
  FollowFrame();
}

void FoodListsWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  for (const FoodView view : kFoodViews) SetColumnWidths(view);
}

void FoodListsWindow::SetColumnWidths(FoodView view) {
  FoodTable& table = TableOf(view);
  if (table.Model().rowCount() > 0) return LayFoodColumns(table, stack_->width());
  FitHeadings(table, stack_->width());
}

}  // namespace kelvora
