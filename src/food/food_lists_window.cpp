#include "food/food_lists_window.h"

#include <QActionGroup>
#include <QFocusEvent>
#include <QTimer>
#include <QVBoxLayout>

#include "core/program.h"
#include "language/lists_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace lists_text;

constexpr int kProductColumn = 1;
constexpr int kUnitWidth = PixelsOfTwips(1500);
constexpr int kAmountWidth = PixelsOfTwips(1000);
constexpr int kRestWidth = PixelsOfTwips(1500 + 1000 + 1000 + 360);
constexpr int kIconSize = 24;

// The four views, in the order of their buttons.
struct ViewRow {
  FoodView view;
  const char* table_name;
  const char* icon;
  TextId caption;
  TextId status;
};
constexpr std::array kViews = {
    ViewRow{FoodView::standard, "LV_browse_zoeken", "list-standard", kButtonStandard,
            kStatusStandard},
    ViewRow{FoodView::own, "LV_browse_eigen", "list-own", kButtonOwn, kStatusOwn},
    ViewRow{FoodView::favourites, "LV_browse_favo", "list-favourites", kButtonFavourites,
            kStatusFavourites},
    ViewRow{FoodView::internet, "LV_browse_internet", "list-internet", kButtonInternet,
            kStatusInternet},
};

const ViewRow& RowOf(FoodView view) {
  return kViews[static_cast<std::size_t>(view)];
}

// The box holds the name of the category most of the time: what is typed takes its place.
class SearchBox : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void focusInEvent(QFocusEvent* event) override {
    QLineEdit::focusInEvent(event);
    // A window that comes back to the front keeps what was being typed.
    if (event->reason() != Qt::MouseFocusReason) return;
    // After the click that brings the focus, which puts the cursor somewhere.
    QTimer::singleShot(0, this, &QLineEdit::selectAll);
  }
};

}  // namespace

FoodListsWindow::FoodListsWindow(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      open_flag_(program.windows, program.windows.lists, this),
      lists_(program) {
  NameWidget(this, "KV_tb_lijsten");
  BuildToolbar();
  BuildSearchPanel();
  BuildViews();
  BuildStatusBar();

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(Toolbar_);
  layout->addWidget(Pic_zoek_);
  auto* const list = new QVBoxLayout;
  list->setContentsMargins(4, 2, 4, 2);
  list->addWidget(stack_);
  layout->addLayout(list, 1);
  layout->addWidget(StatusBar_);

  Set_Taal();
  Populate_Food_List_Custom();
  Populate_Food_List_Favo();
  ShowView(FoodView::standard);
  Toon_Standaardlijst();
}

void FoodListsWindow::closeEvent(QCloseEvent* event) {
  open_flag_.Clear();
  QWidget::closeEvent(event);
}

void FoodListsWindow::BuildToolbar() {
  Toolbar_ = new QToolBar(this);
  NameWidget(Toolbar_, "Toolbar");
  Toolbar_->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  Toolbar_->setIconSize({kIconSize, kIconSize});
  auto* const group = new QActionGroup(this);
  for (const ViewRow& row : kViews) {
    const auto place = static_cast<std::size_t>(row.view);
    QAction* const action = Toolbar_->addAction(IconNamed(row.icon), QString());
    const QString name = QStringLiteral("Toolbar_%1").arg(place + 1);
    action->setObjectName(name + QStringLiteral("_action"));
    action->setCheckable(true);
    Toolbar_->widgetForAction(action)->setObjectName(name);
    group->addAction(action);
    connect(action, &QAction::triggered, this, [this, view = row.view] { ShowView(view); });
    view_actions_[place] = action;
  }
  // The food server has no search yet.
  view_actions_[static_cast<std::size_t>(FoodView::internet)]->setEnabled(false);
}

void FoodListsWindow::BuildSearchPanel() {
  Pic_zoek_ = new QWidget(this);
  NameWidget(Pic_zoek_, "Pic_zoek");
  auto* const layout = new QVBoxLayout(Pic_zoek_);
  layout->setContentsMargins(8, 6, 8, 6);
  layout->setSpacing(3);
  txt_catuitleg_ = NewLabel(Pic_zoek_, "txt_catuitleg");
  combo_cat_ = new QComboBox(Pic_zoek_);
  NameWidget(combo_cat_, "combo_cat");
  txt_zoekuitleg_ = NewLabel(Pic_zoek_, "txt_zoekuitleg");
  txt_zoekuitleg_->setWordWrap(true);
  txt_zoeken_ = new SearchBox(Pic_zoek_);
  NameWidget(txt_zoeken_, "txt_zoeken");
  txt_zoeken_->addAction(IconNamed("search"), QLineEdit::LeadingPosition);
  txt_catuitleg_->setBuddy(combo_cat_);
  txt_zoekuitleg_->setBuddy(txt_zoeken_);
  layout->addWidget(txt_catuitleg_);
  layout->addWidget(combo_cat_);
  layout->addSpacing(3);
  layout->addWidget(txt_zoekuitleg_);
  layout->addWidget(txt_zoeken_);

  connect(combo_cat_, &QComboBox::textActivated, this, [this](const QString& category) {
    txt_zoeken_->setText(ToQt(lists_.ChooseCategory(FromQt(category))));
    ShowResults();
  });
  connect(txt_zoeken_, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (text.isEmpty()) return Toon_Standaardlijst();
    lists_.SearchPrefix(FromQt(text));
    ShowResults();
  });
  connect(txt_zoeken_, &QLineEdit::returnPressed, this, [this] {
    if (lists_.Zoek_In_Lijsten(FromQt(txt_zoeken_->text()))) ShowResults();
  });
}

