// The first rows of a table, and which of its columns is which part of a food. For a table that the
// program knows the choice stands still.
#pragma once

#include <functional>
#include <vector>

#include <QCheckBox>
#include <QLabel>
#include <QTableView>

#include "core/program.h"
#include "food/import/table_source.h"
#include "platform/qt/choice_list.h"
#include "platform/qt/text_box.h"
#include "platform/qt/text_table_model.h"

namespace kelvora {

class ColumnsPanel : public QWidget {
  Q_OBJECT

 public:
  ColumnsPanel(Program& program, QWidget* parent);

  void Show(const SourceTable& table);
  void SetCaptions();
  // What is chosen now.
  [[nodiscard]] TableMapping Chosen() const;

 signals:
  void Changed();

 private:
  struct FieldRow {
    TableField field;
    QLabel* label;
    ChoiceList* column;
  };
  void ShowHeader();

  Program& program_;
  SourceTable table_;
  bool showing_ = false;
  TextTableModel* model_;
  QTableView* preview_;
  QLabel* lbl_name_;
  TextBox* txt_name_;
  QCheckBox* chk_header_;
  QCheckBox* chk_portion_;
  QCheckBox* chk_milligrams_;
  std::vector<FieldRow> fields_;
};

}  // namespace kelvora
