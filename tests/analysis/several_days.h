// A state of the multi-day window over days of Anna's.
#pragma once

#include <optional>

#include "analysis/days_of_anna.h"
#include "analysis/multi_day.h"

namespace kelvora {

class SeveralDays : public DaysOfAnna {
 protected:
  MultiDay& Open() {
    days.emplace(program);
    Finish();
    return *days;
  }
  void Finish() {
    while (days->Work()) {
    }
  }
  // Two days of a year whose foods are these lines.
  void Eat(std::string_view first, std::string_view second) {
    AddDay("a.kvf", {.date = "01-03-04", .morning = first});
    AddDay("b.kvf", {.date = "02-03-04", .morning = second});
  }
  // Ten foods, named by letters, of 1000, 900, ... 100 kilojoules and two grams of protein each.
  void EatTenFoods() {
    Text block;
    for (int i = 0; i < 10; ++i) {
      block += LineOf({.product = Text(1, static_cast<char>('A' + i)),
                       .kj = std::to_string(1000 - 100 * i),
                       .protein = "2"}) +
               kLineEnd;
    }
    Rec_DayFile record;
    record[DayFileField::Morning] = block;
    record[DayFileField::Header] = Packed("Anna~~~~~~~~~01-03-04~");
    WriteRecord(PathOf("a.kvf"), record);
    AddDay("b.kvf", {.date = "02-03-04"});
  }
  Text Cell(std::size_t row, SummaryColumn column) { return (*days->Sheet().Rows())[row][column]; }
  const AnalysisSheet& Sheet() { return days->Sheet(); }
  void Press(AnalysisView view) { days->Sheet().ClickButton(view); }

  std::optional<MultiDay> days;
};

}  // namespace kelvora
