// What the open day adds up to: the requirements and what was used of them, the merged
// consumptions, the five largest of them, the body-mass index. DaySummary is the state of one day
// summary window, whose window draws it and passes clicks on.
//
// It holds no data of the day; every Refresh_Daguittreksel takes them from the store anew.
#pragma once

#include "analysis/analysis_sheet.h"
#include "analysis/bmi_chart.h"
#include "analysis/summary_size.h"

namespace kelvora {

class DaySummary {
 public:
  explicit DaySummary(Program& program);

  // Rebuilds the list, the five largest, the body-mass index and the texts.
  void Refresh_Daguittreksel();
  // Brings what was written in one language into another: the charts and the status bar.
  void Set_Taal();

  // A position of the menu under the button that is down; bars or pie follow.
  void ClickEntry(int position);
  // A click on `Pic_rescale`: the other size, and the requirements in it. Returns where the window
  // goes.
  WindowRecord ClickRescale(const WindowRecord& window);

  [[nodiscard]] Schermstand Stand() const;
  [[nodiscard]] Text Title() const;
  // What it shares with the window of several days.
  [[nodiscard]] AnalysisSheet& Sheet() { return sheet_; }
  [[nodiscard]] const AnalysisSheet& Sheet() const { return sheet_; }
  [[nodiscard]] const BmiChart& Bmi() const { return bmi_; }

 private:
  void Vul_Uittreksel();

  Program& program_;
  AnalysisSheet sheet_;
  SummaryRowMaker row_maker_;
  BmiChart bmi_;
};

}  // namespace kelvora
