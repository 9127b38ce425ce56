// A table of texts for a list view: headings, rows, and cells that are made only when they are
// drawn. Holds no cell itself; the row texts come from the function it was given, so a list of any
// length opens at once.
#pragma once

#include <functional>
#include <vector>

#include <QAbstractTableModel>
#include <QIcon>

#include "core/text.h"

namespace kelvora {

class TextTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  struct Column {
    Text heading;
    Qt::Alignment alignment = Qt::AlignLeft;
    Text tip{};  // of the heading; its own words without one
  };
  using CellText = std::function<Text(std::size_t row, std::size_t column)>;

  using QAbstractTableModel::QAbstractTableModel;

  // Takes the place of everything shown so far. `cell` is called for rows below `row_count` only,
  // and must stay valid until the next call.
  void Show(std::vector<Column> columns, std::size_t row_count, CellText cell);

  // The second line of the cells of one column, until the next Show; rows as for `cell`.
  using SecondLine = std::function<Text(std::size_t row)>;
  void ShowSecondLine(int column, SecondLine line);

  // An icon at the start of every cell of one column.
  void SetRowIcon(int column, const QIcon& icon);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  // Every row may be dragged; whether a view starts drags is the view's matter.
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::vector<Column> columns_;
  std::size_t row_count_ = 0;
  CellText cell_;
  int second_line_column_ = -1;
  SecondLine second_line_;
  int icon_column_ = -1;
  QIcon icon_;
};

}  // namespace kelvora
