#include "food/row_menu_panel.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include "language/main_texts.h"
#include "language/own_texts.h"
#include "platform/qt/key_sequence.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

// The foods of this program on the clipboard, and where cut ones come from. Other programs take the
// plain text beside them.
constexpr const char* kFoodsFormat = "application/x-kelvora-food";
constexpr const char* kOriginFormat = "application/x-kelvora-food-origin";

struct MoveRow {
  DayPart target;
  const char* name;
  OwnText caption;
  std::string_view icon;
  BoundKey key;
};
constexpr std::array kMoves = {
    MoveRow{DayPart::morning, "mnu_move_1", OwnText::move_to_morning, "morning",
            BoundKey::move_to_morning},
    MoveRow{DayPart::afternoon, "mnu_move_2", OwnText::move_to_afternoon, "afternoon",
            BoundKey::move_to_afternoon},
    MoveRow{DayPart::evening, "mnu_move_3", OwnText::move_to_evening, "evening",
            BoundKey::move_to_evening},
};

ClipboardFoods FoodsOnClipboard() {
  const QMimeData* const data = QApplication::clipboard()->mimeData();
  if (data == nullptr) return {};
  const auto bytes = [data](const char* format) {
    return data->data(QLatin1String(format)).toStdString();
  };
  if (data->hasFormat(QLatin1String(kFoodsFormat))) {
    return {bytes(kFoodsFormat), bytes(kOriginFormat)};
  }
  return TextHolds(data->text()) ? FoodsInPlainText(FromQt(data->text())) : ClipboardFoods();
}

void PutOnClipboard(const FoodsToClipboard& what) {
  auto* const data = new QMimeData;  // the clipboard owns it
  data->setText(ToQtWhole(what.table));
  data->setData(QLatin1String(kFoodsFormat), QByteArray::fromStdString(what.foods.payload));
  data->setData(QLatin1String(kOriginFormat), QByteArray::fromStdString(what.foods.origin));
  QApplication::clipboard()->setMimeData(data);
}

}  // namespace

RowMenu::RowMenu(Program& program, DayPart part, std::function<TextList()> selected,
                 std::function<std::vector<std::size_t>()> rows, QWidget* list)
    : QMenu(list),
      program_(program),
      part_(part),
      selected_(std::move(selected)),
      rows_(std::move(rows)),
      list_(list) {
  NameWidget(this, "row_menu");
  amount_ = AddEntry("mnu_amount", {}, BoundKey::other_amount, [this] { emit AmountAsked(); });
  // Enter on the list is that of the details, by whichever of its keys.
  details_ = AddEntry("mnu_details", "item-info", std::nullopt, [this] { emit DetailsAsked(); });
  take_out_ = AddEntry("mnu_take_out", "item-delete", BoundKey::take_portion_out,
                       [this] { TakeOutOfDay(program_, part_, selected_()); });
  addSeparator();
  for (const MoveRow& row : kMoves) {
    if (row.target == part_) continue;
    moves_[static_cast<std::size_t>(row.target)] = AddEntry(
        row.name, row.icon, row.key,
        [this, target = row.target] { MoveToDayPart(program_, part_, target, selected_()); });
  }
  cut_ = AddEntry("mnu_cut", {}, BoundKey::cut, [this] { Cut(); });
  copy_ = AddEntry("mnu_copy", {}, BoundKey::copy, [this] { Copy(); });
  paste_ = AddEntry("mnu_paste", {}, BoundKey::paste, [this] { Paste(); });
  addSeparator();
  favourite_ = AddEntry("mnu_favourite", "item-favourite", BoundKey::add_to_favourites,
                        [this] { AddToFavourites(program_, selected_()); });
  addSeparator();
  take_over_ = AddEntry("mnu_take_over", {}, BoundKey::take_over, [this] {
    if (program_.windows.core != nullptr) program_.windows.core->OpenTakeOver(part_, {});
  });
  addSeparator();
  undo_ = AddEntry("mnu_undo", {}, BoundKey::undo, [this] { UndoFoods(program_); });
  redo_ = AddEntry("mnu_redo", {}, BoundKey::redo, [this] { RedoFoods(program_); });
  // The shortcuts ask nobody whether something is selected; without a row they do nothing.
  connect(this, &QMenu::aboutToHide, this, [this] {
    EnableForRows(true);
    for (QAction* const action : {paste_, undo_, redo_}) action->setEnabled(true);
  });
}

template <class Run>
QAction* RowMenu::AddEntry(const char* name, std::string_view icon, std::optional<BoundKey> key,
                           Run run) {
  QAction* const action = addAction(QString());
  if (!icon.empty()) action->setIcon(IconNamed(icon));
  action->setObjectName(QLatin1String(name));
  if (key) action->setShortcut(SequenceOf(*key));
  action->setShortcutContext(Qt::WidgetShortcut);
  list_->addAction(action);
  connect(action, &QAction::triggered, this, run);
  return action;
}

void RowMenu::AddButtons(const QList<QAction*>& buttons) {
  buttons_ = buttons;
  insertActions(actions().constFirst(), buttons);
}

void RowMenu::SetTexts(std::string_view title) {
  const auto set = [this](QAction* action, OwnText id) {
    SetActionTexts(action, OwnTextOf(program_.texts, id), {});
  };
  for (const MoveRow& row : kMoves) {
    if (row.target != part_) set(moves_[static_cast<std::size_t>(row.target)], row.caption);
  }
  set(take_out_, OwnText::take_portion_out);
  set(cut_, OwnText::cut_foods);
  set(copy_, OwnText::copy_foods);
  set(paste_, OwnText::paste_foods);
  set(favourite_, OwnText::add_to_favourites);
  set(take_over_, OwnText::take_over_from);
  set(undo_, OwnText::undo_foods);
  set(redo_, OwnText::redo_foods);
  set(amount_, OwnText::other_amount);
  SetActionTexts(details_, program_.texts[main_text::kFoodItemDetails], {});
  setAccessibleName(ToQt(title));
}

void RowMenu::ShowAt(const QPoint& place) {
  EnableForRows(!selected_().Empty());
  paste_->setEnabled(CanPaste(program_, FoodsOnClipboard()));
  undo_->setEnabled(program_.day.undo.CanUndo());
  redo_->setEnabled(program_.day.undo.CanRedo());
  popup(place);
}

void RowMenu::EnableForRows(bool any) {
  for (QAction* action : buttons_ + QList<QAction*>{details_, amount_, take_out_, cut_, copy_,
                                                    favourite_, moves_[0], moves_[1], moves_[2]}) {
    if (action != nullptr) action->setEnabled(any);
  }
}

void RowMenu::Cut() {
  const auto rows = rows_();
  if (!rows.empty()) PutOnClipboard(CutFromDayPart(program_, part_, rows));
}

void RowMenu::Copy() {
  const auto rows = rows_();
  if (!rows.empty()) PutOnClipboard(CopyFromDayPart(program_, part_, rows));
}

void RowMenu::Paste() {
  const ClipboardFoods foods = FoodsOnClipboard();
  const bool pasted = PasteOnDayPart(program_, part_, foods);
  // What was cut is pasted once.
  if (pasted && !foods.origin.empty()) QApplication::clipboard()->clear();
}

}  // namespace kelvora
