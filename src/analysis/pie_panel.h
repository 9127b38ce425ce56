// A picture of filled sectors, each with its outline: the one primitive that the pie charts need.
// It draws what it is given and knows nothing of foods.
#pragma once

#include <vector>

#include <QWidget>

#include "analysis/day_charts.h"

namespace kelvora {

struct FilledSector {
  Sector sector;  // in twips
  Colour fill;
};

class PiePanel : public QWidget {
  Q_OBJECT

 public:
  PiePanel(QWidget* parent, const QString& object_name);

  // In this order, over each other; none for an empty picture.
  void Show(std::vector<FilledSector> sectors);
  // What a sector must be worked out for.
  [[nodiscard]] PictureSize Picture() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<FilledSector> sectors_;
};

}  // namespace kelvora
