// Draws the cells of a list, and tells the whole text of one that is cut as its tip. A cell that
// shows all it has leaves the pointer to the tip of the list itself. A cell may have a second line,
// in grey, where its row has the height for it.
#pragma once

#include <QStyledItemDelegate>

namespace kelvora {

// The role of the second line of a cell.
inline constexpr int kSecondLineRole = Qt::UserRole + 1;

class CellTips : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

 protected:
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 private:
  [[nodiscard]] bool IsCut(const QStyleOptionViewItem& option, const QModelIndex& index) const;
};

// The tip that shows a text as it is, whatever it looks like, in ten lines at the most.
[[nodiscard]] QString PlainTip(const QString& text);

}  // namespace kelvora
