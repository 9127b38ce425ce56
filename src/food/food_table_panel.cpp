#include "food/food_table_panel.h"

#include <algorithm>

#include <QDrag>
#include <QDropEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QToolTip>
#include <QVBoxLayout>

#include "food/drag_text.h"
#include "platform/qt/cell_tips.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {

FoodTable::FoodTable(const char* object_name, QWidget* parent) : QTableView(parent) {
  NameWidget(this, object_name);
  setModel(&model_);
  MakeRowList(this);
  setDragEnabled(true);
  setAcceptDrops(true);
  setDragDropMode(QAbstractItemView::DragDrop);
  setDropIndicatorShown(false);
  horizontalHeader()->setMinimumSectionSize(0);
  BuildEmptyHint();
  connect(this, &QAbstractItemView::clicked, this,
          [this](const QModelIndex& index) { emit RowClicked(index.row()); });
}

// By the ranges of the selection: a list of a million rows may be selected as a whole.
std::vector<std::size_t> FoodTable::SelectedRows() const {
  std::vector<std::size_t> rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      rows.push_back(static_cast<std::size_t>(row));
    }
  }
  std::ranges::sort(rows);
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

std::optional<std::size_t> FoodTable::RowInFocus() const {
  const int current = currentIndex().row();
  if (current >= 0 && selectionModel()->isRowSelected(current)) {
    return static_cast<std::size_t>(current);
  }
  const auto rows = SelectedRows();
  return rows.empty() ? std::nullopt : std::optional(rows.front());
}

void FoodTable::SelectRows(const std::vector<std::size_t>& rows, std::size_t focus) {
  QItemSelection selection;
  const int last_column = model_.columnCount() - 1;
  for (std::size_t first = 0, end = 0; first < rows.size(); first = end) {
    for (end = first + 1; end < rows.size() && rows[end] == rows[end - 1] + 1;) ++end;
    selection.append({model_.index(static_cast<int>(rows[first]), 0),
                      model_.index(static_cast<int>(rows[end - 1]), last_column)});
  }
  const QModelIndex index = model_.index(static_cast<int>(focus), 1);
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  scrollTo(index);
}

void FoodTable::BuildEmptyHint() {
  constexpr int kSide = 12, kTop = 3;
  empty_hint_ = new HintLabel(viewport(), QStringLiteral("empty_hint"));
  empty_hint_->setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* const layout = new QVBoxLayout(viewport());
  layout->setContentsMargins(kSide, kTop, kSide, 0);
  layout->setSizeConstraint(QLayout::SetNoConstraint);
  layout->addWidget(empty_hint_);
  connect(&model_, &QAbstractItemModel::modelReset, this,
          [this] { empty_hint_->setVisible(model_.rowCount() == 0); });
}

void FoodTable::SetEmptyText(const QString& text, Qt::Alignment place) {
  empty_hint_->setText(text);
  empty_hint_->setAlignment(place);
}

void FoodTable::SelectRow(int row) {
  // The first column is hidden, and from a hidden cell the arrow keys lead nowhere.
  const QModelIndex index = model_.index(row, 1);
  selectionModel()->setCurrentIndex(
      index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  scrollTo(index);
}

void FoodTable::startDrag(Qt::DropActions) {
  const Text payload = drag_payload ? drag_payload(SelectedRows()) : Text();
  if (payload.empty()) return;
  auto* const data = new QMimeData;  // the drag owns it
  data->setText(ToQtWhole(payload));
  auto* const drag = new QDrag(this);  // the event loop of the drag owns it
  drag->setMimeData(data);
  drag->setPixmap(IconNamed("food-row").pixmap(24, 24));
  drag->exec(Qt::CopyAction);
}

void FoodTable::dragEnterEvent(QDragEnterEvent* event) {
  if (!Takes(event->mimeData())) return event->ignore();
  event->acceptProposedAction();
  SetDropLight(true);
}

bool FoodTable::Takes(const QMimeData* data) const {
  // What text can't hold is no drag of this program, and would become something else here.
  if (!drop || !data->hasText() || !TextHolds(data->text())) return false;
  const Text payload = FromQt(data->text());
  return takes ? takes(payload) : IsDragText(payload);
}

// What is dragged was looked at when it came over the list.
void FoodTable::dragMoveEvent(QDragMoveEvent* event) {
  if (!drop_light_) return event->ignore();
  event->acceptProposedAction();
}

void FoodTable::dragLeaveEvent(QDragLeaveEvent*) {
  SetDropLight(false);
}

void FoodTable::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  TakeDrop(event->mimeData());
}

void FoodTable::TakeDrop(const QMimeData* data) {
  SetDropLight(false);
  if (drop) drop(FromQt(data->text()));
}

bool FoodTable::GoToFirstRow() {
  if (model_.rowCount() == 0) return false;
  setFocus();
  SelectRow(0);
  return true;
}

void FoodTable::keyPressEvent(QKeyEvent* event) {
  // Plus and minus of the number pad and of the main keys alike; the latter may need Shift.
  const bool commands = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  if (event->key() == Qt::Key_Delete) return emit DeletePressed();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return emit EnterPressed();
  if (!commands && event->key() == Qt::Key_Plus) return emit PlusPressed();
  if (!commands && event->key() == Qt::Key_Minus) return emit MinusPressed();
  if (event->key() == Qt::Key_Escape && on_escape) return on_escape();
  const QString typed = event->text();
  const bool digit = typed.size() == 1 && typed.front() >= u'0' && typed.front() <= u'9';
  if (!commands && digit && type_amount) return type_amount(typed);
  QTableView::keyPressEvent(event);
  // The focus makes the first row the current one without selecting it, and where there is no other
  // row the arrow keys lead nowhere.
  const bool leads = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (leads && currentIndex().isValid() && !selectionModel()->hasSelection()) {
    SelectRow(currentIndex().row());
  }
}

void FoodTable::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (!drop_light_) return;
  QPainter painter(viewport());
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
}

// What an empty list has no room to say is its tip.
bool FoodTable::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip || empty_hint_->isHidden() || !empty_hint_->IsCut()) {
    return QTableView::viewportEvent(event);
  }
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), PlainTip(empty_hint_->text()),
                     viewport());
  return true;
}

void FoodTable::SetDropLight(bool on) {
  drop_light_ = on;
  viewport()->update();
}

}  // namespace kelvora