void FoodListsWindow::BuildViews() {
  stack_ = new QStackedWidget(this);
  for (const ViewRow& row : kViews) {
    auto* const table = new FoodTable(row.table_name, stack_);
    table->setDragDropMode(QAbstractItemView::DragOnly);
    table->drag_payload = [this, view = row.view](const std::vector<std::size_t>& rows) {
      return rows.empty() ? Text() : lists_.DragPayload(view, rows);
    };
    connect(table, &FoodTable::RowClicked, this, [this, view = row.view](int clicked) {
      lists_.last_clicked = lists_.Cell(view, static_cast<std::size_t>(clicked), kProductColumn);
    });
    stack_->addWidget(table);
    tables_[static_cast<std::size_t>(row.view)] = table;
  }
}

void FoodListsWindow::BuildStatusBar() {
  StatusBar_ = new QStatusBar(this);
  NameWidget(StatusBar_, "StatusBar");
  StatusBar_->setSizeGripEnabled(false);
  panels_ = {NewLabel(StatusBar_, "StatusBar_1"), NewLabel(StatusBar_, "StatusBar_2")};
  panels_[0]->setMinimumWidth(PixelsOfTwips(1800));
  StatusBar_->addWidget(panels_[0]);
  StatusBar_->addWidget(panels_[1], 1);
}

void FoodListsWindow::CloseWindow() {
  if (QWidget* const frame = parentWidget()) frame->close();
}

void FoodListsWindow::Set_Taal() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(texts[kTitle]));
  for (const ViewRow& row : kViews) {
    const auto place = static_cast<std::size_t>(row.view);
    // The captions carry blanks at their end, which would push them off the middle of a button.
    view_actions_[place]->setText(ToQt(texts[row.caption]).trimmed());
    tables_[place]->setAccessibleName(ToQt(texts[row.status]));
  }
  txt_catuitleg_->setText(ToQt(texts[kSelectCategory]));
  txt_zoekuitleg_->setText(ToQt(texts[kSearchHint]));
  combo_cat_->setAccessibleName(ToQt(texts[kSelectCategory]));
  txt_zoeken_->setAccessibleName(ToQt(texts[kSearchHint]));
  for (const ViewRow& row : kViews) Populate(row.view);
  ShowStatus();
}

void FoodListsWindow::ShowView(FoodView view) {
  view_actions_[static_cast<std::size_t>(view)]->setChecked(true);
  stack_->setCurrentWidget(&TableOf(view));
  Pic_zoek_->setVisible(view == FoodView::standard);
  results_shown_ = false;
  ShowStatus();
  SetColumnWidths(view);
}

void FoodListsWindow::ShowStatus() {
  const auto view = static_cast<FoodView>(stack_->currentIndex());
  panels_[0]->setText(ToQt(program_.texts[RowOf(view).status]));
  panels_[1]->setText(ToQt(results_shown_ ? lists_.ResultsText() : lists_.AvailableText(view)));
}

void FoodListsWindow::Populate(FoodView view) {
  std::vector<TextTableModel::Column> columns;
  const auto headings = lists_.Headings();
  for (std::size_t i = 0; i < headings.size(); ++i) {
    columns.push_back({headings[i], i >= 3 ? Qt::AlignRight : Qt::AlignLeft});
  }
  FoodTable& table = TableOf(view);
  table.Model().Show(
      std::move(columns), lists_.Count(view),
      [this, view](std::size_t row, std::size_t column) { return lists_.Cell(view, row, column); });
  table.SelectRowsReading(kProductColumn, ToQt(lists_.last_clicked));
  SetColumnWidths(view);
}

void FoodListsWindow::Populate_Food_List_Custom() {
  Populate(FoodView::own);
}
void FoodListsWindow::Populate_Food_List_Favo() {
  Populate(FoodView::favourites);
}

void FoodListsWindow::Toon_Standaardlijst() {
  const TextList categories = lists_.Categories();
  const auto searched = lists_.Toon_Standaardlijst();
  combo_cat_->clear();
  if (searched) {
    for (const std::string_view category : categories) combo_cat_->addItem(ToQt(category));
    combo_cat_->setCurrentIndex(0);
    txt_zoeken_->setText(ToQt(*searched));
    txt_zoeken_->selectAll();
  }
  Populate(FoodView::standard);
  results_shown_ = false;
  ShowStatus();
}

void FoodListsWindow::ShowResults() {
  Populate(FoodView::standard);
  results_shown_ = true;
  ShowStatus();
}

void FoodListsWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  for (const ViewRow& row : kViews) SetColumnWidths(row.view);
}

void FoodListsWindow::SetColumnWidths(FoodView view) {
  FoodTable& table = TableOf(view);
  if (table.Model().rowCount() == 0) return;
  table.setColumnHidden(0, true);
  table.setColumnWidth(1, stack_->width() - kRestWidth);
  table.setColumnWidth(2, kUnitWidth);
  table.setColumnWidth(3, kAmountWidth);
  table.setColumnWidth(4, kAmountWidth);
}

}  // namespace kelvora
