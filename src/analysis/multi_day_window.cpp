#include "analysis/multi_day_window.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QMdiSubWindow>
#include <QPointer>

#include "analysis/chart_look_panel.h"
#include "core/program.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

// Keys, clicks and painting come in between.
constexpr int kSliceMilliseconds = 12;

}  // namespace

MultiDayWindow::MultiDayWindow(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      open_flag_(program.windows, program.windows.multi_day, this),
      multi_day_(std::make_shared<MultiDay>(program)) {
  program_.Guard("#F12-0", [this] {
    NameWidget(this, "KV_tb_meerdaags");
    body_ = new AnalysisBody(program_, multi_day_->Sheet(), this);
    Pic_grafiekbox_ = new TrendPanel(program_, body_);
    body_->AddPanel(Pic_grafiekbox_);
    connect(body_, &AnalysisBody::EntryChosen, this, &MultiDayWindow::ClickEntry);
    Interface_Draw();
    SetCaptions();
    ShowAll();
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &MultiDayWindow::Work);
    timer_.start(0);
  });
}

void MultiDayWindow::CloseWindow() {
  if (QMdiSubWindow* const frame = Frame()) frame->close();
}

void MultiDayWindow::closeEvent(QCloseEvent* event) {
  closed_ = true;
  timer_.stop();
  multi_day_->GiveUp();
  open_flag_.Clear();
  QWidget::closeEvent(event);
}

// A step may show a box, and what happens meanwhile may close the window or ask for more work.
void MultiDayWindow::Work() {
  if (working_ || closed_) return;
  working_ = true;
  const QPointer<MultiDayWindow> window(this);
  const std::shared_ptr<MultiDay> multi_day = multi_day_;
  QElapsedTimer clock;
  clock.start();
  bool more = true;
  while (more && clock.elapsed() < kSliceMilliseconds) {
    more = multi_day->Work();
    if (window == nullptr || closed_) return;
  }
  working_ = false;
  if (more) {
    ShowStage();
    timer_.start(0);
  } else {
    ShowAll();
    Teken_Grafiek();
  }
}

void MultiDayWindow::Refresh_Meerdaagsuittreksel() {
  multi_day_->Refresh_Meerdaagsuittreksel();
  Work();
}

void MultiDayWindow::SetCaptions() {
  body_->SetCaptions();
  Pic_grafiekbox_->SetWords(program_.texts);
  ShowStage();
}

void MultiDayWindow::Set_Taal() {
  multi_day_->Set_Taal();
  SetCaptions();
  ShowAll();
}

void MultiDayWindow::ShowStage() {
  setWindowTitle(ToQt(multi_day_->Title()));
  body_->ShowStage(multi_day_->StageText(), multi_day_->HowFar());
}

void MultiDayWindow::ShowAll() {
  ShowStage();
  body_->ShowBars();
  body_->ShowView();
  body_->Toolbar().Mark(AnalysisView::trend,
                        std::array{ChosenTimeLine(multi_day_->TijdlijnStand())});
}

void MultiDayWindow::Teken_Grafiek() {
  Pic_grafiekbox_->Show(multi_day_->Days().series, multi_day_->TijdlijnStand());
}

void MultiDayWindow::ClickEntry(int position) {
  const bool draws = multi_day_->Sheet().View() == AnalysisView::trend;
  multi_day_->ClickEntry(position);
  ShowAll();
  if (draws) Teken_Grafiek();
}

QMdiSubWindow* MultiDayWindow::Frame() const {
  return qobject_cast<QMdiSubWindow*>(parentWidget());
}

bool MultiDayWindow::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  if (event->type() == QEvent::ParentChange) Interface_Draw();
  return handled;
}

void MultiDayWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  multi_day_->Resize();
  body_->ShowPie();
  body_->ShowStatus();
}

void MultiDayWindow::Interface_Draw() {
  program_.Guard("#F12-3", [this] { HoldFrame(Frame(), kMultiDayLimits); });
}

}  // namespace kelvora
