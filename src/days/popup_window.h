// KV_popup: the splash screen, and the About window. The splash holds up nothing: it is not modal,
// never takes the focus, and ends by its own timer. What they show stands in popup.h.
#pragma once

#include <array>

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "days/popup.h"

class QGridLayout;
class QHBoxLayout;

namespace kelvora {

class PopupWindow : public QDialog {
  Q_OBJECT

 public:
  PopupWindow(Program& program, std::string_view PopupMode, QWidget* parent);

  void Set_Taal();
  // Shows the splash and starts its timers.
  void ShowSplash();
  // Escape and the like do nothing to the splash.
  void reject() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  struct LoadPicture {
    QLabel* dark;
    QLabel* lit;
  };

  QHBoxLayout* BuildHeading();
  QHBoxLayout* BuildLoadPictures();
  QGridLayout* BuildLines();
  QWidget* BuildThanks();
  void Tick();
  void EndSplash();

  Program& program_;
  bool about_;
  int counter_ = 0;
  QTimer Timer1_, Timer2_;
  QLabel* lbl_type_;
  QLabel* lbl_txt1_;
  QLabel* lbl_nfo_1_;
  QLabel* lbl_txt6_;
  QLabel* lbl_nfo_4_;
  QLabel* loader_;
  QProgressBar* ProgressBar_;
  std::array<LoadPicture, kLoadPictures> Loadpic_{};
  QWidget* Pic_dankwoord_;
  QPushButton* cmd_annuleer_;
};

}  // namespace kelvora
