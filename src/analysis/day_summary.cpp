#include "analysis/day_summary.h"

#include <algorithm>

#include "language/day_summary_texts.h"
#include "nutrition/totals.h"

namespace kelvora {

using namespace day_summary_text;

DaySummary::DaySummary(Program& program) : program_(program) {
  Bepaal_Profiel(program_, AnalysisWindow::day_summary, state_);
  status_[0] = program_.texts[ButtonDown().status];
  Refresh_Daguittreksel();
}

const AnalysisButton& DaySummary::ButtonDown() const {
  return *std::ranges::find(DaySummaryButtons(), view_, &AnalysisButton::view);
}

void DaySummary::Refresh_Daguittreksel() {
  program_.Guard("#F9-1", [this] {
    Vul_Uittreksel();
    BuildPie();
    Toon_BMI(program_, bmi_);
  });
}

void DaySummary::Vul_Uittreksel() {
  program_.Guard("#F9-9", [this] {
    KV_data& store = program_.store;
    shown_order_.reset();
    TextList lst_totaal;
    for (const DayPart part : kDayParts) {
      lst_totaal.AddSharedLines(store.ListOf(part), [](std::string_view) { return true; });
    }
    CountEqualLines(lst_totaal, store.Dupe_list, store.Dupe_list_teller);
    rows_ = std::make_shared<const SummaryRows>(
        row_maker_.RowsOf(program_, store.Dupe_list, store.Dupe_list_teller));
  });
}

void DaySummary::BuildPie() {
  const auto rows = rows_;  // a long sort lets events run, which may rebuild the list
  Bouw_Top5(program_, *rows, static_cast<int>(program_.analysis.gekozen_stof), top5_);
  Zet_Statustekst();
}

void DaySummary::Maak_Voedingsbehoefte(const DayTotals& used) {
  used_ = used;
  MakeBars();
}

bool DaySummary::ResizeBars(const PanelWidths& widths) {
  if (widths == widths_) return false;
  widths_ = widths;
  if (used_) MakeBars();
  return true;
}

void DaySummary::MakeBars() {
  kelvora::Maak_Voedingsbehoefte(program_, AnalysisWindow::day_summary, state_, *used_, widths_,
                                 bars_);
}

void DaySummary::Set_Taal() {
  if (used_) MakeBars();
  BuildPie();
  Toon_BMI(program_, bmi_);
  WriteStatus();
}

void DaySummary::WriteStatus() {
  status_[0] = program_.texts[ButtonDown().status];
  if (view_ == AnalysisView::bmi) status_[1] = program_.texts[kStatusBodyMassIndex];
  Zet_Statustekst();
}

void DaySummary::Zet_Statustekst() {
  program_.Guard("#F9-5", [this] {
    if (auto status = StatusOf(program_, view_, state_, rows_->size())) {
      status_[1] = std::move(*status);
    }
  });
}

void DaySummary::ClickButton(AnalysisView view) {
  program_.Guard("#F9-6", [&] {
    view_ = view;
    enabled_menu_ = view;
    WriteStatus();
  });
}

void DaySummary::ClickEntry(int position) {
  program_.Guard("#F9-7", [&] {
    if (view_ == AnalysisView::requirements) {
      // The status bar keeps its text until a button is clicked, as is meant.
      ChooseRequirements(state_, position);
      Refresh_Totalen(program_);
    } else if (view_ == AnalysisView::top5) {
      ChooseNutrient(program_.analysis, position);
      BuildPie();
    }
  });
}

void DaySummary::ClickColumn(SummaryColumn column) {
  program_.Guard("#F9-4", [&] {
    auto sorted = std::make_shared<SummaryRows>(*rows_);
    const auto by = SortSummary(*sorted, column, sort_);
    if (!by) return;
    shown_order_ = by;
    rows_ = std::move(sorted);
  });
}

WindowRecord DaySummary::ClickRescale(const WindowRecord& window) {
  WindowRecord rescaled = window;
  program_.Guard("#F9-2", [&] {
    const bool grows = Stand() == Schermstand::small;
    program_.windows.geometry.SummarySmall = grows ? 0 : 1;
    rescaled = Rescaled(window, Stand());
    view_ = AnalysisView::requirements;
  });
  return rescaled;
}

Schermstand DaySummary::Stand() const {
  return program_.windows.geometry.SummarySmall == 1 ? Schermstand::small : Schermstand::normal;
}

Text DaySummary::Title() const {
  const TextList& header = program_.store.L_gegevens;
  Text title = program_.texts[kTitle] + " ";
  title.append(header[HeaderRow::kWeekday]).append(" ");
  return title + Format_Datum(header[HeaderRow::kDate], program_.settings[Setting::opt_system],
                              UnitsOf(program_));
}

}  // namespace kelvora
