#include "analysis/day_summary.h"

#include "language/day_summary_texts.h"
#include "nutrition/totals.h"

namespace kelvora {

DaySummary::DaySummary(Program& program)
    : program_(program), sheet_(program, AnalysisWindow::day_summary) {
  sheet_.Bepaal_Profiel();
  Refresh_Daguittreksel();
}

void DaySummary::Refresh_Daguittreksel() {
  program_.Guard("#F9-1", [this] {
    Vul_Uittreksel();
    sheet_.BuildPie();
    Toon_BMI(program_, bmi_);
  });
}

void DaySummary::Vul_Uittreksel() {
  program_.Guard("#F9-9", [this] {
    KV_data& store = program_.store;
    TextList lst_totaal;
    for (const DayPart part : kDayParts) {
      lst_totaal.AddSharedLines(store.ListOf(part), [](std::string_view) { return true; });
    }
    CountEqualLines(lst_totaal, store.Dupe_list, store.Dupe_list_teller);
    sheet_.TakeRows(row_maker_.RowsOf(program_, store.Dupe_list, store.Dupe_list_teller));
  });
}

void DaySummary::Set_Taal() {
  sheet_.MakeBarsAnew();
  sheet_.BuildPie();
  Toon_BMI(program_, bmi_);
  sheet_.WriteStatus();
}

void DaySummary::ClickEntry(int position) {
  program_.Guard("#F9-7", [&] {
    if (sheet_.View() == AnalysisView::requirements) {
      // The status bar keeps its text until a button is clicked, as is meant.
      sheet_.ChooseRequirements(position);
      Refresh_Totalen(program_);
    } else if (sheet_.View() == AnalysisView::top5) {
      ChooseNutrient(program_.analysis, position);
      sheet_.BuildPie();
    }
  });
}

WindowRecord DaySummary::ClickRescale(const WindowRecord& window) {
  WindowRecord rescaled = window;
  program_.Guard("#F9-2", [&] {
    const bool grows = Stand() == Schermstand::small;
    program_.windows.geometry.SummarySmall = grows ? 0 : 1;
    rescaled = Rescaled(window, Stand());
    sheet_.ShowView(AnalysisView::requirements);
  });
  return rescaled;
}

Schermstand DaySummary::Stand() const {
  return program_.windows.geometry.SummarySmall == 1 ? Schermstand::small : Schermstand::normal;
}

Text DaySummary::Title() const {
  const TextList& header = program_.store.L_gegevens;
  Text title = program_.texts[day_summary_text::kTitle] + " ";
  title.append(header[HeaderRow::kWeekday]).append(" ");
  return title + Format_Datum(header[HeaderRow::kDate], program_.settings[Setting::opt_system],
                              UnitsOf(program_));
}

}  // namespace kelvora
