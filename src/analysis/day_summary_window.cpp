#include "analysis/day_summary_window.h"

#include <algorithm>

#include <QEvent>
#include <QMdiSubWindow>
#include <QPointer>
#include <QVBoxLayout>

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
constexpr int kStatusMargin = 2;  // above and below the letters of the status bar

}  // namespace

DaySummaryWindow::DaySummaryWindow(Program& program, QWidget* parent)
    : QWidget(parent),
      program_(program),
      open_flag_(program.windows, program.windows.day_summary, this),
      summary_(std::make_shared<DaySummary>(program)) {
  NameWidget(this, "KV_tb_daguittreksel");
  Toolbar_ = new AnalysisToolbar(DaySummaryButtons(), this);
  BuildPanels();
  BuildStatusBar();
  LayOut();
  ConnectAll();
  Toolbar_->EnableMenu(std::nullopt);
  SetCaptions();
  Interface_Draw();
  ShowView();
  Refresh_Totalen(program_);
}

void DaySummaryWindow::BuildPanels() {
  panels_ = new QStackedWidget(this);
  NameWidget(panels_, "panels");
  Pic_Behoefte_ = new RequirementsPanel(panels_);
  Pic_rescale_ = new QToolButton(Pic_Behoefte_);
  NameWidget(Pic_rescale_, "Pic_rescale");
  Pic_rescale_->setAutoRaise(true);
  Pic_rescale_->setFocusPolicy(Qt::TabFocus);
  Pic_rescale_->setIconSize({kRescaleIcon, kRescaleIcon});
  Pic_rescale_->resize(kRescaleIcon + 4, kRescaleIcon + 4);
  Pic_Behoefte_->SetCorner(Pic_rescale_);
  Pic_top5_ = new Top5Panel(
      [this](const Wedge& wedge, const PictureSize& picture) {
        return Teken_Taartpunt(program_, wedge, picture);
      },
      panels_);
  Pic_uittreksel_ = new QWidget(panels_);
  NameWidget(Pic_uittreksel_, "Pic_uittreksel");
  LV_uittreksel_ = new SummaryTable(Pic_uittreksel_);
  auto* const list = new QVBoxLayout(Pic_uittreksel_);
  list->setContentsMargins(0, 0, 0, 0);
  list->addWidget(LV_uittreksel_);
  Pic_BMI_ = new BmiPanel(panels_);
  for (QWidget* const panel :
       std::initializer_list<QWidget*>{Pic_Behoefte_, Pic_top5_, Pic_uittreksel_, Pic_BMI_}) {
    panels_->addWidget(panel);
  }
}

void DaySummaryWindow::BuildStatusBar() {
  StatusBar_ = new QStatusBar(this);
  NameWidget(StatusBar_, "StatusBar");
  StatusBar_->setSizeGripEnabled(false);
  for (std::size_t i = 0; i < status_.size(); ++i) {
    status_[i] = NewLabel(StatusBar_, QStringLiteral("StatusBar_%1").arg(i + 1));
    status_[i]->setIndent(5);
  }
  StatusBar_->setFixedHeight(StatusBar_->fontMetrics().height() + 2 * kStatusMargin);
}

void DaySummaryWindow::LayOut() {
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(Toolbar_);
  layout->addWidget(panels_, 1);
  layout->addWidget(StatusBar_);
}

void DaySummaryWindow::ConnectAll() {
  connect(Toolbar_, &AnalysisToolbar::ViewChosen, this, [this](AnalysisView view) {
    summary_->ClickButton(view);
    ShowView();
  });
  connect(Toolbar_, &AnalysisToolbar::EntryChosen, this, [this](int position) {
    const bool shown = Survives([&](DaySummary& summary) { summary.ClickEntry(position); });
    if (shown) ShowView();
  });
  connect(LV_uittreksel_, &SummaryTable::HeadingClicked, this, [this](SummaryColumn column) {
    summary_->ClickColumn(column);
    ShowRows();
  });
  connect(Pic_rescale_, &QToolButton::clicked, this, &DaySummaryWindow::Rescale);
  connect(Pic_Behoefte_, &RequirementsPanel::Resized, this, &DaySummaryWindow::ShowBars);
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
  Toolbar_->Set_Taal(texts);
  Toolbar_->setAccessibleName(ToQt(texts[kTitle]));
  Pic_Behoefte_->Set_Taal(texts, AnalysisWindow::day_summary);
  Pic_Behoefte_->setAccessibleName(ToQt(texts[kTipRequirements]));
  LV_uittreksel_->setAccessibleName(ToQt(texts[kTipConsumptions]));
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
  ShowBars();
  ShowRows();
  ShowCharts();
  ShowStatus();
}

