// What all days of the current user come to: the trend of nine series, the average day against the
// requirements, the foods of all days and the five largest of them. MultiDay is the state of one
// multi-day window, whose window draws it and passes clicks on.
//
// The days are read once, when the window opens; the open day counts as it was last saved. Reading
// and rebuilding are work in small steps: the window takes as many at a time as nobody notices, so
// that it answers meanwhile and may be closed at any of them.
#pragma once

#include "analysis/analysis_sheet.h"
#include "analysis/day_reading.h"
#include "analysis/first_portions.h"

namespace kelvora {

class MultiDay {
 public:
  // As a window is when it opens: on the trend, with all the work before it.
  explicit MultiDay(Program& program);

  // The next small piece of work; false if there is none left. May show a box, and so let other
  // events run.
  bool Work();
  [[nodiscard]] bool Working() const { return stage_ != Stage::idle; }
  // Leaves what is under way as it is.
  void GiveUp();
  // Begins to rebuild everything from what was read; reads no file. While the days are still being
  // read that comes anyway.
  void Refresh_Meerdaagsuittreksel();
  // Brings what was written in one language into another: the charts and the status bar.
  void Set_Taal();
  // The five largest as they are now, for a window of another size. The averages stay what they
  // are, and their bars follow the panel.
  void Resize();
  // A position of the menu under the button that is down; chart, bars or pie follow.
  void ClickEntry(int position);

  // What the work is at, in words; nothing without any.
  [[nodiscard]] Text StageText() const;
  [[nodiscard]] Progress HowFar() const;
  [[nodiscard]] Text Title() const;

  [[nodiscard]] const DayHistory& Days() const { return reading_.Days(); }
  // 0: every day takes one step of the chart; 1: the days stand where their dates are.
  [[nodiscard]] float TijdlijnStand() const { return tijdlijn_stand_; }
  // What it shares with the window of one day.
  [[nodiscard]] AnalysisSheet& Sheet() { return sheet_; }
  [[nodiscard]] const AnalysisSheet& Sheet() const { return sheet_; }

 private:
  enum class Stage { reading, building_summary, filling_summary, building_top5, idle };

  void Begin(Stage stage);
  void Vul_Uittreksel();
  void CountLines();
  void FillRows();
  void Bouw_Top5();
  void Genereer_Voedingsbehoefte();
  void EndRefresh();

  Program& program_;
  AnalysisSheet sheet_;
  DayReading reading_;
  Stage stage_ = Stage::reading;
  std::size_t next_ = 0;  // within the stage
  FirstPortions foods_;
  RowPrint print_;
  SummaryRows rows_;
  float tijdlijn_stand_ = 0;
  bool top5_verversen_ = false;  // once set, every pie takes its values anew
};

}  // namespace kelvora
