// `LV_uittreksel`: the list of merged consumptions. It draws the rows that it is given and tells
// which heading was clicked.
#pragma once

#include <memory>
#include <optional>
#include <set>

#include <QTableView>

#include "analysis/summary_list.h"
#include "platform/qt/text_table_model.h"

namespace kelvora {

class SummaryTable : public QTableView {
  Q_OBJECT

 public:
  explicit SummaryTable(QWidget* parent);

  // `order` is how the rows stand, if a heading was clicked; the rows that are selected stay so
  // then.
  void Show(const std::array<Text, kSummaryColumns>& headings,
            std::shared_ptr<const SummaryRows> rows, const std::optional<ColumnOrder>& order);

 signals:
  void HeadingClicked(kelvora::SummaryColumn column);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Zet_Kolombreedtes();
  [[nodiscard]] int WidthOfNumbers(std::size_t column) const;
  [[nodiscard]] std::set<Text> SelectedKeys() const;
  void SelectKeys(const std::set<Text>& keys);
  void ShowOrder(const std::optional<ColumnOrder>& order);

  TextTableModel model_;
  std::shared_ptr<const SummaryRows> rows_;
};

}  // namespace kelvora
