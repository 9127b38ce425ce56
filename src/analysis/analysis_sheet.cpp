#include "analysis/analysis_sheet.h"

#include <algorithm>

#include "language/day_summary_texts.h"

namespace kelvora {

AnalysisSheet::AnalysisSheet(Program& program, AnalysisWindow window)
    : program_(program), window_(window), view_(ButtonsOf(window).front().view) {
  WriteStatus();
}

const AnalysisButton& AnalysisSheet::ButtonDown() const {
  return *std::ranges::find(ButtonsOf(window_), view_, &AnalysisButton::view);
}

void AnalysisSheet::Bepaal_Profiel() {
  kelvora::Bepaal_Profiel(program_, window_, state_);
}

void AnalysisSheet::TakeRows(SummaryRows rows) {
  shown_order_.reset();
  rows_ = std::make_shared<const SummaryRows>(std::move(rows));
}

void AnalysisSheet::BuildPie(Top5Values values) {
  const auto rows = rows_;  // a long sort lets events run, which may rebuild the list
  Bouw_Top5(program_, window_, *rows, static_cast<int>(program_.analysis.gekozen_stof), top5_,
            values);
  Zet_Statustekst();
}

void AnalysisSheet::Maak_Voedingsbehoefte(const DayTotals& used) {
  used_ = used;
  MakeBarsAnew();
}

bool AnalysisSheet::ResizeBars(const PanelWidths& widths) {
  if (widths == widths_) return false;
  widths_ = widths;
  MakeBarsAnew();
  return true;
}

void AnalysisSheet::MakeBarsAnew() {
  if (used_) {
    kelvora::Maak_Voedingsbehoefte(program_, window_, state_, *used_, widths_, bars_);
  }
}

void AnalysisSheet::WriteStatus() {
  status_[0] = program_.texts[ButtonDown().status];
  if (view_ == AnalysisView::bmi) {
    status_[1] = program_.texts[day_summary_text::kStatusBodyMassIndex];
  }
  Zet_Statustekst();
}

void AnalysisSheet::Zet_Statustekst() {
  program_.Guard(CodeOf(window_, "#F9-5", "#F12-5"), [this] {
    if (auto status = StatusOf(program_, window_, view_, state_, rows_->size())) {
      status_[1] = std::move(*status);
    }
  });
}

void AnalysisSheet::ClickButton(AnalysisView view) {
  program_.Guard(CodeOf(window_, "#F9-6", "#F12-6"), [&] {
    view_ = view;
    enabled_menu_ = view;
    WriteStatus();
  });
}

void AnalysisSheet::ClickColumn(SummaryColumn column) {
  program_.Guard(CodeOf(window_, "#F9-4", "#F12-4"), [&] {
    auto sorted = std::make_shared<SummaryRows>(*rows_);
    const auto by = SortSummary(*sorted, column, sort_);
    if (!by) return;
    shown_order_ = by;
    rows_ = std::move(sorted);
  });
}

}  // namespace kelvora
