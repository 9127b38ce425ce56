#include "analysis/analysis_body_panel.h"

#include <algorithm>

#include <QMdiSubWindow>
#include <QVBoxLayout>

#include "analysis/summary_size.h"
#include "language/day_summary_texts.h"
#include "language/main_texts.h"
#include "language/own_texts.h"
#include "language/trend_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr int kStatusMargin = 2;  // above and below the letters of the status bar
constexpr int kStatusIndent = 5;
constexpr int kProgressWidth = 120;
constexpr int kProgressSteps = 1000;

// The names of what has no caption.
struct Names {
  TextId toolbar, requirements, consumptions;
};
constexpr std::array kNames = {
    Names{day_summary_text::kTitle, day_summary_text::kTipRequirements,
          day_summary_text::kTipConsumptions},
    Names{trend_text::kDescriptionToolbar, trend_text::kDescriptionRequirements,
          trend_text::kDescriptionConsumptions},
};

}  // namespace

void HoldFrame(QMdiSubWindow* frame, const SizeLimits& limits) {
  if (frame == nullptr) return;
  frame->setMinimumSize(PixelsCovering(limits.least_width), PixelsCovering(limits.least_height));
  frame->setMaximumSize(PixelsOfTwips(limits.most_width), PixelsOfTwips(limits.most_height));
}

AnalysisBody::AnalysisBody(Program& program, AnalysisSheet& sheet, QWidget* window)
    : QWidget(window), program_(program), sheet_(sheet) {
  NameWidget(this, "body");
  Toolbar_ = new AnalysisToolbar(ButtonsOf(sheet.Window()), this);
  BuildPanels();
  BuildStatusBar();
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(Toolbar_);
  layout->addWidget(panels_, 1);
  layout->addWidget(StatusBar_);
  auto* const filling = new QVBoxLayout(window);
  filling->setContentsMargins(0, 0, 0, 0);
  filling->addWidget(this);
  ConnectAll();
  Toolbar_->EnableMenu(std::nullopt);
}

void AnalysisBody::BuildPanels() {
  panels_ = new QStackedWidget(this);
  NameWidget(panels_, "panels");
  Pic_Behoefte_ = new RequirementsPanel(panels_);
  Pic_top5_ = new Top5Panel(
      [this](const Wedge& wedge, const PictureSize& picture) {
        return Teken_Taartpunt(program_, sheet_.Window(), wedge, picture);
      },
      panels_);
  Pic_uittreksel_ = new QWidget(panels_);
  NameWidget(Pic_uittreksel_, "Pic_uittreksel");
  LV_uittreksel_ = new SummaryTable(Pic_uittreksel_);
  auto* const list = new QVBoxLayout(Pic_uittreksel_);
  list->setContentsMargins(0, 0, 0, 0);
  list->addWidget(LV_uittreksel_);
  for (QWidget* const panel :
       std::initializer_list<QWidget*>{Pic_Behoefte_, Pic_top5_, Pic_uittreksel_}) {
    AddPanel(panel);
  }
}

void AnalysisBody::AddPanel(QWidget* panel) {
  panels_->addWidget(panel);
}

void AnalysisBody::BuildStatusBar() {
  StatusBar_ = new QStatusBar(this);
  NameWidget(StatusBar_, "StatusBar");
  StatusBar_->setSizeGripEnabled(false);
  for (std::size_t i = 0; i < status_.size(); ++i) {
    status_[i] = new LongLabel(StatusBar_, QStringLiteral("StatusBar_%1").arg(i + 1));
    status_[i]->setContentsMargins(kStatusIndent, 0, kStatusIndent, 0);
  }
  const int height = StatusBar_->fontMetrics().height() + 2 * kStatusMargin;
  StatusBar_->setFixedHeight(height);
  if (sheet_.Window() == AnalysisWindow::day_summary) return;
  ProgressBar_ = new QProgressBar(StatusBar_);
  NameWidget(ProgressBar_, "ProgressBar");
  ProgressBar_->setRange(0, kProgressSteps);
  ProgressBar_->setTextVisible(false);
  ProgressBar_->resize(kProgressWidth, height - 2 * kStatusMargin);
  ProgressBar_->hide();
}

void AnalysisBody::ConnectAll() {
  connect(Toolbar_, &AnalysisToolbar::ViewChosen, this, [this](AnalysisView view) {
    sheet_.ClickButton(view);
    ShowView();
  });
  connect(Toolbar_, &AnalysisToolbar::EntryChosen, this, &AnalysisBody::EntryChosen);
  connect(LV_uittreksel_, &SummaryTable::HeadingClicked, this, [this](SummaryColumn column) {
    sheet_.ClickColumn(column);
    ShowRows();
  });
  // `Plaats_Balken`: the bars follow the panel.
  connect(Pic_Behoefte_, &RequirementsPanel::Resized, this, [this] {
    program_.Guard(CodeOf(sheet_.Window(), "#F9-14", "#F12-14"), [this] { ShowBars(); });
  });
}

