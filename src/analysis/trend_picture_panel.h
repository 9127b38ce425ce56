// `Pic_Grafiek`: the trend chart, and what its days say. The pointer over it tells the nearest day
// in a tool tip; with the focus on it Left and Right walk the days, Page Up and Page Down a tenth
// of them, Home and End go to the first and the last, Escape ends it. What the day says is its
// accessible description.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "analysis/segment_picture_panel.h"

namespace kelvora {

class TrendPicture : public SegmentPicture {
  Q_OBJECT

 public:
  explicit TrendPicture(QWidget* parent);

  // What a day says, line by line.
  std::function<QStringList(std::size_t day)> words_of;
  // Where the days stand, in twips. The day that is pointed out stays, if there still is one.
  void SetDays(std::vector<float> places);
  // The description while no day is pointed out.
  void SetDescription(const QString& words);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void PointOutUnder(QPoint pointer);
  void PointOut(std::size_t day, QPoint tip_place);
  void EndPointing();
  void Describe();
  [[nodiscard]] std::optional<std::size_t> DayOfKey(int key) const;

  std::vector<float> places_;
  std::optional<std::size_t> day_;  // the one that is pointed out
  bool by_pointer_ = false;
  QString description_;
};

}  // namespace kelvora