void DaySummaryWindow::Refresh_Daguittreksel() {
  if (!Survives([](DaySummary& summary) { summary.Refresh_Daguittreksel(); })) return;
  // The other captions only change with the language or the size.
  setWindowTitle(ToQt(summary_->Title()));
  ShowRows();
  ShowCharts();
  ShowStatus();
}

void DaySummaryWindow::Maak_Voedingsbehoefte(const DayTotals& totals) {
  summary_->Maak_Voedingsbehoefte(totals);
  ShowBars();
}

// The texts say how wide their boxes are, and the boxes how long the bars.
void DaySummaryWindow::ShowBars() {
  summary_->ResizeBars(Pic_Behoefte_->Widths());
  Pic_Behoefte_->Show(summary_->Bars());
  const PanelWidths needed = Pic_Behoefte_->Widths();
  if (summary_->ResizeBars(needed)) Pic_Behoefte_->Show(summary_->Bars());
}

// Every drop comes this way: what nobody sees is drawn when its view is chosen.
void DaySummaryWindow::ShowRows() {
  if (panels_->currentWidget() != Pic_uittreksel_) return;
  LV_uittreksel_->Show(SummaryHeadings(program_.texts, AnalysisWindow::day_summary),
                       summary_->Rows(), summary_->ShownOrder());
}

void DaySummaryWindow::ShowCharts() {
  if (panels_->currentWidget() == Pic_top5_) Pic_top5_->Show(summary_->Pie());
  if (panels_->currentWidget() == Pic_BMI_) Pic_BMI_->Show(summary_->Bmi());
}

void DaySummaryWindow::ShowView() {
  Toolbar_->Press(summary_->View());
  Toolbar_->EnableMenu(summary_->EnabledMenu());
  Toolbar_->Mark(AnalysisView::requirements, ChosenRequirements(summary_->Requirement()));
  Toolbar_->Mark(AnalysisView::top5, std::array{ChosenNutrient(program_.analysis)});
  panels_->setCurrentWidget(panels_->findChild<QWidget*>(ToQt(summary_->ButtonDown().panel)));
  ShowRows();
  ShowCharts();
  ShowStatus();
}

void DaySummaryWindow::ShowStatus() {
  const auto& texts = summary_->Status();
  for (std::size_t i = 0; i < texts.size(); ++i) status_[i]->setText(ToQt(texts[i]));
  LayStatusBar();
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
  ShowView();
  Refresh_Totalen(program_);
  Refresh_Daguittreksel();
}

void DaySummaryWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  program_.Guard("#F9-13", [this] { LayStatusBar(); });
}

// Words that are too long for the second panel reach into the third, which is empty.
void DaySummaryWindow::LayStatusBar() {
  const auto widths = SummaryPanelWidths(TwipsOfPixels(width()));
  int left = 0;
  for (std::size_t i = 0; i < status_.size(); ++i) {
    const int needed = i == 2 ? 0 : status_[i]->sizeHint().width();
    const int panel_width = std::max(PixelsOfTwips(widths[i]), needed);
    status_[i]->setGeometry(left, 0, panel_width, StatusBar_->height());
    left += panel_width;
  }
}

bool DaySummaryWindow::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  if (event->type() == QEvent::ParentChange) Interface_Draw();
  return handled;
}

void DaySummaryWindow::Interface_Draw() {
  program_.Guard("#F9-3", [this] {
    const Schermstand stand = summary_->Stand();
    const bool normal = stand == Schermstand::normal;
    Toolbar_->setVisible(normal);
    StatusBar_->setVisible(normal);
    Pic_Behoefte_->SetStand(stand);
    QMdiSubWindow* const frame = Frame();
    if (frame == nullptr) return;
    const SizeLimits& limits = LimitsOf(stand);
    frame->setMinimumSize(PixelsCovering(limits.least_width), PixelsCovering(limits.least_height));
    frame->setMaximumSize(PixelsOfTwips(limits.most_width), PixelsOfTwips(limits.most_height));
  });
}

}  // namespace kelvora
