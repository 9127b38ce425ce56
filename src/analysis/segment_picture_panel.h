// A picture of the line segments of a chart on the chart's own ground: grey day lines first, each
// column of pixels once, and the series over them in their order.
//
// What lies on the right and the bottom edge shows in the last column and row of pixels. The
// drawing persists: it is made once for the segments, the size and the scale of the screen.
#pragma once

#include <vector>

#include <QPixmap>
#include <QWidget>

#include "analysis/trend.h"

namespace kelvora {

class SegmentPicture : public QWidget {
  Q_OBJECT

 public:
  SegmentPicture(QWidget* parent, const char* object_name);

  // Draws these from now on; they outlive the picture, and after each change this is called again.
  void Show(const std::vector<TrendSegment>& segments);
  // What segments must be worked out for.
  [[nodiscard]] TrendSize Size() const;

 signals:
  void Resized();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  const std::vector<TrendSegment>* segments_ = nullptr;
  QPixmap drawing_;  // null while it has to be made anew
};

}  // namespace kelvora