void AnalysisBody::SetCaptions() {
  const TextTables& texts = program_.texts;
  const Names& names = kNames[static_cast<std::size_t>(sheet_.Window())];
  Toolbar_->Set_Taal(texts);
  Toolbar_->SetNames(ToQt(texts[names.toolbar]), ToQt(OwnTextOf(texts, OwnText::more_buttons)));
  StatusBar_->setAccessibleName(ToQt(texts[main_text::kStatusBarName]));
  Pic_Behoefte_->Set_Taal(texts, sheet_.Window());
  Pic_Behoefte_->setAccessibleName(ToQt(texts[names.requirements]));
  LV_uittreksel_->setAccessibleName(ToQt(texts[names.consumptions]));
  if (ProgressBar_ == nullptr) return;
  ProgressBar_->setAccessibleName(ToQt(texts[trend_text::kDescriptionProgress]));
}

void AnalysisBody::ShowFrame(bool shown) {
  Toolbar_->setVisible(shown);
  StatusBar_->setVisible(shown);
}

// The texts say how wide their boxes are, and the boxes how long the bars.
void AnalysisBody::ShowBars() {
  sheet_.ResizeBars(Pic_Behoefte_->Widths());
  Pic_Behoefte_->Show(sheet_.Bars());
  const PanelWidths needed = Pic_Behoefte_->Widths();
  if (sheet_.ResizeBars(needed)) Pic_Behoefte_->Show(sheet_.Bars());
}

void AnalysisBody::ShowRows() {
  if (!Shows(Pic_uittreksel_)) return;
  LV_uittreksel_->Show(SummaryHeadings(program_.texts, sheet_.Window()), sheet_.Rows(),
                       sheet_.ShownOrder());
}

void AnalysisBody::ShowPie() {
  if (Shows(Pic_top5_)) Pic_top5_->Show(sheet_.Pie());
}

void AnalysisBody::ShowView() {
  Toolbar_->Press(sheet_.View());
  Toolbar_->EnableMenu(sheet_.EnabledMenu());
  Toolbar_->Mark(AnalysisView::requirements, ChosenRequirements(sheet_.Requirement()));
  Toolbar_->Mark(AnalysisView::top5, std::array{ChosenNutrient(program_.analysis)});
  panels_->setCurrentWidget(panels_->findChild<QWidget*>(ToQt(sheet_.ButtonDown().panel)));
  ShowRows();
  ShowPie();
  ShowStatus();
  emit ViewShown();
}

void AnalysisBody::ShowStatus() {
  const auto& texts = sheet_.Status();
  for (std::size_t i = 0; i < texts.size(); ++i) status_[i]->setText(ToQt(texts[i]));
  LayStatusBar();
}

void AnalysisBody::ShowStage(const Text& stage, const Progress& progress) {
  status_[2]->setText(ToQt(stage));
  LayStatusBar();
  ProgressBar_->setVisible(!stage.empty());
  const std::size_t of = std::max<std::size_t>(progress.of, 1);
  ProgressBar_->setValue(static_cast<int>(progress.done * kProgressSteps / of));
}

void AnalysisBody::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  program_.Guard(CodeOf(sheet_.Window(), "#F9-13", "#F12-13"), [this] { LayStatusBar(); });
}

// Words that are too long for the second panel reach into the third, as far as that leaves room.
void AnalysisBody::LayStatusBar() {
  const auto widths = SummaryPanelWidths(sheet_.Window(), TwipsOfPixels(width()));
  const int progress = ProgressBar_ == nullptr ? 0 : kProgressWidth + 2 * kStatusMargin;
  const int stage = status_[2]->text().isEmpty() ? 0 : status_[2]->sizeHint().width();
  int left = 0;
  for (std::size_t i = 0; i < status_.size(); ++i) {
    const int given = PixelsOfTwips(widths[i]);
    const int needed = i == 2 ? 0 : status_[i]->sizeHint().width();
    const int room = width() - progress - left - (i == 2 ? 0 : stage);
    const int panel_width = std::max(std::min(std::max(given, needed), room), 0);
    status_[i]->setGeometry(left, 0, panel_width, StatusBar_->height());
    left += panel_width;
  }
  if (ProgressBar_ != nullptr) ProgressBar_->move(width() - progress, kStatusMargin);
}

}  // namespace kelvora
