#include "analysis/day_summary_window.h"

#include <QEvent>
#include <QMdiSubWindow>
#include <QPointer>

#include "analysis/chart_look_panel.h"
#include "core/program.h"
#include "language/day_summary_texts.h"
#include "nutrition/totals.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace day_summary_text;

constexpr int kRescaleIcon = 16;

}  // namespace

DaySummaryWindow::DaySummaryWindow(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      open_flag_(program.windows, program.windows.day_summary, this),
      summary_(std::make_shared<DaySummary>(program)) {
  NameWidget(this, "KV_tb_daguittreksel");
  body_ = new AnalysisBody(program, summary_->Sheet(), this);
  Pic_BMI_ = new BmiPanel(body_);
  body_->AddPanel(Pic_BMI_);
  BuildRescale();
  connect(body_, &AnalysisBody::EntryChosen, this, &DaySummaryWindow::ClickEntry);
  connect(body_, &AnalysisBody::ViewShown, this, &DaySummaryWindow::ShowBmi);
  SetCaptions();
  Interface_Draw();
  body_->ShowView();
  Refresh_Totalen(program_);
}

void DaySummaryWindow::BuildRescale() {
  Pic_rescale_ = new QToolButton(&body_->Pic_Behoefte());
  NameWidget(Pic_rescale_, "Pic_rescale");
  Pic_rescale_->setAutoRaise(true);
  Pic_rescale_->setFocusPolicy(Qt::TabFocus);
  Pic_rescale_->setIconSize({kRescaleIcon, kRescaleIcon});
  Pic_rescale_->resize(kRescaleIcon + 4, kRescaleIcon + 4);
  body_->Pic_Behoefte().SetCorner(Pic_rescale_);
  connect(Pic_rescale_, &QToolButton::clicked, this, &DaySummaryWindow::Rescale);
}

void DaySummaryWindow::CloseWindow() {
  if (QMdiSubWindow* const frame = Frame()) frame->close();
}

void DaySummaryWindow::closeEvent(QCloseEvent* event) {
  open_flag_.Clear();
  QWidget::closeEvent(event);
}

void DaySummaryWindow::SetCaptions() {
  const TextTables& texts = program_.texts;
  setWindowTitle(ToQt(summary_->Title()));
  body_->SetCaptions();
  Pic_BMI_->SetCaptions(texts);
  const bool small = summary_->Stand() == Schermstand::small;
  const QString tip = ToQt(texts[small ? kTipNormalSize : kTipSmallSize]);
  Pic_rescale_->setToolTip(tip);
  Pic_rescale_->setAccessibleName(tip);
  Pic_rescale_->setIcon(IconNamed(small ? "window-normal" : "window-small"));
}

// A long day lets events run while it is sorted, and they may close the window.
bool DaySummaryWindow::Survives(const std::function<void(DaySummary&)>& work) {
  const QPointer<DaySummaryWindow> window(this);
  const std::shared_ptr<DaySummary> summary = summary_;
  work(*summary);
  return window != nullptr;
}

void DaySummaryWindow::Set_Taal() {
  if (!Survives([](DaySummary& summary) { summary.Set_Taal(); })) return;
  SetCaptions();
  body_->ShowBars();
  body_->ShowRows();
  body_->ShowPie();
  ShowBmi();
  body_->ShowStatus();
}

void DaySummaryWindow::Refresh_Daguittreksel() {
  if (!Survives([](DaySummary& summary) { summary.Refresh_Daguittreksel(); })) return;
  // The other captions only change with the language or the size.
  setWindowTitle(ToQt(summary_->Title()));
  body_->ShowRows();
  body_->ShowPie();
  ShowBmi();
  body_->ShowStatus();
}

void DaySummaryWindow::Maak_Voedingsbehoefte(const DayTotals& totals) {
  summary_->Sheet().Maak_Voedingsbehoefte(totals);
  body_->ShowBars();
}

void DaySummaryWindow::ClickEntry(int position) {
  if (Survives([&](DaySummary& summary) { summary.ClickEntry(position); })) body_->ShowView();
}

void DaySummaryWindow::ShowBmi() {
  if (body_->Shows(Pic_BMI_)) Pic_BMI_->Show(summary_->Bmi());
}

QMdiSubWindow* DaySummaryWindow::Frame() const {
  return qobject_cast<QMdiSubWindow*>(parentWidget());
}

void DaySummaryWindow::Rescale() {
  QMdiSubWindow* const frame = Frame();
  if (frame == nullptr) return;
  if (frame->isMaximized()) frame->showNormal();
  const QRect place = frame->geometry();
  const WindowRecord rescaled =
      summary_->ClickRescale({TwipsOfPixels(place.width()), TwipsOfPixels(place.height()),
                              TwipsOfPixels(place.x()), TwipsOfPixels(place.y())});
  Interface_Draw();
  // To the nearest pixel, so that a window that goes down and up again comes back to its place.
  frame->setGeometry(NearestPixel(rescaled.left), NearestPixel(rescaled.top),
                     NearestPixel(rescaled.width), NearestPixel(rescaled.height));
  SetCaptions();
  body_->ShowView();
  Refresh_Totalen(program_);
  Refresh_Daguittreksel();
}

bool DaySummaryWindow::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  if (event->type() == QEvent::ParentChange) Interface_Draw();
  return handled;
}

void DaySummaryWindow::Interface_Draw() {
  program_.Guard("#F9-3", [this] {
    const Schermstand stand = summary_->Stand();
    body_->ShowFrame(stand == Schermstand::normal);
    body_->Pic_Behoefte().SetStand(stand);
    HoldFrame(Frame(), LimitsOf(stand));
  });
}

}  // namespace kelvora
