#include "analysis/multi_day.h"

#include <algorithm>

#include "analysis/day_averages.h"
#include "language/trend_texts.h"

namespace kelvora {
namespace {

using namespace trend_text;

// Pieces of well below a millisecond each.
constexpr std::size_t kLinesAtOnce = 500;
constexpr std::size_t kRowsAtOnce = 50;

Text ReadingText(const TextTables& texts, ReadingStage stage) {
  switch (stage) {
    case ReadingStage::listing:
    case ReadingStage::reading_data:
      return texts[kStageReadingData];
    case ReadingStage::sorting_data:
      return texts[kStageSortingData];
    case ReadingStage::reading_files:
      return texts[kStageReadingFiles];
    case ReadingStage::converting:
      return texts[kStageConverting];
    case ReadingStage::done:
      break;
  }
  return {};
}

}  // namespace

MultiDay::MultiDay(Program& program)
    : program_(program), sheet_(program, AnalysisWindow::multi_day), reading_(program) {}

bool MultiDay::Work() {
  switch (stage_) {
    case Stage::reading:
      if (!reading_.Lees_Dagen()) {
        stage_ = Stage::idle;
        Refresh_Meerdaagsuittreksel();
      }
      break;
    case Stage::building_summary:
    case Stage::filling_summary:
      Vul_Uittreksel();
      break;
    case Stage::building_top5:
      EndRefresh();
      break;
    case Stage::idle:
      break;
  }
  return Working();
}

void MultiDay::GiveUp() {
  reading_.GiveUp();
  stage_ = Stage::idle;
}

void MultiDay::Begin(Stage stage) {
  stage_ = stage;
  next_ = 0;
}

void MultiDay::Refresh_Meerdaagsuittreksel() {
  if (stage_ == Stage::reading) return;
  program_.Guard("#F12-2", [this] {
    sheet_.Bepaal_Profiel();
    foods_ = {};
    rows_.clear();
    print_ = RowPrintOf(program_);
    const bool nothing = Days().series.keys.empty() || Days().lst_totaal.Empty();
    Begin(nothing ? Stage::building_top5 : Stage::building_summary);
  });
}

void MultiDay::Vul_Uittreksel() {
  const bool filled = program_.Guard("#F12-10", [this] {
    if (stage_ == Stage::building_summary) {
      CountLines();
    } else {
      FillRows();
    }
  });
  if (!filled) Begin(Stage::building_top5);
}

void MultiDay::CountLines() {
  const TextList& lines = Days().lst_totaal;
  const std::size_t end = std::min(next_ + kLinesAtOnce, lines.Count());
  while (next_ < end) foods_.Add(lines[next_++]);
  if (next_ == lines.Count()) Begin(Stage::filling_summary);
}

void MultiDay::FillRows() {
  const auto& foods = foods_.Foods();
  const std::size_t end = std::min(next_ + kRowsAtOnce, foods.size());
  for (; next_ < end; ++next_) {
    const auto& [line, count] = foods[next_];
    rows_.push_back(RowOfLine(line, std::to_string(count), next_, print_));
  }
  if (next_ < foods.size()) return;
  sheet_.TakeRows(std::move(rows_));
  Begin(Stage::building_top5);
}

void MultiDay::EndRefresh() {
  stage_ = Stage::idle;
  Bouw_Top5();
  Genereer_Voedingsbehoefte();
  sheet_.WriteStatus();
}

void MultiDay::Bouw_Top5() {
  sheet_.BuildPie(top5_verversen_ ? Top5Values::collect : Top5Values::keep);
}

void MultiDay::Genereer_Voedingsbehoefte() {
  program_.Guard("#F12-8", [this] {
    if (const auto averages = AveragesOf(Days().series)) sheet_.Maak_Voedingsbehoefte(*averages);
  });
}

void MultiDay::Set_Taal() {
  sheet_.MakeBarsAnew();
  if (!Working()) Bouw_Top5();
  sheet_.WriteStatus();
}

void MultiDay::Resize() {
  if (!Working()) Bouw_Top5();
}

void MultiDay::ClickEntry(int position) {
  program_.Guard("#F12-7", [&] {
    switch (sheet_.View()) {
      case AnalysisView::trend:
        return ChooseTimeLine(tijdlijn_stand_, position);
      case AnalysisView::requirements:
        // The status bar keeps its text until a button is clicked, as is meant.
        sheet_.ChooseRequirements(position);
        return Genereer_Voedingsbehoefte();
      case AnalysisView::top5:
        ChooseNutrient(program_.analysis, position);
        top5_verversen_ = true;
        return Bouw_Top5();
      default:
        return;
    }
  });
}

Text MultiDay::StageText() const {
  const TextTables& texts = program_.texts;
  switch (stage_) {
    case Stage::reading:
      return ReadingText(texts, reading_.Stage());
    case Stage::building_summary:
      return texts[kStageOneOfThree] + " " + texts[kStageBuildingSummary];
    case Stage::filling_summary:
      return texts[kStageTwoOfThree] + " " + texts[kStageFillingSummary];
    case Stage::building_top5:
      return texts[kStageThreeOfThree] + " " + texts[kStageBuildingTop5];
    case Stage::idle:
      break;
  }
  return {};
}

Progress MultiDay::HowFar() const {
  switch (stage_) {
    case Stage::reading:
      return reading_.HowFar();
    case Stage::building_summary:
      return {next_, Days().lst_totaal.Count()};
    case Stage::filling_summary:
      return {next_, foods_.Foods().size()};
    default:
      return {0, 1};
  }
}

Text MultiDay::Title() const {
  const Text stage = StageText();
  return stage.empty() ? program_.texts[kTitle] : stage;
}

}  // namespace kelvora
